// Steps on the controls of forms, as the user's mouse and keys would, and what the controls show.

#include "forms/fields.h"
#include "forms/form.h"
#include "forms/panes.h"
#include "tests/journey_driver/steps.h"

namespace quor {

namespace {

// Acts on the control as the first of these classes that it is; false if it is none of them.
template <class... C, class Act> bool ActAs(Control& control, Act act)
{
    const auto attempt = [&](auto* meant) {
        if (meant != nullptr) {
            act(*meant);
        }
        return meant != nullptr;
    };
    return (attempt(dynamic_cast<C*>(&control)) || ...);
}

// FORM.CONTROL or FORM.CONTROL(INDEX). Members of most arrays are controls of their own; an option is one of its array.
struct Target {
    Control& control;
    std::int32_t option = -1;
};

Target FindTarget(Stage& stage, const std::string& text)
{
    const std::size_t dot = text.find('.');
    const Form& form = stage.FormOf(text.substr(0, dot));
    const std::string name = dot == std::string::npos ? "" : text.substr(dot + 1);
    if (const auto* control = form.Controls().Find(name)) {
        return {**control};
    }
    const std::size_t bracket = name.find('(');
    const auto* options = form.Controls().Find(name.substr(0, bracket));
    if (bracket == std::string::npos || !name.ends_with(')') || options == nullptr) {
        throw JourneyError("no such control: " + text);
    }
    return {**options, To<std::int32_t>(name.substr(bracket + 1, name.size() - bracket - 2))};
}

void MustBe(bool condition, const std::string& words)
{
    if (!condition) {
        throw JourneyError(words);
    }
}

template <class C> void SetTo(C& control, std::int32_t option, const std::string& value)
{
    if constexpr (std::is_same_v<C, CheckBox>) {
        MustBe(value == "0" || value == "1", "a box is 0 or 1");
        if (control.Value() != (value == "1")) {
            control.Toggle();
        }
    } else if constexpr (std::is_same_v<C, OptionArray>) {
        MustBe(option >= 0 && option < std::ssize(control.Captions()) && value == "true",
               "an option that is there is set to true");
        control.Choose(option);
    } else if constexpr (requires { control.Choose(0); }) {
        const auto row = To<std::int32_t>(value);
        std::ptrdiff_t count = 0;
        if constexpr (std::is_same_v<C, ListBox>) {
            count = std::ssize(control.Items());
        } else {
            count = std::ssize(control.Rows());
        }
        MustBe(row >= 0 && row < count, "the list has no row " + value);
        control.Choose(row);
    } else {
        control.Type(value);
    }
}

void Set(Stage& stage, const Arguments& words)
{
    const Target target = FindTarget(stage, words[1]);
    const bool isSet = ActAs<ListBox, RowList, CheckBox, OptionArray, TextBox, NumberField>(
        target.control, [&](auto& control) { SetTo(control, target.option, words[2]); });
    MustBe(isSet, "nothing to set: " + words[1]);
}

// What is typed replaces what was there; a number field lets a character that it refuses fall under the table.
void Type(Stage& stage, const Arguments& words)
{
    const bool isTyped = ActAs<TextBox, NumberField>(FindTarget(stage, words[1]).control, [&](auto& control) {
        std::string typed;
        for (std::string_view rest = words[2]; !rest.empty(); rest.remove_prefix(FirstCharacter(rest).size())) {
            const std::string longer = typed + std::string(FirstCharacter(rest));
            if constexpr (requires { control.Judge(longer); }) {
                if (control.Judge(longer) == NumberField::Typing::Refused) {
                    continue;
                }
            }
            control.Type(longer);
            typed = longer;
        }
    });
    MustBe(isTyped, "nothing to type into: " + words[1]);
}

void Push(Stage& stage, const Arguments& words)
{
    const bool isPushed =
        ActAs<Button, Swatch>(FindTarget(stage, words[1]).control, [](auto& control) { control.Push(); });
    MustBe(isPushed, "nothing to push: " + words[1]);
}

template <class C> std::string ValueOf(const C& control)
{
    if constexpr (std::is_same_v<C, CheckBox>) {
        return control.Value() ? "1" : "0";
    } else if constexpr (std::is_same_v<C, Swatch>) {
        return Line(control.BackColor(), control.Caption());
    } else if constexpr (std::is_same_v<C, ListBox>) {
        return ValueText(control.ListIndex());
    } else if constexpr (requires { control.Rows(); }) {
        return ValueText(control.Index());
    } else if constexpr (requires { control.Text(); }) {
        return ValueText(control.Text());
    } else if constexpr (requires { control.Value(); }) {
        return ValueText(control.Value());
    } else {
        return ValueText(control.Caption());
    }
}

// What stands behind the rest of the line.
template <class C> std::string RestOf(const C& control)
{
    std::string rest;
    if constexpr (std::is_same_v<C, ListBox>) {
        rest = " items";
        for (const std::string& item : control.Items()) {
            rest += ' ' + Quoted(item);
        }
    } else if constexpr (std::is_same_v<C, RowList>) {
        rest = " items";
        for (const RowList::Row& row : control.Rows()) {
            rest += ' ' + Quoted(row.text);
        }
    } else if constexpr (std::is_same_v<C, TextBox>) {
        rest = " back " + ValueText(control.BackColor());
    }
    return rest;
}

// An array of options has a line for each.
std::vector<std::string> ControlLines(Control& control)
{
    std::vector<std::string> lines;
    const auto add = [&](const std::string& name, const std::string& value, const std::string& rest) {
        using Bare = std::string_view;
        lines.push_back(Line("control", Bare(name), "value", Bare(value), "enabled", control.Enabled(), "visible",
                             control.Visible()) +
                        rest);
    };
    if (const auto* options = dynamic_cast<const OptionArray*>(&control)) {
        for (std::int32_t index = 0; index < std::ssize(options->Captions()); ++index) {
            add(control.Name() + '(' + std::to_string(index) + ')', ValueText(options->Index() == index), "");
        }
    } else if (!ActAs<ListBox, CheckBox, RowList, TextBox, NumberField, ProgressBar, Swatch, Label, Button, Frame>(
                   control, [&](auto& told) { add(told.Name(), ValueOf(told), RestOf(told)); })) {
        add(control.Name(), "\"\"", "");
    }
    return lines;
}

void PrintPage(Stage& stage, const Arguments& words)
{
    const std::string& wanted = words[3];
    bool isFound = wanted.empty();
    for (const std::unique_ptr<Control>& control : stage.FormOf(words[2]).Controls()) {
        for (const std::string& line : ControlLines(*control)) {
            if (wanted.empty() || control->Name() == wanted || line.starts_with("control " + wanted + ' ')) {
                isFound = true;
                stage.out.Say(std::string_view(line));
            }
        }
    }
    MustBe(isFound, "there is no " + wanted);
}

constexpr StepRow rows[] = {
    {"set FORM.CONTROL VALUE", Set},
    {"type FORM.CONTROL TEXT", Type},
    {"push FORM.CONTROL", Push},
    {"print page FORM [CONTROL]", PrintPage},
};

} // namespace

std::span<const StepRow> FormSteps()
{
    return rows;
}

} // namespace quor
