#include "forms/bars_layout.h"

#include "base/failure.h"
#include "base/text.h"
#include "forms/bars.h"
#include "platform/files.h"
#include "platform/whole_file.h"

#include <algorithm>
#include <utility>

namespace quor {

namespace {

constexpr std::string_view layoutHeader = "quor bars layout 1";
constexpr std::string_view usageHeader = "quor bars usage 1";
constexpr std::string_view lastLine = "end";
constexpr std::string_view bandWord = "band";
constexpr std::string_view toolWord = "tool";
constexpr std::string_view shownWord = "shown";
constexpr std::string_view hiddenWord = "hidden";
constexpr std::int64_t mostBytes = 65'536;
constexpr std::size_t mostBands = 64;
constexpr std::size_t mostTools = 256; // on one toolbar

bool IsArranged(const Band& band)
{
    return band.Kind == BandKind::ToolBar || band.Kind == BandKind::Panel || band.Kind == BandKind::StatusBar;
}

// Hands the lines between header and end to `take`, which says whether a line is good.
template <class Take> void VisitLines(std::string_view text, std::string_view header, Take take)
{
    int number = 0;
    bool hasEnded = false;
    const auto require = [&number](bool isGood) {
        if (!isGood) {
            throw Failure(failures::invalidCall, "The file of the bars is damaged in line " + std::to_string(number));
        }
    };
    while (!text.empty()) {
        ++number;
        const std::size_t end = text.find('\n');
        require(end != std::string_view::npos && !hasEnded);
        const std::string_view line = text.substr(0, end);
        text.remove_prefix(end + 1);
        hasEnded = number > 1 && line == lastLine;
        require(hasEnded || (number == 1 ? line == header : take(line)));
    }
    require(hasEnded);
}

template <class Number> bool TakeNumber(std::string_view& words, Number most, Number& number)
{
    const std::optional<Number> read = ReadNumber<Number>(TakeName(words));
    number = read.value_or(0);
    return read && number >= 0 && number <= most;
}

bool TakeBand(std::string_view words, BarsLayout& layout)
{
    if (TakeName(words) != bandWord || layout.size() == mostBands) {
        return false;
    }
    BandLayout band;
    band.band = TakeName(words);
    const std::string_view shown = TakeName(words);
    band.isVisible = shown == shownWord;
    bool isGood = !band.band.empty() && (band.isVisible || shown == hiddenWord) &&
                  TakeNumber(words, Band::mostExtent, band.extent);
    while (isGood && !words.empty()) {
        band.tools.emplace_back(TakeName(words));
        isGood = !band.tools.back().empty() && band.tools.size() <= mostTools;
    }
    isGood = isGood && std::none_of(layout.begin(), layout.end(),
                                    [&](const BandLayout& other) { return other.band == band.band; });
    layout.push_back(std::move(band));
    return isGood;
}

std::string ReadLines(Files& files, const std::string& path)
{
    return ReadText(files, path, mostBytes, Failure(failures::invalidCall, "The file of the bars is too long"));
}

// Those of the names that can stand on a toolbar, each but separators once.
std::vector<std::string> FittingTools(const Bars& bars, const std::vector<std::string>& names)
{
    const std::vector<BarTool*> commands = bars.Commands();
    std::vector<std::string> fitting;
    for (const std::string& name : names) {
        const bool isCommand = std::any_of(commands.begin(), commands.end(),
                                           [&](const BarTool* command) { return command->Name == name; });
        const bool isNew = std::find(fitting.begin(), fitting.end(), name) == fitting.end();
        if (name == separatorTool || (isCommand && isNew)) {
            fitting.push_back(name);
        }
    }
    return fitting;
}

} // namespace

BarsLayout LayoutOf(const Bars& bars)
{
    BarsLayout layout;
    for (const std::unique_ptr<Band>& band : bars.Bands()) {
        if (!IsArranged(*band)) {
            continue;
        }
        layout.push_back({band->Name, band->Visible(), band->Extent(), {}});
        if (band->Kind == BandKind::ToolBar) {
            for (const BandTool& place : band->Tools()) {
                layout.back().tools.push_back(place.Tool().Name);
            }
        }
    }
    return layout;
}

void ApplyLayout(Bars& bars, const BarsLayout& layout)
{
    for (const BandLayout& wanted : layout) {
        const std::unique_ptr<Band>* band = bars.Bands().Find(wanted.band);
        if (band == nullptr || !IsArranged(**band)) {
            continue;
        }
        if ((*band)->Kind == BandKind::ToolBar) {
            (*band)->SetTools(FittingTools(bars, wanted.tools));
        }
        (*band)->SetExtent(wanted.extent);
        (*band)->Set(&Band::Visible, wanted.isVisible);
    }
}

std::string LayoutText(const BarsLayout& layout)
{
    std::string text = std::string(layoutHeader) + '\n';
    for (const BandLayout& band : layout) {
        text += std::string(bandWord) + ' ' + band.band + ' ' + std::string(band.isVisible ? shownWord : hiddenWord) +
                ' ' + std::to_string(band.extent);
        for (const std::string& tool : band.tools) {
            text += ' ' + tool;
        }
        text += '\n';
    }
    return text + std::string(lastLine) + '\n';
}

BarsLayout ParseLayout(std::string_view text)
{
    BarsLayout layout;
    VisitLines(text, layoutHeader, [&](std::string_view line) { return TakeBand(line, layout); });
    return layout;
}

void SaveLayout(const Bars& bars, Files& files, const std::string& path)
{
    WriteWhole(files, path, LayoutText(LayoutOf(bars)));
}

void LoadLayout(Bars& bars, Files& files, const std::string& path)
{
    ApplyLayout(bars, ParseLayout(ReadLines(files, path)));
}

void SaveUsage(const Bars& bars, Files& files, const std::string& path)
{
    std::string text = std::string(usageHeader) + '\n';
    for (const std::unique_ptr<BarTool>& tool : bars.Tools()) {
        if (tool->Uses() > 0) {
            text += std::string(toolWord) + ' ' + tool->Name + ' ' + std::to_string(tool->Uses()) + '\n';
        }
    }
    WriteWhole(files, path, text + std::string(lastLine) + '\n');
}

void LoadUsage(Bars& bars, Files& files, const std::string& path)
{
    std::vector<std::pair<BarTool*, std::uint32_t>> uses;
    VisitLines(ReadLines(files, path), usageHeader, [&](std::string_view line) {
        const bool isTool = TakeName(line) == toolWord;
        const std::unique_ptr<BarTool>* tool = bars.Tools().Find(TakeName(line));
        std::uint32_t count = 0;
        const bool isGood = isTool && TakeNumber(line, UINT32_MAX, count) && line.empty();
        if (isGood && tool != nullptr) {
            uses.emplace_back(tool->get(), count);
        }
        return isGood;
    });
    for (const auto& [tool, count] : uses) {
        tool->SetUses(count);
    }
}

} // namespace quor
