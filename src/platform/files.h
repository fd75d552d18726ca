#pragma once
// The file system: existence, binary access by position, and whole-file steps.
//
// Paths are UTF-8. Failures: 53 file not found, 76 path not found, 70 permission denied, 75 any other trouble.

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>

namespace quor {

// A file open for binary access. Its end closes it and forgets failures; writers call Close to hear of them.
class OpenFile {
public:
    virtual ~OpenFile() = default;

    // In bytes, with what has been written so far.
    virtual std::int64_t Size() = 0;

    // Fills the bytes from that position as far as the file goes; gives how many it had. The rest is left alone.
    virtual std::size_t Read(std::int64_t position, std::span<std::uint8_t> bytes) = 0;

    virtual void Write(std::int64_t position, std::span<const std::uint8_t> bytes) = 0;

    virtual void Close() = 0;
};

enum class OpenMode {
    Read,    // of a file that exists
    Create,  // anew, for reading and writing; what was there is lost
    Scratch, // as Create, but fails if the path exists; readable by its owner alone
    Append,  // made if missing; positions are ignored, writes go to the end
};

class Files {
public:
    virtual ~Files() = default;

    virtual bool FileExists(const std::string& path) = 0;

    // Whether surely nothing has that name: neither a file, nor a folder, nor a link, be it one that leads nowhere.
    // Fails where that can't be told, as for a folder on the way that may not be searched or isn't one.
    virtual bool IsAbsent(const std::string& path) = 0;

    virtual std::unique_ptr<OpenFile> Open(const std::string& path, OpenMode mode) = 0;

    // A new file with the permissions and the owner of another; its bytes outlive a loss of power once it is closed.
    // Fails with 75 if the path exists.
    virtual std::unique_ptr<OpenFile> OpenLike(const std::string& path, const std::string& model) = 0;

    // Replaces the target in one step: it is whole at any moment, the old file or the new one. (In a folder that takes
    // no new file the target is written in place; a failure puts the old bytes back.) A target that is read-only fails
    // with 70 and stays; links are followed, other names of the target keep the old file; permissions and owner of an
    // old target are kept.
    virtual void CopyFile(const std::string& from, const std::string& to) = 0;

    // Of a scratch file to another, which doesn't exist yet. Neither is written again or outlives a loss of power, so
    // they may share their bytes.
    virtual void CopyScratch(const std::string& from, const std::string& to) = 0;

    // Fails with 75 if the target exists.
    virtual void MoveFile(const std::string& from, const std::string& to) = 0;

    // Also if the file is read-only.
    virtual void DeleteFile(const std::string& path) = 0;

    // The path behind a chain of symbolic links; the path itself where it is none.
    virtual std::string FollowLinks(const std::string& path) = 0;

    // The system's folder for temporary files, without a separator at its end.
    virtual std::string TempFolder() = 0;

    // Another one, for when that one can't take a file. Empty if there is none.
    virtual std::string SpareFolder() = 0;

    // A bare name that can't be guessed.
    virtual std::string TempName() = 0;
};

} // namespace quor
