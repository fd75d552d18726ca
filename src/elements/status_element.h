#pragma once
// What the elements that show one Boolean have in common: the source, the last value shown, and the greying.

#include "binding/bln_data_source.h"
#include "elements/element.h"

namespace quor {

class StatusElement : public Element, private BlnOwner {
public:
    clsBlnDataSource BlnDataSource;

    StatusElement(Widget& widget, Live& live) : Element(widget, live), BlnDataSource(live, *this) {}

    void RefreshData() override
    {
        BlnDataSource.RefreshData();
        ClickAction.RefreshData();
    }

    clsBlnDataSource* StatusSource() noexcept final { return &BlnDataSource; }

    // The last value shown.
    bool IsOn() const noexcept { return m_value; }

protected:
    // The parts with which every status record ends.
    void SourceFields(FieldWalk& record) { record(ClickAction, BlnDataSource); }

    // True, and kept as the last value, if the value is the first one or another than before.
    bool TakeValue(bool value) noexcept;

    // True if the flag is another than before. Keep it with SetMute when the widget has been greyed.
    bool MuteChanges(bool mute) const noexcept { return mute != m_mute; }
    void SetMute(bool mute) noexcept { m_mute = mute; }

private:
    bool m_value = false;
    bool m_valueShown = false;
    bool m_mute = false;
};

} // namespace quor
