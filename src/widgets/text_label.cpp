#include "widgets/text_label.h"

namespace quor {

void TextLabel::VisitProperties(PropertyVisitor& visitor) const
{
    Widget::VisitProperties(visitor);
    VisitEach(visitor, Caption, ForeColor, BackColor, BackStyle, BorderStyle, Appearance, WordWrap, Alignment, Font);
}

} // namespace quor
