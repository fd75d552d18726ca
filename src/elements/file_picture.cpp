#include "elements/file_picture.h"

#include "base/failure.h"
#include "binding/live.h"

namespace quor {

PictureRef LoadPictureOf(const Live& live, const std::string& path)
{
    if (live.PictureFiles == nullptr) {
        throw Failure(failures::objectNotSet);
    }
    return live.PictureFiles->LoadPicture(path);
}

} // namespace quor
