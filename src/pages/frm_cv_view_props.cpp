#include "pages/frm_cv_view_props.h"

namespace quor {

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

} // namespace quor
