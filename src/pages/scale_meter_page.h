#pragma once
// What the pages of the two meters with a scale have in common: rows for the ground and for the numbers at the scale.

#include "elements/scale_meter.h"
#include "pages/page.h"

namespace quor {

template <class E> class ScaleMeterPage : public ElementPage<E> {
protected:
    using ElementPage<E>::ElementPage;

    static constexpr double mostPixels = 10'000;

    // What depends on the box "Show Values".
    std::vector<std::string> numberControls = {"cmdBrwsFontColor", "cmdBrwsFont", "txtFont", "txtLabelMargin"};

    template <class O, class S> void PixelRow(std::string_view name, std::string_view caption, S O::*setting)
    {
        this->NumberRow(name, caption, "(pixels)", -mostPixels, mostPixels, setting);
    }

    void GroundRows()
    {
        this->CheckRow("chkTransparent", "Transparent", &E::BGTransparent, [this](bool isTransparent) {
            this->Enable("cmdBrwsBGColor", !isTransparent); // on "Use Default", too
            this->Enable("cboBorderStyle", !isTransparent);
            ShowColor("clrBG", isTransparent, &E::BGColor);
        });
        this->DefaultColorRow("clrBG", "cmdBrwsBGColor", "chkBakColorDef", "Back Color:", &E::BGColor);
        this->ListRow("cboBorderStyle", "Border Style:", {"None", "Raised", "Lowered"}, &E::BorderStyle);
    }

    // The box "Show Values" and the rows that depend on it.
    template <class O, class S> void NumberRows(S O::*spacing)
    {
        this->CheckRow("chkShowTickVals", "Show Values", &E::TickVals, [this](bool areShown) {
            this->EnableAll(numberControls, areShown);
            ShowColor("clrFont", !areShown, &E::TickLabelColor);
        });
        this->FontRow("txtFont", "cmdBrwsFont", &E::TickLabelFont, "clrFont", &E::TickLabelColor);
        this->ColorRow("clrFont", "cmdBrwsFontColor", "Font Color:", &E::TickLabelColor);
        PixelRow("txtLabelMargin", "Spacing:", spacing);
        this->EnableAll(numberControls, false); // the box begins off
    }

    // The swatch shows the setting, or the button face while it has no say.
    template <class O, class S> void ShowColor(std::string_view swatch, bool isOff, S O::*setting)
    {
        this->template On<Swatch>(swatch).Set(&Swatch::BackColor, isOff ? colors::buttonFace : this->Value(setting));
    }
};

} // namespace quor
