#include "qt/ports/metafile_drawing.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QProcess>

#include <algorithm>
#include <cstring>

namespace quor {

namespace {

int TimeLeft(const QDeadlineTimer& deadline)
{
    return static_cast<int>(deadline.remainingTime());
}

// All that the process writes, or less than `length` bytes if it fails; more are not waited for.
QByteArray OutputOf(QProcess& process, qsizetype length, const QDeadlineTimer& deadline)
{
    QByteArray output;
    while (output.size() <= length && process.waitForReadyRead(TimeLeft(deadline))) {
        output += process.read(length + 1 - output.size());
    }
    const bool hasEnded = output.size() <= length && (process.state() == QProcess::NotRunning ||
                                                      process.waitForFinished(std::max(1, TimeLeft(deadline))));
    if (!hasEnded) {
        constexpr int mostForTheKill = 1'000;
        process.kill();
        process.waitForFinished(mostForTheKill);
    }
    const bool isDone = hasEnded && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    return isDone ? output : QByteArray();
}

QImage Drawn(const QString& program, const QByteArray& bytes, const QSize& size, std::chrono::milliseconds most)
{
    const QDeadlineTimer deadline(most);
    QProcess process;
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(program,
                  {QString::number(size.width()), QString::number(size.height()), QString::number(most.count())});
    if (!process.waitForStarted(TimeLeft(deadline))) {
        return {};
    }
    process.write(bytes);
    process.closeWriteChannel();
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    const QByteArray pixels = OutputOf(process, image.sizeInBytes(), deadline);
    if (image.isNull() || pixels.size() != image.sizeInBytes()) {
        return {};
    }
    std::memcpy(image.bits(), pixels.constData(), static_cast<std::size_t>(pixels.size()));
    return image;
}

} // namespace

QString MetafileProgram()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/quor-draw-metafile");
}

DrawnMetafile DrawMetafile(const QString& program, const QByteArray& bytes, const QSize& size,
                           std::chrono::milliseconds most)
{
    QElapsedTimer timer;
    timer.start();
    QImage image = Drawn(program, bytes, size, most);
    return {std::move(image), std::chrono::milliseconds(timer.elapsed())};
}

} // namespace quor
