#pragma once
// What the elements have in common that are pressed: their click action gives them a caption, and whether they are
// enabled.

#include "base/guard.h"
#include "elements/element.h"

#include <string>

namespace quor {

template <class W, class Base = Element> class ActionButton : public ElementOn<W, Base> {
public:
    Setting<"AutoCaption", bool> AutoCaption; // the caption comes from the click action
    Setting<"Caption", std::string, &W::Caption> Caption;

    ActionButton(Widget& widget, Live& live)
        : ElementOn<W, Base>(widget, live), m_labelData(this->ClickAction.LabelData.Subscribe(Quietly(
                                                [this](const std::string& text) { m_ClickAction_LabelData(text); }))),
          m_toggleEnable(this->ClickAction.ToggleEnable.Subscribe(
              Quietly([this](bool enable) { m_ClickAction_ToggleEnable(enable); })))
    {
    }

private:
    void m_ClickAction_LabelData(const std::string& strCaption)
    {
        if (AutoCaption()) {
            this->Set(&ActionButton::Caption, strCaption);
        }
    }

    // The widget's state alone; it isn't stored.
    void m_ClickAction_ToggleEnable(bool blnEnable) { this->Shown().Set(&Widget::Enabled, blnEnable); }

    Subscription m_labelData;
    Subscription m_toggleEnable;
};

} // namespace quor
