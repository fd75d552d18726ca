#pragma once
// A scratch file: made in the first folder that can take it, deleted when it isn't needed any more.

#include "base/guard.h"
#include "platform/files.h"

#include <memory>
#include <string>
#include <utility>

namespace quor {

// Goes with this object.
class ScratchFile {
public:
    explicit ScratchFile(Files& files) : m_files(files) {}
    ScratchFile(const ScratchFile&) = delete;
    ScratchFile& operator=(const ScratchFile&) = delete;
    ~ScratchFile()
    {
        IgnoreFailure([this] { Delete(); });
    }

    // Has `write` fill it, in the folder for temporary files; where that fails, once more in the spare one.
    template <class Write> void Fill(Write&& write)
    {
        try {
            FillIn(m_files.TempFolder(), write);
        } catch (...) {
            const std::string spare = m_files.SpareFolder();
            if (spare.empty()) {
                throw;
            }
            IgnoreFailure([this] { Delete(); });
            FillIn(spare, write);
        }
    }

    // Of the file last made.
    const std::string& Path() const noexcept { return m_path; }

    // A new path for a scratch file in the same folder.
    std::string PathBeside() const { return m_folder + '/' + m_files.TempName(); }

    // Fails if the file stays behind. A second call has nothing to do.
    void Delete()
    {
        m_file.reset();
        try {
            if (std::exchange(m_isMade, false)) {
                m_files.DeleteFile(m_path);
            }
        } catch (const Failure& failure) {
            throw Failure(failure.Number(), "The scratch file " + m_path + " stays behind: " + failure.Description());
        }
    }

private:
    template <class Write> void FillIn(const std::string& folder, Write& write)
    {
        m_folder = folder;
        m_path = PathBeside();
        if (m_files.FileExists(m_path)) {
            m_files.DeleteFile(m_path);
        }
        m_file = m_files.Open(m_path, OpenMode::Scratch);
        m_isMade = true;
        write(*m_file);
        m_file->Close();
        m_file.reset();
    }

    Files& m_files;
    std::string m_folder;
    std::string m_path;
    std::unique_ptr<OpenFile> m_file;
    bool m_isMade = false;
};

} // namespace quor
