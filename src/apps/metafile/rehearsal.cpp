#include "apps/metafile/rehearsal.h"

#include "metafile/enhanced_types.h"
#include "metafile/enhanced_writer.h"
#include "metafile/record_fields.h"

#include <QString>

#include <algorithm>
#include <array>
#include <set>
#include <tuple>

namespace quor {

namespace {

using namespace enhanced_types;
using Bytes = std::span<const std::uint8_t>;

constexpr std::int64_t boldWeight = 700;

struct Typeface {
    QString name;
    bool isBold;
    bool slants;

    friend bool operator<(const Typeface& left, const Typeface& right)
    {
        return std::tie(left.name, left.isBold, left.slants) < std::tie(right.name, right.isBold, right.slants);
    }
};

// What a metafile draws texts with.
struct Wanted {
    std::set<Typeface> typefaces;
    std::set<char16_t> letters = {u'A'};
};

QString TextIn(Bytes bytes)
{
    QString text(static_cast<qsizetype>(bytes.size() / 2), u'\0');
    std::copy_n(bytes.begin(), bytes.size() / 2 * 2, reinterpret_cast<std::uint8_t*>(text.data()));
    return text;
}

Bytes BytesOf(const QString& text)
{
    return {reinterpret_cast<const std::uint8_t*>(text.utf16()), static_cast<std::size_t>(2 * text.size())};
}

void TakeTypeface(const RecordFields& record, Wanted& wanted)
{
    constexpr std::size_t mostTypefaces = 16;
    constexpr std::uint32_t leastBold = 550;
    QString name = TextIn(record.From(40, 64));
    name.truncate(std::max<qsizetype>(0, name.indexOf(u'\0')));
    const bool isPlain = std::all_of(name.cbegin(), name.cend(), [](QChar letter) {
        return letter.isLetterOrNumber() || letter == u' ' || letter == u'-';
    });
    if (isPlain && wanted.typefaces.size() < mostTypefaces) {
        wanted.typefaces.insert({name, record.Long(28) > leastBold, record.From(32, 1)[0] != 0});
    }
}

void TakeLetters(const RecordFields& record, Wanted& wanted)
{
    constexpr std::size_t mostLetters = 500;
    const std::size_t count = std::min<std::size_t>(record.Long(44), mostLetters);
    for (const QChar letter : TextIn(record.From(record.Long(48), 2 * count))) {
        if (letter.isPrint() && !letter.isSurrogate() && wanted.letters.size() < mostLetters) {
            wanted.letters.insert(letter.unicode());
        }
    }
}

Wanted WantedBy(Bytes records)
{
    Wanted wanted;
    for (std::size_t offset = 0; records.size() - offset >= 8;) {
        const RecordFields head(records.subspan(offset));
        const std::size_t size = head.Long(4);
        if (size < 8 || size > records.size() - offset) {
            break;
        }
        const RecordFields record(records.subspan(offset, size));
        if (record.Long(0) == createFont && size >= 104) {
            TakeTypeface(record, wanted);
        } else if (record.Long(0) == textOut) {
            TakeLetters(record, wanted);
        }
        offset += size;
    }
    wanted.typefaces.insert({QString(), false, false}); // for texts without a font
    return wanted;
}

// One pixel.
void AddBitmap(EnhancedWriter& writer)
{
    constexpr std::array<std::uint8_t, 44> bitmap = {40, 0, 0, 0, 1, 0, 0, 0, 1, 0, 0, 0, 1, 0, 24};
    constexpr std::int64_t begin = 80;
    constexpr std::int64_t head = 40;
    constexpr std::int64_t copy = 0x00CC0020;
    writer.Add(stretchBits, {0, 0, 0, 0, 0, 0, 0, 0, 1, 1, begin, head, begin + head, 4, 0, copy, 1, 1}, bitmap);
}

} // namespace

std::vector<std::uint8_t> RehearsalFor(Bytes records)
{
    constexpr std::int64_t height = -12;
    constexpr double side = 64;
    const Wanted wanted = WantedBy(records);
    QString letters;
    for (const char16_t letter : wanted.letters) {
        letters += QChar(letter);
    }
    EnhancedWriter writer(side, side);
    AddBitmap(writer);
    for (const Typeface& typeface : wanted.typefaces) {
        const std::array<std::uint8_t, 1> flags = {static_cast<std::uint8_t>(typeface.slants)};
        writer.AddFont(1, {height, 0, 0, 0, typeface.isBold ? boldWeight : 0}, flags, BytesOf(typeface.name));
        writer.Add(selectObject, {1});
        writer.AddText(0, 0, BytesOf(letters));
        writer.Add(deleteObject, {1});
    }
    return writer.Finish();
}

} // namespace quor
