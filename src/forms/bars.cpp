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

void Bars::Click(std::string_view name)
{
    const BarTool& tool = Tool(name);
    if (tool.Enabled() && tool.Visible()) {
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
