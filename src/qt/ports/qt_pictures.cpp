#include "qt/ports/qt_pictures.h"

#include "base/failure.h"
#include "qt/ports/metafile_drawing.h"
#include "qt/ports/metafile_header.h"
#include "qt/ports/qt_picture.h"
#include "qt/ports/qt_text.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>

#include <algorithm>
#include <array>
#include <cmath>

namespace quor {

namespace {

std::span<const std::uint8_t> BytesOf(const QByteArray& bytes)
{
    return {reinterpret_cast<const std::uint8_t*>(bytes.constData()), static_cast<std::size_t>(bytes.size())};
}

void CheckExists(const QString& path)
{
    const QFileInfo file(path);
    if (!file.isFile()) {
        throw Failure(QFileInfo(file.path()).isDir() ? failures::fileNotFound : failures::pathNotFound);
    }
}

bool IsTooLarge(const QSize& size)
{
    return size.width() > QtPictures::longestSide || size.height() > QtPictures::longestSide ||
           qint64{size.width()} * size.height() > QtPictures::mostPixels;
}

bool BeginsAsMetafile(const QString& path)
{
    constexpr qint64 head = 44;
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && MetafileKindOf(BytesOf(file.read(head))).has_value();
}

// Of an icon's pictures the one in the usual size, else the first.
void ChooseIcon(QImageReader& reader)
{
    constexpr QSize usual(32, 32);
    constexpr int mostIcons = 64;
    const int count = std::min(reader.imageCount(), mostIcons);
    for (int index = 0; index < count; ++index) {
        if (reader.jumpToImage(index) && reader.size() == usual) {
            return;
        }
    }
    reader.jumpToImage(0);
}

QImage ReadImage(const QString& path)
{
    static constexpr std::array<const char*, 7> formats = {"bmp", "gif", "jpeg", "jpg", "png", "ico", "cur"};
    QImageReader reader(path);
    reader.setAutoTransform(true);
    reader.setDecideFormatFromContent(true);
    const QByteArray format = reader.format();
    if (std::none_of(formats.begin(), formats.end(), [&](const char* each) { return format == each; })) {
        return {};
    }
    if (format == "ico" || format == "cur") {
        ChooseIcon(reader);
    }
    return IsTooLarge(reader.size()) ? QImage() : reader.read();
}

// Finer than the file's own size, so that it can be stretched; less fine where that would be too much.
QSize SizeToDraw(const QSize& size)
{
    constexpr double fineSide = 1024;
    constexpr double mostTimes = 8;
    constexpr double mostDrawn = 4'000'000;
    const double wanted = fineSide / std::max(size.width(), size.height());
    const double allowed = std::sqrt(mostDrawn / (double{1} * size.width() * size.height()));
    const double times = std::min(std::clamp(wanted, 1.0, mostTimes), allowed);
    return {std::max(1, static_cast<int>(size.width() * times)), std::max(1, static_cast<int>(size.height() * times))};
}

} // namespace

PictureRef QtPictures::LoadPicture(const std::string& path)
{
    const QString file = ToQt(path);
    CheckExists(file);
    if (BeginsAsMetafile(file)) {
        return LoadMetafile(path);
    }
    QImage image = ReadImage(file);
    if (image.isNull()) {
        throw Failure(failures::invalidPicture);
    }
    const QSize size = image.size();
    return std::make_shared<QtPicture>(path, std::move(image), size);
}

PictureRef QtPictures::LoadMetafile(const std::string& path)
{
    constexpr qint64 longestFile = 64'000'000;
    constexpr std::size_t mostKept = 8;
    const QFileInfo info(ToQt(path));
    const QDateTime modified = info.lastModified();
    const qint64 length = info.size();
    const auto kept = std::find_if(m_kept.begin(), m_kept.end(), [&](const Kept& each) {
        return each.picture->Path() == path && each.modified == modified && each.length == length;
    });
    if (kept != m_kept.end()) {
        return kept->picture;
    }
    QFile file(info.filePath());
    const QByteArray bytes = length <= longestFile && file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    const std::optional<MetafileHeader> header = ReadMetafile(BytesOf(bytes));
    if (!header || header->width > longestSide || header->height > longestSide) {
        throw Failure(failures::invalidPicture);
    }
    const QSize size(std::max(1, qRound(header->width)), std::max(1, qRound(header->height)));
    QImage image = IsTooLarge(size) ? QImage() : DrawMetafile(bytes, SizeToDraw(size));
    if (image.isNull()) {
        throw Failure(failures::invalidPicture);
    }
    m_kept.push_back({modified, length, std::make_shared<QtPicture>(path, std::move(image), size)});
    if (m_kept.size() > mostKept) {
        m_kept.pop_front();
    }
    return m_kept.back().picture;
}

const QImage& ImageFor(const Picture& picture, const QSize& size, std::optional<Rgb> mask)
{
    return static_cast<const QtPicture&>(picture).Drawn(size, mask);
}

} // namespace quor
