#include "tests/support/fake_pictures.h"

#include "base/failure.h"
#include "tests/support/fake_files.h"

namespace quor {

PictureRef FakePictures::LoadPicture(const std::string& path)
{
    planned.Count("load");
    if (m_files.Get(path).empty()) {
        throw Failure(failures::invalidPicture);
    }
    return std::make_shared<FakePicture>(path, 16, 16);
}

} // namespace quor
