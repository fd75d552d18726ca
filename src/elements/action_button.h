#pragma once
// What the elements have in common that are pressed: their click action gives them a caption, and whether they are
// enabled.

#include "elements/element.h"

#include <string>

namespace quor {

template <class W, class Base = Element> class ActionButton : public ElementOn<W, Base> {
public:
    Setting<"AutoCaption", bool> AutoCaption; // the caption comes from the click action
    Setting<"Caption", std::string, &W::Caption> Caption;

    using ElementOn<W, Base>::ElementOn;

private:
    void m_ClickAction_LabelData(const std::string& strCaption) override
    {
        if (AutoCaption()) {
            this->Set(&ActionButton::Caption, strCaption);
        }
    }

    // The widget's state alone; it isn't stored.
    void m_ClickAction_ToggleEnable(bool blnEnable) override { this->Shown().Set(&Widget::Enabled, blnEnable); }
};

} // namespace quor
