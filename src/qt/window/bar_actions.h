#pragma once
// The tools of the bars as actions, and bands as menus of them.

#include "base/event.h"

#include <memory>
#include <string>
#include <unordered_map>

class QAction;
class QMenu;
class QWidget;

namespace quor {

class BandTool;
class BarTool;
class Bars;
class Band;

class BarActions {
public:
    // Shortcuts hold within the window, which owns the actions. The bars outlive it.
    BarActions(Bars& bars, QWidget& window);
    ~BarActions();
    BarActions(const BarActions&) = delete;
    BarActions& operator=(const BarActions&) = delete;

    // The keys of tools that act on what is selected hold while the canvas has the keyboard: elsewhere they edit text.
    void AddCanvasKeys(QWidget& canvas);

    // One a tool, but for places with words of their own.
    QAction& ActionFor(const BandTool& place);

    // A menu that shows the band as it stands whenever it opens. The parent owns it.
    QMenu& MakeMenu(const Band& band, QWidget& parent);

    // Opens the band at the pointer.
    void Popup(const Band& band);

private:
    struct Follower {
        QAction* action;
        Subscription following;
    };

    QAction& Make(BarTool& tool, const std::string& caption, const std::string& tip);
    void Fill(QMenu& menu, const Band& band);

    Bars& m_bars;
    QWidget& m_window;
    std::unordered_map<std::string, Follower> m_actions; // by the tool's name and the place's words
    QMenu* m_popup = nullptr;
};

} // namespace quor
