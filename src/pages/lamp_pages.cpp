// The pages of the round and the rectangular LED.

#include "elements/led_rect.h"
#include "elements/led_round.h"
#include "pages/page.h"
#include "pages/pages.h"

namespace quor {

namespace {

// The rows that both have in common.
template <class E> class LampPage : public ElementPage<E> {
protected:
    using ElementPage<E>::ElementPage;

    void LampRows()
    {
        this->ListRow("cboBevelStyle", "Bevel Style:", {"None", "Raised", "Lowered"}, &E::BevelStyle);
        this->ColorRow("clrOn", "cmdBrwsOnColor", "On Color:", &E::ColorActive);
        this->ColorRow("clrOff", "cmdBrwsOffColor", "Off Color:", &E::ColorInactive);
        this->CheckRow("chkReflection", "Show Reflection", &E::Reflection);
        this->AutoColorBox("chkAutoOffColor", "Automatically determine Off Color", &E::AutoInactive, "clrOff",
                           "cmdBrwsOffColor", &E::ColorInactive);
    }
};

class frmCVLEDRound final : public LampPage<clsLEDRound> {
public:
    explicit frmCVLEDRound(PageHost& host) : LampPage("frmCVLEDRound", host)
    {
        LampRows();
        ArrangeLines();
    }
};

class frmCVLEDRect final : public LampPage<clsLEDRect> {
public:
    explicit frmCVLEDRect(PageHost& host) : LampPage("frmCVLEDRect", host)
    {
        using E = clsLEDRect;
        LampRows();
        FrameLine("fraCaptions", "Captions");
        TextRow("txtCaptionOn", "On Caption:", &E::CaptionOn);
        TextRow("txtCaptionOff", "Off Caption:", &E::CaptionOff);
        ColorRow("clrFontOn", "cmdBrwsFontOn", "On Color:", &E::CaptionOnColor);
        ColorRow("clrFontOff", "cmdBrwsFontOff", "Off Color:", &E::CaptionOffColor);
        FontRow("txtFont", "cmdBrwsFont", &E::CaptionFont);
        ListRow("cboAlignment", "Alignment:", {"Center", "Left Justify", "Right Justify"}, &E::CaptionAlignment);
        AutoCaptionBox("chkAutoCaption", "Automatically set On/Off Captions", &E::AutoCaption,
                       {"txtCaptionOn", "txtCaptionOff"});
        CheckRow("chkWordWrap", "Word Wrap", &E::CaptionWordWrap);
        ArrangeLines();
    }
};

} // namespace

std::unique_ptr<Page> NewLEDRoundPage(PageHost& host)
{
    return std::make_unique<frmCVLEDRound>(host);
}

std::unique_ptr<Page> NewLEDRectPage(PageHost& host)
{
    return std::make_unique<frmCVLEDRect>(host);
}

} // namespace quor
