#pragma once
// A band's child bands as tabs, with the form of the one in front below them.

#include "base/event.h"

#include <QTimer>
#include <QWidget>

#include <unordered_map>
#include <vector>

class QScrollArea;

namespace quor {

class Band;
class Form;
class FormView;
class PanelTabs;
class Theme;

class TabbedView final : public QWidget {
public:
    // Band and theme outlive it, and so do the forms that its tools host.
    TabbedView(Band& band, const Theme& theme, QWidget* parent = nullptr);
    ~TabbedView() override;

private:
    void Follow();
    void ShowPage(const Band* page);
    std::vector<Band*> VisibleChildren() const;

    Band& m_band;
    const Theme& m_theme;
    PanelTabs* m_tabs;
    QScrollArea* m_area;
    std::unordered_map<const Form*, FormView*> m_views; // made when they are first shown
    QTimer m_soon; // a change of the selection sets many tabs, which are then shown once
    std::vector<Subscription> m_following;
};

} // namespace quor
