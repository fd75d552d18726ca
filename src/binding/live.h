#pragma once
// What elements and their data sources need of the process.

#include "binding/router.h"
#include "platform/trace.h"

#include <functional>
#include <string>

namespace quor {

class Files;
class MessageBoxes;
class Pictures;
class QuorLogin;
class TeskCatalogHost;
class TeskServer;
class TeskSiteCatalog;

struct Live {
    explicit Live(bool designMode = false) : DesignMode(designMode) {}

    // True in the editor: sources made while it is true stay silent, and a load fetches no data.
    bool DesignMode;

    // Not owned; null where there is none.
    TeskServer* Server = nullptr;
    TeskCatalogHost* CatalogHost = nullptr;
    TeskSiteCatalog* Catalog = nullptr; // once the host was asked for it
    QuorLogin* Login = nullptr;
    MessageBoxes* Boxes = nullptr;
    Pictures* PictureFiles = nullptr; // for elements that show a file
    Files* ViewFiles = nullptr;       // for the titles of views that a click would open
    std::function<void(const std::string&)> LoadCustomView;
    const Trace* Tracer = &noTrace;

    // Brings the server's events to the sources.
    Router Routes;

    // Fails with 91 where there is none.
    TeskServer& TheServer() const;
    QuorLogin& TheLogin() const;
};

} // namespace quor
