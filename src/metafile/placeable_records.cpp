#include "metafile/placeable_records.h"

#include "base/text.h"
#include "metafile/enhanced_types.h"
#include "metafile/enhanced_writer.h"
#include "metafile/record_fields.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace quor {

namespace {

using namespace enhanced_types;
using Bytes = std::span<const std::uint8_t>;

constexpr std::int64_t blackPen = 0x80000007; // things that are always there
constexpr std::int64_t noPen = 0x80000008;

// Records whose 16-bit numbers, in the reverse order, are the 32-bit numbers of an enhanced one.
struct TurnedRow {
    std::uint16_t function;
    std::uint32_t type;
    std::size_t numbers;
};
constexpr std::array turnedRows = {
    TurnedRow{0x001E, 33, 0}, // save the state
    TurnedRow{0x0127, 34, 1}, // restore it
    TurnedRow{0x0102, 18, 1}, // mode of the ground behind texts
    TurnedRow{0x0104, 20, 1}, // mode of drawing
    TurnedRow{0x0106, 19, 1}, // mode of filling
    TurnedRow{0x0107, 21, 1}, // mode of stretching
    TurnedRow{0x012E, 22, 1}, // alignment of texts
    TurnedRow{0x020B, setWindowOrigin, 2},
    TurnedRow{0x020C, setWindowExtent, 2},
    TurnedRow{0x0214, 27, 2}, // move to
    TurnedRow{0x0213, 54, 2}, // line to
    TurnedRow{0x0415, 29, 4}, // clip out
    TurnedRow{0x0416, 30, 4}, // clip in
    TurnedRow{0x0418, 42, 4}, // ellipse
    TurnedRow{0x041B, rectangle, 4},
    TurnedRow{0x061C, 44, 6}, // rounded rectangle
    TurnedRow{0x0817, 45, 8}, // arc
    TurnedRow{0x0830, 46, 8}, // chord
    TurnedRow{0x081A, 47, 8}, // pie
};

class Translation {
public:
    Translation(double pixelWidth, double pixelHeight, const RecordFields& box);
    void Take(std::uint16_t function, const RecordFields& fields);
    std::vector<std::uint8_t> Finish() { return m_writer.Finish(); }

private:
    using Taker = void (Translation::*)(const RecordFields&);
    struct TakerRow {
        std::uint16_t function;
        Taker take;
    };
    static const std::array<TakerRow, 21> takers;

    void TakeTurned(const TurnedRow& row, const RecordFields& fields);
    void TakeTextColor(const RecordFields& fields) { m_writer.Add(setTextColor, {fields.Long(0)}); }
    void TakeGroundColor(const RecordFields& fields) { m_writer.Add(setGroundColor, {fields.Long(0)}); }
    void TakePixel(const RecordFields& fields);
    void TakePen(const RecordFields& fields);
    void TakeBrush(const RecordFields& fields);
    void TakeFont(const RecordFields& fields);
    void TakeOtherThing(const RecordFields& fields);
    void TakeSelection(const RecordFields& fields);
    void TakeDeletion(const RecordFields& fields);
    void TakePolygon(const RecordFields& fields) { AddPoints(polygon, fields); }
    void TakePolyline(const RecordFields& fields) { AddPoints(polyline, fields); }
    void TakePolygons(const RecordFields& fields);
    void TakeText(const RecordFields& fields);
    void TakeTextInBox(const RecordFields& fields);
    void TakeFill(const RecordFields& fields);
    void TakeCopiedBits(const RecordFields& fields);
    void TakeScaledBits(const RecordFields& fields) { AddScaledBits(fields, 4); }
    void TakeScaledBitsWithUsage(const RecordFields& fields) { AddScaledBits(fields, 6); }

    void AddPoints(std::uint32_t type, const RecordFields& fields);
    void AddScaledBits(const RecordFields& fields, std::size_t numbers);
    void AddBits(const FieldBox& source, const FieldBox& target, Bytes bitmap);
    std::int64_t NewHandle(bool isPen);

    enum class Thing { None, Pen, Other };
    EnhancedWriter m_writer;
    std::vector<Thing> m_things; // by their number
    std::int64_t m_pen = blackPen;
};

const std::array<Translation::TakerRow, 21> Translation::takers = {{
    {0x0209, &Translation::TakeTextColor},
    {0x0201, &Translation::TakeGroundColor},
    {0x041F, &Translation::TakePixel},
    {0x02FA, &Translation::TakePen},
    {0x02FC, &Translation::TakeBrush},
    {0x02FB, &Translation::TakeFont},
    {0x00F7, &Translation::TakeOtherThing},
    {0x06FF, &Translation::TakeOtherThing},
    {0x01F9, &Translation::TakeOtherThing},
    {0x0142, &Translation::TakeOtherThing},
    {0x012D, &Translation::TakeSelection},
    {0x01F0, &Translation::TakeDeletion},
    {0x0324, &Translation::TakePolygon},
    {0x0325, &Translation::TakePolyline},
    {0x0538, &Translation::TakePolygons},
    {0x0521, &Translation::TakeText},
    {0x0A32, &Translation::TakeTextInBox},
    {0x061D, &Translation::TakeFill},
    {0x0940, &Translation::TakeCopiedBits},
    {0x0B41, &Translation::TakeScaledBits},
    {0x0F43, &Translation::TakeScaledBitsWithUsage},
}};

Translation::Translation(double pixelWidth, double pixelHeight, const RecordFields& box)
    : m_writer(pixelWidth, pixelHeight)
{
    constexpr std::int64_t anisotropic = 8;
    m_writer.Add(setMapMode, {anisotropic});
    m_writer.Add(setWindowOrigin, {box.Signed(0), box.Signed(2)});
    m_writer.Add(setWindowExtent, {box.Signed(4) - box.Signed(0), box.Signed(6) - box.Signed(2)});
    m_writer.Add(setViewportOrigin, {0, 0});
    m_writer.Add(setViewportExtent, {std::llround(pixelWidth), std::llround(pixelHeight)});
}

void Translation::Take(std::uint16_t function, const RecordFields& fields)
{
    for (const TurnedRow& row : turnedRows) {
        if (row.function == function) {
            TakeTurned(row, fields);
            return;
        }
    }
    for (const TakerRow& row : takers) {
        if (row.function == function) {
            (this->*row.take)(fields);
            return;
        }
    }
}

void Translation::TakeTurned(const TurnedRow& row, const RecordFields& fields)
{
    std::array<std::int64_t, 8> numbers{};
    for (std::size_t index = 0; index < row.numbers; ++index) {
        numbers[row.numbers - 1 - index] = fields.Signed(2 * index);
    }
    m_writer.Add(row.type, std::span(numbers).first(row.numbers));
}

void Translation::TakePixel(const RecordFields& fields)
{
    m_writer.Add(setPixel, {fields.Signed(6), fields.Signed(4), fields.Long(0)});
}

// The lowest number that is free; in the enhanced metafile they begin with 1.
std::int64_t Translation::NewHandle(bool isPen)
{
    const Thing thing = isPen ? Thing::Pen : Thing::Other;
    const auto place = std::find(m_things.begin(), m_things.end(), Thing::None);
    const std::int64_t handle = place - m_things.begin() + 1;
    if (place == m_things.end()) {
        m_things.push_back(thing);
    } else {
        *place = thing;
    }
    return handle;
}

void Translation::TakePen(const RecordFields& fields)
{
    m_writer.Add(createPen, {NewHandle(true), fields.Word(0), fields.Signed(2), fields.Signed(4), fields.Long(6)});
}

void Translation::TakeBrush(const RecordFields& fields)
{
    m_writer.Add(createBrush, {NewHandle(false), fields.Word(0), fields.Long(2), fields.Word(6)});
}

// A thing that isn't drawn takes its number all the same; a grey brush stands for it.
void Translation::TakeOtherThing(const RecordFields& /*fields*/)
{
    constexpr std::int64_t grey = 0x00C0C0C0;
    m_writer.Add(createBrush, {NewHandle(false), 0, grey, 0});
}

void Translation::TakeFont(const RecordFields& fields)
{
    constexpr std::size_t nameOffset = 18;
    constexpr std::size_t nameLength = 32;
    const Bytes name = fields.From(nameOffset, nameLength);
    m_writer.AddFont(
        NewHandle(false), {fields.Signed(0), fields.Signed(2), fields.Signed(4), fields.Signed(6), fields.Signed(8)},
        fields.From(10, 8),
        WideText(
            name.first(static_cast<std::size_t>(std::find(name.begin(), name.end(), std::uint8_t{0}) - name.begin()))));
}

void Translation::TakeSelection(const RecordFields& fields)
{
    const std::size_t index = fields.Word(0);
    if (index >= m_things.size() || m_things[index] == Thing::None) {
        return;
    }
    const auto handle = static_cast<std::int64_t>(index) + 1;
    if (m_things[index] == Thing::Pen) {
        m_pen = handle;
    }
    m_writer.Add(selectObject, {handle});
}

void Translation::TakeDeletion(const RecordFields& fields)
{
    const std::size_t index = fields.Word(0);
    if (index < m_things.size() && m_things[index] != Thing::None) {
        m_things[index] = Thing::None;
        m_writer.Add(deleteObject, {static_cast<std::int64_t>(index) + 1});
    }
}

void Translation::AddPoints(std::uint32_t type, const RecordFields& fields)
{
    const Bytes points = fields.From(2, std::size_t{4} * fields.Word(0));
    m_writer.Add(type, {0, 0, 0, 0, static_cast<std::int64_t>(points.size() / 4)}, points.first(points.size() / 4 * 4));
}

void Translation::TakePolygons(const RecordFields& fields)
{
    const std::size_t polygons = fields.Word(0);
    std::vector<std::int64_t> numbers = {0, 0, 0, 0, static_cast<std::int64_t>(polygons), 0};
    std::size_t total = 0;
    for (std::size_t index = 0; index < polygons; ++index) {
        numbers.push_back(fields.Word(2 + 2 * index));
        total += fields.Word(2 + 2 * index);
    }
    const Bytes points = fields.From(2 + 2 * polygons, 4 * total);
    if (points.size() == 4 * total) {
        numbers[5] = static_cast<std::int64_t>(total);
        m_writer.Add(polyPolygon, numbers, points);
    }
}

void Translation::TakeText(const RecordFields& fields)
{
    const std::size_t length = fields.Word(0);
    const std::size_t behind = 2 + length + length % 2;
    m_writer.AddText(fields.Signed(behind + 2), fields.Signed(behind), WideText(fields.From(2, length)));
}

void Translation::TakeTextInBox(const RecordFields& fields)
{
    constexpr unsigned hasBox = 0x6;
    const std::size_t begin = (fields.Word(6) & hasBox) != 0 ? 16 : 8;
    m_writer.AddText(fields.Signed(2), fields.Signed(0), WideText(fields.From(begin, fields.Word(4))));
}

void Translation::TakeFill(const RecordFields& fields)
{
    const std::int64_t left = fields.Signed(10);
    const std::int64_t top = fields.Signed(8);
    m_writer.Add(selectObject, {noPen});
    m_writer.Add(rectangle, {left, top, left + fields.Signed(6), top + fields.Signed(4)});
    m_writer.Add(selectObject, {m_pen});
}

void Translation::TakeCopiedBits(const RecordFields& fields)
{
    const FieldBox target = fields.Box(8);
    AddBits({fields.Signed(6), fields.Signed(4), target.width, target.height}, target, fields.From(16));
}

// Behind the operation: the source's box, then the target's, and the bitmap.
void Translation::AddScaledBits(const RecordFields& fields, std::size_t numbers)
{
    AddBits(fields.Box(numbers), fields.Box(numbers + 8), fields.From(numbers + 16));
}

void Translation::AddBits(const FieldBox& source, const FieldBox& target, Bytes bitmap)
{
    constexpr std::int64_t fixedSize = 80; // of the record before the bitmap
    constexpr std::int64_t copy = 0x00CC0020;
    const std::size_t head = BitmapHeadSize(bitmap);
    if (head == 0) {
        return;
    }
    const auto headSize = static_cast<std::int64_t>(head);
    m_writer.Add(stretchBits,
                 {0, 0, 0, 0, target.left, target.top, source.left, source.top, source.width, source.height, fixedSize,
                  headSize, fixedSize + headSize, static_cast<std::int64_t>(bitmap.size() - head), 0, copy,
                  target.width, target.height},
                 bitmap);
}

} // namespace

std::vector<std::uint8_t> EnhancedFromPlaceable(Bytes bytes, double pixelWidth, double pixelHeight)
{
    constexpr std::size_t headers = 40;
    Translation translation(pixelWidth, pixelHeight, RecordFields(bytes.subspan(6, 8)));
    for (std::size_t offset = headers; bytes.size() - offset >= 6;) {
        const RecordFields record(bytes.subspan(offset));
        const std::size_t size = std::size_t{2} * record.Long(0);
        const std::uint16_t function = record.Word(4);
        if (function == 0 || size < 6 || size > bytes.size() - offset) {
            break;
        }
        translation.Take(function, RecordFields(bytes.subspan(offset + 6, size - 6)));
        offset += size;
    }
    return translation.Finish();
}

} // namespace quor
