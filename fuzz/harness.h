#pragma once
// What the fuzzers share. Each is a function that takes bytes from anywhere: a refusal is a Failure and is well, a
// promise that is broken or anything else that is thrown ends the process, and libFuzzer keeps the bytes.

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace quor {

inline void Require(bool isKept, const char* promise)
{
    if (!isKept) {
        std::fprintf(stderr, "Broken: %s\n", promise);
        std::abort();
    }
}

inline std::string_view TextOf(const std::uint8_t* data, std::size_t size)
{
    return {reinterpret_cast<const char*>(data), size};
}

} // namespace quor
