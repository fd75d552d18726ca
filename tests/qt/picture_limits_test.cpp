// What pictures may take of memory and time, however many a view names.

#include "base/failure.h"
#include "qt/ports/qt_pictures.h"
#include "tests/qt/test.h"

#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include <sys/stat.h>

namespace {

using namespace std::chrono_literals;

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
        QFile file(directory.filePath(name));
        EXPECT_TRUE(sample.open(QIODevice::ReadOnly) && file.open(QIODevice::WriteOnly));
        file.write(sample.readAll() + QByteArray(number, '\0'));
        return file.fileName().toStdString();
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
