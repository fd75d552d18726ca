// A view file of any version, whose checksum is made right: what loads can be saved, and what was saved loads and is
// saved again byte for byte.

#include "apps/tool/desk.h"
#include "base/bytes.h"
#include "base/failure.h"
#include "format/container.h"
#include "format/upgrade.h"
#include "fuzz/harness.h"
#include "tests/support/fake_files.h"

#include <algorithm>

namespace quor {
namespace {

using Bytes = FakeFiles::Bytes;

// As they are, if the place of the checksum lies beyond them.
Bytes WithRightSum(Bytes bytes)
{
    FakeFiles files;
    files.Put("view", bytes);
    const std::unique_ptr<OpenFile> file = files.Open("view", OpenMode::Read);
    ContainerReader reader(*file);
    if (reader.Header().isViewFile && !reader.Header().IsNewer() && reader.Header().ChecksumAt() <= file->Size()) {
        const auto at = static_cast<std::size_t>(reader.Header().ChecksumAt());
        const std::int32_t sum = reader.Sum();
        bytes.resize(std::max(bytes.size(), at + view_file::checksumSize));
        StoreNumber(bytes.data() + at, sum);
    }
    return bytes;
}

Bytes Upgraded(Bytes bytes)
{
    const std::uint8_t version = bytes.size() > view_file::versionAt ? bytes[view_file::versionAt] : 0;
    if (version == 1) {
        bytes = UpgradeToVersion2(bytes);
    }
    return version == 1 || version == 2 ? UpgradeToVersion3(bytes) : bytes;
}

} // namespace
} // namespace quor

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace quor;
    FakeFiles files;
    Desk first(files);
    try {
        files.Put("from", WithRightSum(Upgraded({data, data + size})));
        first.Load("from");
    } catch (const Failure&) {
        return 0;
    } catch (const Refusal& refusal) {
        Require(!refusal.reason.empty(), "a refusal says why");
        return 0;
    }
    first.Save("saved");
    Desk second(files);
    second.Load("saved");
    second.Save("again");
    Require(files.Get("saved") == files.Get("again"), "a saved view is saved again byte for byte");
    return 0;
}
