#pragma once
// The site catalogue: the sites that the system is configured with, whether the server holds them or not.

#include <string>
#include <vector>

namespace quor {

struct TeskSiteEntry {
    std::string SiteName;
};

using TeskSiteList = std::vector<TeskSiteEntry>;

class TeskSiteCatalog {
public:
    virtual ~TeskSiteCatalog() = default;
    virtual void GetSites(TeskSiteList& list) = 0; // appends one entry a site
    virtual void ReloadSites() = 0;
};

class TeskCatalogHost {
public:
    virtual ~TeskCatalogHost() = default;
    virtual TeskSiteCatalog& GetCatalog() = 0;
};

} // namespace quor
