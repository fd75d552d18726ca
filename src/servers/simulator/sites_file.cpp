#include "servers/simulator/sites_file.h"

#include "base/failure.h"
#include "base/values.h"
#include "platform/boxes.h"
#include "platform/whole_file.h"

#include <algorithm>
#include <utility>

namespace quor {

extern const std::string_view builtInSites; // the text of data/sites.json

namespace {

constexpr std::int64_t largestFile = 8 << 20;

ServerPlan Load(Files& files, const std::string& path)
{
    return ReadServerPlan(ReadText(files, path, largestFile, Failure(failures::outOfRange, "It has more than 8 MB.")));
}

} // namespace

ServerPlan BuiltInSites()
{
    return ReadServerPlan(builtInSites);
}

SitesFile::SitesFile(Files& files, MessageBoxes& boxes, std::vector<std::string> paths)
    : m_files(files), m_boxes(boxes), m_paths(std::move(paths))
{
    Read();
}

SitesFile::~SitesFile() = default;

void SitesFile::Read()
{
    m_trouble.clear();
    const auto path = std::ranges::find_if(m_paths, [&](const std::string& each) { return m_files.FileExists(each); });
    if (path != m_paths.end()) {
        try {
            m_plan = Load(m_files, *path);
            m_isBuiltIn = false;
        } catch (...) {
            m_trouble = "The sites of the file \"" + *path + "\" cannot be used. " + CurrentFailure().Description() +
                        "\n\nThe " + (m_isBuiltIn ? "built-in sites" : "sites that were read before") +
                        " are used instead.";
        }
    } else if (!m_isBuiltIn) {
        m_plan = BuiltInSites();
        m_isBuiltIn = true;
    }
}

void SitesFile::GetSites(TeskSiteList& list)
{
    for (const SitePlan& site : m_plan.sites) {
        list.push_back({site.netName});
    }
}

void SitesFile::ReloadSites()
{
    Read();
    if (m_trouble != std::exchange(m_said, m_trouble) && !m_trouble.empty()) {
        m_boxes.Show(m_trouble, std::string(appTitle), BoxButtons::Ok);
    }
}

} // namespace quor
