#pragma once
// A band's child bands as tabs, with the form of the one in front below them.

#include "base/event.h"

#include <QWidget>

#include <unordered_map>
#include <vector>

class QStackedWidget;

namespace quor {

class Band;
class Form;
class PanelTabs;
class Theme;

class TabbedView final : public QWidget {
public:
    // Band and theme outlive it. Forms are let go as soon as their tools host them no longer.
    TabbedView(Band& band, const Theme& theme, QWidget* parent = nullptr);

private:
    // A form's view in its scroll area, made when it is first shown and then kept.
    struct Page {
        const Form* form;
        QWidget* area;
    };

    void FollowSoon();
    void Follow();
    void ForgetForm(const Band& child);
    QWidget* PageOf(const Band& child);

    Band& m_band;
    const Theme& m_theme;
    PanelTabs* m_tabs;
    QStackedWidget* m_stack;
    std::vector<Band*> m_shown; // the tabs in order
    std::unordered_map<const Band*, Page> m_pages;
    bool m_willFollow = false;
    std::vector<Subscription> m_following;
};

} // namespace quor
