#pragma once
// The status bar: the captions of its band's tools in a row.

#include "base/event.h"

#include <QWidget>

#include <vector>

namespace quor {

class Band;
class Theme;

class StatusLine final : public QWidget {
public:
    // Band and theme outlive it.
    StatusLine(Band& band, const Theme& theme, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void Follow();

    Band& m_band;
    const Theme& m_theme;
    std::vector<Subscription> m_following;
};

} // namespace quor
