#pragma once
// Picture files, loaded.

#include <memory>
#include <string>

namespace quor {

// A loaded picture; only the port that made it knows what is inside.
class Picture {
public:
    virtual ~Picture() = default;
    virtual const std::string& Path() const = 0; // where it was loaded from
    virtual int PixelWidth() const = 0;
    virtual int PixelHeight() const = 0;
};

using PictureRef = std::shared_ptr<const Picture>;

class Pictures {
public:
    virtual ~Pictures() = default;

    // Failures: 53 file not found, 70 permission denied, 75 path/file access, 76 path not found, 481 invalid picture.
    virtual PictureRef LoadPicture(const std::string& path) = 0;

    // What is loaded from now on belongs to another view: what limits the pictures of one begins anew.
    virtual void BeginView() {}
};

} // namespace quor
