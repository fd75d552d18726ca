// Picture files of every kind, whole and broken.

#include "base/failure.h"
#include "metafile/metafile_header.h"
#include "qt/ports/qt_pictures.h"
#include "tests/qt/test.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

namespace {

const QString samples = QStringLiteral(QUOR_TEST_DATA "/pictures/");

QByteArray Contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// The failure's number, or 0.
std::int32_t Load(const QString& path)
{
    try {
        QtPictures().LoadPicture(path.toStdString());
    } catch (const Failure& failure) {
        return failure.Number();
    }
    return 0;
}

std::int32_t LoadBytes(const QByteArray& bytes)
{
    const QTemporaryDir directory;
    const QString path = directory.filePath("picture");
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    file.write(bytes);
    file.close();
    return Load(path);
}

TEST(Metafiles, OfBothKindsAreDrawnInTheirColorsAndSize)
{
    QtPictures pictures;
    for (const char* name : {"door.emf", "door.wmf"}) {
        const PictureRef picture = pictures.LoadPicture((samples + name).toStdString());
        EXPECT_EQ(picture->PixelWidth(), 60) << name;
        EXPECT_EQ(picture->PixelHeight(), 80) << name;
        const QImage& image = ImageFor(*picture, {600, 800}, std::nullopt);
        const struct {
            QPoint place;
            QRgb color;
        } cases[] = {{{20, 400}, 0x00000000},  {{140, 700}, 0xFF406080}, {{425, 425}, 0xFFFF0000},
                     {{300, 180}, 0xFFFF0000}, {{300, 100}, 0xFF102030}, {{580, 400}, 0x00000000}};
        for (const auto& each : cases) {
            const QRgb pixel = image.pixel(each.place);
            EXPECT_EQ(pixel, each.color) << name << ' ' << each.place.x() << ", " << each.place.y();
        }
        int word = 0; // in black, under the sign
        for (int y = 490; y < 600; ++y) {
            for (int x = 200; x < 400; ++x) {
                word += image.pixel(x, y) == 0xFF000000 ? 1 : 0;
            }
        }
        EXPECT_GT(word, 300) << name;
    }
}

TEST(Metafiles, ThatAreBrokenOrTooLargeAreInvalid)
{
    const struct {
        const char* what;
        const char* name;
        int offset;
        QByteArray bytes;
    } cases[] = {
        {"a frame without width", "door.emf", 32, QByteArray(4, '\0')},
        {"a frame of kilometres", "door.emf", 32, QByteArray::fromHex("FFFFFF7F")},
        {"a record beyond the end", "door.emf", 112, QByteArray::fromHex("FFFFFF0F")},
        {"a record without a length", "door.emf", 112, QByteArray(4, '\0')},
        {"a box without width", "door.wmf", 10, QByteArray(2, '\0')},
        {"no units in an inch", "door.wmf", 14, QByteArray(2, '\0')},
        {"a record beyond the end", "door.wmf", 40, QByteArray::fromHex("FFFFFF0F")},
        {"a record without a length", "door.wmf", 40, QByteArray(4, '\0')},
    };
    for (const auto& each : cases) {
        QByteArray bytes = Contents(samples + each.name);
        ASSERT_FALSE(bytes.isEmpty());
        bytes.replace(each.offset, each.bytes.size(), each.bytes);
        EXPECT_EQ(LoadBytes(bytes), failures::invalidPicture) << each.name << ": " << each.what;
    }
    for (const char* name : {"door.emf", "door.wmf"}) {
        const QByteArray whole = Contents(samples + name);
        for (qsizetype length = 0; length < whole.size(); length += 7) {
            const QByteArray part = whole.left(length);
            EXPECT_FALSE(ReadMetafile(
                {reinterpret_cast<const std::uint8_t*>(part.constData()), static_cast<std::size_t>(part.size())}))
                << name << " of " << length << " bytes";
        }
        EXPECT_EQ(LoadBytes(whole.left(60)), failures::invalidPicture);
    }
}

// Words that are one behind the other.
QByteArray Words(std::initializer_list<int> words)
{
    QByteArray bytes;
    for (const int word : words) {
        bytes += static_cast<char>(word);
        bytes += static_cast<char>(word >> 8);
    }
    return bytes;
}

QByteArray Record(int function, std::initializer_list<int> words, const QByteArray& rest = {})
{
    const QByteArray fields = Words(words) + rest;
    return Words({3 + static_cast<int>(fields.size()) / 2, 0, function}) + fields;
}

// Of 100 x 100 pixels.
QByteArray Placeable(const QByteArray& records)
{
    return Words({0xCDD7, 0x9AC6, 0, 0, 0, 100, 100, 96, 0, 0, 0}) + QByteArray(18, '\0') + records + Record(0, {});
}

TEST(Metafiles, ThatArePlaceableShowEachKindOfRecord)
{
    const QByteArray pixels = Words({40, 0, 2, 0, 1, 0, 1, 24}) + QByteArray(24, '\0') + // a green one, a blue one
                              QByteArray::fromHex("00FF00FF00000000");
    const QByteArray start = Record(0x02FC, {0, 0xFF, 0, 0}) + Record(0x012D, {0}) + // a red brush
                             Record(0x02FA, {0, 8, 0, 0xFF00, 0}) + Record(0x012D, {1});
    const QByteArray polygons =
        Record(0x0538, {2, 4, 4, 10, 10, 30, 10, 30, 30, 10, 30, 60, 60, 90, 60, 90, 90, 60, 90});
    const QByteArray blueInItsPlace = Record(0x01F0, {0}) + Record(0x02FC, {0, 0, 0xFF, 0}) + Record(0x012D, {0});
    constexpr QRgb red = 0xFFFF0000;
    constexpr QRgb green = 0xFF00FF00;
    constexpr QRgb blue = 0xFF0000FF;
    const struct {
        const char* what;
        QByteArray records;
        QPoint place;
        QRgb color;
        QPoint empty;
    } cases[] = {
        {"chord", Record(0x0830, {50, 10, 50, 90, 90, 90, 10, 10}), {50, 30}, red, {50, 70}},
        {"pie", Record(0x081A, {10, 50, 50, 90, 90, 90, 10, 10}), {65, 35}, red, {35, 35}},
        {"arc", Record(0x0817, {50, 10, 50, 90, 90, 90, 12, 10}), {50, 12}, green, {50, 40}},
        {"rounded", Record(0x061C, {20, 20, 90, 90, 10, 10}), {50, 50}, red, {11, 11}},
        {"polygon 1", polygons, {20, 20}, red, {45, 45}},
        {"polygon 2", polygons, {75, 75}, red, {45, 45}},
        {"fill", Record(0x061D, {0x21, 0xF0, 40, 60, 10, 20}), {75, 45}, red, {75, 55}},
        {"scaled", Record(0x0B41, {0x20, 0xCC, 1, 2, 0, 0, 50, 100, 0, 0}, pixels), {10, 25}, green, {90, 75}},
        {"usage", Record(0x0F43, {0x20, 0xCC, 0, 1, 2, 0, 0, 50, 100, 0, 0}, pixels), {90, 25}, blue, {90, 75}},
        {"copied", Record(0x0940, {0x20, 0xCC, 0, 0, 1, 2, 30, 40}, pixels), {40, 30}, green, {45, 30}},
        {"freed", blueInItsPlace + Record(0x041B, {90, 90, 10, 10}), {50, 50}, blue, {5, 5}},
    };
    const QTemporaryDir directory;
    QtPictures pictures;
    for (const auto& each : cases) {
        QFile file(directory.filePath(each.what));
        file.open(QIODevice::WriteOnly);
        file.write(Placeable(start + each.records));
        file.close();
        const PictureRef picture = pictures.LoadPicture(file.fileName().toStdString());
        const QImage image = ImageFor(*picture, {800, 800}, std::nullopt);
        EXPECT_EQ(image.pixel(8 * each.place + QPoint(4, 4)), each.color) << each.what;
        EXPECT_EQ(image.pixel(8 * each.empty + QPoint(4, 4)), 0U) << each.what;
    }
}

TEST(QtPictures, ReadTheFormatsOfViewsAndNoOther)
{
    const QTemporaryDir directory;
    const QImage image(30, 20, QImage::Format_RGB32);
    for (const char* format : {"bmp", "jpg", "png", "ico"}) {
        const QString path = directory.filePath(QStringLiteral("picture.dib"));
        ASSERT_TRUE(image.save(path, format));
        EXPECT_EQ(Load(path), 0) << format;
    }
    const QByteArray gif =
        QByteArray::fromHex("47494638396101000100800000ff0000ffffff2c00000000010001000002024401003b");
    EXPECT_EQ(LoadBytes(gif), 0) << "gif";
    QByteArray cursor = Contents(directory.filePath(QStringLiteral("picture.dib"))); // an icon as yet
    cursor[2] = 2;
    EXPECT_EQ(LoadBytes(cursor), 0) << "cur";
    const QString other = directory.filePath("picture.png");
    ASSERT_TRUE(image.save(other, "xpm"));
    EXPECT_EQ(Load(other), failures::invalidPicture);
    EXPECT_EQ(LoadBytes("<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>"), failures::invalidPicture);
}

} // namespace
