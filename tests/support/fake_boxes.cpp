#include "tests/support/fake_boxes.h"

#include <stdexcept>

namespace quor {

namespace {

bool HasButton(BoxButtons buttons, BoxAnswer answer)
{
    switch (answer) {
    case BoxAnswer::Ok:
        return buttons == BoxButtons::Ok;
    case BoxAnswer::Cancel:
        return buttons == BoxButtons::YesNoCancel;
    default:
        return buttons != BoxButtons::Ok;
    }
}

BoxAnswer Unanswered(BoxButtons buttons)
{
    switch (buttons) {
    case BoxButtons::YesNoCancel:
        return BoxAnswer::Cancel;
    case BoxButtons::YesNo:
        return BoxAnswer::No;
    default:
        return BoxAnswer::Ok;
    }
}

} // namespace

BoxAnswer FakeBoxes::Show(const std::string& text, const std::string& title, BoxButtons buttons)
{
    shown.push_back({text, title, buttons});
    Shown.Raise(ShownBox{text, title, buttons});
    if (answers.empty()) {
        return Unanswered(buttons);
    }
    const BoxAnswer answer = answers.front();
    answers.pop_front();
    if (!HasButton(buttons, answer)) {
        throw std::logic_error("the box has no such button");
    }
    return answer;
}

} // namespace quor
