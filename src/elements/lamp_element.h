#pragma once
// What round and rectangular LEDs have in common: the lamp's colours and edge, and how it is greyed.

#include "elements/status_element.h"

namespace quor {

template <class W> class LampElement : public ElementOn<W, StatusElement> {
public:
    Setting<"ColorActive", Color, &W::ActiveColor> ColorActive;
    Setting<"ColorInactive", Color, &W::InactiveColor> ColorInactive;
    Setting<"AutoInactive", bool, &W::AutoInactiveColor> AutoInactive; // the widget works ColorInactive out
    Setting<"Reflection", bool, &W::ShowReflection> Reflection;
    Setting<"BevelStyle", std::int32_t, &W::BevelStyle> BevelStyle;

    using ElementOn<W, StatusElement>::ElementOn;

protected:
    // Greyed, the lamp looks like an unlit part of the panel whatever its value. The settings stay.
    void MuteLamp(bool mute)
    {
        if (this->MuteChanges(mute)) {
            if (mute) {
                this->Shown().Set(&W::ActiveColor, colors::buttonFace);
                this->Shown().Set(&W::InactiveColor, colors::buttonFace);
                this->Shown().Set(&W::AutoInactiveColor, false);
            } else {
                this->Show(*this, ColorActive, ColorInactive, AutoInactive);
            }
        }
    }
};

} // namespace quor
