#pragma once
// Settings that are paths of picture files, shown by the widget as pictures.

#include "base/guard.h"
#include "elements/element.h"
#include "platform/pictures.h"

#include <string>

namespace quor {

// Reads the file at each call. Fails as Pictures do, and with 91 where there are none.
PictureRef LoadPictureOf(const Live& live, const std::string& path);

// An empty path is no picture; one that doesn't load fails.
struct FromFile : AsItIs {
    template <class E> static PictureRef ToWidget(const E& element, const std::string& path)
    {
        return path.empty() ? nullptr : element.LoadPicture(path);
    }
};

// Base is an element on some widget.
template <class Base> class PictureElement : public Base {
public:
    PictureElement(Widget& widget, Live& live) : Base(widget, live), m_live(live) {}

    PictureRef LoadPicture(const std::string& path) const { return LoadPictureOf(m_live, path); }

protected:
    // Shows the picture; what doesn't load leaves none, without a word.
    template <class W, class P> void LoadImageFile(const std::string& path, P W::*picture)
    {
        PictureRef loaded;
        if (!path.empty()) {
            IgnoreFailure([&] { loaded = LoadPicture(path); });
        }
        this->MyControl()->Set(picture, loaded);
    }

private:
    const Live& m_live;
};

} // namespace quor
