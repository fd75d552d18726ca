#pragma once
// A band's child bands as tabs, with the form of the one in front below them.

#include "base/event.h"

#include <QWidget>

#include <vector>

class QStackedWidget;

namespace quor {

class Band;
class PanelTabs;

class TabbedView final : public QWidget {
public:
    // The band and the forms that its tools host outlive it.
    explicit TabbedView(Band& band, QWidget* parent = nullptr);

private:
    void FollowSoon();
    void Follow();
    QWidget* PageOf(const Band& child);

    Band& m_band;
    PanelTabs* m_tabs;
    QStackedWidget* m_stack;
    std::vector<Band*> m_shown; // the tabs in order
    bool m_willFollow = false;
    std::vector<Subscription> m_following;
};

} // namespace quor
