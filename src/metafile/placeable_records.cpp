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

enum class Thing { None, Pen, Other };

// What is written, and the things that the records have made so far.
struct Translation {
    Translation(double pixelWidth, double pixelHeight, const RecordFields& box);

    EnhancedWriter writer;
    std::vector<Thing> things; // by their number
    std::int64_t pen = blackPen;
};

Translation::Translation(double pixelWidth, double pixelHeight, const RecordFields& box)
    : writer(pixelWidth, pixelHeight)
{
    constexpr std::int64_t anisotropic = 8;
    writer.Add(setMapMode, {anisotropic});
    writer.Add(setWindowOrigin, {box.Signed(0), box.Signed(2)});
    writer.Add(setWindowExtent, {box.Signed(4) - box.Signed(0), box.Signed(6) - box.Signed(2)});
    writer.Add(setViewportOrigin, {0, 0});
    writer.Add(setViewportExtent, {std::llround(pixelWidth), std::llround(pixelHeight)});
}

void TakeTurned(Translation& to, const TurnedRow& row, const RecordFields& fields)
{
    std::array<std::int64_t, 8> numbers{};
    for (std::size_t index = 0; index < row.numbers; ++index) {
        numbers[row.numbers - 1 - index] = fields.Signed(2 * index);
    }
    to.writer.Add(row.type, std::span(numbers).first(row.numbers));
}

void TakePixel(Translation& to, const RecordFields& fields)
{
    to.writer.Add(setPixel, {fields.Signed(6), fields.Signed(4), fields.Long(0)});
}

// The lowest number that is free; in the enhanced metafile they begin with 1.
std::int64_t NewHandle(Translation& to, bool isPen)
{
    const Thing thing = isPen ? Thing::Pen : Thing::Other;
    const auto place = std::find(to.things.begin(), to.things.end(), Thing::None);
    const std::int64_t handle = place - to.things.begin() + 1;
    if (place == to.things.end()) {
        to.things.push_back(thing);
    } else {
        *place = thing;
    }
    return handle;
}

void TakePen(Translation& to, const RecordFields& fields)
{
    to.writer.Add(createPen, {NewHandle(to, true), fields.Word(0), fields.Signed(2), fields.Signed(4), fields.Long(6)});
}

void TakeBrush(Translation& to, const RecordFields& fields)
{
    to.writer.Add(createBrush, {NewHandle(to, false), fields.Word(0), fields.Long(2), fields.Word(6)});
}

// A thing that isn't drawn takes its number all the same; a grey brush stands for it.
void TakeOtherThing(Translation& to, const RecordFields& /*fields*/)
{
    constexpr std::int64_t grey = 0x00C0C0C0;
    to.writer.Add(createBrush, {NewHandle(to, false), 0, grey, 0});
}

void TakeFont(Translation& to, const RecordFields& fields)
{
    constexpr std::size_t nameOffset = 18;
    constexpr std::size_t nameLength = 32;
    const Bytes name = fields.From(nameOffset, nameLength);
    to.writer.AddFont(
        NewHandle(to, false),
        {fields.Signed(0), fields.Signed(2), fields.Signed(4), fields.Signed(6), fields.Signed(8)}, fields.From(10, 8),
        WideText(
            name.first(static_cast<std::size_t>(std::find(name.begin(), name.end(), std::uint8_t{0}) - name.begin()))));
}

void TakeSelection(Translation& to, const RecordFields& fields)
{
    const std::size_t index = fields.Word(0);
    if (index >= to.things.size() || to.things[index] == Thing::None) {
        return;
    }
    const auto handle = static_cast<std::int64_t>(index) + 1;
    if (to.things[index] == Thing::Pen) {
        to.pen = handle;
    }
    to.writer.Add(selectObject, {handle});
}

void TakeDeletion(Translation& to, const RecordFields& fields)
{
    const std::size_t index = fields.Word(0);
    if (index < to.things.size() && to.things[index] != Thing::None) {
        to.things[index] = Thing::None;
        to.writer.Add(deleteObject, {static_cast<std::int64_t>(index) + 1});
    }
}

void AddPoints(Translation& to, std::uint32_t type, const RecordFields& fields)
{
    const Bytes points = fields.From(2, std::size_t{4} * fields.Word(0));
    to.writer.Add(type, {0, 0, 0, 0, static_cast<std::int64_t>(points.size() / 4)},
                  points.first(points.size() / 4 * 4));
}

void TakePolygons(Translation& to, const RecordFields& fields)
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
        to.writer.Add(polyPolygon, numbers, points);
    }
}

void TakeText(Translation& to, const RecordFields& fields)
{
    const std::size_t length = fields.Word(0);
    const std::size_t behind = 2 + length + length % 2;
    to.writer.AddText(fields.Signed(behind + 2), fields.Signed(behind), WideText(fields.From(2, length)));
}

void TakeTextInBox(Translation& to, const RecordFields& fields)
{
    constexpr unsigned hasBox = 0x6;
    const std::size_t begin = (fields.Word(6) & hasBox) != 0 ? 16 : 8;
    to.writer.AddText(fields.Signed(2), fields.Signed(0), WideText(fields.From(begin, fields.Word(4))));
}

void TakeFill(Translation& to, const RecordFields& fields)
{
    const std::int64_t left = fields.Signed(10);
    const std::int64_t top = fields.Signed(8);
    to.writer.Add(selectObject, {noPen});
    to.writer.Add(rectangle, {left, top, left + fields.Signed(6), top + fields.Signed(4)});
    to.writer.Add(selectObject, {to.pen});
}

void AddBits(Translation& to, const FieldBox& source, const FieldBox& target, Bytes bitmap)
{
    constexpr std::int64_t fixedSize = 80; // of the record before the bitmap
    constexpr std::int64_t copy = 0x00CC0020;
    const std::size_t head = BitmapHeadSize(bitmap);
    if (head == 0) {
        return;
    }
    const auto headSize = static_cast<std::int64_t>(head);
    to.writer.Add(stretchBits,
                  {0, 0, 0, 0, target.left, target.top, source.left, source.top, source.width, source.height, fixedSize,
                   headSize, fixedSize + headSize, static_cast<std::int64_t>(bitmap.size() - head), 0, copy,
                   target.width, target.height},
                  bitmap);
}

void TakeCopiedBits(Translation& to, const RecordFields& fields)
{
    const FieldBox target = fields.Box(8);
    AddBits(to, {fields.Signed(6), fields.Signed(4), target.width, target.height}, target, fields.From(16));
}

// Behind the operation: the source's box, then the target's, and the bitmap.
void AddScaledBits(Translation& to, const RecordFields& fields, std::size_t numbers)
{
    AddBits(to, fields.Box(numbers), fields.Box(numbers + 8), fields.From(numbers + 16));
}

struct TakerRow {
    std::uint16_t function;
    void (*take)(Translation& to, const RecordFields& fields);
};
constexpr TakerRow takers[] = {
    {0x0209, [](Translation& to, const RecordFields& fields) { to.writer.Add(setTextColor, {fields.Long(0)}); }},
    {0x0201, [](Translation& to, const RecordFields& fields) { to.writer.Add(setGroundColor, {fields.Long(0)}); }},
    {0x041F, TakePixel},
    {0x02FA, TakePen},
    {0x02FC, TakeBrush},
    {0x02FB, TakeFont},
    {0x00F7, TakeOtherThing},
    {0x06FF, TakeOtherThing},
    {0x01F9, TakeOtherThing},
    {0x0142, TakeOtherThing},
    {0x012D, TakeSelection},
    {0x01F0, TakeDeletion},
    {0x0324, [](Translation& to, const RecordFields& fields) { AddPoints(to, polygon, fields); }},
    {0x0325, [](Translation& to, const RecordFields& fields) { AddPoints(to, polyline, fields); }},
    {0x0538, TakePolygons},
    {0x0521, TakeText},
    {0x0A32, TakeTextInBox},
    {0x061D, TakeFill},
    {0x0940, TakeCopiedBits},
    {0x0B41, [](Translation& to, const RecordFields& fields) { AddScaledBits(to, fields, 4); }},
    {0x0F43, [](Translation& to, const RecordFields& fields) { AddScaledBits(to, fields, 6); }},
};

void Take(Translation& to, std::uint16_t function, const RecordFields& fields)
{
    const auto turned = std::ranges::find(turnedRows, function, &TurnedRow::function);
    const auto taker = std::ranges::find(takers, function, &TakerRow::function);
    if (turned != std::end(turnedRows)) {
        TakeTurned(to, *turned, fields);
    } else if (taker != std::end(takers)) {
        taker->take(to, fields);
    }
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
        Take(translation, function, RecordFields(bytes.subspan(offset + 6, size - 6)));
        offset += size;
    }
    return translation.writer.Finish();
}

} // namespace quor
