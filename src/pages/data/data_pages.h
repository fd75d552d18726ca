#pragma once
// The pages of the data sources.

#include <memory>

namespace quor {

class Page;
class PageHost;

// "Status Data": what a status element watches, and the status that it shows in the designer.
std::unique_ptr<Page> NewBlnDataSourcePage(PageHost& host);
// "Action": what a click on the element does.
std::unique_ptr<Page> NewCmdDataSourcePage(PageHost& host);
// "Meter Data": which channel a meter reads, and with how many decimal places it shows it.
std::unique_ptr<Page> NewMtrDataSourcePage(PageHost& host);

} // namespace quor
