#pragma once
// The page that all elements share: position and size in pixels.

#include "elements/element.h"
#include "pages/page.h"

namespace quor {

class frmCVGeneral final : public ElementPage<Element> {
public:
    explicit frmCVGeneral(PageHost& host);

    void SetOwner(Element& element, std::string_view array) override;

private:
    template <class S>
    void PixelRow(std::string_view name, std::string_view caption, float twipsPerPixel, S Element::*setting);

    std::string m_array;
};

} // namespace quor
