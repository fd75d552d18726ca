#pragma once
// The file of sites: what the simulated server holds, and the site catalogue, which reads it anew while the program
// runs.

#include "binding/catalog.h"
#include "servers/simulator/server_plan.h"

#include <string>
#include <vector>

namespace quor {

class Files;
class MessageBoxes;

ServerPlan BuiltInSites();

class SitesFile final : public TeskSiteCatalog, public TeskCatalogHost {
public:
    // The first of these files that is there tells the sites; the built-in ones are used where none is there. Says
    // nothing yet of a file that can't be used.
    SitesFile(Files& files, MessageBoxes& boxes, std::vector<std::string> paths);
    ~SitesFile() override;

    const ServerPlan& Plan() const noexcept { return m_plan; }

    TeskSiteCatalog& GetCatalog() override { return *this; }
    void GetSites(TeskSiteList& list) override;

    // Reads the file anew. Where it can't be used the sites stay as they are, and a message says so, with the place,
    // once for the same trouble.
    void ReloadSites() override;

private:
    void Read();

    Files& m_files;
    MessageBoxes& m_boxes;
    std::vector<std::string> m_paths;
    std::string m_trouble; // with the file, empty for none
    std::string m_said;    // of it
    bool m_isBuiltIn = true;
    ServerPlan m_plan = BuiltInSites();
};

} // namespace quor
