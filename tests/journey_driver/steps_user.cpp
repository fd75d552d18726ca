// Steps of the user at the editor: its start and end, time, tools, the mouse and the keyboard.

#include "editor/main_form.h"
#include "elements/element.h"
#include "forms/bars.h"
#include "tests/journey_driver/steps.h"

namespace quor {

namespace {

// The tail may be told as one word or as several, which single blanks join.
std::string TailOf(const Arguments& words)
{
    std::string tail;
    for (const Word& word : words.From(1)) {
        tail += (tail.empty() ? "" : " ") + word.text;
    }
    return tail;
}

void Wait(Stage& stage, const Arguments& words)
{
    MustBe(words.As<int>(1) >= 0, "time moves on, not back");
    stage.timers.Advance(words.As<int>(1));
}

// Somebody who may edit is logged on, and the main form comes.
void StartEditor(Stage& stage, const Arguments& words)
{
    stage.login.isLoggedOn = true;
    stage.login.rightsHeld = stage.loginRights = {rights::editViews};
    stage.Start(TailOf(words));
    stage.timers.Advance(100);
}

void ClickTool(Stage& stage, const Arguments& words)
{
    Bars& bars = stage.Main().abViewEdit();
    bars.Tools().Item(words[1]);
    for (int count = words.Has(2) ? words.As<int>(2) : 1; count > 0; --count) {
        bars.Click(words[1]);
    }
}

void Close(Stage& stage, const Arguments& words)
{
    const std::string& how = words[1];
    using enum CloseReason;
    if (how == "bar") {
        stage.Main().CloseThroughBar();
    } else {
        stage.Main().Close(how == "system" ? System : how == "taskmanager" ? TaskManager : User);
    }
}

// The N of `handle:N`, if the word is one.
std::optional<std::size_t> ReadNumbered(std::string_view word, std::string_view what, std::size_t count)
{
    if (!word.starts_with(what)) {
        return std::nullopt;
    }
    const auto number = To<std::size_t>(word.substr(what.size()));
    MustBe(number < count, "there is no " + std::string(word));
    return number;
}

CanvasTarget HandleTarget(Stage& stage, std::size_t index)
{
    const GrabHandle& handle = stage.CanvasInUse().Handles().at(index);
    return {CanvasTarget::What::Handle, nullptr, index, handle.left, handle.top};
}

// What WHERE names: a target on the canvas, or a button of the toolbox.
struct Place {
    CanvasTarget target;
    std::optional<std::size_t> toolboxButton{};
};

// The word at that index.
Place FindPlace(Stage& stage, const Arguments& words, std::size_t at = 1)
{
    const std::string& word = words[at];
    if (!words.IsQuoted(at)) {
        if (word == "canvas") {
            return {};
        }
        if (word == "background") {
            const BackgroundImage& image = stage.CanvasInUse().Background();
            return {{CanvasTarget::What::Background, nullptr, 0, image.left, image.top}};
        }
        if (const auto index = ReadNumbered(word, "handle:", Canvas::handleCount)) {
            return {HandleTarget(stage, *index)};
        }
        if (const auto index = ReadNumbered(word, "toolbox:", kindCount)) {
            return {{}, index};
        }
    }
    Widget& widget = *stage.ElementOf(word).MyControl();
    return {{CanvasTarget::What::Element, &widget, 0, widget.Left(), widget.Top()}};
}

MouseButton ButtonOf(const std::string& word)
{
    using enum MouseButton;
    return word == "right" ? Right : word == "middle" ? Middle : Left;
}

void Press(Stage& stage, const Arguments& words)
{
    const Place place = FindPlace(stage, words);
    const MouseButton button = ButtonOf(words[4]);
    if (place.toolboxButton) {
        stage.Main().Toolbox().cmdTool_MouseDown(*place.toolboxButton, button);
    } else {
        stage.Main().Mouse().Press(place.target, button, words.As<float>(2), words.As<float>(3));
    }
}

// At the place that the words from that one on tell.
void Drop(Stage& stage, const Arguments& words, std::size_t at = 1)
{
    const Place place = FindPlace(stage, words, at);
    if (place.toolboxButton) {
        stage.Main().Mouse().CancelDrag();
    } else {
        stage.Main().Mouse().Drop(place.target, words.As<float>(at + 1), words.As<float>(at + 2));
    }
}

void Release(Stage& stage, const Arguments& words)
{
    const Place place = FindPlace(stage, words);
    if (!place.toolboxButton) {
        stage.Main().Mouse().Release(place.target, ButtonOf(words[4]));
    }
}

void Size(Stage& stage, const Arguments& words)
{
    const CanvasTarget handle =
        HandleTarget(stage, *ReadNumbered("handle:" + words[1], "handle:", Canvas::handleCount));
    CanvasMouse& mouse = stage.Main().Mouse();
    mouse.Press(handle, MouseButton::Left, Canvas::handleSize / 2, Canvas::handleSize / 2);
    mouse.SizeBy(words.As<float>(2), words.As<float>(3));
    mouse.Release(handle, MouseButton::Left);
}

// The bars have the keyboard unless the journey says who has. Of the instruments the buttons alone hear keys.
void Key(Stage& stage, const Arguments& words)
{
    const auto code = words.As<std::int16_t>(1);
    if (!words.Has(2)) {
        stage.Main().abViewEdit().KeyDown.Raise(code);
        return;
    }
    if (words.IsQuoted(2) || words[2] != "canvas") {
        const std::string& array = stage.ElementOf(words[2]).MyControl()->Name();
        if (array != "ctlCommand" && array != "ctlCmdLED") {
            return;
        }
    }
    stage.Main().KeyDown(code);
}

constexpr StepRow rows[] = {
    // What came until then doesn't count.
    {"quietly STEP...",
     [](Stage& stage, const Arguments& words) {
         FindStep(words.From(1)).act(stage, Arguments(words.From(1)));
         stage.out.Take();
     }},
    {"start [TAIL...]", [](Stage& stage, const Arguments& words) { stage.Start(TailOf(words)); }},
    {"editor [TAIL...]", StartEditor},
    {"wait MS", Wait},
    {"tool NAME [N]", ClickTool},
    {"open PATH",
     [](Stage& stage, const Arguments& words) {
         stage.dialog.WillOpen(words[1]);
         stage.Main().abViewEdit().Click("miOpen");
     }},
    {"save as PATH",
     [](Stage& stage, const Arguments& words) {
         stage.dialog.WillSave(words[2]);
         stage.Main().abViewEdit().Click("miSaveAs");
     }},
    {"tab NAME",
     [](Stage& stage, const Arguments& words) {
         stage.Main().abViewEdit().BandOf("bndObjProps").SetCurrentChild(words[1]);
     }},
    {"close [user|system|taskmanager|bar]", Close},
    {"press WHERE X Y [left|right|middle]", Press},
    {"drop WHERE X Y", [](Stage& stage, const Arguments& words) { Drop(stage, words); }},
    {"drag WHERE X Y WHERE X Y",
     [](Stage& stage, const Arguments& words) {
         Press(stage, words);
         Drop(stage, words, 4);
     }},
    {"release WHERE X Y [left|right|middle]", Release},
    {"click canvas", [](Stage& stage, const Arguments&) { stage.Main().ReleaseControl(); }},
    {"size N DX DY", Size},
    {"toolbox WIDTH", // twips, inside
     [](Stage& stage, const Arguments& words) { stage.Main().Toolbox().Form_Resize(words.As<float>(1)); }},
    {"scroll X Y",
     [](Stage& stage, const Arguments& words) { stage.CanvasInUse().ScrollTo(words.As<int>(1), words.As<int>(2)); }},
    {"key CODE [WHERE]", Key},
};

} // namespace

std::span<const StepRow> UserSteps()
{
    return rows;
}

} // namespace quor
