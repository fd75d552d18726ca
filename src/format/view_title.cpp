#include "format/view_title.h"

#include "base/guard.h"
#include "format/container.h"

namespace quor {

ViewTitle ReadViewTitle(Files& files, const std::string& path) noexcept
{
    ViewTitle title;
    IgnoreFailure([&] {
        const auto file = files.Open(path, OpenMode::Read);
        ContainerReader reader(*file);
        const ViewHeader& header = reader.Header();
        if (header.isViewFile && !header.IsNewer() && reader.Sum() == reader.StoredSum()) {
            title = {header.name, header.category};
        }
    });
    return title;
}

} // namespace quor
