#include "bench/floors.h"

#include "base/failure.h"

#include <QBuffer>
#include <QUiLoader>
#include <QWidget>

#include <fcntl.h>
#include <unistd.h>
#include <vector>

namespace quor::bench {

namespace {

class Descriptor {
public:
    Descriptor(const std::filesystem::path& path, int flags) : m_number(::open(path.c_str(), flags | O_CLOEXEC, 0600))
    {
        Check(m_number >= 0);
    }
    ~Descriptor() { ::close(m_number); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    void Write(const std::vector<char>& bytes) const
    {
        Check(::write(m_number, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()));
    }
    void Read(std::vector<char>& bytes) const
    {
        Check(::read(m_number, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()));
    }
    void Flush() const { Check(::fsync(m_number) == 0); }

private:
    static void Check(bool went)
    {
        if (!went) {
            throw Failure(failures::pathFileAccess);
        }
    }

    int m_number;
};

} // namespace

void WriteFlushRename(const std::filesystem::path& target, std::size_t size)
{
    const std::vector<char> bytes(size, 'q');
    std::filesystem::path scratch = target;
    scratch += ".new";
    {
        const Descriptor file(scratch, O_CREAT | O_EXCL | O_WRONLY);
        file.Write(bytes);
        file.Flush();
    }
    std::filesystem::rename(scratch, target);
}

void WriteReadDelete(const std::filesystem::path& path, std::size_t size)
{
    std::vector<char> bytes(size, 'q');
    Descriptor(path, O_CREAT | O_EXCL | O_WRONLY).Write(bytes);
    Descriptor(path, O_RDONLY).Read(bytes);
    std::filesystem::remove(path);
}

std::string CheckBoxForm(std::int64_t boxes)
{
    std::string form = "<ui version=\"4.0\"><class>Form</class><widget class=\"QWidget\" name=\"Form\">";
    for (std::int64_t box = 1; box <= boxes; ++box) {
        const std::string left = std::to_string(box % 100 * 20);
        const std::string top = std::to_string(box / 100 * 20);
        form += "<widget class=\"QCheckBox\" name=\"a" + std::to_string(box) +
                "\"><property name=\"geometry\"><rect><x>" + left + "</x><y>" + top +
                "</y><width>17</width><height>17</height></rect></property>"
                "<property name=\"checked\"><bool>true</bool></property></widget>";
    }
    return form + "</widget></ui>";
}

std::unique_ptr<QWidget> LoadForm(const std::string& form)
{
    static QUiLoader loader;
    QByteArray bytes = QByteArray::fromRawData(form.data(), static_cast<qsizetype>(form.size()));
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return std::unique_ptr<QWidget>(loader.load(&buffer));
}

} // namespace quor::bench
