#pragma once
// Draws what looks as something drawn before did from a picture that was kept of it. QPixmapCache keeps them, within
// its bound on memory; what it throws away is drawn again.

#include <QPainter>
#include <QPixmap>
#include <QPixmapCache>
#include <QRect>
#include <QString>

#include <cstring>
#include <iterator>
#include <type_traits>

namespace quor {

// All that decides how a picture looks. Its place is none of it.
class PictureKey {
public:
    explicit PictureKey(QLatin1StringView painter) : m_text(painter) {}

    template <class Fact>
    requires std::is_arithmetic_v<Fact> || std::is_enum_v<Fact> PictureKey& operator<<(Fact fact)
    {
        static_assert(sizeof(Fact) <= sizeof(char16_t[4]));
        char16_t words[(sizeof(Fact) + 1) / sizeof(char16_t)] = {};
        std::memcpy(words, &fact, sizeof(Fact));
        m_text.append(reinterpret_cast<const QChar*>(words), std::size(words));
        return *this;
    }
    PictureKey& operator<<(const QColor& color) { return *this << color.rgba(); }
    PictureKey& operator<<(const QString& text) { return *this << text.size(), m_text += text, *this; }

    const QString& Text() const noexcept { return m_text; }

private:
    QString m_text;
};

// Device pixels that are worth keeping; what is larger is drawn each time.
inline constexpr int largestKept = 512 * 512;

// Place and painter are in whole device pixels (see DeviceSpace). `draw(QPainter&)` draws at the place.
template <class Draw> void DrawKept(QPainter& painter, const QRect& place, const PictureKey& key, Draw draw)
{
    if (qint64{place.width()} * place.height() > largestKept) {
        draw(painter);
        return;
    }
    QPixmap picture;
    if (!QPixmapCache::find(key.Text(), &picture)) {
        picture = QPixmap(place.size());
        picture.fill(Qt::transparent);
        QPainter inner(&picture);
        inner.translate(-place.topLeft());
        draw(inner);
        inner.end();
        QPixmapCache::insert(key.Text(), picture);
    }
    painter.drawPixmap(place.topLeft(), picture);
}

} // namespace quor
