#pragma once
// An open file of the system, and its failures as ours.

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <utility>

namespace quor::posix {

// Fails with 53, 70, 75 or 76, as `error` (an errno) asks for.
[[noreturn]] void Fail(int error, const std::string& path);

// Closes at its end.
class Descriptor {
public:
    // Opens a regular file with the flags of open; never blocks.
    Descriptor(std::string path, int flags, unsigned mode = 0);
    Descriptor(Descriptor&& other) noexcept
        : m_path(std::move(other.m_path)), m_number(std::exchange(other.m_number, -1))
    {
    }
    Descriptor& operator=(Descriptor&&) = delete;
    ~Descriptor();

    int Number() const noexcept { return m_number; }
    const std::string& Path() const noexcept { return m_path; }

    std::int64_t Size() const;
    // As many bytes as the file has from there on.
    std::size_t Read(std::int64_t position, std::span<std::uint8_t> bytes) const;
    void Write(std::int64_t position, std::span<const std::uint8_t> bytes) const;
    // Fails if `result`, of a call on this file, is negative.
    void Check(int result) const;
    void Close();

private:
    std::string m_path;
    int m_number;
};

} // namespace quor::posix
