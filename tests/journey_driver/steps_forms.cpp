// Steps on the controls of forms, as the user's mouse and keys would.

#include "forms/fields.h"
#include "forms/form.h"
#include "forms/panes.h"
#include "tests/journey_driver/steps.h"

namespace quor {

namespace {

// FORM.CONTROL or FORM.CONTROL(INDEX). Members of most arrays are controls of their own; an option is one of its array.
struct Target {
    Control* control;
    std::int32_t option = -1;
};

Target FindTarget(Stage& stage, const std::string& text)
{
    const std::size_t dot = text.find('.');
    Form& form = stage.FormOf(text.substr(0, dot));
    const std::string name = dot == std::string::npos ? "" : text.substr(dot + 1);
    if (const auto* control = form.Controls().Find(name)) {
        return {control->get()};
    }
    const std::size_t bracket = name.find('(');
    const std::string array = name.substr(0, bracket);
    const auto* options = form.Controls().Find(array);
    if (bracket == std::string::npos || !name.ends_with(')') || options == nullptr) {
        throw JourneyError("no such control: " + text);
    }
    const std::string index = name.substr(bracket + 1, name.size() - bracket - 2);
    return {options->get(), To<std::int32_t>(index)};
}

template <class List> void SetRow(List& list, std::ptrdiff_t count, const std::string& value)
{
    const auto index = To<std::int32_t>(value);
    if (index < 0 || index >= count) {
        throw JourneyError("the list has no row " + value);
    }
    list.Choose(index);
}

void SetBox(CheckBox& box, const std::string& value)
{
    if (value != "0" && value != "1") {
        throw JourneyError("a box is 0 or 1");
    }
    if (box.Value() != (value == "1")) {
        box.Toggle();
    }
}

void SetOption(OptionArray& options, std::int32_t option, const std::string& value)
{
    if (option < 0 || option >= std::ssize(options.Captions()) || value != "true") {
        throw JourneyError("an option that is there is set to true");
    }
    options.Choose(option);
}

void Set(Stage& stage, const Arguments& words)
{
    const Target target = FindTarget(stage, words[1]);
    const std::string& value = words[2];
    if (auto* list = dynamic_cast<ListBox*>(target.control)) {
        SetRow(*list, std::ssize(list->Items()), value);
    } else if (auto* rows = dynamic_cast<RowList*>(target.control)) {
        SetRow(*rows, std::ssize(rows->Rows()), value);
    } else if (auto* box = dynamic_cast<CheckBox*>(target.control)) {
        SetBox(*box, value);
    } else if (auto* options = dynamic_cast<OptionArray*>(target.control)) {
        SetOption(*options, target.option, value);
    } else if (auto* text = dynamic_cast<TextBox*>(target.control)) {
        text->Type(value);
    } else if (auto* number = dynamic_cast<NumberField*>(target.control)) {
        number->Type(value);
    } else {
        throw JourneyError("nothing to set: " + words[1]);
    }
}

// What is typed replaces what was there; a number field lets a character that it refuses fall under the table.
void Type(Stage& stage, const Arguments& words)
{
    const Target target = FindTarget(stage, words[1]);
    auto* text = dynamic_cast<TextBox*>(target.control);
    auto* number = dynamic_cast<NumberField*>(target.control);
    if (text == nullptr && number == nullptr) {
        throw JourneyError("nothing to type into: " + words[1]);
    }
    std::string typed;
    for (std::string_view rest = words[2]; !rest.empty();) {
        const std::string longer = typed + std::string(FirstCharacter(rest));
        rest.remove_prefix(FirstCharacter(rest).size());
        if (text != nullptr) {
            text->Type(longer);
        } else if (number->Judge(longer) != NumberField::Typing::Refused) {
            number->Type(longer);
        } else {
            continue;
        }
        typed = longer;
    }
}

void Push(Stage& stage, const Arguments& words)
{
    const Target target = FindTarget(stage, words[1]);
    if (auto* button = dynamic_cast<Button*>(target.control)) {
        button->Push();
    } else if (auto* swatch = dynamic_cast<Swatch*>(target.control)) {
        swatch->Push();
    } else {
        throw JourneyError("nothing to push: " + words[1]);
    }
}

constexpr StepRow rows[] = {
    {"set FORM.CONTROL VALUE", Set},
    {"type FORM.CONTROL TEXT", Type},
    {"push FORM.CONTROL", Push},
};

} // namespace

std::span<const StepRow> FormSteps()
{
    return rows;
}

} // namespace quor
