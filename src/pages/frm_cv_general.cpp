#include "pages/frm_cv_general.h"

#include "document/kinds.h"

namespace quor {

namespace {
// Elements may lie anywhere; what doesn't fit a place on the canvas is refused all the same.
constexpr double farthest = 100'000;
} // namespace

frmCVGeneral::frmCVGeneral(PageHost& host) : ElementPage("frmCVGeneral", host)
{
    TextBox& type = MakeText("txtType", "Type:");
    type.Set(&TextBox::ReadOnly, true);
    Read("txtType", [this, &type] {
        const Kind* kind = FindKind(m_array);
        type.Text(kind == nullptr ? std::string() : std::string(kind->caption));
    });
    PixelRow("txtX", "X:", twipsPerPixelX, &Element::ObjLeft);
    PixelRow("txtY", "Y:", twipsPerPixelY, &Element::ObjTop);
    PixelRow("txtWidth", "Width:", twipsPerPixelX, &Element::ObjWidth);
    PixelRow("txtHeight", "Height:", twipsPerPixelY, &Element::ObjHeight);
    ReadOrder({"txtType", "txtHeight", "txtWidth", "txtX", "txtY"});
    ArrangeLines();
}

template <class S>
void frmCVGeneral::PixelRow(std::string_view name, std::string_view caption, float twipsPerPixel, S Element::*setting)
{
    constexpr bool isSize =
        std::is_same_v<S, decltype(Element::ObjWidth)> || std::is_same_v<S, decltype(Element::ObjHeight)>;
    NumberField& field = MakeNumber(name, caption, "(pixels)", isSize ? 0 : -farthest, farthest, 2);
    Handle(field.Change, name, [=, this, &field] {
        Write(setting, SameOr(Value(setting), ToSingle(field.Value() * twipsPerPixel)));
        if (const Widget* widget = m_host.SelectedWidget()) {
            m_host.PositionHandles(*widget);
            m_host.SetStatusCaption(widget);
        }
    });
    Read(name, [=, this, &field] { field.Value(double{Value(setting)} / twipsPerPixel); });
}

void frmCVGeneral::SetOwner(Element& element, std::string_view array)
{
    m_array = array;
    ElementPage::SetOwner(element, array);
}

} // namespace quor
