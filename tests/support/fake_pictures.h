#pragma once
// Pictures that load wherever the file system in memory has a file that isn't empty.

#include "platform/pictures.h"
#include "tests/support/planned_failures.h"

namespace quor {

class FakeFiles;

class FakePicture final : public Picture {
public:
    FakePicture(std::string pathOf, int widthOf, int heightOf)
        : path(std::move(pathOf)), width(widthOf), height(heightOf)
    {
    }

    std::string path; // where it came from
    int width;
    int height;

    const std::string& Path() const override { return path; }
    int PixelWidth() const override { return width; }
    int PixelHeight() const override { return height; }
};

class FakePictures final : public Pictures {
public:
    explicit FakePictures(const FakeFiles& files) : m_files(files) {}

    PlannedFailures planned; // load

    PictureRef LoadPicture(const std::string& path) override;

private:
    const FakeFiles& m_files;
};

} // namespace quor
