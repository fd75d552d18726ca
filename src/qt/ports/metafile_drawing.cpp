#include "qt/ports/metafile_drawing.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QProcess>

#include <algorithm>
#include <cstring>

namespace quor {

namespace {

constexpr int mostMilliseconds = 5'000;

// All that the process writes, or less than `length` bytes if it fails; more are not waited for.
QByteArray OutputOf(QProcess& process, qsizetype length)
{
    const QDeadlineTimer deadline(mostMilliseconds);
    QByteArray output;
    while (output.size() <= length && process.waitForReadyRead(static_cast<int>(deadline.remainingTime()))) {
        output += process.read(length + 1 - output.size());
    }
    const bool hasEnded = process.state() == QProcess::NotRunning ||
                          process.waitForFinished(static_cast<int>(std::max<qint64>(1, deadline.remainingTime())));
    if (!hasEnded) {
        process.kill();
        process.waitForFinished(mostMilliseconds);
    }
    const bool isDone = hasEnded && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    return isDone ? output : QByteArray();
}

} // namespace

QImage DrawMetafile(const QByteArray& bytes, const QSize& size)
{
    QProcess process;
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(QCoreApplication::applicationDirPath() + QStringLiteral("/quor-draw-metafile"),
                  {QString::number(size.width()), QString::number(size.height())});
    if (!process.waitForStarted(mostMilliseconds)) {
        return {};
    }
    process.write(bytes);
    process.closeWriteChannel();
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    const QByteArray pixels = OutputOf(process, image.sizeInBytes());
    if (pixels.size() != image.sizeInBytes()) {
        return {};
    }
    std::memcpy(image.bits(), pixels.constData(), static_cast<std::size_t>(pixels.size()));
    return image;
}

} // namespace quor
