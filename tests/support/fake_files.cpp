#include "tests/support/fake_files.h"

#include "base/failure.h"
#include "tests/support/quoted.h"

#include <algorithm>

namespace quor {

class FakeOpenFile final : public OpenFile {
public:
    FakeOpenFile(FakeFiles& files, std::string path, std::shared_ptr<FakeFiles::Bytes> bytes, OpenMode mode)
        : m_files(files), m_path(std::move(path)), m_bytes(std::move(bytes)), m_mode(mode)
    {
    }

    std::int64_t Size() override
    {
        MustBe(m_isOpen);
        return std::ssize(*m_bytes);
    }

    std::size_t Read(std::int64_t position, std::span<std::uint8_t> bytes) override
    {
        Call("read", position, bytes.size());
        const std::size_t start = std::min(static_cast<std::size_t>(position), m_bytes->size());
        const auto there = std::span(*m_bytes).subspan(start, std::min(bytes.size(), m_bytes->size() - start));
        std::ranges::copy(there, bytes.begin());
        return there.size();
    }

    void Write(std::int64_t position, std::span<const std::uint8_t> bytes) override
    {
        Call("write", position, bytes.size());
        MustBe(m_mode != OpenMode::Read);
        const std::size_t start = m_mode == OpenMode::Append ? m_bytes->size() : static_cast<std::size_t>(position);
        m_bytes->resize(std::max(m_bytes->size(), start + bytes.size()));
        std::copy(bytes.begin(), bytes.end(), m_bytes->begin() + static_cast<std::ptrdiff_t>(start));
    }

    void Close() override { m_isOpen = false; }

private:
    static void MustBe(bool condition)
    {
        if (!condition) {
            throw Failure(failures::pathFileAccess);
        }
    }

    void Call(std::string_view operation, std::int64_t position, std::size_t length)
    {
        MustBe(m_isOpen && position >= 0);
        m_files.Call(operation, Quoted(m_path) + ' ' + std::to_string(position) + ' ' + std::to_string(length));
    }

    FakeFiles& m_files;
    std::string m_path;
    std::shared_ptr<FakeFiles::Bytes> m_bytes;
    OpenMode m_mode;
    bool m_isOpen = true;
};

void FakeFiles::Erase(const std::string& path)
{
    m_files.erase(path);
    m_readOnly.erase(path);
}

std::vector<std::string> FakeFiles::Paths() const
{
    std::vector<std::string> paths;
    std::ranges::transform(m_files, std::back_inserter(paths), [](const auto& file) { return file.first; });
    return paths;
}

bool FakeFiles::FileExists(const std::string& path)
{
    Call("exists", Quoted(path));
    return Has(path);
}

bool FakeFiles::IsAbsent(const std::string& path)
{
    Call("absent", Quoted(path));
    const auto next = m_files.lower_bound(path + '/');
    return !Has(path) && (next == m_files.end() || !next->first.starts_with(path + '/'));
}

std::unique_ptr<OpenFile> FakeFiles::Open(const std::string& path, OpenMode mode)
{
    constexpr std::string_view modes[] = {"read", "create", "scratch", "append"};
    Call("open", Quoted(path) + ' ' + std::string(modes[static_cast<std::size_t>(mode)]));
    if (mode == OpenMode::Scratch && Has(path)) {
        throw Failure(failures::pathFileAccess);
    }
    if (mode != OpenMode::Read) {
        MustBeWritable(path);
        if (mode != OpenMode::Append || !Has(path)) {
            Put(path, {});
        }
    }
    return std::make_unique<FakeOpenFile>(*this, path, Find(path), mode);
}

void FakeFiles::CopyFile(const std::string& from, const std::string& to)
{
    Call("copy", Quoted(from) + ' ' + Quoted(to));
    const Bytes bytes = *Find(from);
    MustBeWritable(to);
    Put(to, bytes);
}

void FakeFiles::MoveFile(const std::string& from, const std::string& to)
{
    Call("move", Quoted(from) + ' ' + Quoted(to));
    const std::shared_ptr<Bytes> bytes = Find(from);
    if (Has(to)) {
        throw Failure(failures::pathFileAccess);
    }
    m_files.erase(from);
    m_files[to] = bytes;
    if (m_readOnly.erase(from) > 0) {
        m_readOnly.insert(to);
    }
}

void FakeFiles::DeleteFile(const std::string& path)
{
    Call("delete", Quoted(path));
    Find(path);
    Erase(path);
}

void FakeFiles::Call(std::string_view operation, const std::string& arguments)
{
    Called.Raise("files." + std::string(operation) + ' ' + arguments);
    planned.Count(operation);
}

std::shared_ptr<FakeFiles::Bytes> FakeFiles::Find(const std::string& path) const
{
    const auto found = m_files.find(path);
    if (found == m_files.end()) {
        throw Failure(failures::fileNotFound);
    }
    return found->second;
}

void FakeFiles::MustBeWritable(const std::string& path) const
{
    if (m_readOnly.contains(path)) {
        throw Failure(failures::permissionDenied);
    }
}

} // namespace quor
