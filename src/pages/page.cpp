#include "pages/page.h"

#include "base/text.h"
#include "pages/font_dialog.h"
#include "pages/page_measures.h"
#include "platform/boxes.h"
#include "platform/common_dialog.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>
#include <utility>

namespace quor {

namespace {

using namespace page_measures;

// Pixels.
constexpr int margin = 12;
constexpr int rowPitch = 30;
constexpr int boxPitch = 26;
constexpr int warningHeight = 20;
constexpr int numberWidth = 80;
constexpr int swatchLeast = 40;
constexpr int frameGap = 9;     // above the first line and above a rule
constexpr int frameHeight = 31; // rule, title and the room around it
constexpr int panelWidth = 320;

constexpr std::int32_t fileFlags = dialog_flags::fileMustExist | dialog_flags::hideReadOnly;
constexpr std::int32_t fontFlags = dialog_flags::screenFonts;
constexpr std::int32_t fontAndColorFlags = dialog_flags::screenFonts | dialog_flags::fontEffects;
constexpr const char* pictureFilter =
    "All Picture Files|*.bmp;*.dib;*.gif;*.jpg;*.wmf;*.emf;*.ico;*.cur|Bitmaps (*.bmp, *.dib)|*.bmp;*.dib|"
    "GIF Images (*.gif)|*.gif|JPEG Images (*.jpg)|*.jpg|Metafiles (*.wmf, *.emf)|*.wmf;*.emf|"
    "Icons (*.ico, *.cur)|*.ico;*.cur|All Files|*.*";

void RequireRow(bool isThere, std::string_view setting, std::int32_t stored)
{
    if (!isThere) {
        throw Failure(failures::invalidPropertyValue, "The setting " + std::string(setting) + " holds " +
                                                          std::to_string(stored) +
                                                          ", for which this page has no choice.");
    }
}

} // namespace

Page::Page(std::string name, PageHost& host) : Form(std::move(name)), m_host(host)
{
    Set(&Form::Width, panelWidth * twipsPerPixelX);
}

void Page::Handle(Event<>& event, std::string_view control, Work work, std::string_view words)
{
    const RefNumber ref = FindRef(Name(), control.substr(0, control.find('(')));
    if (ref.number == 0) {
        throw Failure(failures::invalidCall, std::string(control) + " has no reference number.");
    }
    m_subscriptions.push_back(event.Subscribe(
        [this, ref, words, work = std::move(work)] { Guard(m_host.PageReporter(), ref, words, work); }));
}

void Page::HandleQuietly(Event<>& event, Work work)
{
    m_subscriptions.push_back(event.Subscribe(Quietly(std::move(work))));
}

void Page::Read(std::string_view control, Work work)
{
    m_readings.push_back({std::string(control), std::move(work)});
}

void Page::ReadOrder(const std::vector<std::string_view>& controls)
{
    std::vector<Reading> ordered;
    for (const std::string_view control : controls) {
        const auto found = std::find_if(m_readings.begin(), m_readings.end(),
                                        [&](const Reading& reading) { return reading.control == control; });
        if (found == m_readings.end()) {
            throw Failure(failures::invalidCall, "No row reads " + std::string(control));
        }
        ordered.push_back(*found);
    }
    m_readings = std::move(ordered);
}

void Page::ReadAll()
{
    for (const Reading& reading : m_readings) {
        reading.work();
    }
}

Label& Page::CaptionOf(std::string_view caption)
{
    return Make<Label>("lblViewProps(" + std::to_string(m_captions++) + ")", std::string(caption), LabelRole::Caption);
}

void Page::Line(std::string_view caption, std::vector<LayoutItem> items)
{
    LayoutLine line{.height = rowPitch, .items = std::move(items)};
    if (!caption.empty()) {
        line.items.insert(line.items.begin(), {.control = &CaptionOf(caption), .x = margin});
    }
    m_lines.push_back(std::move(line));
}

void Page::CaptionedLine(Label& caption, Control& control, Button* browse)
{
    std::vector<LayoutItem> items = {{.control = &caption, .x = margin},
                                     {.control = &control, .x = controlsAt, .width = LayoutItem::filling}};
    if (browse != nullptr) {
        items.push_back(
            {.control = browse, .width = browseWidth, .height = fieldHeight, .gap = browseGap, .atRight = true});
    }
    Line("", std::move(items));
}

void Page::BoxLine(CheckBox& box)
{
    m_lines.push_back({.height = boxPitch, .items = {{.control = &box, .x = controlsAt, .orX = margin}}});
}

void Page::FrameLine(std::string name, std::string caption)
{
    Frame& frame = Make<Frame>(std::move(name), std::move(caption));
    m_lines.push_back({.height = frameGap, .items = {}});
    m_lines.push_back(
        {.height = frameHeight, .items = {{.control = &frame, .x = margin, .width = LayoutItem::filling}}});
}

void Page::ArrangeLines()
{
    m_lines.insert(m_lines.begin(), LayoutLine{.height = frameGap, .items = {}});
    Arrange(margin, std::move(m_lines));
}

ListBox& Page::MakeList(std::string_view name, std::string_view caption, std::vector<std::string> items)
{
    auto& list = Make<ListBox>(std::string(name), std::move(items));
    Line(caption, {{.control = &list, .x = controlsAt, .width = LayoutItem::filling}});
    return list;
}

NumberField& Page::MakeNumber(std::string_view name, std::string_view caption, std::string_view unit, double least,
                              double most, int decimals)
{
    auto& number = Make<NumberField>(std::string(name), least, most, decimals);
    std::vector<LayoutItem> items = {{.control = &number, .x = controlsAt, .width = numberWidth}};
    if (!unit.empty()) {
        items.push_back({.control = &CaptionOf(unit)});
    }
    Line(caption, std::move(items));
    return number;
}

TextBox& Page::MakeText(std::string_view name, std::string_view caption)
{
    auto& text = Make<TextBox>(std::string(name));
    Line(caption, {{.control = &text, .x = controlsAt, .width = LayoutItem::filling}});
    WarningLine(text);
    return text;
}

void Page::WarningLine(TextBox& text)
{
    auto& warning = Make<Label>("lblBeyond" + text.Name());
    warning.Set(&Control::Visible, false);
    m_lines.push_back(
        {.height = warningHeight, .items = {{.control = &warning, .x = controlsAt, .width = LayoutItem::filling}}});
    m_subscriptions.push_back(text.Changed.Subscribe([&text, &warning] {
        const std::string beyond = CharactersBeyondAnsi(text.Text());
        warning.Set(&Label::Caption, beyond.empty() ? std::string() : "A view file can't hold: " + beyond);
        warning.Set(&Control::Visible, !beyond.empty() && text.Visible());
    }));
}

TextBox& Page::MakeBrowsed(std::string_view name, std::string_view button, std::string_view caption, bool onlyShows)
{
    auto& text = Make<TextBox>(std::string(name));
    text.Set(&TextBox::ReadOnly, onlyShows);
    auto& browse = Make<Button>(std::string(button), "...");
    CaptionedLine(CaptionOf(caption), text, &browse);
    WarningLine(text);
    return text;
}

Swatch& Page::MakeSwatch(std::string_view name, std::string_view button, std::string_view caption, std::string_view box)
{
    auto& swatch = Make<Swatch>(std::string(name));
    auto& browse = Make<Button>(std::string(button), "...");
    std::vector<LayoutItem> items = {
        {.control = &swatch, .x = controlsAt, .width = swatchWidth, .least = swatchLeast},
        {.control = &browse, .width = browseWidth, .height = fieldHeight, .gap = browseGap}};
    if (!box.empty()) {
        items.push_back({.control = &Make<CheckBox>(std::string(box), "Use Default")});
    }
    Line(caption, std::move(items));
    return swatch;
}

OptionArray& Page::MakeOptions(std::string_view name, std::vector<std::string> captions)
{
    auto& options = Make<OptionArray>(std::string(name), std::move(captions));
    m_lines.push_back(
        {.height = boxPitch, .items = {{.control = &options, .x = controlsAt, .width = LayoutItem::filling}}});
    return options;
}

OptionArray& Page::FramedOptions(std::string frame, std::string caption, std::string_view name,
                                 std::vector<std::string> captions)
{
    FrameLine(std::move(frame), std::move(caption));
    return MakeOptions(name, std::move(captions));
}

void Page::BrowseColor(std::string_view swatch, std::string_view button, std::function<void(Color)> write)
{
    auto& shown = On<Swatch>(swatch);
    auto& browse = On<Button>(button);
    Handle(browse.Click, button, [this, &shown, write = std::move(write)] {
        CommonDialog& dialog = m_host.dlgProp();
        dialog.Color = shown.BackColor();
        dialog.ShowColor(); // cancelled, it leaves the colour as it was, and that is written again
        shown.Set(&Swatch::BackColor, dialog.Color);
        write(dialog.Color);
    });
    HandleQuietly(shown.Click, [&browse] { browse.Push(); });
}

void Page::AskForFont(Font& font, const Swatch* color)
{
    CommonDialog& dialog = m_host.dlgProp();
    FontToDialog(font, dialog);
    dialog.Flags = color == nullptr ? fontFlags : fontAndColorFlags;
    if (color != nullptr) {
        dialog.Color = color->BackColor();
    }
    dialog.ShowFont();
    FontFromDialog(dialog, font);
}

double Page::ShortestOf(float number)
{
    const std::string digits = Decimal(number);
    double shortest = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), shortest);
    return shortest;
}

Color Page::DialogColor()
{
    return m_host.dlgProp().Color;
}

float Page::SameOr(float stored, float shown)
{
    return stored == shown || (std::isnan(stored) && std::isnan(shown)) ? stored : shown;
}

void Page::BrowseFile(std::string_view field, std::string_view button, std::string_view filter)
{
    auto& text = On<TextBox>(field);
    Handle(On<Button>(button).Click, button, [this, &text, filter = std::string(filter)] {
        CommonDialog& dialog = m_host.dlgProp();
        dialog.Flags = fileFlags;
        dialog.Filter = filter;
        dialog.FileName = text.Text();
        dialog.ShowOpen();
        if (!dialog.FileName.empty()) {
            text.Take(dialog.FileName);
        }
    });
}

void Page::BrowsePicture(std::string_view field, std::string_view button)
{
    BrowseFile(field, button, pictureFilter);
}

void Page::ShowStored(ListBox& list, std::string_view setting, std::int32_t row, std::int32_t stored)
{
    RequireRow(row >= -1 && row < std::ssize(list.Items()), setting, stored);
    list.ListIndex(row);
}

void Page::ShowStored(OptionArray& options, std::string_view setting, std::int32_t stored)
{
    RequireRow(stored >= 0 && stored < std::ssize(options.Captions()), setting, stored);
    options.Index(stored);
}

void Page::TryPicture(TextBox& field, const std::function<void(const std::string&)>& write)
{
    try {
        write(field.Text());
    } catch (const Failure& failure) {
        if (failure.Number() != failures::fileNotFound && failure.Number() != failures::pathNotFound) {
            throw;
        }
        m_host.PageBoxes().Show("The image file could not be found:\n" + field.Text(), "", BoxButtons::Ok);
        write({});
        field.Text({});
    }
}

void Page::Enable(std::string_view control, bool enabled) const
{
    On(control).Set(&Control::Enabled, enabled);
}

void Page::EnableAll(const std::vector<std::string>& controls, bool enabled) const
{
    for (const std::string& control : controls) {
        Enable(control, enabled);
    }
}

} // namespace quor
