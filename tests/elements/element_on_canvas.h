#pragma once
// A new element on a canvas of its own in a live view, with every write to its widget in the journal.

#include "binding/live.h"
#include "document/kinds.h"
#include "elements/element.h"
#include "tests/support/widget_journal.h"
#include "tests/test.h"
#include "widgets/canvas.h"
#include "widgets/widget_array.h"

namespace quor {

struct ElementOnCanvas {
    explicit ElementOnCanvas(const Kind& kind)
    {
        files.PutText("on.bmp", "on");
        files.PutText("off.bmp", "off");
        live.PictureFiles = &pictures;
        live.Server = &server;
        element = kind.makeElement(canvas.AddArray("widgets", kind.makePrototype()).Load(1), live);
        element->ReadControlProps();
        canvas.SetTracer(journal);
    }
    explicit ElementOnCanvas(std::uint8_t type) : ElementOnCanvas(Kinds()[type]) {}

    template <class W> const W& Shown() const { return dynamic_cast<const W&>(*element->MyControl()); }

    // What the widget gets when the status comes, or when anything is done.
    std::string AfterValue(bool value, bool mute)
    {
        return After([&] { element->StatusSource()->ForceValue(value, mute); });
    }
    std::string After(const std::function<void()>& act)
    {
        journal.Take();
        act();
        return journal.Take();
    }

    FakeFiles files;
    FakePictures pictures{files};
    FakeServer server;
    WidgetJournal journal;
    Canvas canvas;
    Live live;
    std::unique_ptr<Element> element;
};

template <class E> struct OnCanvas : ElementOnCanvas {
    OnCanvas() : ElementOnCanvas(E::type) {}
    E& e = dynamic_cast<E&>(*element);
};

} // namespace quor
