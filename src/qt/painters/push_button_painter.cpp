#include "qt/drawing/boxes.h"
#include "qt/painters/button_face.h"
#include "qt/painters/captioned_face.h"
#include "qt/painters/widget_painters.h"
#include "qt/ports/qt_text.h"
#include "widgets/push_button.h"

namespace quor {

void PaintPushButton(QPainter& painter, const PushButton& button, const WidgetSpace& space)
{
    constexpr FaceGaps gaps{6, 5, 5};
    PaintButtonFace(painter, space, ToQt(Resolve(button.BackColor())), button.Enabled());
    std::optional<Rgb> mask;
    if (button.PictureUseMaskFlag()) {
        mask = Resolve(button.PictureMaskColorValue());
    }
    PaintContents(painter, space,
                  {.caption = button.Caption(),
                   .font = button.Font(),
                   .color = CaptionColorOn(ToQt(Resolve(button.ForeColor())), button.Enabled()),
                   .wraps = button.CaptionWordWrap() != 0,
                   .captionPlace = button.CaptionAlignment(),
                   .picture = button.Picture(),
                   .picturePlace = button.ImageAlignment(),
                   .mask = mask,
                   .pictureOpacity = button.Enabled() ? 1 : disabledOpacity,
                   .gaps = gaps},
                  Shrunk(space.Area(), space.Line(1)));
}

} // namespace quor
