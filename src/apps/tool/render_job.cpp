#include "apps/tool/render_job.h"

#include "apps/tool/desk.h"
#include "apps/tool/view_renderer.h"
#include "base/text.h"
#include "binding/bln_data_source.h"

#include <algorithm>
#include <cmath>

namespace quor {

namespace {

constexpr double longestSide = 16'384; // pixels of the picture
constexpr double mostPixels = 100'000'000;

// The whole word as a number, or a refusal.
template <class Number> Number NumberIn(std::string_view word, std::string_view option)
{
    const std::optional<Number> number = ReadNumber<Number>(word);
    if (!number) {
        throw Refusal{"\"" + std::string(word) + "\" is no value for " + std::string(option)};
    }
    return *number;
}

void TakeScale(RenderJob& job, const std::string& value)
{
    constexpr double least = 0.1;
    constexpr double most = 16;
    job.scale = NumberIn<double>(value, "--scale");
    if (!(job.scale >= least && job.scale <= most)) {
        throw Refusal{"--scale goes from 0.1 to 16"};
    }
}

void TakeState(RenderJob& job, const std::string& value)
{
    if (value != "on" && value != "off") {
        throw Refusal{"--state is on or off"};
    }
    job.state = value == "on";
}

void TakeSize(RenderJob& job, const std::string& value)
{
    const std::size_t middle = value.find('x');
    const std::string_view words = value;
    if (middle != std::string::npos) {
        job.width = NumberIn<int>(words.substr(0, middle), "--size");
        job.height = NumberIn<int>(words.substr(middle + 1), "--size");
    }
    if (job.width < 1 || job.height < 1) {
        throw Refusal{"--size is like 800x600"};
    }
}

// As far as the elements and the background picture reach, with as much room behind them as before them.
void FindSize(RenderJob& job, const Canvas& canvas)
{
    constexpr double mostRoom = 40;
    double right = 0;
    double bottom = 0;
    double room = mostRoom;
    const auto reach = [&](double toRight, double toBottom) {
        right = std::max(right, std::isfinite(toRight) ? toRight : 0);
        bottom = std::max(bottom, std::isfinite(toBottom) ? toBottom : 0);
    };
    for (const Widget* widget = canvas.Back(); widget != nullptr; widget = widget->Above()) {
        const Area area = widget->Bounds();
        const double left = double{area.left} / twipsPerPixelX;
        const double top = double{area.top} / twipsPerPixelY;
        room = std::max(0.0, std::min({room, left, top}));
        reach(left + double{area.width} / twipsPerPixelX, top + double{area.height} / twipsPerPixelY);
    }
    if (canvas.Back() != nullptr) {
        right += room;
        bottom += room;
    }
    if (const PictureRef& picture = canvas.Background().picture; canvas.Background().visible && picture != nullptr) {
        reach(picture->PixelWidth(), picture->PixelHeight());
    }
    if (const PictureRef& picture = canvas.Picture(); picture != nullptr) {
        reach(picture->PixelWidth(), picture->PixelHeight());
    }
    if (right < 1 || bottom < 1) { // an empty view
        job.width = 640;
        job.height = 480;
        return;
    }
    job.width = static_cast<int>(std::ceil(std::min(right, longestSide + 1)));
    job.height = static_cast<int>(std::ceil(std::min(bottom, longestSide + 1)));
}

void ShowState(clsCustView& view, bool isOn)
{
    for (Element* element : view.CtlOrder()) {
        if (clsBlnDataSource* source = element->StatusSource()) {
            source->ForceValue(isOn, false);
        }
    }
}

} // namespace

RenderJob ParseRenderJob(std::span<const std::string> words)
{
    const struct {
        std::string_view name;
        void (*take)(RenderJob&, const std::string&);
    } options[] = {{"--scale", TakeScale}, {"--state", TakeState}, {"--size", TakeSize}};
    RenderJob job;
    std::vector<std::string> paths;
    for (std::size_t index = 0; index < words.size(); ++index) {
        const auto* option = std::find_if(std::begin(options), std::end(options),
                                          [&](const auto& each) { return each.name == words[index]; });
        if (option == std::end(options)) {
            paths.push_back(words[index]);
            continue;
        }
        if (++index == words.size()) {
            throw Refusal{std::string(option->name) + " needs a value"};
        }
        option->take(job, words[index]);
    }
    if (paths.size() != 2) {
        throw Refusal{"render takes a view and the picture to write"};
    }
    job.from = paths[0];
    job.to = paths[1];
    return job;
}

std::vector<std::uint8_t> RenderedPng(Desk& desk, const RenderJob& job, ViewRenderer& renderer)
{
    RenderJob sized = job;
    if (sized.width == 0) {
        FindSize(sized, desk.Shown());
    }
    const double width = sized.width * job.scale;
    const double height = sized.height * job.scale;
    if (width < 1 || height < 1) {
        throw Refusal{"the picture would be smaller than a pixel"};
    }
    if (width > longestSide || height > longestSide || width * height > mostPixels) {
        throw Refusal{"the picture would be too large"};
    }
    if (job.state) {
        ShowState(desk.View(), *job.state);
    }
    return renderer.Png(desk.Shown(), sized.width, sized.height, job.scale);
}

} // namespace quor
