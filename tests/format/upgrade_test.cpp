#include "base/bytes.h"
#include "format/upgrade.h"
#include "format/view_file.h"
#include "tests/format/samples.h"
#include "tests/test.h"

namespace {

using Bytes = std::vector<std::uint8_t>;

// A container without title or names around one record; the checksum is wrong.
Bytes FileWith(std::uint8_t type, std::int16_t payloadSize)
{
    Bytes bytes(view_file::headerSize);
    std::copy(view_file::magic.begin(), view_file::magic.end(), bytes.begin());
    bytes[view_file::versionAt] = 2;
    StoreNumber(bytes.data() + view_file::recordCountAt, 1);
    StoreNumber(bytes.data() + view_file::recordBlockSizeAt, std::int32_t{payloadSize} + 3);
    bytes.push_back(type);
    bytes.insert(bytes.end(), 2, 0);
    StoreNumber(bytes.data() + view_file::headerSize + 1, payloadSize);
    for (int index = 0; index < payloadSize; ++index) {
        bytes.push_back(static_cast<std::uint8_t>(index + 1));
    }
    bytes.insert(bytes.end(), view_file::checksumSize, 0xEE);
    return bytes;
}

TEST(AnOldFile, WithNothingToGrowGetsVersionAndChecksumAlone)
{
    Bytes wanted = FileWith(4, 10);
    wanted[view_file::versionAt] = 3;
    StoreNumber(wanted.data() + wanted.size() - 4, 4 + 10 + 55);
    EXPECT_EQ(UpgradeToVersion3(FileWith(4, 10)), wanted);
    wanted[view_file::versionAt] = 2;
    EXPECT_EQ(UpgradeToVersion2(FileWith(4, 10)), wanted);
}

TEST(AnOldFile, GrowsAtTheOffsetOfTheNewField)
{
    const struct {
        Bytes (*upgrade)(std::span<const std::uint8_t>);
        std::uint8_t type;
        std::size_t offset;
        Bytes inserted;
    } cases[] = {
        {UpgradeToVersion2, 2, 85, {20, 0}},
        {UpgradeToVersion3, 2, 87, {0, 0, 0, 0}},
        {UpgradeToVersion3, 3, 21, {0, 0, 0}},
    };
    for (const auto& each : cases) {
        const auto shortest = static_cast<std::int16_t>(each.offset);
        const auto growth = static_cast<std::int16_t>(each.inserted.size());
        Bytes wanted = FileWith(each.type, shortest);
        wanted.insert(wanted.end() - 4, each.inserted.begin(), each.inserted.end());
        const Bytes grown = each.upgrade(FileWith(each.type, shortest));
        EXPECT_TRUE(std::equal(grown.begin() + 27, grown.end() - 4, wanted.begin() + 27, wanted.end() - 4));
        EXPECT_EQ(LoadNumber<std::int16_t>(&grown[25]), shortest + growth);
        EXPECT_EQ(LoadNumber<std::int32_t>(&grown[view_file::recordBlockSizeAt]), shortest + growth + 3);

        const auto longest = static_cast<std::int16_t>(32767 - growth);
        EXPECT_EQ(FailureOf([&] { each.upgrade(FileWith(each.type, static_cast<std::int16_t>(shortest - 1))); }),
                  failures::outOfRange);
        EXPECT_EQ(FailureOf([&] { each.upgrade(FileWith(each.type, longest)); }), 0);
        EXPECT_EQ(FailureOf([&] { each.upgrade(FileWith(each.type, static_cast<std::int16_t>(longest + 1))); }),
                  failures::overflow);
    }
}

TEST(AnOldFile, CutAnywhereFails)
{
    const Bytes whole = Sample("old/v1_mixed.qvw");
    for (std::size_t size = 0; size < whole.size(); ++size) {
        const std::span cut = std::span(whole).first(size);
        EXPECT_EQ(FailureOf([&] { UpgradeToVersion2(cut); }), failures::outOfRange) << size;
    }
}

TEST(AnOldFile, WithHostileNumbersFails)
{
    const struct {
        std::size_t at;
        std::int16_t value;
    } cases[] = {
        {view_file::recordCountAt, 2},    {view_file::recordCountAt + 2, 0x7FFF}, {view_file::recordCountAt + 2, -1},
        {view_file::nameBlockSizeAt, 1},  {view_file::nameBlockSizeAt, -1},       {view_file::nameLengthAt, -1},
        {view_file::nameLengthAt, 32767}, {view_file::categoryLengthAt, -1},      {view_file::categoryLengthAt, 32767},
        {view_file::headerSize + 1, -1},  {view_file::headerSize + 1, 32767},
    };
    for (const auto& [at, value] : cases) {
        Bytes bytes = FileWith(3, 40);
        StoreNumber(bytes.data() + at, value);
        EXPECT_EQ(FailureOf([&] { UpgradeToVersion3(bytes); }), failures::outOfRange) << at << ' ' << value;
    }
}

TEST(ABackup, HasThePathWithoutItsLastFourCharacters)
{
    EXPECT_EQ(BackupPath("/a/view.qvw"), "/a/view.bak");
    EXPECT_EQ(BackupPath("/a/view.custom"), "/a/view.cu.bak");
    EXPECT_EQ(BackupPath("/a/naïvé"), "/a/n.bak");
    EXPECT_EQ(BackupPath("abcd"), ".bak");
    EXPECT_EQ(FailureOf([] { BackupPath("abc"); }), failures::invalidCall);
}

} // namespace
