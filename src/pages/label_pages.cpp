// The pages of the label and the status label.

#include "elements/label.h"
#include "elements/status_label.h"
#include "pages/page.h"
#include "pages/pages.h"

namespace quor {

namespace {

// The rows that both have in common.
template <class E> class LabelPage : public ElementPage<E> {
protected:
    using ElementPage<E>::ElementPage;

    void GroundRows()
    {
        this->DefaultColorRow("clrBG", "cmdBrwsBGColor", "chkBakColorDef", "Back Color:", &E::BGColor);
        TransparentRow();
        BorderRow();
    }

    void TextRows()
    {
        this->ColorRow("clrFont", "cmdBrwsFontColor", "Color:", &E::CaptionColor);
        this->FontRow("txtFont", "cmdBrwsFont", &E::CaptionFont, "clrFont", &E::CaptionColor);
        this->ListRow("cboAlignment", "Alignment:", {"Left Justify", "Right Justify", "Center"}, &E::CaptionAlignment);
        this->CheckRow("chkWordWrap", "Word Wrap", &E::CaptionWordWrap);
    }

private:
    void TransparentRow()
    {
        this->CheckRow("chkTransparent", "Transparent", &E::BGTransparent, [this](bool isTransparent) {
            this->Enable("cmdBrwsBGColor", !isTransparent);
            this->template On<Swatch>("clrBG").Set(&Swatch::BackColor,
                                                   isTransparent ? colors::buttonFace : this->Value(&E::BGColor));
            WriteGroundAgain();
        });
    }

    // One list for two flags: whether there is a border, and whether it is sunken.
    void BorderRow()
    {
        ListBox& list = this->MakeList("cboBorder", "Border:", {"No Border", "Flat Border", "3D Border"});
        this->Handle(list.Click, "cboBorder", [this, &list] {
            this->Write(&E::Border, list.ListIndex() >= 1);
            this->Write(&E::Border3D, list.ListIndex() == 2);
            WriteGroundAgain();
        });
        this->Read("cboBorder", [this, &list] {
            const int bordered = this->Value(&E::Border3D) ? 2 : 1;
            list.ListIndex(this->Value(&E::Border) ? bordered : 0);
        });
    }

    // The widget's ground follows its border and its transparency.
    void WriteGroundAgain() { this->Write(&E::BGColor, this->Value(&E::BGColor)); }
};

class frmCVLabel final : public LabelPage<clsLabel> {
public:
    explicit frmCVLabel(PageHost& host) : LabelPage("frmCVLabel", host)
    {
        GroundRows();
        FrameLine("fraText", "Text");
        TextRow("txtCaption", "Caption:", &clsLabel::Caption);
        TextRows();
        ArrangeLines();
    }
};

class frmCVStatusLabel final : public LabelPage<clsStatusLabel> {
public:
    explicit frmCVStatusLabel(PageHost& host) : LabelPage("frmCVStatusLabel", host)
    {
        using E = clsStatusLabel;
        GroundRows();
        FrameLine("fraCaptions", "Captions");
        TextRow("txtCaptionOn", "On Caption:", &E::CaptionOn);
        TextRow("txtCaptionOff", "Off Caption:", &E::CaptionOff);
        AutoCaptionBox("chkAutoCaption", "Automatically set On/Off Captions", &E::AutoCaption,
                       {"txtCaptionOn", "txtCaptionOff"});
        TextRows();
        ArrangeLines();
    }
};

} // namespace

std::unique_ptr<Page> NewLabelPage(PageHost& host)
{
    return std::make_unique<frmCVLabel>(host);
}

std::unique_ptr<Page> NewStatusLabelPage(PageHost& host)
{
    return std::make_unique<frmCVStatusLabel>(host);
}

} // namespace quor
