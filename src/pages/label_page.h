#pragma once
// The rows that the pages of the label and the status label have in common.

#include "pages/page.h"

namespace quor {

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

} // namespace quor
