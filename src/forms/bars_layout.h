#pragma once
// How the user has arranged the bars, kept in files: which bars show, which tools stand on the toolbars, how wide the
// panels are, and how often each tool was used.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quor {

class Bars;
class Files;

struct BandLayout {
    std::string band;
    bool isVisible = true;
    std::int32_t extent = 0;        // as Band::Extent
    std::vector<std::string> tools; // of a toolbar

    friend bool operator==(const BandLayout&, const BandLayout&) = default;
};

using BarsLayout = std::vector<BandLayout>;

// Of the toolbars, the panels and the status bar; the rest is the same for everyone.
BarsLayout LayoutOf(const Bars& bars);

// Bands and tools that the bars don't know are left out, so are tools that can't stand on a toolbar, and a tool's
// second place on one. What the layout doesn't name stays as it is.
void ApplyLayout(Bars& bars, const BarsLayout& layout);

std::string LayoutText(const BarsLayout& layout);

// Fails with 5, naming the line, for a text that isn't all of a layout in this version of the format.
BarsLayout ParseLayout(std::string_view text);

// The same as files, which are replaced in one step. Loading changes nothing if it fails: with 5 for a file that is
// damaged or too long to be one, with the file port's numbers for one that can't be read.
void SaveLayout(const Bars& bars, Files& files, const std::string& path);
void LoadLayout(Bars& bars, Files& files, const std::string& path);
void SaveUsage(const Bars& bars, Files& files, const std::string& path);
void LoadUsage(Bars& bars, Files& files, const std::string& path);

} // namespace quor
