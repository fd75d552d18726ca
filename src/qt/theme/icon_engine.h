#pragma once
// Draws an icon from its SVG text in the theme's colours, at the very size and scale that is asked for.

#include <QIconEngine>
#include <QString>

namespace quor {

class ThemedIconEngine final : public QIconEngine {
public:
    // Its colours are those in use whenever it draws.
    explicit ThemedIconEngine(QString path) : m_path(std::move(path)) {}

    void paint(QPainter* painter, const QRect& area, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal scale) override;
    QIconEngine* clone() const override;
    bool isNull() override { return false; }
    QString iconName() override { return m_path; }

private:
    QPixmap Drawn(const QSize& devicePixels, QIcon::Mode mode) const;

    QString m_path;
};

} // namespace quor
