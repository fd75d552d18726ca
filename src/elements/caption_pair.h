#pragma once
// A status element with a caption for each state. Only the one in force is on the widget; the other waits.

#include "elements/status_element.h"

#include <string>

namespace quor {

struct WhileOn : AsItIs {
    static bool Reaches(const StatusElement& element) { return element.IsOn(); }
};

struct WhileOff : AsItIs {
    static bool Reaches(const StatusElement& element) { return !element.IsOn(); }
};

// Base is an element on a widget that shows the caption in that property.
template <class Base, auto WidgetCaption> class CaptionPair : public Base {
public:
    Setting<"AutoCaption", bool> AutoCaption; // the captions come from the source
    Setting<"CaptionOn", std::string, WidgetCaption, WhileOn> CaptionOn;
    Setting<"CaptionOff", std::string, WidgetCaption, WhileOff> CaptionOff;

    using Base::Base;

protected:
    void ShowCaption() { this->Show(*this, CaptionOn, CaptionOff); }

private:
    void m_BlnDataSource_LabelData(const std::string& strCaptionOn, const std::string& strCaptionOff) override
    {
        if (AutoCaption()) {
            this->Set(&CaptionPair::CaptionOff, strCaptionOff);
            this->Set(&CaptionPair::CaptionOn, strCaptionOn);
        }
    }
};

} // namespace quor
