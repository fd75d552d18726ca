#include "document/kinds.h"

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
#include "widgets/canvas.h"
#include "widgets/widget_array.h"

#include <algorithm>
#include <array>
#include <string>

namespace quor {

namespace {

template <class E> constexpr Kind KindOf()
{
    return {kindNames[E::type], E::type, []() -> std::unique_ptr<Widget> { return E::Prototype(); },
            [](Widget& widget, Live& live) -> std::unique_ptr<Element> { return std::make_unique<E>(widget, live); }};
}

constexpr std::array<Kind, kindCount> kinds = {
    KindOf<clsMeterText>(), KindOf<clsMtrAngle>(),    KindOf<clsMtrLinear>(), KindOf<clsLEDRound>(),
    KindOf<clsLEDRect>(),   KindOf<clsStatusLabel>(), KindOf<clsBoolPic>(),   KindOf<clsCmdLED>(),
    KindOf<clsCommand>(),   KindOf<clsPicture>(),     KindOf<clsLabel>(),
};

constexpr bool TypesArePositions()
{
    for (std::size_t index = 0; index < kinds.size(); ++index) {
        if (kinds[index].type != index) {
            return false;
        }
    }
    return true;
}
static_assert(TypesArePositions());

} // namespace

std::span<const Kind> Kinds() noexcept
{
    return kinds;
}

const Kind* FindKind(std::int32_t type) noexcept
{
    return type >= 0 && type < static_cast<std::int32_t>(kinds.size()) ? &kinds[static_cast<std::size_t>(type)]
                                                                       : nullptr;
}

const Kind* FindKind(std::string_view array) noexcept
{
    const auto* found = std::find_if(kinds.begin(), kinds.end(), [&](const Kind& kind) { return kind.array == array; });
    return found == kinds.end() ? nullptr : found;
}

void AddWidgetArrays(Canvas& canvas)
{
    for (const Kind& kind : kinds) {
        canvas.AddArray(std::string(kind.array), kind.makePrototype());
    }
}

} // namespace quor
