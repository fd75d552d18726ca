#include "elements/status_element.h"

#include "base/guard.h"

namespace quor {

StatusElement::StatusElement(Widget& widget)
    : Element(widget), m_updates(BlnDataSource.UpdateBlnData.Subscribe([this](bool blnValue, bool blnMute) {
          IgnoreFailure([&] { m_BlnDataSource_UpdateBlnData(blnValue, blnMute); });
      }))
{
}

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
