// Picture files of every kind, whole and broken, and what they may take of memory and time.

#include "base/failure.h"
#include "metafile/metafile_header.h"
#include "qt/ports/qt_pictures.h"
#include "tests/qt/test.h"

#include <sys/stat.h>

namespace {

using namespace std::chrono_literals;

const QString samples = QStringLiteral(QUOR_TEST_DATA "/pictures/");

QByteArray Contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

std::int32_t Load(const QString& path)
{
    return FailureOf([&] { QtPictures().LoadPicture(path.toStdString()); });
}

std::int32_t LoadBytes(const QByteArray& bytes)
{
    const QTemporaryDir directory;
    WriteFile(directory.filePath("picture"), bytes);
    return Load(directory.filePath("picture"));
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
        for (int pixel = 0; pixel < 110 * 200; ++pixel) {
            word += image.pixel(200 + pixel % 200, 490 + pixel / 200) == 0xFF000000 ? 1 : 0;
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
    for (const auto& each : cases) {
        const QString path = directory.filePath(each.what);
        WriteFile(path, Placeable(start + each.records));
        const PictureRef picture = QtPictures().LoadPicture(path.toStdString());
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
    // A bitmap's header that claims 30000 x 30000 pixels.
    const QByteArray huge =
        "BM" + QByteArray::fromHex("3600000000000000360000002800000030750000307500000100180000000000");
    for (const QByteArray& bytes : {QByteArray("<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>"),
                                    QByteArray("no picture"), huge + QByteArray(64, '\0')}) {
        EXPECT_EQ(LoadBytes(bytes), failures::invalidPicture) << bytes.left(10).toStdString();
    }
    EXPECT_EQ(Load(directory.filePath("none.png")), failures::fileNotFound);
    EXPECT_EQ(Load(directory.filePath("none/none.png")), failures::pathNotFound);
}

class PictureLimitsTest : public testing::Test {
protected:
    std::string Bitmap(const char* name, int side)
    {
        const QString path = directory.filePath(name);
        QImage(side, side, QImage::Format_RGB32).save(path, "bmp");
        return path.toStdString();
    }

    // Of another length for each number.
    std::string Metafile(const char* name, int number)
    {
        QFile sample(QUOR_TEST_DATA "/pictures/door.emf");
        EXPECT_TRUE(sample.open(QIODevice::ReadOnly));
        WriteFile(directory.filePath(name), sample.readAll() + QByteArray(number, '\0'));
        return directory.filePath(name).toStdString();
    }

    QtPictures Pictures(qint64 pixels = 100'000'000)
    {
        return QtPictures(
            {pixels, 5s, 10s}, [this](const QByteArray&, const QSize& size, std::chrono::milliseconds most) {
                given.push_back(most);
                QImage image(size, QImage::Format_ARGB32_Premultiplied);
                return DrawnMetafile{isDrawn ? image : QImage(), std::min<std::chrono::milliseconds>(taken, most)};
            });
    }

    // The words of its failure, or none.
    static std::string Told(QtPictures& pictures, const std::string& path)
    {
        try {
            pictures.LoadPicture(path);
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.Number(), failures::invalidPicture);
            return failure.Description();
        }
        return "";
    }

    QTemporaryDir directory;
    std::vector<std::chrono::milliseconds> given; // to each drawing
    bool isDrawn = true;
    std::chrono::milliseconds taken = 4s;
};

TEST_F(PictureLimitsTest, PicturesBeyondThePixelsOfAViewAreToldAndAFileCountsOnce)
{
    QtPictures pictures = Pictures(1'000);
    const std::string path = Bitmap("a", 20);
    const PictureRef first = pictures.LoadPicture(path);
    const PictureRef again = pictures.LoadPicture(path);
    PictureRef second = pictures.LoadPicture(Bitmap("b", 24));
    const std::string third = Bitmap("c", 20);
    EXPECT_EQ(Told(pictures, third), "The pictures of this view take too much memory.");
    second = nullptr;
    EXPECT_EQ(Told(pictures, third), "");
    EXPECT_EQ(pictures.LoadPicture(Bitmap("a", 21))->PixelWidth(), 21) << "another file at the same path";
    EXPECT_EQ(first->PixelWidth(), 20);
}

TEST_F(PictureLimitsTest, WhatCannotBeDrawnIsTriedOnceAView)
{
    QtPictures pictures = Pictures();
    isDrawn = false;
    taken = 1s;
    const std::string path = Metafile("a", 0);
    for (int count = 0; count < 3; ++count) {
        EXPECT_EQ(Told(pictures, path), "Invalid picture");
    }
    EXPECT_EQ(given.size(), 1U);
    isDrawn = true;
    EXPECT_EQ(Told(pictures, Metafile("a", 4)), "") << "a file that has changed";
    pictures.BeginView();
    EXPECT_EQ(Told(pictures, Metafile("a", 0)), "");
    EXPECT_EQ(given.size(), 3U);
}

TEST_F(PictureLimitsTest, AViewWaitsForAllItsMetafilesOnlySoLong)
{
    QtPictures pictures = Pictures();
    const std::string first = Metafile("a", 0);
    for (const std::string& path : {first, Metafile("b", 0), Metafile("c", 0), first}) {
        EXPECT_EQ(Told(pictures, path), "") << "the last one is kept";
    }
    const std::string fourth = Metafile("d", 0);
    EXPECT_EQ(Told(pictures, fourth), "The metafiles of this view take too long to draw.");
    EXPECT_EQ(Told(pictures, Metafile("a", 4)), "") << "one that is written again and again stays shown";
    pictures.BeginView();
    EXPECT_EQ(Told(pictures, fourth), "");
    EXPECT_EQ(given, (std::vector<std::chrono::milliseconds>{5s, 5s, 2s, 5s, 5s}));
}

TEST_F(PictureLimitsTest, NoFileIsWaitedFor)
{
    QtPictures pictures;
    const std::string pipe = directory.filePath("pipe").toStdString();
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    for (const std::string& path : {pipe, std::string("/dev/zero"), std::string("/proc/kmsg")}) {
        EXPECT_THROW(pictures.LoadPicture(path), Failure) << path;
    }
}

} // namespace
