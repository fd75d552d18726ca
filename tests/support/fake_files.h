#pragma once
// The file system in memory. Paths are taken as they stand; a folder exists wherever a path names it.

#include "base/event.h"
#include "platform/files.h"
#include "tests/support/planned_failures.h"

#include <map>
#include <set>
#include <string_view>
#include <vector>

namespace quor {

class FakeFiles final : public Files {
public:
    using Bytes = std::vector<std::uint8_t>;

    PlannedFailures planned;          // exists, absent, open, read, write, copy, move, delete
    Event<const std::string&> Called; // each operation, as `files.copy "a" "b"`
    std::string spareFolder;          // none

    // For tests, uncounted and unhindered.
    void Put(const std::string& path, Bytes bytes) { m_files[path] = std::make_shared<Bytes>(std::move(bytes)); }
    void PutText(const std::string& path, std::string_view text) { Put(path, Bytes(text.begin(), text.end())); }
    bool Has(const std::string& path) const { return m_files.contains(path); }
    const Bytes& Get(const std::string& path) const { return *Find(path); } // fails with 53
    std::string Text(const std::string& path) const { return {Get(path).begin(), Get(path).end()}; }
    void Erase(const std::string& path);
    void SetReadOnly(const std::string& path) { m_readOnly.insert(path); } // also of a file that comes later
    std::vector<std::string> Paths() const;                                // sorted

    bool FileExists(const std::string& path) override;
    bool IsAbsent(const std::string& path) override;
    std::unique_ptr<OpenFile> Open(const std::string& path, OpenMode mode) override;
    std::unique_ptr<OpenFile> OpenLike(const std::string& path, const std::string& /*model*/) override
    {
        return Open(path, OpenMode::Create);
    }
    void CopyFile(const std::string& from, const std::string& to) override;
    void CopyScratch(const std::string& from, const std::string& to) override { CopyFile(from, to); }
    void MoveFile(const std::string& from, const std::string& to) override;
    void DeleteFile(const std::string& path) override;
    std::string FollowLinks(const std::string& path) override { return path; }
    std::string TempFolder() override { return "temp"; }
    std::string SpareFolder() override { return spareFolder; }
    std::string TempName() override { return "temp" + std::to_string(++m_tempNames) + ".tmp"; }

private:
    friend class FakeOpenFile;

    void Call(std::string_view operation, const std::string& arguments);
    std::shared_ptr<Bytes> Find(const std::string& path) const; // fails with 53
    void MustBeWritable(const std::string& path) const;         // fails with 70

    std::map<std::string, std::shared_ptr<Bytes>> m_files;
    std::set<std::string> m_readOnly;
    int m_tempNames = 0;
};

} // namespace quor
