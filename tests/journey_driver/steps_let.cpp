// The step that sets a setting of an element through its setter.

#include "elements/bool_pic.h"
#include "elements/cmd_led.h"
#include "elements/command.h"
#include "elements/label.h"
#include "elements/led_rect.h"
#include "elements/led_round.h"
#include "elements/meter_text.h"
#include "elements/mtr_angle.h"
#include "elements/mtr_linear.h"
#include "elements/picture.h"
#include "elements/status_label.h"
#include "tests/journey_driver/steps.h"

namespace quor {

namespace {

struct Wish {
    std::string_view name;
    const std::string& text;
};

template <class Owner, class Base, class P> bool SetIfMeant(Owner& owner, const Wish& wish, P Base::*setting)
{
    if (P::name != wish.name) {
        return false;
    }
    owner.Set(setting, To<typename P::Value>(wish.text));
    return true;
}

// Sets the one of that name; false if there is none.
template <class Owner, class... Settings> bool SetOneOf(Owner& owner, const Wish& wish, Settings... settings)
{
    return (SetIfMeant(owner, wish, settings) || ...);
}

// The wish for a part of the element, such as `BlnDataSource.Site`; without a name if it is for something else.
Wish ForPart(const Wish& wish, std::string_view part)
{
    const bool isMeant = wish.name.starts_with(part) && wish.name.substr(part.size()).starts_with('.');
    return {isMeant ? wish.name.substr(part.size() + 1) : std::string_view(), wish.text};
}

bool SetCommon(Element& element, const Wish& wish)
{
    using Action = clsCmdDataSource;
    return SetOneOf(element, wish, &Element::ObjWidth, &Element::ObjHeight, &Element::ObjTop, &Element::ObjLeft,
                    &Element::ObjName) ||
           SetOneOf(element.ClickAction, ForPart(wish, Action::name), &Action::CmdDataType, &Action::Unit,
                    &Action::Channel, &Action::CtrlClick, &Action::Site);
}

bool SetStatus(Element& element, const Wish& wish)
{
    using Source = clsBlnDataSource;
    auto* status = dynamic_cast<StatusElement*>(&element);
    return status != nullptr && SetOneOf(status->BlnDataSource, ForPart(wish, Source::name), &Source::BlnDataType,
                                         &Source::Unit, &Source::Channel, &Source::Site);
}

bool SetMeterSource(Element& element, const Wish& wish)
{
    using Source = clsMtrDataSource;
    clsMtrDataSource* source = element.MeterSource();
    return source != nullptr && SetOneOf(*source, ForPart(wish, Source::name), &Source::Unit, &Source::Channel,
                                         &Source::DecimalPlaces, &Source::Site);
}

// Sets it where the element is an E, and has it.
template <class E, class... Settings> bool SetOf(Element& element, const Wish& wish, Settings... settings)
{
    auto* meant = dynamic_cast<E*>(&element);
    return meant != nullptr && SetOneOf(*meant, wish, settings...);
}

bool SetLamp(Element& element, const Wish& wish)
{
    using Round = clsLEDRound;
    using E = clsLEDRect;
    return SetOf<Round>(element, wish, &Round::ColorActive, &Round::ColorInactive, &Round::AutoInactive,
                        &Round::Reflection, &Round::BevelStyle) ||
           SetOf<E>(element, wish, &E::ColorActive, &E::ColorInactive, &E::AutoInactive, &E::Reflection, &E::BevelStyle,
                    &E::AutoCaption, &E::CaptionOn, &E::CaptionOff, &E::CaptionOnColor, &E::CaptionOffColor,
                    &E::CaptionWordWrap, &E::CaptionAlignment);
}

bool SetLabel(Element& element, const Wish& wish)
{
    using L = clsLabel;
    using E = clsStatusLabel;
    return SetOf<L>(element, wish, &L::Caption, &L::CaptionColor, &L::CaptionWordWrap, &L::CaptionAlignment,
                    &L::BGColor, &L::BGTransparent, &L::Border, &L::Border3D) ||
           SetOf<E>(element, wish, &E::AutoCaption, &E::CaptionOn, &E::CaptionOff, &E::CaptionColor,
                    &E::CaptionWordWrap, &E::CaptionAlignment, &E::BGColor, &E::BGTransparent, &E::Border,
                    &E::Border3D);
}

bool SetPicture(Element& element, const Wish& wish)
{
    using P = clsPicture;
    using E = clsBoolPic;
    return SetOf<P>(element, wish, &P::BevelStyle, &P::PictureFillMode, &P::PictureMaskColor, &P::PictureUseMask,
                    &P::BGColor, &P::PictureFile) ||
           SetOf<E>(element, wish, &E::AutoCaption, &E::CaptionOn, &E::CaptionOff, &E::CaptionColor,
                    &E::CaptionWordWrap, &E::CaptionAlignment, &E::ImageAlignment, &E::ImageUseMask, &E::ImageMaskColor,
                    &E::BevelStyle, &E::BGColor, &E::ImageOn, &E::ImageOff);
}

bool SetButton(Element& element, const Wish& wish)
{
    using C = clsCommand;
    using E = clsCmdLED;
    return SetOf<C>(element, wish, &C::AutoCaption, &C::Caption, &C::CaptionColor, &C::CaptionWordWrap,
                    &C::CaptionAlignment, &C::ImageAlignment, &C::ImageUseMask, &C::ImageMaskColor, &C::ImageFile) ||
           SetOf<E>(element, wish, &E::LEDColor, &E::LEDAlignment, &E::AutoCaption, &E::Caption, &E::CaptionColor);
}

bool SetMeter(Element& element, const Wish& wish)
{
    using T = clsMeterText;
    using A = clsMtrAngle;
    using L = clsMtrLinear;
    return SetOf<T>(element, wish, &T::BGColor, &T::BorderStyle, &T::FontColor, &T::FontAlignment) ||
           SetOf<A>(element, wish, &A::ShowInnerArc, &A::ShowOuterArc, &A::MtrRange, &A::MtrRadius, &A::MtrStart,
                    &A::MtrHubSize, &A::MtrHubColor, &A::MtrHubVisible, &A::MtrOffsetX, &A::MtrOffsetY,
                    &A::PointerStyle, &A::PointerLength, &A::LabelMargin) ||
           SetOf<L>(element, wish, &L::MeterOrientation, &L::PointerOffset, &L::TickLabelMargin, &L::TickLocation);
}

bool SetScaleMeter(Element& element, const Wish& wish)
{
    using E = ScaleMeter;
    return SetOf<E>(element, wish, &E::AutoPositions, &E::PosMax, &E::PosMin, &E::BorderStyle, &E::ReverseScale,
                    &E::BGTransparent, &E::BGColor, &E::PointerColor, &E::TickVals, &E::BandWidth, &E::PointerSize,
                    &E::SectionColor1, &E::SectionColor2, &E::SectionColor3, &E::SectionColor4, &E::SectionColor5,
                    &E::SectionEnd1, &E::SectionEnd2, &E::SectionEnd3, &E::SectionEnd4, &E::TickLabelColor);
}

void Let(Stage& stage, const Arguments& words)
{
    Element& element = stage.ElementOf(words[1]);
    const Wish wish{words[2], words[3]};
    for (const auto set :
         {SetCommon, SetStatus, SetMeterSource, SetLamp, SetLabel, SetPicture, SetButton, SetMeter, SetScaleMeter}) {
        if (set(element, wish)) {
            return;
        }
    }
    throw JourneyError("no such setting: " + words[2]);
}

constexpr StepRow rows[] = {
    {"let NAME SETTING VALUE", Let},
};

} // namespace

std::span<const StepRow> SettingSteps()
{
    return rows;
}

} // namespace quor
