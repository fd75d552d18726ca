// quor-draw-metafile WIDTH HEIGHT MILLISECONDS: draws the metafile on its input and writes the picture's pixels, four
// bytes each, to its output. Pictures come from anywhere and the libraries that draw them trust what they read: so it
// is a process of its own, which is given little time and memory, can open nothing while it draws, and whose end over a
// broken file does no harm.

#include "apps/metafile/confinement.h"
#include "apps/metafile/harmless_svg.h"
#include "apps/metafile/metafile_svg.h"
#include "apps/metafile/rehearsal.h"

#include <QBuffer>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QImageReader>
#include <QPainter>
#include <QSemaphore>
#include <QSvgRenderer>
#include <QThreadPool>

#include <cstdio>
#include <cstdlib>
#include <unistd.h>

namespace {

using namespace quor;

// Null if the records can't be drawn.
QImage Drawn(const std::vector<std::uint8_t>& records, const QSize& size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QSvgRenderer renderer(HarmlessSvg(QByteArray::fromStdString(SvgOfRecords(records, size.width(), size.height()))));
    if (!renderer.isValid()) {
        return {};
    }
    renderer.setAspectRatioMode(Qt::IgnoreAspectRatio);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter, QRectF(QPointF(0, 0), size));
    return image;
}

// The toolkit shares large pictures among threads, and waits for ever for one that can't be started. One is enough: the
// stacks of as many as there are processors wouldn't fit the memory.
void StartTheOneThread()
{
    QThreadPool& pool = *QThreadPool::globalInstance();
    pool.setMaxThreadCount(1);
    pool.setExpiryTimeout(-1);
    QSemaphore started;
    pool.start([&] { started.release(); });
    started.acquire();
}

// Threads, fonts, converters and decoders, while there still are files.
void LoadAllThatDraws(const std::vector<std::uint8_t>& records)
{
    StartTheOneThread();
    QBuffer nothing;
    QImageReader(&nothing, "jpeg").canRead();
    constexpr QSize small(64, 64);
    Drawn(RehearsalFor(records), small);
}

// The toolkit makes a folder for the run where the session has none, and leaves it: no place is given to it.
void LeaveNoFolder()
{
    qputenv("XDG_RUNTIME_DIR", "/dev/null");
    qputenv("TMPDIR", "/dev/null");
}

bool Draw(QFile& input, const QSize& size)
{
    const QByteArray bytes = input.readAll();
    const std::vector<std::uint8_t> records =
        EnhancedRecords({reinterpret_cast<const std::uint8_t*>(bytes.data()), static_cast<std::size_t>(bytes.size())});
    LoadAllThatDraws(records);
    ForbidAllButDrawing();
    const QImage image = Drawn(records, size);
    const auto length = static_cast<std::size_t>(image.sizeInBytes());
    return length > 0 && std::fwrite(image.constBits(), 1, length, stdout) == length && std::fflush(stdout) == 0;
}

} // namespace

int main(int count, char** arguments)
{
    const auto number = [&](int index) { return count == 4 ? std::atoi(arguments[index]) : 0; };
    const QSize size(number(1), number(2));
    QFile input;
    if (size.isEmpty() || number(3) <= 0 || !input.open(stdin, QIODevice::ReadOnly)) {
        std::fputs("usage: quor-draw-metafile WIDTH HEIGHT MILLISECONDS < FILE > PIXELS\n", stderr);
        return 2;
    }
    ConfineThisProcess(std::chrono::milliseconds(number(3)));
    LeaveNoFolder();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(count, arguments);
    // At once: what the toolkit does at its end isn't permitted any more.
    _exit(Draw(input, size) ? 0 : 1);
}
