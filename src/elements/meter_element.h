#pragma once
// What the elements that show one measured value have in common: the source and the greying.

#include "binding/mtr_data_source.h"
#include "elements/element.h"

namespace quor {

class MeterElement : public Element, protected MtrOwner {
public:
    clsMtrDataSource MtrDataSource;

    MeterElement(Widget& widget, Live& live) : Element(widget, live), MtrDataSource(live, *this) {}

    void RefreshData() override
    {
        MtrDataSource.RefreshData();
        ClickAction.RefreshData();
    }

    clsMtrDataSource* MeterSource() noexcept final { return &MtrDataSource; }

protected:
    // The parts with which every meter's record ends.
    void SourceFields(FieldWalk& record) { record(ClickAction, MtrDataSource); }

    // A reading goes to the widget, NoData too.
    virtual void ShowReading(float value) = 0;

    // The widget turns grey, or shows its colours again. The settings stay.
    virtual void ShowMuted(bool isMuted) = 0;

private:
    void m_MtrDataSource_UpdateMtrData(float sngValue, bool blnMute) final;

    bool m_mute = false;
};

} // namespace quor
