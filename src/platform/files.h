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
    virtual std::unique_ptr<OpenFile> Open(const std::string& path, OpenMode mode) = 0;

    // Replaces the target in one step: it is whole at any moment, the old file or the new one. A target that is
    // read-only fails with 70 and stays; links are followed; permissions and owner of an old target are kept.
    virtual void CopyFile(const std::string& from, const std::string& to) = 0;

    // Fails with 75 if the target exists.
    virtual void MoveFile(const std::string& from, const std::string& to) = 0;

    // Also if the file is read-only.
    virtual void DeleteFile(const std::string& path) = 0;

    // The system's folder for temporary files, without a separator at its end.
    virtual std::string TempFolder() = 0;

    // A bare name that can't be guessed.
    virtual std::string TempName() = 0;
};

} // namespace quor
