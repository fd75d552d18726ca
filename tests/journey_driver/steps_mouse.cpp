// Steps of the mouse and the keyboard on the canvas and the toolbox.

#include "editor/main_form.h"
#include "elements/element.h"
#include "forms/bars.h"
#include "tests/journey_driver/format.h"
#include "tests/journey_driver/stage.h"
#include "tests/journey_driver/steps.h"

namespace quor {

namespace {

constexpr std::size_t noToolbox = static_cast<std::size_t>(-1);

// What WHERE names: a target on the canvas, or a button of the toolbox.
struct Place {
    CanvasTarget target;
    std::size_t toolboxButton = noToolbox;
};

// The N of `handle:N`, if the word is one.
bool ReadNumbered(const std::string& word, std::string_view what, std::size_t count, std::size_t& index)
{
    if (!word.starts_with(what)) {
        return false;
    }
    const std::int32_t number = ToInteger(std::string_view(word).substr(what.size()));
    if (number < 0 || number >= static_cast<std::int32_t>(count)) {
        throw JourneyError("there is no " + word);
    }
    index = static_cast<std::size_t>(number);
    return true;
}

CanvasTarget HandleTarget(Stage& stage, std::size_t index)
{
    const GrabHandle& handle = stage.CanvasInUse().Handles().at(index);
    return {CanvasTarget::What::Handle, nullptr, index, handle.left, handle.top};
}

CanvasTarget ElementTarget(Stage& stage, const std::string& name)
{
    Widget& widget = *stage.ElementOf(name).MyControl();
    return {CanvasTarget::What::Element, &widget, 0, widget.Left(), widget.Top()};
}

Place FindPlace(Stage& stage, const Arguments& arguments)
{
    const std::string& word = arguments[0];
    std::size_t index = 0;
    if (arguments.IsQuoted(0)) {
        return {ElementTarget(stage, word)};
    }
    if (word == "canvas") {
        return {};
    }
    if (word == "background") {
        const BackgroundImage& image = stage.CanvasInUse().Background();
        return {{CanvasTarget::What::Background, nullptr, 0, image.left, image.top}};
    }
    if (ReadNumbered(word, "handle:", Canvas::handleCount, index)) {
        return {HandleTarget(stage, index)};
    }
    if (ReadNumbered(word, "toolbox:", kindCount, index)) {
        return {{}, index};
    }
    return {ElementTarget(stage, word)};
}

MouseButton ButtonOf(const std::string& word)
{
    if (word == "right") {
        return MouseButton::Right;
    }
    return word == "middle" ? MouseButton::Middle : MouseButton::Left;
}

float At(const Arguments& arguments, std::size_t index)
{
    return static_cast<float>(arguments.Number(index));
}

void Press(Stage& stage, const Arguments& arguments)
{
    const Place place = FindPlace(stage, arguments);
    const MouseButton button = ButtonOf(arguments[3]);
    if (place.toolboxButton != noToolbox) {
        stage.Main().Toolbox().cmdTool_MouseDown(place.toolboxButton, button);
    } else {
        stage.Main().Mouse().Press(place.target, button, At(arguments, 1), At(arguments, 2));
    }
}

void Drop(Stage& stage, const Arguments& arguments)
{
    const Place place = FindPlace(stage, arguments);
    if (place.toolboxButton != noToolbox) {
        stage.Main().Mouse().CancelDrag();
    } else {
        stage.Main().Mouse().Drop(place.target, At(arguments, 1), At(arguments, 2));
    }
}

void Release(Stage& stage, const Arguments& arguments)
{
    const Place place = FindPlace(stage, arguments);
    if (place.toolboxButton == noToolbox) {
        stage.Main().Mouse().Release(place.target, ButtonOf(arguments[3]));
    }
}

void Click(Stage& stage, const Arguments&)
{
    stage.Main().ReleaseControl();
}

void Size(Stage& stage, const Arguments& arguments)
{
    std::size_t index = 0;
    ReadNumbered("handle:" + arguments[0], "handle:", Canvas::handleCount, index);
    const CanvasTarget handle = HandleTarget(stage, index);
    CanvasMouse& mouse = stage.Main().Mouse();
    mouse.Press(handle, MouseButton::Left, Canvas::handleSize / 2, Canvas::handleSize / 2);
    mouse.SizeBy(At(arguments, 1), At(arguments, 2));
    mouse.Release(handle, MouseButton::Left);
}

void ResizeToolbox(Stage& stage, const Arguments& arguments)
{
    stage.Main().Toolbox().Form_Resize(At(arguments, 0));
}

void Scroll(Stage& stage, const Arguments& arguments)
{
    stage.CanvasInUse().ScrollTo(arguments.Integer(0), arguments.Integer(1));
}

// The bars have the keyboard unless the journey says who has. Of the instruments the buttons alone hear keys.
void Key(Stage& stage, const Arguments& arguments)
{
    std::int16_t code = 0;
    ReadValue(arguments[0], code);
    if (!arguments.Has(1)) {
        stage.Main().abViewEdit().KeyDown.Raise(code);
        return;
    }
    if (arguments.IsQuoted(1) || arguments[1] != "canvas") {
        const std::string& array = stage.ElementOf(arguments[1]).MyControl()->Name();
        if (array != "ctlCommand" && array != "ctlCmdLED") {
            return;
        }
    }
    stage.Main().KeyDown(code);
}

constexpr StepRow rows[] = {
    {"press", "WHERE X Y [left|right|middle]", Press},
    {"drop", "WHERE X Y", Drop},
    {"release", "WHERE X Y [left|right|middle]", Release},
    {"click", "canvas", Click},
    {"size", "N DX DY", Size},
    {"toolbox", "WIDTH", ResizeToolbox}, // twips, inside
    {"scroll", "X Y", Scroll},
    {"key", "CODE [WHERE]", Key},
};

} // namespace

std::span<const StepRow> MouseSteps()
{
    return rows;
}

} // namespace quor
