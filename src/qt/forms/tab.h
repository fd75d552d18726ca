#pragma once
// A tab: a caption on the ground that says whether it is in front, which is for its owner to say.

#include <QAbstractButton>

namespace quor {

class Tab : public QAbstractButton {
public:
    static constexpr int tabHeight = 26; // pixels

    explicit Tab(QWidget* parent);

    QSize sizeHint() const override;

protected:
    void nextCheckState() override {}
    void paintEvent(QPaintEvent* event) override;
};

} // namespace quor
