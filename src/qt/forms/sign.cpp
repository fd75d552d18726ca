#include "qt/forms/sign.h"

#include "qt/theme/signs.h"
#include "qt/theme/theme.h"

#include <QPainter>

namespace quor {

void Sign::SetIcon(const std::string& name)
{
    m_name = name;
    update();
}

void Sign::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    if (m_name == "error") {
        DrawSign(painter, rect(), SignKind::Error, m_theme.Colors());
    } else {
        m_theme.Icon(m_name).paint(&painter, rect());
    }
}

} // namespace quor
