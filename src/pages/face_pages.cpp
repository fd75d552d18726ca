// The pages of the elements with a caption and a picture: commands, status picture and picture.

#include "elements/bool_pic.h"
#include "elements/cmd_led.h"
#include "elements/command.h"
#include "elements/picture.h"
#include "pages/page.h"
#include "pages/pages.h"

namespace quor {

namespace {

// Nine places on the face.
std::vector<std::string> CaptionPlaces()
{
    return {"Left Top",     "Left Middle", "Left Bottom",   "Right Top",    "Right Middle",
            "Right Bottom", "Center Top",  "Center Middle", "Center Bottom"};
}

// The same, and four beside the caption.
std::vector<std::string> PicturePlaces()
{
    std::vector<std::string> places = CaptionPlaces();
    places.insert(places.end(), {"Left of Caption", "Right of Caption", "Top of Caption", "Bottom of Caption"});
    return places;
}

class frmCVCommand final : public ElementPage<clsCommand> {
public:
    explicit frmCVCommand(PageHost& host) : ElementPage("frmCVCommand", host)
    {
        using E = clsCommand;
        TextRow("txtCaption", "Caption:", &E::Caption);
        AutoCaptionBox("chkAutoCaption", "Automatically set Caption", &E::AutoCaption, {"txtCaption"});
        ColorRow("clrFontColor", "cmdBrwsFontColor", "Font Color:", &E::CaptionColor);
        FontRow("txtFont", "cmdBrwsFont", &E::CaptionFont, "clrFontColor", &E::CaptionColor);
        CheckRow("chkWordWrap", "Word Wrap", &E::CaptionWordWrap);
        FrameLine("fraImage", "Image");
        PictureRow("txtImage", "cmdBrwsImage", "Image File:", &E::ImageFile);
        ListRow("cboImageAlign", "Alignment:", PicturePlaces(), &E::ImageAlignment);
        MaskRows("chkUseMask", &E::ImageUseMask, "clrMask", "cmdBrwsMaskColor", &E::ImageMaskColor);
        ArrangeLines();
    }
};

class frmCVCmdLED final : public ElementPage<clsCmdLED> {
public:
    explicit frmCVCmdLED(PageHost& host) : ElementPage("frmCVCmdLED", host)
    {
        using E = clsCmdLED;
        TextRow("txtCaption", "Caption:", &E::Caption);
        AutoCaptionBox("chkAutoCaption", "Automatically set Caption", &E::AutoCaption, {"txtCaption"});
        ColorRow("clrFontColor", "cmdBrwsFontColor", "Font Color:", &E::CaptionColor);
        FontRow("txtFont", "cmdBrwsFont", &E::CaptionFont, "clrFontColor", &E::CaptionColor);
        ColorRow("clrLED", "cmdBrwsLEDColor", "LED Color:", &E::LEDColor);
        ListRow("cboAlignment", "LED Position:", {"Bottom", "Top", "Left", "Right"}, &E::LEDAlignment);
        ArrangeLines();
    }
};

class frmCVBlnPic final : public ElementPage<clsBoolPic> {
public:
    explicit frmCVBlnPic(PageHost& host) : ElementPage("frmCVBlnPic", host)
    {
        using E = clsBoolPic;
        DefaultColorRow("clrBG", "cmdBrwsBGColor", "chkBakColorDef", "Back Color:", &E::BGColor);
        ListRow("cboBevelStyle", "Bevel Style:", {"None", "Lowered", "Raised"}, &E::BevelStyle);
        FrameLine("fraImages", "Images");
        CheckedPictureRow("txtOnImage", "cmdBrwsOnImage", "On Image File:", &E::ImageOn);
        CheckedPictureRow("txtOffImage", "cmdBrwsOffImage", "Off Image File:", &E::ImageOff);
        ListRow("cboImageAlign", "Alignment:", PicturePlaces(), &E::ImageAlignment);
        MaskRows("chkUseMask", &E::ImageUseMask, "clrMask", "cmdBrwsMaskColor", &E::ImageMaskColor);
        FrameLine("fraCaptions", "Captions");
        TextRow("txtCaptionOn", "On Caption:", &E::CaptionOn);
        TextRow("txtCaptionOff", "Off Caption:", &E::CaptionOff);
        AutoCaptionBox("chkAutoCaption", "Automatically set On/Off Captions", &E::AutoCaption,
                       {"txtCaptionOn", "txtCaptionOff"});
        ColorRow("clrFont", "cmdBrwsFontColor", "Color:", &E::CaptionColor);
        FontRow("txtFont", "cmdBrwsFont", &E::CaptionFont, "clrFont", &E::CaptionColor);
        ListRow("cboAlignment", "Alignment:", CaptionPlaces(), &E::CaptionAlignment);
        CheckRow("chkWordWrap", "Word Wrap", &E::CaptionWordWrap);
        ArrangeLines();
    }
};

class frmCVPicture final : public ElementPage<clsPicture> {
public:
    explicit frmCVPicture(PageHost& host) : ElementPage("frmCVPicture", host)
    {
        using E = clsPicture;
        CheckedPictureRow("txtImage", "cmdBrwsImage", "Image File:", &E::PictureFile);
        ListRow("cboFillStyle", "Fill Style:", {"Centered", "Stretched", "Tiled"}, &E::PictureFillMode);
        MaskRows("chkUseMask", &E::PictureUseMask, "clrMask", "cmdBrwsMaskColor", &E::PictureMaskColor);
        ListRow("cboBevelStyle", "Bevel Style:", {"None", "Lowered", "Raised"}, &E::BevelStyle);
        DefaultColorRow("clrBG", "cmdBrwsBGColor", "chkBakColorDef", "Back Color:", &E::BGColor);
        ArrangeLines();
    }
};

} // namespace

std::unique_ptr<Page> NewCommandPage(PageHost& host)
{
    return std::make_unique<frmCVCommand>(host);
}

std::unique_ptr<Page> NewCmdLEDPage(PageHost& host)
{
    return std::make_unique<frmCVCmdLED>(host);
}

std::unique_ptr<Page> NewBlnPicPage(PageHost& host)
{
    return std::make_unique<frmCVBlnPic>(host);
}

std::unique_ptr<Page> NewPicturePage(PageHost& host)
{
    return std::make_unique<frmCVPicture>(host);
}

} // namespace quor
