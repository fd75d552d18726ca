#include "elements/status_element.h"

namespace quor {

bool StatusElement::TakeValue(bool value) noexcept
{
    if (m_valueShown && value == m_value) {
        return false;
    }
    m_value = value;
    m_valueShown = true;
    return true;
}

} // namespace quor
