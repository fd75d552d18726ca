#pragma once
// A light reader of a view file's title.

#include "platform/files.h"

#include <string>

namespace quor {

struct ViewTitle {
    std::string name;
    std::string category;
};

// Name and category from the header of a sound file of any version up to the current one; both empty otherwise.
ViewTitle ReadViewTitle(Files& files, const std::string& path) noexcept;

} // namespace quor
