#include "base/bytes.h"
#include "base/guard.h"
#include "binding/live.h"
#include "format/container.h"
#include "format/record.h"
#include "format/view_title.h"
#include "support/frm_view_pbar.h"
#include "tests/format/samples.h"
#include "tests/journey_driver/lone_view.h"
#include "tests/test.h"

namespace {

using Bytes = std::vector<std::uint8_t>;

struct ViewRecord {
    Property<"BGColor", Color> BGColor{Color{12632256}};
    Property<"BGPicMode", std::int32_t> BGPicMode;
    Property<"ViewName", std::string> ViewName{"V"};
    Property<"ViewCategory", std::string> ViewCategory{"General"};
    Property<"BGPicture", std::string> BGPicture;
    void Fields(FieldWalk& record) { record(BGColor, BGPicMode, ViewName, ViewCategory, BGPicture); }
};

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

struct KeptNumber final : Reporter {
    std::int32_t number = 0;
    void ShowError(const ErrorReport& report) noexcept override { number = report.number; }
    void LogError(const ErrorReport& /*report*/) noexcept override {}
};

// How a view ends the load of a file: the verdict, or "failure N", or what was walked.
std::string Outcome(FakeFiles& files, const Bytes& bytes)
{
    files.Put("a.qvw", bytes);
    FakeBoxes boxes;
    KeptNumber failed;
    FakeTimers timers;
    FakeForms forms(timers);
    FakePictures pictures(files);
    frmViewPBar progress(forms);
    Live live;
    LoneView lone(ViewPorts{files, boxes, failed, timers, pictures, progress, live});
    lone.Load("a.qvw");
    switch (lone.View().Verdict()) {
    case LoadVerdict::WrongFile:
        return "wrong-file";
    case LoadVerdict::Newer:
        return "newer";
    case LoadVerdict::OldVersion:
        return "old-version";
    case LoadVerdict::Corrupt:
        return "corrupt";
    default:
        return failed.number != 0 ? "failure " + std::to_string(failed.number) : Walked(files);
    }
}

std::string Outcome(const Bytes& bytes)
{
    FakeFiles files;
    return Outcome(files, bytes);
}

// A view without elements and one that has a record of type 99, whose payload is 0x02 0x01.
Bytes SmallView(bool hasElement)
{
    FakeFiles files;
    const auto file = files.Open("a.qvw", OpenMode::Create);
    ContainerWriter writer(*file, hasElement ? 2 : 1, "V", "General");
    ViewRecord view;
    Bytes buffer;
    RecordWriter record(buffer, view_file::viewRecord);
    view.Fields(record);
    const std::int32_t sum = record.Finish();
    writer.WriteRecord(buffer, sum, "V");
    if (hasElement) {
        writer.WriteRecord(Bytes{99, 2, 0, 2, 1}, 104, "Lamp");
    }
    writer.Finish();
    EXPECT_EQ(ReadChecksumAtEnd(*file), hasElement ? 1724 + 104 + 'L' + 'a' + 'm' + 'p' : 1724);
    return files.Get("a.qvw");
}

template <class Number> Bytes With(Bytes bytes, std::size_t at, Number number)
{
    StoreNumber(bytes.data() + at, number);
    return bytes;
}

TEST(AViewWithoutElements, HasSixtyBytes)
{
    const Bytes bytes = SmallView(false);
    EXPECT_EQ(bytes.size(), 60U);
    EXPECT_EQ(bytes, Sample("empty.qvw"));
    EXPECT_EQ(Outcome(bytes), "V 255 19 ");
}

TEST(AViewFile, IsWrittenAgainByteForByte)
{
    for (const char* name : {"round_led.qvw", "rectangular_led.qvw", "leds_30.qvw", "transmitter_site.qvw",
                             "latin1_names.qvw", "angular_meter.qvw", "old/v2_mixed.upgraded.qvw"}) {
        FakeFiles files;
        files.Put("a.qvw", Sample(name));
        const auto source = files.Open("a.qvw", OpenMode::Read);
        ContainerReader reader(*source);
        const ViewHeader& header = reader.Header();
        EXPECT_EQ(reader.Sum(), reader.StoredSum()) << name;
        const auto target = files.Open("b.qvw", OpenMode::Create);
        ContainerWriter writer(*target, header.recordCount, header.name, header.category);
        for (const std::string& recordName : reader.Names()) {
            const RecordView record = reader.NextRecord();
            Bytes bytes{record.type, 0, 0};
            StoreNumber(bytes.data() + 1, static_cast<std::int16_t>(record.payload.size()));
            bytes.insert(bytes.end(), record.payload.begin(), record.payload.end());
            std::int32_t sum = 0;
            std::for_each(bytes.begin(), bytes.end(), [&](std::uint8_t byte) { sum += byte; });
            writer.WriteRecord(bytes, sum, recordName);
        }
        writer.Finish();
        EXPECT_EQ(files.Get("b.qvw"), files.Get("a.qvw")) << name;
    }
}

TEST(AViewFile, WithAnExtremeInItsHeaderEndsAsTold)
{
    const Bytes sound = SmallView(true);
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
        {With(sound, 10, 0), "failure 9"},
        {With(sound, 10, 1), "failure 9"},
        {With(sound, 10, 3), whole + "- 86 19456 "}, // the walk goes on in the names
        {With(sound, 10, -1), "failure 9"},
        {With(With(sound, 10, -1), 40, 'x'), "corrupt"},
        {With(sound, 10, least32), "failure 9"},
        {With(sound, 10, 32768), "failure 6"},
        {With(sound, 10, most32), "failure 6"},
        {With(sound, 14, 0), "corrupt"},
        {With(sound, 14, -1), "failure 9"},
        {With(sound, 14, least32), "failure 9"},
        {With(sound, 14, most32), "corrupt"},
        {With(sound, 18, std::int16_t{0}), "corrupt"},
        {With(sound, 18, most16), "corrupt"},
        {With(sound, 18, std::int16_t{-1}), "failure 9"},
        {With(sound, 18, least16), "failure 9"},
        {With(sound, 20, std::int16_t{-1}), "failure 9"},
        {With(sound, 20, least16), "failure 9"},
        {With(sound, 20, most16), "failure 9"}, // nothing sums to nothing, and no record has a field
        {With(sound, 22, least16), "failure 9"},
        {With(sound, 22, most16), "failure 9"},
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
    const Bytes sound = SmallView(true);
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
        {"empty_file", "wrong-file"},
        {"zeros", "wrong-file"},
        {"short_header", "failure 9"},
        {"wrong_magic", "wrong-file"},
        {"version_0", "old-version"},
        {"version_4", "newer"},
        {"version_255", "newer"},
        {"version_3_called_2", "old-version"},
        {"flipped_byte", "corrupt"},
        {"cut_in_records", "corrupt"},
        {"cut_in_names", "corrupt"},
        {"text_behind_names", "failure 9"},
        {"negative_payload", "failure 9"},
        {"negative_record_block", "failure 9"},
        {"negative_name_block", "failure 9"},
        {"negative_name_length", "failure 9"},
        {"count_0", "failure 9"},
        {"count_32768", "failure 6"},
        {"two_gigabytes", "corrupt"},
    };
    for (const auto& [name, outcome] : cases) {
        EXPECT_EQ(Outcome(Sample(std::string("hostile/") + name + ".qvw")), outcome) << name;
    }
}

TEST(AHostileFile, CostsNoMoreReadsThanItsOwnBytesAreWorth)
{
    const Bytes sound = SmallView(true);
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
    files.Put("new", With(SmallView(true), 10, -1)); // how many records there are is none of the title's business
    EXPECT_EQ(ReadViewTitle(files, "new").name, "V");
    EXPECT_EQ(ReadViewTitle(files, "new").category, "General");
    files.Put("newer", With(SmallView(true), 9, std::uint8_t{4}));
    files.Put("broken", With(SmallView(true), 40, std::uint8_t{1}));
    files.Put("wrong", With(SmallView(true), 2, std::uint8_t{1}));
    files.Put("negative", With(SmallView(true), 20, std::int16_t{-1}));
    for (const char* path : {"newer", "broken", "wrong", "negative", "missing"}) {
        EXPECT_EQ(ReadViewTitle(files, path).name + ReadViewTitle(files, path).category, "") << path;
    }
}

} // namespace
