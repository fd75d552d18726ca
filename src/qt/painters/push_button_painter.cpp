#include "qt/painters/push_button_painter.h"

#include "qt/drawing/boxes.h"
#include "qt/drawing/device_space.h"
#include "qt/painters/button_face.h"
#include "qt/painters/captioned_face.h"
#include "qt/ports/qt_text.h"
#include "widgets/push_button.h"

namespace quor {

void PaintPushButton(QPainter& painter, const PushButton& button, const QRectF& area)
{
    constexpr FaceGaps gaps{6, 5, 5};
    const DeviceSpace space(painter, area);
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
