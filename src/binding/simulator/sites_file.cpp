#include "binding/simulator/sites_file.h"

#include "base/failure.h"
#include "base/values.h"
#include "document/format/upgrade.h"
#include "platform/boxes.h"
#include "platform/files.h"

#include <algorithm>

namespace quor {

extern const std::string_view builtInSites; // the text of data/sites.json

namespace {

constexpr std::int64_t largestFile = 8 << 20;

ServerPlan Load(Files& files, const std::string& path)
{
    const std::unique_ptr<OpenFile> file = files.Open(path, OpenMode::Read);
    if (file->Size() > largestFile) {
        throw Failure(failures::outOfRange, "It has more than 8 MB.");
    }
    const std::vector<std::uint8_t> text = ReadWhole(*file);
    return ReadServerPlan({reinterpret_cast<const char*>(text.data()), text.size()});
}

} // namespace

ServerPlan BuiltInSites()
{
    return ReadServerPlan(builtInSites);
}

ServerPlan LoadSites(Files& files, MessageBoxes& boxes, std::span<const std::string> paths)
{
    const auto path = std::ranges::find_if(paths, [&](const std::string& each) { return files.FileExists(each); });
    if (path == paths.end()) {
        return BuiltInSites();
    }
    try {
        return Load(files, *path);
    } catch (...) {
        boxes.Show("The sites of the file \"" + *path + "\" cannot be used. " + CurrentFailure().Description() +
                       "\n\nThe built-in sites are used instead.",
                   std::string(appTitle), BoxButtons::Ok);
        return BuiltInSites();
    }
}

} // namespace quor
