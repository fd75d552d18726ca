#pragma once
// Draws metafiles in a process of its own: what draws them trusts its input, and a picture may come from anywhere.

#include <QByteArray>
#include <QImage>
#include <QSize>

namespace quor {

// Null if the process can't be started, takes too long, or ends in any way but with the whole picture.
QImage DrawMetafile(const QByteArray& bytes, const QSize& size);

} // namespace quor
