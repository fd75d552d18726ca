#pragma once
// The render command: which view to draw, how, and where to.

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace quor {

class Desk;
class ViewRenderer;

struct RenderJob {
    std::string from;
    std::string to;
    double scale = 1;
    std::optional<bool> state; // shown by all status elements; as loaded if it isn't told
    int width = 0;             // device-independent pixels; 0 for as much as the view has
    int height = 0;
};

// Two paths and options in any order; refuses what is none.
RenderJob ParseRenderJob(std::span<const std::string> words);

// A PNG file of the loaded view. Refuses a picture beyond all screens.
std::vector<std::uint8_t> RenderedPng(Desk& desk, const RenderJob& job, ViewRenderer& renderer);

} // namespace quor
