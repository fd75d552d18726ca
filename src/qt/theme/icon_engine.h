#pragma once
// Draws an icon from its SVG text in the theme's colour, at the very size and scale that is asked for.

#include <QIconEngine>
#include <QString>

namespace quor {

struct ThemeColors;

class ThemedIconEngine final : public QIconEngine {
public:
    // The colours belong to the theme, which outlives the engine.
    ThemedIconEngine(QString path, const ThemeColors& colors);

    void paint(QPainter* painter, const QRect& area, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal scale) override;
    QIconEngine* clone() const override;
    bool isNull() override { return false; }
    QString iconName() override { return m_path; }

private:
    QPixmap Drawn(const QSize& devicePixels, QIcon::Mode mode) const;

    QString m_path;
    const ThemeColors& m_colors;
};

} // namespace quor
