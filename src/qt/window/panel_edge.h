#pragma once
// The edge of a docked panel by which the user makes it wider or narrower; the band keeps the width.

#include "base/event.h"

#include <QWidget>

namespace quor {

class Band;

class PanelEdge final : public QWidget {
public:
    // `dock` is the part of `panel` that has the width, at least what it has now; `rest` lies at the panel's left and
    // gives the room. The band's extent is the width in pixels, 0 for the least.
    PanelEdge(Band& band, QWidget& panel, QWidget& dock, QWidget& rest);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    void FollowBand();

    Band& m_band;
    QWidget& m_dock;
    QWidget& m_rest;
    int m_least;
    Subscription m_bandChanges;
    int m_grip = 0; // width and the pointer's place, as the edge was taken hold of
};

} // namespace quor
