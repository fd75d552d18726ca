// The step that sets a setting of an element through its setter.

#include "elements/led_round.h"
#include "tests/journey_driver/format.h"
#include "tests/journey_driver/stage.h"
#include "tests/journey_driver/steps.h"

namespace quor {

namespace {

struct Wish {
    std::string_view name;
    const std::string& text;
};

template <class Owner, class P> bool SetIfMeant(Owner& owner, const Wish& wish, P Owner::*setting)
{
    if (P::name != wish.name) {
        return false;
    }
    typename P::Value value{};
    ReadValue(wish.text, value);
    owner.Set(setting, value);
    return true;
}

// Sets the one of that name; false if there is none.
template <class Owner, class... P> bool SetOneOf(Owner& owner, const Wish& wish, P Owner::*... settings)
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

bool SetLedRound(Element& element, const Wish& wish)
{
    using E = clsLEDRound;
    auto* led = dynamic_cast<E*>(&element);
    return led != nullptr &&
           SetOneOf(*led, wish, &E::ColorActive, &E::ColorInactive, &E::AutoInactive, &E::Reflection, &E::BevelStyle);
}

void Let(Stage& stage, const Arguments& arguments)
{
    Element& element = stage.ElementOf(arguments[0]);
    const Wish wish{arguments[1], arguments[2]};
    for (const auto set : {SetCommon, SetStatus, SetLedRound}) {
        if (set(element, wish)) {
            return;
        }
    }
    throw JourneyError("no such setting: " + arguments[1]);
}

constexpr StepRow rows[] = {
    {"let", "NAME SETTING VALUE", Let},
};

} // namespace

std::span<const StepRow> SettingSteps()
{
    return rows;
}

} // namespace quor
