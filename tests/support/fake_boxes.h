#pragma once
// Message boxes that a script answers.

#include "base/event.h"
#include "platform/boxes.h"

#include <deque>
#include <vector>

namespace quor {

struct ShownBox {
    std::string text;
    std::string title;
    BoxButtons buttons = BoxButtons::Ok;
    friend bool operator==(const ShownBox&, const ShownBox&) = default;
};

class FakeBoxes final : public MessageBoxes {
public:
    // For the next boxes, in their order. A box without one gets Cancel where it has that, else No or Ok; one without
    // that button fails.
    std::deque<BoxAnswer> answers;
    std::vector<ShownBox> shown;
    Event<const ShownBox&> Shown; // before the answer

    BoxAnswer Show(const std::string& text, const std::string& title, BoxButtons buttons) override;
};

} // namespace quor
