#include "widgets/push_button.h"

namespace quor {

void PushButton::VisitProperties(PropertyVisitor& visitor) const
{
    Widget::VisitProperties(visitor);
    VisitEach(visitor, Caption, ForeColor, BackColor, Font, CaptionWordWrap, CaptionAlignment, Picture, ImageAlignment,
              PictureUseMaskFlag, PictureMaskColorValue);
}

} // namespace quor
