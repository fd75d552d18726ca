#pragma once
// The file system of the machine.
//
// Only regular files are opened: a folder, a pipe or a device fails with 75 and never blocks.

#include "platform/files.h"

namespace quor {

class DiskFiles final : public Files {
public:
    bool FileExists(const std::string& path) override; // true for all that is no folder
    bool IsAbsent(const std::string& path) override;
    std::unique_ptr<OpenFile> Open(const std::string& path, OpenMode mode) override;
    std::unique_ptr<OpenFile> OpenLike(const std::string& path, const std::string& model) override;

    // The new bytes are on the disk before they take the place. Of an old target owner, permissions, access list and
    // user attributes are kept.
    //
    // Where the folder takes no new file, the old bytes go to a scratch file and the target is written in place. A
    // failure puts them back. A kill, or a loss of power, in the middle leaves a torn target, and the old bytes whole
    // in the folder for temporary files or, where that can't take them, in the spare one: under the target's name with
    // ".quor", digits and ".old" behind it. Nothing deletes that file.
    void CopyFile(const std::string& from, const std::string& to) override;

    void CopyScratch(const std::string& from, const std::string& to) override;
    void MoveFile(const std::string& from, const std::string& to) override;
    void DeleteFile(const std::string& path) override;
    std::string FollowLinks(const std::string& path) override;
    std::string TempFolder() override;  // TMPDIR, or /tmp
    std::string SpareFolder() override; // the user's folder for state
    std::string TempName() override;
};

} // namespace quor
