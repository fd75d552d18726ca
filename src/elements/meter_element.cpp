#include "elements/meter_element.h"

#include "binding/bln_data_source.h"

namespace quor {

void MeterElement::m_MtrDataSource_UpdateMtrData(float sngValue, bool blnMute)
{
    ShowReading(sngValue);
    const bool isMuted = blnMute || sngValue <= NoData;
    if (isMuted != m_mute) {
        ShowMuted(isMuted);
    }
    MyControl()->RepaintNow();
    m_mute = isMuted;
}

} // namespace quor
