#include "qt/ports/qt_pictures.h"

#include "base/failure.h"
#include "qt/ports/qt_text.h"

#include <QFileInfo>
#include <QImageReader>

namespace quor {

namespace {

class QtPicture final : public Picture {
public:
    QtPicture(std::string path, QImage imageOf) : image(std::move(imageOf)), m_path(std::move(path)) {}
    const std::string& Path() const override { return m_path; }
    int PixelWidth() const override { return image.width(); }
    int PixelHeight() const override { return image.height(); }

    const QImage image;

private:
    std::string m_path;
};

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
           qint64(size.width()) * size.height() > QtPictures::mostPixels;
}

} // namespace

PictureRef QtPictures::LoadPicture(const std::string& path)
{
    const QString file = ToQt(path);
    CheckExists(file);
    QImageReader reader(file);
    reader.setAutoTransform(true);
    reader.setDecideFormatFromContent(true);
    if (IsTooLarge(reader.size())) {
        throw Failure(failures::invalidPicture);
    }
    QImage image = reader.read();
    if (image.isNull()) {
        throw Failure(failures::invalidPicture);
    }
    return std::make_shared<QtPicture>(path, std::move(image));
}

const QImage& ImageOf(const Picture& picture)
{
    return static_cast<const QtPicture&>(picture).image;
}

} // namespace quor
