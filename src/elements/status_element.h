#pragma once
// What the elements that show one Boolean have in common: the source, the last value shown, and the greying.

#include "binding/bln_data_source.h"
#include "elements/element.h"

namespace quor {

class StatusElement : public Element {
public:
    clsBlnDataSource BlnDataSource;

    explicit StatusElement(Widget& widget);

    void RefreshData() override { BlnDataSource.RefreshData(); }

    // The last value shown.
    bool IsOn() const noexcept { return m_value; }

protected:
    // The parts with which every status record ends.
    void SourceFields(FieldWalk& record) { record(ClickAction, BlnDataSource); }

    // An update of the source. A step that fails does not keep the next one from its turn.
    virtual void m_BlnDataSource_UpdateBlnData(bool blnValue, bool blnMute) = 0;

    // True, and kept as the last value, if the value is the first one or another than before.
    bool TakeValue(bool value) noexcept;

    // True if the flag is another than before. Keep it with SetMute when the widget has been greyed.
    bool MuteChanges(bool mute) const noexcept { return mute != m_mute; }
    void SetMute(bool mute) noexcept { m_mute = mute; }

private:
    bool m_value = false;
    bool m_valueShown = false;
    bool m_mute = false;
    Subscription m_updates;
};

} // namespace quor
