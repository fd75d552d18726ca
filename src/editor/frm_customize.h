#pragma once
// The customise dialog: which tools stand on the toolbar, in which order, and which bars show. Nothing changes before
// OK.

#include "forms/bars_layout.h"
#include "forms/fields.h"
#include "forms/form.h"
#include "forms/panes.h"

namespace quor {

class frmCustomize final : public Form {
public:
    // Bars with one toolbar, which outlive the form; their built-in layout is what Reset brings back.
    frmCustomize(Bars& bars, BarsLayout builtIn);

    Label& lblTools = Make<Label>("lblTools", "Available tools:", LabelRole::Caption);
    Label& lblToolbar = Make<Label>("lblToolbar", "On the toolbar:", LabelRole::Caption);
    RowList& lstTools = Make<RowList>("lstTools"); // the separator, then what doesn't stand on the toolbar
    Button& cmdAdd = Make<Button>("cmdAdd", "&Add >");
    Button& cmdRemove = Make<Button>("cmdRemove", "< &Remove");
    Button& cmdUp = Make<Button>("cmdUp", "Move &Up");
    Button& cmdDown = Make<Button>("cmdDown", "Move &Down");
    RowList& lstToolbar = Make<RowList>("lstToolbar");
    Label& lblBars = Make<Label>("lblBars", "Show:", LabelRole::Caption);
    Rule& divider = Make<Rule>("divider");
    Button& cmdReset = Make<Button>("cmdReset", "Re&set");
    Button& cmdOK = Make<Button>("cmdOK", "OK");
    Button& cmdCancel = Make<Button>("cmdCancel", "Cancel");

    // One a bar of the layout, "chkBar(0)" and so on.
    const std::vector<CheckBox*>& chkBar() const noexcept { return m_bands; }

private:
    void Place();
    void OnControls();
    std::vector<std::string>& ToolbarTools();
    RowList::Row RowOf(const std::string& tool) const;
    void Fill();
    void FollowSelection();
    void Add();
    void Remove();
    void Move(std::int32_t distance);
    void Accept();

    Bars& m_bars;
    const BarsLayout m_builtIn;
    BarsLayout m_layout; // as it will be
    std::vector<std::string> m_available;
    std::vector<CheckBox*> m_bands;
    std::vector<Subscription> m_subscriptions;
};

} // namespace quor
