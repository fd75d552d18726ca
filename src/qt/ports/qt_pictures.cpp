#include "qt/ports/qt_pictures.h"

#include "base/failure.h"
#include "metafile/metafile_header.h"
#include "qt/ports/metafile_drawing.h"
#include "qt/ports/qt_picture.h"

#include <QFile>
#include <QImageReader>

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <utility>

namespace quor {

namespace {

std::span<const std::uint8_t> BytesOf(const QByteArray& bytes)
{
    return {reinterpret_cast<const std::uint8_t*>(bytes.constData()), static_cast<std::size_t>(bytes.size())};
}

// The file can't be shown, and can't be the next time.
struct Invalid {};

bool IsTooLarge(const QSize& size)
{
    return size.width() > QtPictures::longestSide || size.height() > QtPictures::longestSide ||
           qint64{size.width()} * size.height() > QtPictures::mostPixels;
}

bool BeginsAsMetafile(const PictureFile& file)
{
    constexpr std::int64_t head = 44;
    return MetafileKindOf(BytesOf(file.Head(head))).has_value();
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

bool IsReadFormat(const QByteArray& format)
{
    static constexpr std::array<const char*, 7> formats = {"bmp", "gif", "jpeg", "jpg", "png", "ico", "cur"};
    return std::any_of(formats.begin(), formats.end(), [&](const char* each) { return format == each; });
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

QtPictures::QtPictures(const PictureLimits& limits, MetafileDrawer drawer)
    : m_limits(limits), m_drawer(std::move(drawer)), m_memory(std::make_shared<PictureMemory>()),
      m_timeLeft(limits.drawingAll)
{
    if (m_drawer == nullptr) {
        m_drawer = [](const QByteArray& bytes, const QSize& size, std::chrono::milliseconds most) {
            return DrawMetafile(MetafileProgram(), bytes, size, most);
        };
    }
}

PictureRef QtPictures::LoadPicture(const std::string& path)
{
    const PictureFile file(path);
    Known& known = m_known[path];
    if (known.mark != file.Changed()) {
        known = {file.Changed(), {}, false, known.wasDrawn};
    }
    if (Loaded picture = known.picture.lock()) {
        return picture;
    }
    try {
        if (known.isInvalid) {
            throw Invalid();
        }
        Loaded picture;
        if (BeginsAsMetafile(file)) {
            picture = LoadMetafile(path, file, known.wasDrawn);
            known.wasDrawn = true;
        } else {
            picture = LoadBitmap(path, file);
        }
        known.picture = picture;
        return picture;
    } catch (const Invalid&) {
        known.isInvalid = true;
        throw Failure(failures::invalidPicture);
    }
}

void QtPictures::BeginView()
{
    constexpr std::size_t mostKept = 8;
    while (m_drawn.size() > mostKept) {
        m_drawn.pop_front();
    }
    std::erase_if(m_known, [](const auto& each) { return each.second.picture.expired(); });
    for (auto& [path, known] : m_known) {
        known.wasDrawn = false;
    }
    m_timeLeft = m_limits.drawingAll;
}

QtPictures::Loaded QtPictures::LoadBitmap(const std::string& path, const PictureFile& file)
{
    QFile device;
    device.open(file.Descriptor(), QIODevice::ReadOnly);
    QImageReader reader(&device);
    reader.setAutoTransform(true);
    reader.setDecideFormatFromContent(true);
    // One that is told to be empty may be endless, or make its reader wait.
    if (file.Changed().length <= 0 || !IsReadFormat(reader.format())) {
        throw Invalid();
    }
    if (reader.format() == "ico" || reader.format() == "cur") {
        ChooseIcon(reader);
    }
    if (IsTooLarge(reader.size())) {
        throw Invalid();
    }
    MakeRoom(reader.size());
    QImage image = reader.read();
    if (image.isNull()) {
        throw Invalid();
    }
    const QSize size = image.size();
    return std::make_shared<QtPicture>(path, std::move(image), size, m_memory);
}

QtPictures::Loaded QtPictures::LoadMetafile(const std::string& path, const PictureFile& file, bool wasDrawn)
{
    constexpr std::int64_t longestFile = 64'000'000;
    const QByteArray bytes = file.Changed().length <= longestFile ? file.Head(longestFile) : QByteArray();
    const std::optional<MetafileHeader> header = ReadMetafile(BytesOf(bytes));
    if (!header || header->width > longestSide || header->height > longestSide) {
        throw Invalid();
    }
    const QSize size(std::max(1, qRound(header->width)), std::max(1, qRound(header->height)));
    if (IsTooLarge(size)) {
        throw Invalid();
    }
    MakeRoom(SizeToDraw(size));
    std::erase_if(m_drawn, [&](const Loaded& each) { return each->Path() == path; });
    m_drawn.push_back(std::make_shared<QtPicture>(path, Draw(bytes, SizeToDraw(size), wasDrawn), size, m_memory));
    return m_drawn.back();
}

QImage QtPictures::Draw(const QByteArray& bytes, const QSize& size, bool wasDrawn)
{
    const std::chrono::milliseconds most = wasDrawn ? m_limits.drawing : std::min(m_limits.drawing, m_timeLeft);
    const auto fail = [] {
        throw Failure(failures::invalidPicture, "The metafiles of this view take too long to draw.");
    };
    if (most.count() <= 0) {
        fail();
    }
    DrawnMetafile drawn = m_drawer(bytes, size, most);
    if (!wasDrawn || drawn.image.isNull()) {
        m_timeLeft -= drawn.time;
    }
    if (drawn.image.isNull()) {
        if (drawn.time >= most && most < m_limits.drawing) {
            fail(); // it might have done with more time
        }
        throw Invalid();
    }
    return std::move(drawn.image);
}

// Metafiles that nobody shows go first.
void QtPictures::MakeRoom(const QSize& size)
{
    const qint64 pixels = qint64{size.width()} * size.height();
    for (auto each = m_drawn.begin(); each != m_drawn.end() && m_memory->pixels + pixels > m_limits.pixels;) {
        each = each->use_count() == 1 ? m_drawn.erase(each) : std::next(each);
    }
    if (m_memory->pixels + pixels > m_limits.pixels) {
        throw Failure(failures::invalidPicture, "The pictures of this view take too much memory.");
    }
}

QImage ImageFor(const Picture& picture, const QSize& size, std::optional<Rgb> mask)
{
    return static_cast<const QtPicture&>(picture).Drawn(size, mask);
}

} // namespace quor
