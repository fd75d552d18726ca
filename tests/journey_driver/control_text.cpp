#include "tests/journey_driver/control_text.h"

#include "forms/fields.h"
#include "forms/panes.h"
#include "tests/journey_driver/words.h"

namespace quor {

namespace {

std::string Line(const Control& control, const std::string& name, const std::string& value)
{
    return "control " + name + " value " + value + " enabled " + ValueText(control.Enabled()) + " visible " +
           ValueText(control.Visible());
}

std::string ItemsOf(const ListBox& list)
{
    std::string text = " items";
    for (const std::string& item : list.Items()) {
        text += ' ' + Quoted(item);
    }
    return text;
}

std::string ItemsOf(const RowList& list)
{
    std::string text = " items";
    for (const RowList::Row& row : list.Rows()) {
        text += ' ' + Quoted(row.text);
    }
    return text;
}

// The value of a control of that class, if it is one.
template <class C, class Value> bool Tell(const Control& control, std::string& text, Value value)
{
    const auto* told = dynamic_cast<const C*>(&control);
    if (told != nullptr) {
        text = value(*told);
    }
    return told != nullptr;
}

std::string ValueOf(const Control& control)
{
    std::string text = "\"\"";
    const auto captionOf = [](const auto& told) { return Quoted(told.Caption()); };
    const auto numberOf = [](const auto& told) { return ValueText(told.Value()); };
    (void)(Tell<ListBox>(control, text, [](const ListBox& list) { return ValueText(list.ListIndex()); }) ||
           Tell<CheckBox>(control, text, [](const CheckBox& box) { return std::string(box.Value() ? "1" : "0"); }) ||
           Tell<RowList>(control, text, [](const RowList& list) { return ValueText(list.Index()); }) ||
           Tell<TextBox>(control, text, [](const TextBox& box) { return Quoted(box.Text()); }) ||
           Tell<NumberField>(control, text, numberOf) || Tell<ProgressBar>(control, text, numberOf) ||
           Tell<Swatch>(
               control, text,
               [](const Swatch& swatch) { return ValueText(swatch.BackColor()) + ' ' + Quoted(swatch.Caption()); }) ||
           Tell<Label>(control, text, captionOf) || Tell<Button>(control, text, captionOf) ||
           Tell<Frame>(control, text, captionOf));
    return text;
}

} // namespace

std::vector<std::string> ControlLines(const Control& control)
{
    std::vector<std::string> lines;
    if (const auto* options = dynamic_cast<const OptionArray*>(&control)) {
        for (std::int32_t index = 0; index < std::ssize(options->Captions()); ++index) {
            lines.push_back(Line(control, control.Name() + '(' + std::to_string(index) + ')',
                                 ValueText(options->Index() == index)));
        }
        return lines;
    }
    lines.push_back(Line(control, control.Name(), ValueOf(control)));
    if (const auto* list = dynamic_cast<const ListBox*>(&control)) {
        lines.back() += ItemsOf(*list);
    } else if (const auto* rows = dynamic_cast<const RowList*>(&control)) {
        lines.back() += ItemsOf(*rows);
    } else if (const auto* box = dynamic_cast<const TextBox*>(&control)) {
        lines.back() += " back " + ValueText(box->BackColor());
    }
    return lines;
}

} // namespace quor
