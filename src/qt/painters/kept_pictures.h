#pragma once
// What takes long to draw, kept for the next time. What was used least goes first; it is drawn again, so the bounds on
// memory cost time only.

#include "widgets/arc_layout.h"
#include "widgets/linear_layout.h"

#include <QByteArray>
#include <QCache>
#include <QImage>
#include <QPainter>

#include <array>
#include <cstdint>
#include <cstring>
#include <type_traits>
#include <vector>

namespace quor {

template <class Fact>
concept NumberOrName = std::is_arithmetic_v<Fact> || std::is_enum_v<Fact>;

// All that decides how a picture looks, as bytes.
template <NumberOrName... Fact> auto KeyOf(const Fact&... facts)
{
    std::array<char, (sizeof(Fact) + ...)> key;
    char* end = key.data();
    ((std::memcpy(end, &facts, sizeof(Fact)), end += sizeof(Fact)), ...);
    return key;
}

inline qsizetype BytesOf(const QImage& picture)
{
    return picture.sizeInBytes();
}

template <class Value> class Kept {
public:
    explicit Kept(qsizetype mostBytes) : m_values(mostBytes) {}

    // What is kept for that key, or what `make` returns now.
    template <std::size_t length, class Make> Value Of(const std::array<char, length>& key, Make make)
    {
        const QByteArray bytes = QByteArray::fromRawData(key.data(), length);
        if (const Value* kept = m_values.object(bytes)) {
            return *kept;
        }
        Value value = make();
        m_values.insert(QByteArray(key.data(), length), new Value(value), BytesOf(value));
        return value;
    }

    qsizetype Bytes() const { return m_values.totalCost(); }

private:
    QCache<QByteArray, Value> m_values;
};

// The part of an angular gauge that stands still.
struct DialFace {
    QImage picture; // null for one that isn't kept
    ArcLayout arc;  // in device pixels
    bool isPointerLight;
    QImage hub; // drawn over the pointer; null for one that isn't kept
    QPointF hubPlace;
};

inline qsizetype BytesOf(const DialFace& face)
{
    return BytesOf(face.picture) + BytesOf(face.hub);
}

// The same of a linear gauge.
struct BandFace {
    QImage picture;
    LinearLayout layout; // in device pixels
    QImage pointer;      // null for one that isn't kept
    qreal pointerMargin; // from the first pixel of the line in it to what it marks
};

inline qsizetype BytesOf(const BandFace& face)
{
    return BytesOf(face.picture) + BytesOf(face.pointer);
}

// What a polygon that is being filled covers, row by row; its memory serves the next one.
struct FillRows {
    // Of a row: the pixels that the polygon may cover a part of.
    struct Touched {
        int first;
        int end;
    };
    std::vector<int> cover;           // more than of the left neighbour; all 0 but while edges are added
    std::vector<std::uint8_t> shares; // of each pixel within what is touched
    std::vector<Touched> touched;
};

// Those of one canvas.
struct KeptPictures {
    static constexpr qsizetype mostBytes = qsizetype{32} << 20; // a screen of the largest kind

    Kept<QImage> shapes{mostBytes}; // by `Shape`
    Kept<DialFace> dials{mostBytes};
    Kept<BandFace> bands{mostBytes};
    FillRows fillRows;
};

// What a picture of one of the shapes is of: a widget as it looks, or a part that any widget may have.
enum class Shape : char { Widget, Lamp, LampFace, ButtonFace };

// A picture of a place, on nothing: `draw(QPainter&)` draws there.
template <class Draw> QImage PictureOf(const QRect& place, Draw draw)
{
    QImage picture(place.size(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.translate(-place.topLeft());
    draw(painter);
    painter.end();
    return picture;
}

// Draws at the place, in device pixels, what `draw(QPainter&)` draws there, unless it is too large to be kept.
template <class Key, class Draw>
void DrawKept(QPainter& painter, Kept<QImage>& kept, const QRect& place, const Key& key, Draw draw)
{
    constexpr qint64 mostPixels = 512 * 512;
    if (qint64{place.width()} * place.height() > mostPixels) {
        draw(painter);
    } else {
        painter.drawImage(place.topLeft(), kept.Of(key, [&] { return PictureOf(place, draw); }));
    }
}

} // namespace quor
