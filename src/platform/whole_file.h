#pragma once
// A file that is written as a whole.

#include "platform/files.h"
#include "platform/scratch_file.h"

#include <span>
#include <string>

namespace quor {

// By way of a scratch file, so that the target is the old file or the new one at any moment. Fails as the steps do; a
// scratch file that stays behind fails nothing.
inline void WriteWhole(Files& files, const std::string& path, std::span<const std::uint8_t> bytes)
{
    ScratchFile scratch(files);
    scratch.Fill([bytes](OpenFile& file) { file.Write(0, bytes); });
    files.CopyFile(scratch.Path(), path);
}

} // namespace quor
