// The page that all elements share, position and size in pixels, and the page of the view itself.

#include "document/kinds.h"
#include "document/view_document.h"
#include "elements/element.h"
#include "pages/page.h"
#include "pages/pages.h"

namespace quor {

namespace {

// Elements may lie anywhere; what doesn't fit a place on the canvas is refused all the same.
constexpr double farthest = 100'000;

class frmCVGeneral final : public ElementPage<Element> {
public:
    explicit frmCVGeneral(PageHost& host);

    void SetOwner(Element& element, std::string_view array) override;

private:
    template <class S>
    void PixelRow(std::string_view name, std::string_view caption, float twipsPerPixel, S Element::*setting);

    std::string m_array;
};

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

// Shown when nothing is selected.
class frmCVViewProps final : public PageOf<clsCustView> {
public:
    explicit frmCVViewProps(PageHost& host);

    void SetProps() override { ReadAll(); }

private:
    clsCustView& TheOwner() const override { return m_host.View(); }
};

frmCVViewProps::frmCVViewProps(PageHost& host) : PageOf("frmCVViewProps", host)
{
    using V = clsCustView;
    TextRow("txtViewName", "View Name:", &V::ViewName);
    TextRow("txtViewCategory", "Category:", &V::ViewCategory);
    DefaultColorRow(
        "clrViewBG", "cmdBrwsBGColor", "chkBakColorDef", "Back Color:", &V::BGColor,
        [this] { TheOwner().RepaintAll(); },
        [this] { Set(&Form::BackColor, colors::buttonFace); }); // this page alone sets its own ground, too
    FrameLine("fraViewBGImageStyle", "Background Image");

    TextBox& file = MakeBrowsed("txtBGImage", "cmdBrwsBGFile", "File:", false);
    BrowsePicture("txtBGImage", "cmdBrwsBGFile");
    // Each keystroke tries the text as a file, without a word; what is none leaves the view without a picture.
    HandleQuietly(file.Change, [this, &file] {
        if (!IgnoreFailure([&] { Write(&V::BGPicture, file.Text()); })) {
            Write(&V::BGPicture, std::string());
        }
    });
    Read("txtBGImage", [this, &file] { file.Text(Value(&V::BGPicture)); });

    OptionRow("optViewBGImageStyle", {"Centered", "Stretched", "Tiled", "Top/Left"}, &V::BGPicMode);
    ReadOrder({"txtViewName", "txtViewCategory", "clrViewBG", "txtBGImage", "optViewBGImageStyle", "chkBakColorDef"});
    ArrangeLines();
}

} // namespace

std::unique_ptr<Page> NewGeneralPage(PageHost& host)
{
    return std::make_unique<frmCVGeneral>(host);
}

std::unique_ptr<Page> NewViewPropsPage(PageHost& host)
{
    return std::make_unique<frmCVViewProps>(host);
}

} // namespace quor
