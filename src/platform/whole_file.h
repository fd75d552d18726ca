#pragma once
// A file that is read or written as a whole.

#include "platform/files.h"
#include "platform/scratch_file.h"

#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quor {

inline std::vector<std::uint8_t> ReadWhole(OpenFile& file)
{
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(file.Size()));
    bytes.resize(file.Read(0, bytes));
    return bytes;
}

// Of a file that is no longer than that; throws `tooLong` otherwise.
inline std::string ReadText(Files& files, const std::string& path, std::int64_t most, const Failure& tooLong)
{
    const std::unique_ptr<OpenFile> file = files.Open(path, OpenMode::Read);
    if (file->Size() > most) {
        throw tooLong;
    }
    const std::vector<std::uint8_t> bytes = ReadWhole(*file);
    return {bytes.begin(), bytes.end()};
}

// By way of a scratch file, so that the target is the old file or the new one at any moment. Fails as the steps do; a
// scratch file that stays behind fails nothing: what is to be said of it is given back, and is empty otherwise.
inline std::string WriteWhole(Files& files, const std::string& path, std::span<const std::uint8_t> bytes)
{
    ScratchFile scratch(files);
    scratch.Fill([bytes](OpenFile& file) { file.Write(0, bytes); });
    files.CopyFile(scratch.Path(), path);
    try {
        scratch.Delete();
        return {};
    } catch (const Failure& failure) {
        return failure.Description();
    }
}

inline std::string WriteWhole(Files& files, const std::string& path, std::string_view text)
{
    return WriteWhole(files, path, {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()});
}

} // namespace quor
