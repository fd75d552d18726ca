#include "apps/tool/desk.h"
#include "base/bytes.h"
#include "format/container.h"
#include "format/view_title.h"
#include "tests/format/samples.h"
#include "tests/test.h"

namespace {

using Bytes = std::vector<std::uint8_t>;

// The names, types and sizes of the first records.
std::string Walked(FakeFiles& files)
{
    const auto file = files.Open("a.qvw", OpenMode::Read);
    ContainerReader reader(*file);
    const std::vector<std::string> names = reader.Names();
    std::string told;
    for (std::size_t index = 0; index < static_cast<std::size_t>(reader.Header().recordCount); ++index) {
        const RecordView record = reader.NextRecord();
        if (index < 3) {
            told += (index < names.size() ? names[index] : "-") + ' ' + std::to_string(record.type) + ' ' +
                    std::to_string(record.payload.size()) + ' ';
        }
    }
    return told;
}

// How a view ends the load of a file: the verdict, with the number 6 where something is too large, or what was walked.
std::string Outcome(const Bytes& bytes)
{
    FakeFiles files;
    files.Put("a.qvw", bytes);
    Desk desk(files);
    if (desk.TryLoad("a.qvw")) {
        return Walked(files);
    }
    const std::string verdict = desk.Verdict();
    return verdict.substr(0, verdict.find(':')) + (verdict.find("Overflow") == std::string::npos ? "" : " 6");
}

template <class Number> Bytes With(Bytes bytes, std::size_t at, Number number)
{
    StoreNumber(bytes.data() + at, number);
    return bytes;
}

// A view without elements but a record of type 99, whose payload is 0x02 0x01.
Bytes SmallView()
{
    constexpr std::uint8_t record[] = {99, 2, 0, 2, 1};
    constexpr std::uint8_t name[] = {'L', 'a', 'm', 'p', 0};
    Bytes bytes = Sample("empty.qvw");
    bytes.insert(bytes.end() - 4, std::begin(name), std::end(name));
    bytes.insert(bytes.begin() + 54, std::begin(record), std::end(record));
    bytes = With(With(With(bytes, 10, 2), 14, 27), 18, std::int16_t{7});
    return With(bytes, bytes.size() - 4, 1724 + 104 + 'L' + 'a' + 'm' + 'p');
}

TEST(AViewFile, WithAnExtremeInItsHeaderEndsAsTold)
{
    const Bytes sound = SmallView();
    constexpr auto most16 = std::numeric_limits<std::int16_t>::max();
    constexpr auto most32 = std::numeric_limits<std::int32_t>::max();
    constexpr auto least16 = std::numeric_limits<std::int16_t>::min();
    constexpr auto least32 = std::numeric_limits<std::int32_t>::min();
    const std::string whole = "V 255 19 Lamp 99 2 ";
    const struct {
        Bytes bytes;
        std::string outcome;
    } cases[] = {
        {sound, whole},
        {With(sound, 0, 'q'), "wrong-file"},
        {With(With(sound, 8, 'v'), 14, least32), "wrong-file"},
        {With(sound, 9, std::uint8_t{0}), "old-version"},
        {With(sound, 9, std::uint8_t{1}), "old-version"},
        {With(sound, 9, std::uint8_t{2}), "old-version"},
        {With(With(sound, 9, std::uint8_t{2}), 40, 'x'), "old-version"},
        {With(With(sound, 9, std::uint8_t{1}), 10, -1), "old-version"},
        {With(sound, 9, std::uint8_t{4}), "newer"},
        {With(With(sound, 9, std::uint8_t{255}), 20, least16), "newer"},
        {With(sound, 10, 0), "load-failure"},
        {With(sound, 10, 1), "load-failure"},
        {With(sound, 10, 3), whole + "- 86 19456 "}, // the walk goes on in the names
        {With(sound, 10, -1), "load-failure"},
        {With(With(sound, 10, -1), 40, 'x'), "corrupt"},
        {With(sound, 10, least32), "load-failure"},
        {With(sound, 10, 32768), "load-failure 6"},
        {With(sound, 10, most32), "load-failure 6"},
        {With(sound, 14, 0), "corrupt"},
        {With(sound, 14, -1), "load-failure"},
        {With(sound, 14, least32), "load-failure"},
        {With(sound, 14, most32), "corrupt"},
        {With(sound, 18, std::int16_t{0}), "corrupt"},
        {With(sound, 18, most16), "corrupt"},
        {With(sound, 18, std::int16_t{-1}), "load-failure"},
        {With(sound, 18, least16), "load-failure"},
        {With(sound, 20, std::int16_t{-1}), "load-failure"},
        {With(sound, 20, least16), "load-failure"},
        {With(sound, 20, most16), "load-failure"}, // nothing sums to nothing, and no record has a field
        {With(sound, 22, least16), "load-failure"},
        {With(sound, 22, most16), "load-failure"},
        {With(sound, 33, std::int16_t{-1}), "corrupt"},
    };
    int number = 0;
    for (const auto& [bytes, outcome] : cases) {
        EXPECT_EQ(Outcome(bytes), outcome) << "case " << number;
        ++number;
    }
}

TEST(AViewFile, CutAnywhereIsNoLongerWhole)
{
    const Bytes sound = SmallView();
    const std::string whole = Outcome(sound);
    for (std::size_t size = 0; size < sound.size(); ++size) {
        const Bytes cut(sound.begin(), sound.begin() + static_cast<std::ptrdiff_t>(size));
        const std::string outcome = Outcome(cut);
        if (size < 9) {
            EXPECT_EQ(outcome, "wrong-file") << size;
        } else if (size == 9) {
            EXPECT_EQ(outcome, "old-version");
        } else if (std::all_of(sound.begin() + static_cast<std::ptrdiff_t>(size), sound.end(),
                               [](std::uint8_t byte) { return byte == 0; })) {
            EXPECT_EQ(outcome, whole) << size; // what is missing reads as zero
        } else if (size > view_file::headerSize + 8) {
            EXPECT_EQ(outcome, "corrupt") << size;
        } else {
            EXPECT_NE(outcome, whole) << size;
        }
    }
}

TEST(AHostileFile, EndsAsItsStory)
{
    const std::pair<const char*, const char*> cases[] = {
        {"empty_file", "wrong-file"},         {"zeros", "wrong-file"},
        {"short_header", "load-failure"},     {"wrong_magic", "wrong-file"},
        {"flipped_byte", "corrupt"},          {"cut_in_records", "corrupt"},
        {"cut_in_names", "corrupt"},          {"text_behind_names", "load-failure"},
        {"negative_payload", "load-failure"}, {"two_gigabytes", "corrupt"},
    };
    for (const auto& [name, outcome] : cases) {
        EXPECT_EQ(Outcome(Sample(std::string("hostile/") + name + ".qvw")), outcome) << name;
    }
}

TEST(AHostileFile, CostsNoMoreReadsThanItsOwnBytesAreWorth)
{
    const Bytes sound = SmallView();
    for (const Bytes& bytes : {Sample("hostile/two_gigabytes.qvw"), With(sound, 10, 32767),
                               With(sound, 14, std::numeric_limits<std::int32_t>::max())}) {
        FakeFiles files;
        files.Put("a.qvw", bytes);
        const auto file = files.Open("a.qvw", OpenMode::Read);
        ContainerReader(*file).Sum();
        Walked(files);
        EXPECT_LT(files.planned.Calls("read"), 8);
    }
}

TEST(ASave, FailsWhereAWidthIsTooSmall)
{
    FakeFiles files;
    const std::string longText(32768, 'x');
    const auto file = files.Open("a.qvw", OpenMode::Create);
    EXPECT_EQ(FailureOf([&] { ContainerWriter(*file, 1, longText, ""); }), failures::overflow);
    EXPECT_EQ(FailureOf([&] { ContainerWriter(*file, 1, "", longText); }), failures::overflow);

    ContainerWriter names(*file, 1, "", "");
    const Bytes record{1, 0, 0};
    names.WriteRecord(record, 1, longText.substr(2));
    EXPECT_EQ(FailureOf([&] { names.WriteRecord(record, 1, "x"); }), failures::overflow);

    ContainerWriter sums(*file, 1, "", "");
    sums.WriteRecord(record, std::numeric_limits<std::int32_t>::max(), "");
    EXPECT_EQ(FailureOf([&] { sums.WriteRecord(record, 1, ""); }), failures::overflow);
    sums.WriteRecord(record, 0, "x");
    EXPECT_EQ(FailureOf([&] { sums.Finish(); }), failures::overflow);
}

TEST(AViewsTitle, IsReadFromSoundFilesOfAnyVersionUpToTheCurrentOne)
{
    FakeFiles files;
    const Bytes old = Sample("old/v2_mixed.qvw");
    files.Put("old", old);
    const std::string name = ReadViewTitle(files, "old").name;
    EXPECT_FALSE(name.empty());
    files.Put("new", With(SmallView(), 10, -1)); // how many records there are is none of the title's business
    EXPECT_EQ(ReadViewTitle(files, "new").name, "V");
    EXPECT_EQ(ReadViewTitle(files, "new").category, "General");
    files.Put("newer", With(SmallView(), 9, std::uint8_t{4}));
    files.Put("broken", With(SmallView(), 40, std::uint8_t{1}));
    files.Put("wrong", With(SmallView(), 2, std::uint8_t{1}));
    files.Put("negative", With(SmallView(), 20, std::int16_t{-1}));
    for (const char* path : {"newer", "broken", "wrong", "negative", "missing"}) {
        EXPECT_EQ(ReadViewTitle(files, path).name + ReadViewTitle(files, path).category, "") << path;
    }
}

} // namespace
