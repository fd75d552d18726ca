#pragma once
// A file that is read or written as a whole.

#include "platform/files.h"
#include "platform/scratch_file.h"

#include <span>
#include <string>
#include <vector>

namespace quor {

inline std::vector<std::uint8_t> ReadWhole(OpenFile& file)
{
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(file.Size()));
    bytes.resize(file.Read(0, bytes));
    return bytes;
}

// By way of a scratch file, so that the target is the old file or the new one at any moment. Fails as the steps do; a
// scratch file that stays behind fails nothing.
inline void WriteWhole(Files& files, const std::string& path, std::span<const std::uint8_t> bytes)
{
    ScratchFile scratch(files);
    scratch.Fill([bytes](OpenFile& file) { file.Write(0, bytes); });
    files.CopyFile(scratch.Path(), path);
}

} // namespace quor
