#pragma once
// The widget of a colour swatch: the colour within a frame, or its caption where there is one.

#include <QAbstractButton>
#include <QColor>

namespace quor {

class SwatchButton final : public QAbstractButton {
public:
    explicit SwatchButton(QWidget& parent);

    void ShowColor(const QColor& color, const QString& caption);
    QSize sizeHint() const override { return {56, 24}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor m_color;
};

} // namespace quor
