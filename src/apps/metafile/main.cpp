// quor-draw-metafile WIDTH HEIGHT: draws the metafile on its input and writes the picture's pixels, four bytes each,
// to its output. Pictures come from anywhere and the libraries that draw them trust what they read: so it is a process
// of its own, which is given little time and memory, and whose end over a broken file does no harm.

#include "apps/metafile/metafile_svg.h"

#include <QByteArray>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <sys/resource.h>

namespace {

using namespace quor;

#ifdef __SANITIZE_ADDRESS__
constexpr bool limitsMemory = false; // the sanitizer takes terabytes of addresses
#else
constexpr bool limitsMemory = true;
#endif

void Limit(int resource, rlim_t most)
{
    const rlimit limit{most, most};
    setrlimit(static_cast<__rlimit_resource>(resource), &limit);
}

void LimitThisProcess()
{
    constexpr rlim_t mostMemory = 1'000'000'000;
    constexpr rlim_t mostSeconds = 4;
    Limit(RLIMIT_CPU, mostSeconds);
    Limit(RLIMIT_CORE, 0);
    Limit(RLIMIT_FSIZE, 0); // no files; pipes are none
    std::signal(SIGXFSZ, SIG_IGN);
    if (limitsMemory) {
        Limit(RLIMIT_AS, mostMemory);
    }
}

QImage Drawn(const std::string& svg, const QSize& size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QSvgRenderer renderer(QByteArray::fromRawData(svg.data(), static_cast<qsizetype>(svg.size())));
    if (!renderer.isValid()) {
        return {};
    }
    renderer.setAspectRatioMode(Qt::IgnoreAspectRatio);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter, QRectF(QPointF(0, 0), size));
    return image;
}

} // namespace

int main(int count, char** arguments)
{
    LimitThisProcess();
    const QSize size = count == 3 ? QSize(std::atoi(arguments[1]), std::atoi(arguments[2])) : QSize();
    QFile input;
    QFile output;
    if (size.isEmpty() || !input.open(stdin, QIODevice::ReadOnly) || !output.open(stdout, QIODevice::WriteOnly)) {
        std::fputs("usage: quor-draw-metafile WIDTH HEIGHT < FILE > PIXELS\n", stderr);
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(count, arguments);
    const QByteArray bytes = input.readAll();
    const QImage image = Drawn(
        SvgOfMetafile({reinterpret_cast<const std::uint8_t*>(bytes.data()), static_cast<std::size_t>(bytes.size())},
                      size.width(), size.height()),
        size);
    return !image.isNull() && output.write(reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes()) ==
                                  image.sizeInBytes()
               ? 0
               : 1;
}
