#include "forms/bars.h"

#include "forms/caption.h"

#include <algorithm>

namespace quor {

BarTool::BarTool(const ToolRow& row)
    : Id(row.id), Name(row.name), Shortcut(row.shortcut), Keys(row.keys), Opens(row.opens),
      Enabled(row.start != ToolStart::Disabled), Checked(row.start == ToolStart::Checked),
      Caption(std::string(row.caption)), Tip(row.tip.empty() ? PlainCaption(row.caption) : std::string(row.tip)),
      Category(std::string(row.category))
{
}

Band::Band(Bars& bars, const BandRow& row)
    : Name(row.name), Caption(row.caption), Kind(row.kind),
      Visible(row.kind != BandKind::Menu && row.kind != BandKind::Popup), m_bars(&bars)
{
    for (std::string_view names = row.tools; !names.empty();) {
        m_tools.emplace_back(bars.Tool(TakeName(names)));
    }
}

void Band::Set(Property<"Visible", bool> Band::*property, bool visible)
{
    if (Write(this->*property, visible) && Kind != BandKind::Child) {
        (visible ? m_bars->BandOpen : m_bars->BandClose).Raise(Name);
    }
}

void Band::SetExtent(std::int32_t extent)
{
    if (extent < 0 || extent > mostExtent) {
        throw Failure(failures::invalidPropertyValue);
    }
    Write(Extent, extent);
}

void Band::SetTools(std::span<const std::string> names)
{
    std::vector<BarTool*> wanted;
    for (const std::string& name : names) {
        wanted.push_back(&m_bars->Tool(name));
    }
    std::vector<BandTool> known = std::move(m_removed);
    known.insert(known.end(), m_tools.begin(), m_tools.end());
    m_tools.clear();
    for (BarTool* tool : wanted) {
        const auto place =
            std::find_if(known.begin(), known.end(), [&](const BandTool& old) { return &old.Tool() == tool; });
        m_tools.push_back(place == known.end() ? BandTool(*tool) : *place);
        if (place != known.end()) {
            known.erase(place);
        }
    }
    std::erase_if(known, [](const BandTool& old) { return old.Tool().IsSeparator(); });
    m_removed = std::move(known);
    Changed.Raise();
}

BandTool& Band::Tool(std::string_view name)
{
    const auto found = std::find_if(m_tools.begin(), m_tools.end(),
                                    [&](const BandTool& place) { return SameText(place.Tool().Name, name); });
    if (found == m_tools.end()) {
        throw Failure(failures::invalidCall);
    }
    return *found;
}

Band& Band::Child(std::string_view name) const
{
    const auto found = std::find_if(m_children.begin(), m_children.end(),
                                    [&](const Band* child) { return SameText(child->Name, name); });
    if (found == m_children.end()) {
        throw Failure(failures::invalidCall);
    }
    return **found;
}

void Band::SetCurrentChild(std::string_view name)
{
    Write(m_current, &Child(name));
}

std::vector<BarTool*> Bars::Commands() const
{
    std::vector<BarTool*> commands;
    for (const std::unique_ptr<Band>& band : m_bands) {
        if (band->Kind != BandKind::Menu) {
            continue;
        }
        for (const BandTool& place : band->Tools()) {
            BarTool* tool = &place.Tool();
            const bool isNew = std::find(commands.begin(), commands.end(), tool) == commands.end();
            if (isNew && !tool->IsSeparator() && tool->Opens.empty()) {
                commands.push_back(tool);
            }
        }
    }
    return commands;
}

void Bars::Click(std::string_view name)
{
    BarTool& tool = Tool(name);
    if (tool.Enabled() && tool.Visible()) {
        tool.SetUses(std::max(tool.Uses() + 1, tool.Uses()));
        ToolClick.Raise(tool.Name);
    }
}

bool Bars::AskClose()
{
    bool cancel = false;
    QueryClose.Raise(cancel);
    return !cancel;
}

void Bars::AddTool(const ToolRow& row)
{
    m_tools.Add(row.name, std::make_unique<BarTool>(row));
}

void Bars::AddBand(const BandRow& row)
{
    m_bands.Add(row.name, std::make_unique<Band>(*this, row));
    if (!row.parent.empty()) {
        BandOf(row.parent).m_children.push_back(&BandOf(row.name));
    }
}

} // namespace quor
