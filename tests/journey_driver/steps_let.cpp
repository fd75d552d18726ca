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

// Sets it where the element is an E, and has it.
template <class E, class... Settings> bool SetOf(Element& element, const Wish& wish, Settings... settings)
{
    auto* meant = dynamic_cast<E*>(&element);
    return meant != nullptr && SetOneOf(*meant, wish, settings...);
}

// The same of a source, if the element has it: `BlnDataSource.Site`.
template <class Source, class... Settings> bool SetOfPart(Source* source, const Wish& wish, Settings... settings)
{
    const std::string_view part = Source::name;
    const bool isMeant = wish.name.starts_with(part) && wish.name.substr(part.size()).starts_with('.');
    return source != nullptr && isMeant &&
           SetOneOf(*source, Wish{wish.name.substr(part.size() + 1), wish.text}, settings...);
}

bool SetElement(Element& element, const Wish& wish)
{
    using A = clsCmdDataSource;
    using B = clsBlnDataSource;
    using M = clsMtrDataSource;
    return SetOf<Element>(element, wish, &Element::ObjWidth, &Element::ObjHeight, &Element::ObjTop, &Element::ObjLeft,
                          &Element::ObjName) ||
           SetOfPart(&element.ClickAction, wish, &A::CmdDataType, &A::Unit, &A::Channel, &A::CtrlClick, &A::Site) ||
           SetOfPart(element.StatusSource(), wish, &B::BlnDataType, &B::Unit, &B::Channel, &B::Site) ||
           SetOfPart(element.MeterSource(), wish, &M::Unit, &M::Channel, &M::DecimalPlaces, &M::Site);
}

bool SetStatus(Element& element, const Wish& wish)
{
    using R = clsLEDRound;
    using F = clsLEDRect;
    using L = clsStatusLabel;
    using P = clsBoolPic;
    using C = clsCmdLED;
    return SetOf<R>(element, wish, &R::ColorActive, &R::ColorInactive, &R::AutoInactive, &R::Reflection,
                    &R::BevelStyle) ||
           SetOf<F>(element, wish, &F::ColorActive, &F::ColorInactive, &F::AutoInactive, &F::Reflection, &F::BevelStyle,
                    &F::AutoCaption, &F::CaptionOn, &F::CaptionOff, &F::CaptionOnColor, &F::CaptionOffColor,
                    &F::CaptionWordWrap, &F::CaptionAlignment) ||
           SetOf<L>(element, wish, &L::AutoCaption, &L::CaptionOn, &L::CaptionOff, &L::CaptionColor,
                    &L::CaptionWordWrap, &L::CaptionAlignment, &L::BGColor, &L::BGTransparent, &L::Border,
                    &L::Border3D) ||
           SetOf<P>(element, wish, &P::AutoCaption, &P::CaptionOn, &P::CaptionOff, &P::CaptionColor,
                    &P::CaptionWordWrap, &P::CaptionAlignment, &P::ImageAlignment, &P::ImageUseMask, &P::ImageMaskColor,
                    &P::BevelStyle, &P::BGColor, &P::ImageOn, &P::ImageOff) ||
           SetOf<C>(element, wish, &C::LEDColor, &C::LEDAlignment, &C::AutoCaption, &C::Caption, &C::CaptionColor);
}

bool SetPlain(Element& element, const Wish& wish)
{
    using L = clsLabel;
    using P = clsPicture;
    using C = clsCommand;
    return SetOf<L>(element, wish, &L::Caption, &L::CaptionColor, &L::CaptionWordWrap, &L::CaptionAlignment,
                    &L::BGColor, &L::BGTransparent, &L::Border, &L::Border3D) ||
           SetOf<P>(element, wish, &P::BevelStyle, &P::PictureFillMode, &P::PictureMaskColor, &P::PictureUseMask,
                    &P::BGColor, &P::PictureFile) ||
           SetOf<C>(element, wish, &C::AutoCaption, &C::Caption, &C::CaptionColor, &C::CaptionWordWrap,
                    &C::CaptionAlignment, &C::ImageAlignment, &C::ImageUseMask, &C::ImageMaskColor, &C::ImageFile);
}

bool SetMeter(Element& element, const Wish& wish)
{
    using T = clsMeterText;
    using A = clsMtrAngle;
    using L = clsMtrLinear;
    using S = ScaleMeter;
    return SetOf<T>(element, wish, &T::BGColor, &T::BorderStyle, &T::FontColor, &T::FontAlignment) ||
           SetOf<A>(element, wish, &A::ShowInnerArc, &A::ShowOuterArc, &A::MtrRange, &A::MtrRadius, &A::MtrStart,
                    &A::MtrHubSize, &A::MtrHubColor, &A::MtrHubVisible, &A::MtrOffsetX, &A::MtrOffsetY,
                    &A::PointerStyle, &A::PointerLength, &A::LabelMargin) ||
           SetOf<L>(element, wish, &L::MeterOrientation, &L::PointerOffset, &L::TickLabelMargin, &L::TickLocation) ||
           SetOf<S>(element, wish, &S::AutoPositions, &S::PosMax, &S::PosMin, &S::BorderStyle, &S::ReverseScale,
                    &S::BGTransparent, &S::BGColor, &S::PointerColor, &S::TickVals, &S::BandWidth, &S::PointerSize,
                    &S::SectionColor1, &S::SectionColor2, &S::SectionColor3, &S::SectionColor4, &S::SectionColor5,
                    &S::SectionEnd1, &S::SectionEnd2, &S::SectionEnd3, &S::SectionEnd4, &S::TickLabelColor);
}

void Let(Stage& stage, const Arguments& words)
{
    Element& element = stage.ElementOf(words[1]);
    const Wish wish{words[2], words[3]};
    MustBe(SetElement(element, wish) || SetStatus(element, wish) || SetPlain(element, wish) || SetMeter(element, wish),
           "no such setting: " + words[2]);
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
