#pragma once
// The panel of property pages (bndObjProps): which tabs show for a selection, and which pages are bound to it.

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace quor {

class Bars;
class Element;
class Page;
class PageHost;

class PropertyPanel {
public:
    static constexpr std::string_view viewBand = "prpViewProps";
    static constexpr std::string_view generalBand = "prpGeneral";

    PropertyPanel(Bars& bars, PageHost& host);
    ~PropertyPanel();

    // Makes the pages and puts each into its tool. There is no page before.
    void BindPanels();

    void HidePropertyPages();

    // `name` is the child band of the kind, or viewBand; `element` is then null. Without `reload` the general page
    // alone is bound anew.
    void ShowPropertyPages(std::string_view name, Element* element, bool reload);

    // Null for a page that doesn't exist.
    Page* FindPage(std::string_view name) const;
    const std::vector<std::unique_ptr<Page>>& Pages() const noexcept { return m_pages; }

private:
    void ShowTabs(std::string_view names);
    void Clear(std::string_view pages);
    void Bind(std::string_view pages, Element& element, std::string_view array);

    Bars& m_bars;
    PageHost& m_host;
    std::vector<std::unique_ptr<Page>> m_pages;
};

} // namespace quor
