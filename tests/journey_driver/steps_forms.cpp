// Steps on the controls of forms, as the user's mouse and keys would, and what the controls show.

#include "base/overloaded.h"
#include "forms/fields.h"
#include "forms/form.h"
#include "forms/panes.h"
#include "tests/journey_driver/steps.h"

#include <functional>

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
    MustBe(options != nullptr && name.ends_with(')'), "no such control: " + text);
    return {**options, To<std::int32_t>(name.substr(bracket + 1, name.size() - bracket - 2))};
}

void Set(Stage& stage, const Arguments& words)
{
    const Target target = FindTarget(stage, words[1]);
    const std::string& value = words[2];
    const auto choose = [](auto& list, const auto& rows, std::int32_t row) {
        MustBe(row >= 0 && row < std::ssize(rows), "the list has no row " + std::to_string(row));
        list.Choose(row);
    };
    const auto act = Overloaded{[&](ListBox& list) { choose(list, list.Items(), To<std::int32_t>(value)); },
                                [&](RowList& list) { choose(list, list.Rows(), To<std::int32_t>(value)); },
                                [&](OptionArray& options) {
                                    MustBe(value == "true", "an option is set to true");
                                    choose(options, options.Captions(), target.option);
                                },
                                [&](CheckBox& box) {
                                    MustBe(value == "0" || value == "1", "a box is 0 or 1");
                                    if (box.Value() != (value == "1")) {
                                        box.Toggle();
                                    }
                                },
                                [&](auto& field) { field.Type(value); }};
    MustBe(ActAs<ListBox, RowList, OptionArray, CheckBox, TextBox, NumberField>(target.control, act),
           "nothing to set: " + words[1]);
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

std::string ItemsText(const auto& rows, auto textOf)
{
    std::string text = " items";
    for (const auto& row : rows) {
        text += ' ' + Quoted(std::invoke(textOf, row));
    }
    return text;
}

// An array of options has a line for each.
std::vector<std::string> ControlLines(Control& control)
{
    std::vector<std::string> lines;
    const auto add = [&](const std::string& value, const std::string& rest = {}, const std::string& index = {}) {
        using Bare = std::string_view;
        lines.push_back(Line("control", Bare(control.Name() + index), "value", Bare(value), "enabled",
                             control.Enabled(), "visible", control.Visible()) +
                        rest);
    };
    const auto tell = Overloaded{
        [&](const OptionArray& options) {
            for (std::int32_t index = 0; index < std::ssize(options.Captions()); ++index) {
                add(ValueText(options.Index() == index), {}, '(' + std::to_string(index) + ')');
            }
        },
        [&](const ListBox& list) { add(ValueText(list.ListIndex()), ItemsText(list.Items(), std::identity())); },
        [&](const RowList& list) { add(ValueText(list.Index()), ItemsText(list.Rows(), &RowList::Row::text)); },
        [&](const CheckBox& box) { add(box.Value() ? "1" : "0"); },
        [&](const TextBox& box) { add(ValueText(box.Text()), " back " + ValueText(box.BackColor())); },
        [&](const Swatch& swatch) { add(Line(swatch.BackColor(), swatch.Caption())); },
        [&](const auto& other) {
            if constexpr (requires { other.Value(); }) {
                add(ValueText(other.Value()));
            } else {
                add(ValueText(other.Caption()));
            }
        }};
    if (!ActAs<OptionArray, ListBox, CheckBox, RowList, TextBox, NumberField, ProgressBar, Swatch, Label, Button,
               Frame>(control, tell)) {
        add("\"\"");
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
