#include "widgets/panel.h"

namespace quor {

void Panel::VisitProperties(PropertyVisitor& visitor) const
{
    Widget::VisitProperties(visitor);
    VisitEach(visitor, Caption, ForeColor, BackColor, Font, CaptionWordWrap, CaptionAlignment, Picture, ImageAlignment,
              PanelPicture, PictureFillModeCode, PictureUseMaskFlag, PictureMaskColorValue, BevelStyle);
}

} // namespace quor
