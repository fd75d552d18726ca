#include "base/text.h"
#include "format/record.h"
#include "tests/format/samples.h"
#include "tests/test.h"

#include <numeric>

namespace {

using Bytes = std::vector<std::uint8_t>;

struct Part {
    static constexpr std::string_view name = "Part";
    Property<"Unit", std::uint8_t> Unit{7};
    Property<"Site", std::string> Site{"North"};
    void Fields(FieldWalk& record) { record(Unit, Site); }
};

struct Thing {
    Property<"Flag", bool> Flag{true};
    Property<"Wide", WideFlag> Wide{WideFlag{true}};
    Property<"Short", std::int16_t> Short{-2};
    Property<"Long", std::int32_t> Long{0x01020304};
    Property<"Single", float> Single{1.5F};
    Property<"Colour", Color> Colour{colors::buttonFace};
    Property<"Small", std::int32_t> Small{200};
    Property<"ObjName", std::string> ObjName{"me"};
    Property<"Face", Font> Face;
    Part Source;
    void Fields(FieldWalk& record)
    {
        record(Flag, Wide, Short, Long, Single, Colour);
        record.AsByte(Small);
        record.OwnName(ObjName);
        record(Face, Source);
    }
};

std::int32_t Write(Bytes& buffer, Thing& thing)
{
    RecordWriter writer(buffer, 3);
    thing.Fields(writer);
    return writer.Finish();
}

Bytes Payload(Thing& thing)
{
    Bytes buffer;
    Write(buffer, thing);
    buffer.erase(buffer.begin(), buffer.begin() + 3);
    return buffer;
}

TEST(ARecord, HasItsFieldsInTheirOrderAndWidths)
{
    Thing thing;
    PropertyAccess::Value(thing.Face).Name = "Ab";
    PropertyAccess::Value(thing.Face).SetBold(true);
    Bytes buffer(1000, 0xEE);
    const std::int32_t sum = Write(buffer, thing);
    const Bytes wanted{3,    47,   0,                                 // frame
                       0xFF, 0xFF, 0xFF, 0xFE, 0xFF,                  // flag, wide flag, 16 bits
                       4,    3,    2,    1,    0,    0,   0xC0, 0x3F, // 32 bits, float
                       0x0F, 0,    0,    0x80, 200,                   // colour, byte
                       'm',  'e',  0,                                 // name
                       0xFF, 0,    0,    0,                           // font: bold, charset, italic
                       0x44, 0x42, 1,    0,    0,    0,   0,    0,    // size
                       0,    0,    0xBC, 2,    'A',  'b', 0,          // strikethrough, underline, weight, name
                       7,    'N',  'o',  'r',  't',  'h', 0};
    EXPECT_EQ(buffer, wanted);
    EXPECT_EQ(sum, std::accumulate(wanted.begin(), wanted.end(), 0));
}

TEST(ARecord, ComesBackAsItWasButKeepsTheNameOfItsReader)
{
    Thing written;
    PropertyAccess::Value(written.Flag) = false;
    PropertyAccess::Value(written.Single) = -0.25F;
    PropertyAccess::Value(written.Face).Name = "Ménu";
    PropertyAccess::Value(written.Source.Site) = "Zürich €";
    const Bytes payload = Payload(written);
    Thing read;
    PropertyAccess::Value(read.ObjName) = "other";
    RecordReader reader(payload);
    read.Fields(reader);
    EXPECT_EQ(reader.Position(), payload.size());
    EXPECT_EQ(read.ObjName(), "other");
    EXPECT_EQ(read.Source.Site(), "Zürich €");
    EXPECT_EQ(read.Face(), written.Face());
    PropertyAccess::Value(read.ObjName) = "me";
    EXPECT_EQ(Payload(read), payload);
}

TEST(ARecord, CutAnywhereFailsAtTheFieldThatIsNotWhollyThere)
{
    Thing thing;
    const Bytes payload = Payload(thing);
    const std::size_t siteAt = payload.size() - sizeof "North";
    for (std::size_t size = 0; size <= payload.size(); ++size) {
        const Bytes cut(payload.begin(), payload.begin() + static_cast<std::ptrdiff_t>(size));
        RecordReader reader(cut);
        const std::int32_t number = FailureOf([&] { thing.Fields(reader); });
        EXPECT_EQ(number, size < siteAt ? failures::outOfRange : 0) << size;
        EXPECT_TRUE(number == 0 || reader.Position() <= size + 1) << size;
    }
}

TEST(ARecord, NamesOffsetAndSizeInAFailureAndStaysWhereItIs)
{
    const Bytes payload{1, 2, 3, 4, 5, 6};
    RecordReader reader(payload);
    FieldWalk& walk = reader;
    Property<"Long", std::int32_t> number;
    walk(number);
    try {
        walk(number);
        FAIL();
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.Description(), "Long needs 4 bytes at offset 4 of a record of 6 bytes.");
    }
    EXPECT_EQ(reader.Position(), 4U);
    EXPECT_EQ(number(), 0x04030201);
}

TEST(ARecord, HoldsUpTo32767BytesCountedAsEncoded)
{
    Bytes buffer;
    for (const auto& [text, characters, number] : {std::tuple{"x", 32766, 0},
                                                   {"x", 32767, failures::overflow},
                                                   {"é", 32766, 0},
                                                   {"é", 32767, failures::overflow}}) {
        Property<"Text", std::string> field;
        for (int count = 0; count < characters; ++count) {
            PropertyAccess::Value(field) += text;
        }
        RecordWriter writer(buffer, 0);
        static_cast<FieldWalk&>(writer)(field);
        EXPECT_EQ(FailureOf([&] { writer.Finish(); }), number) << text << characters;
    }
    Property<"Byte", std::int32_t> field{256};
    RecordWriter writer(buffer, 0);
    EXPECT_EQ(FailureOf([&] { static_cast<FieldWalk&>(writer).AsByte(field); }), failures::overflow);
}

TEST(AText, EndsAtItsZeroByteOrWithTheBytes)
{
    const Bytes bytes{'a', 'b', 0, 0, 'c'};
    std::string text;
    std::size_t position = 0;
    for (const auto& [wanted, next] : {std::pair{"ab", 3U}, {"", 4U}, {"c", 6U}, {"", 7U}, {"", 8U}}) {
        ExtractZString(bytes, position, text);
        EXPECT_EQ(text, wanted);
        EXPECT_EQ(position, next);
    }
}

TEST(AText, KeepsEveryByteOfTheCodePage)
{
    Bytes bytes(256);
    std::iota(bytes.begin(), bytes.end(), std::uint8_t{1}); // the last one is the zero byte
    std::string text;
    std::size_t position = 0;
    ExtractZString(bytes, position, text);
    EXPECT_EQ(CharacterCount(text), 255U);
    Bytes again;
    AppendZString(again, text);
    EXPECT_EQ(again, bytes);
    again.clear();
    AppendZString(again, "Ω\xFF\xC3");
    EXPECT_EQ(again, (Bytes{'?', '?', '?', 0}));
}

TEST(AFont, LetsTheStoredWeightDecide)
{
    Thing written;
    Bytes payload = Payload(written);
    payload[21] = 1; // bold, but of weight 400
    Thing read;
    PropertyAccess::Value(read.Face).SetBold(true);
    RecordReader reader(payload);
    read.Fields(reader);
    EXPECT_EQ(read.Face(), written.Face());
}

} // namespace
