#include "base/bytes.h"
#include "base/guard.h"
#include "format/container.h"
#include "tests/test.h"
#include "tests/tool/tool_case.h"

namespace {

using Bytes = std::vector<std::uint8_t>;
using Random = std::mt19937;
using MutatedFiles = ToolCase;

void MutateOnce(Bytes& bytes, Random& random)
{
    constexpr std::uint8_t extremes[] = {0, 1, 0x7F, 0x80, 0xFE, 0xFF};
    const std::size_t place = random() % bytes.size();
    const auto at = bytes.begin() + static_cast<std::ptrdiff_t>(place);
    switch (random() % 5) {
    case 0:
        *at = static_cast<std::uint8_t>(*at ^ (1U << random() % 8));
        break;
    case 1:
        *at = extremes[random() % std::size(extremes)];
        break;
    case 2:
        bytes.insert(at, static_cast<std::uint8_t>(random()));
        break;
    case 3:
        bytes.erase(at);
        break;
    default:
        bytes.resize(random() % 8 == 0 ? place + 1 : bytes.size());
        break;
    }
}

Bytes Mutated(Bytes bytes, Random& random)
{
    for (auto count = random() % 4 + 1; count > 0; --count) {
        MutateOnce(bytes, random);
    }
    return bytes;
}

// The bytes with a checksum that is right, so that a load gets past it.
Bytes Mended(Bytes bytes)
{
    FakeFiles files;
    files.Put("a", bytes);
    const auto file = files.Open("a", OpenMode::Read);
    IgnoreFailure([&] {
        ContainerReader reader(*file);
        const auto at = static_cast<std::size_t>(reader.Header().ChecksumAt());
        if (at + view_file::checksumSize <= bytes.size()) {
            StoreNumber(bytes.data() + at, reader.Sum());
        }
    });
    return bytes;
}

TEST_F(MutatedFiles, LoadOrFailAndWhatLoadsIsSavedAlike)
{
    Random random(20'261);
    const Bytes seeds[] = {Sample("round_led.qvw"),
                           Sample("leds_30.qvw"),
                           Sample("hostile/unknown_type.qvw"),
                           Sample("hostile/text_without_end.qvw"),
                           Sample("label.qvw"),
                           Sample("status_picture.qvw"),
                           Sample("command_with_led.qvw")};
    int sound = 0;
    for (int round = 0; round < 1000; ++round) {
        files.Put("a.qvw", Mended(Mutated(seeds[random() % std::size(seeds)], random)));
        if (Run({"resave", "a.qvw", "b.qvw"}) != 0) {
            EXPECT_FALSE(files.Has("b.qvw")) << round;
            continue;
        }
        ++sound;
        EXPECT_EQ(Run({"dump", "a.qvw"}), 0);
        const std::string dumped = out.str();
        EXPECT_EQ(Run({"dump", "b.qvw"}), 0);
        EXPECT_EQ(out.str(), dumped) << round;
        files.PutText("a.json", dumped);
        const Bytes saved = files.Get("b.qvw");
        EXPECT_EQ(Run({"build", "a.json", "b.qvw"}), 0) << errors.str();
        EXPECT_EQ(files.Get("b.qvw"), saved) << round;
        files.Erase("b.qvw");
    }
    EXPECT_GT(sound, 100);
}

TEST_F(MutatedFiles, OfOldVersionsAreUpgradedOrRefused)
{
    Random random(7);
    const Bytes seed = Sample("old/v1_mixed.qvw");
    int upgraded = 0;
    for (int round = 0; round < 2000; ++round) {
        files.Put("a.qvw", Mutated(seed, random));
        upgraded += Run({"upgrade", "a.qvw", "b.qvw"}) == 0 ? 1 : 0;
    }
    EXPECT_GT(upgraded, 200);
}

} // namespace
