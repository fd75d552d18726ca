#include "qt/theme/icon_engine.h"

#include "qt/theme/theme.h"

#include <QFile>
#include <QPaintDevice>
#include <QPixmapCache>
#include <QSvgRenderer>

namespace quor {

namespace {

constexpr qreal disabledOpacity = 0.36;

// What stands for the theme's colours in the texts.
constexpr struct {
    const char* word;
    QColor ThemeColors::*color;
} words[] = {{"currentColor", &ThemeColors::icon},
             {"var(--accent)", &ThemeColors::accent},
             {"var(--on-accent)", &ThemeColors::onAccent},
             {"var(--error)", &ThemeColors::error}};

QByteArray TintedSvg(const QString& path)
{
    QFile file(path);
    QByteArray text = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    for (const auto& row : words) {
        text.replace(row.word, (ColorsInUse().*row.color).name().toLatin1());
    }
    return text;
}

} // namespace

void ThemedIconEngine::paint(QPainter* painter, const QRect& area, QIcon::Mode mode, QIcon::State)
{
    const qreal scale = painter->device()->devicePixelRatioF();
    painter->drawPixmap(area, Drawn((QSizeF(area.size()) * scale).toSize(), mode));
}

QPixmap ThemedIconEngine::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State)
{
    return Drawn(size, mode);
}

QPixmap ThemedIconEngine::scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State, qreal)
{
    return Drawn(size, mode); // the size is in device pixels already
}

QIconEngine* ThemedIconEngine::clone() const
{
    return new ThemedIconEngine(*this);
}

QPixmap ThemedIconEngine::Drawn(const QSize& devicePixels, QIcon::Mode mode) const
{
    const bool isDisabled = mode == QIcon::Disabled;
    const QString key = QStringLiteral("quor:%1:%2x%3:%4")
                            .arg(m_path)
                            .arg(devicePixels.width())
                            .arg(devicePixels.height())
                            .arg(isDisabled);
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap)) {
        return pixmap;
    }
    QImage image(devicePixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(isDisabled ? disabledOpacity : 1);
    QSvgRenderer(TintedSvg(m_path)).render(&painter);
    painter.end();
    pixmap = QPixmap::fromImage(std::move(image));
    QPixmapCache::insert(key, pixmap);
    return pixmap;
}

} // namespace quor
