#pragma once
// Draws metafiles in a process of its own: what draws them trusts its input, and a picture may come from anywhere.

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>

#include <chrono>

namespace quor {

struct DrawnMetafile {
    QImage image; // null if it wasn't drawn
    std::chrono::milliseconds time{};
};

// Where the program that draws lies: beside this one.
QString MetafileProgram();

// Null if the program can't be started, takes longer than `most`, or ends in any way but with the whole picture.
DrawnMetafile DrawMetafile(const QString& program, const QByteArray& bytes, const QSize& size,
                           std::chrono::milliseconds most);

} // namespace quor
