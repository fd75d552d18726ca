#pragma once
// The pages of elements and of the view, named after the kinds that they edit.

#include <memory>

namespace quor {

class Page;
class PageHost;

std::unique_ptr<Page> NewBlnPicPage(PageHost& host);
std::unique_ptr<Page> NewCmdLEDPage(PageHost& host);
std::unique_ptr<Page> NewCommandPage(PageHost& host);
std::unique_ptr<Page> NewGeneralPage(PageHost& host); // that all elements share
std::unique_ptr<Page> NewLEDRectPage(PageHost& host);
std::unique_ptr<Page> NewLEDRoundPage(PageHost& host);
std::unique_ptr<Page> NewLabelPage(PageHost& host);
std::unique_ptr<Page> NewMeterAnglePage(PageHost& host);
std::unique_ptr<Page> NewMeterLinearPage(PageHost& host);
std::unique_ptr<Page> NewMeterPropsPage(PageHost& host); // "Positions and Colors" of all meters with a scale
std::unique_ptr<Page> NewMeterTextPage(PageHost& host);
std::unique_ptr<Page> NewPicturePage(PageHost& host);
std::unique_ptr<Page> NewStatusLabelPage(PageHost& host);
std::unique_ptr<Page> NewViewPropsPage(PageHost& host);

} // namespace quor
