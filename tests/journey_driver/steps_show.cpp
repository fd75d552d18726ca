// Steps that show what stands: print and trace.

#include "apps/view_json/view_json.h"
#include "editor/main_form.h"
#include "elements/mtr_linear.h"
#include "format/container.h"
#include "forms/bars.h"
#include "tests/journey_driver/lone_view.h"
#include "tests/journey_driver/steps.h"

#include <nlohmann/json.hpp>

namespace quor {

namespace {

using Bare = std::string_view;

// Prints `NAME VALUE` of what a printer visits: all, or those of that name or with it in front of a dot.
template <class Printer, class Visit> void PrintNamed(Stage& stage, const std::string& wanted, Visit visit)
{
    bool isFound = wanted.empty();
    Printer printer([&](Bare name, const std::string& value) {
        if (wanted.empty() || name == wanted || name.starts_with(wanted + '.')) {
            isFound = true;
            stage.out.Say(name, Bare(value));
        }
    });
    visit(printer);
    MustBe(isFound, "there is no " + wanted);
}

void PrintElements(Stage& stage, const Arguments&)
{
    for (const Element* element : stage.View().CtlOrder()) {
        stage.out.Say("element", element->ElementType(), element->ObjName(), "left", element->ObjLeft(), "top",
                      element->ObjTop(), "width", element->ObjWidth(), "height", element->ObjHeight());
    }
}

void PrintElement(Stage& stage, const Arguments& words)
{
    PrintNamed<FieldPrinter>(stage, words[3], [&](FieldWalk& printer) {
        Element& element = stage.ElementOf(words[2]);
        element.Fields(printer);
        if (auto* meter = dynamic_cast<clsMtrLinear*>(&element)) { // which has two settings that no record holds
            printer(meter->PointerColor, meter->TickVals);
        }
    });
}

void PrintWidget(Stage& stage, const Arguments& words)
{
    PrintNamed<PropertyPrinter>(stage, words[3], [&](PropertyVisitor& printer) {
        stage.ElementOf(words[2]).MyControl()->VisitProperties(printer);
    });
}

void PrintOrder(Stage& stage, const Arguments&)
{
    for (const Widget* widget = stage.CanvasInUse().Back(); widget != nullptr; widget = widget->Above()) {
        if (!widget->Tag().empty()) {
            stage.out.Text(widget->Tag());
        }
    }
}

void PrintHandles(Stage& stage, const Arguments&)
{
    int index = 0;
    for (const GrabHandle& handle : stage.CanvasInUse().Handles()) {
        stage.out.Say("handle", index++, "left", handle.left, "top", handle.top, "visible", handle.visible);
    }
}

void PrintTools(Stage& stage, const Arguments&)
{
    for (const std::unique_ptr<BarTool>& tool : stage.Main().abViewEdit().Tools()) {
        stage.out.Say("tool", Bare(tool->Name), "enabled", tool->Enabled(), "checked", tool->Checked());
    }
}

void PrintView(Stage& stage, const Arguments&)
{
    PrintNamed<FieldPrinter>(stage, "", [&](FieldWalk& printer) { stage.View().Fields(printer); });
    if (!stage.IsLive()) {
        stage.out.Say("CurrentFile", stage.Main().Session().CurrentFile());
        stage.out.Say("SavedChecksum", stage.Main().Session().SavedChecksum());
    }
}

// Reports of a load that nobody is to see.
struct Silence final : Reporter {
    void ShowError(const ErrorReport& /*report*/) noexcept override {}
    void LogError(const ErrorReport& /*report*/) noexcept override {}
};

void PrintFile(Stage& stage, const Arguments& words)
{
    FakeDesk desk;
    desk.live.DesignMode = true;
    desk.files.Put(words[2], stage.files.Get(words[2]));
    stage.out.Say("version", ContainerReader(*desk.files.Open(words[2], OpenMode::Read)).Header().version);
    Silence reporter;
    LoneView lone(desk.PortsOfView(reporter));
    lone.Load(words[2]);
    if (lone.View().Verdict() == LoadVerdict::Ok) {
        for (const std::string& line : SplitLines(JsonText(ViewToJson(lone.View())))) {
            stage.out.Say(Bare(line));
        }
    }
}

void PrintSame(Stage& stage, const Arguments& words)
{
    const std::string& other = words[3];
    const bool isOfProgram = !stage.HasHostFile(other) && stage.files.Has(other);
    const bool same = stage.files.Get(words[2]) == (isOfProgram ? stage.files.Get(other) : stage.HostBytes(other));
    stage.out.Say(same ? "same" : "differs");
}

void PrintFiles(Stage& stage, const Arguments&)
{
    for (const std::string& path : stage.FilePaths()) {
        stage.out.Text(path);
    }
}

void PrintGrid(Stage& stage, const Arguments&)
{
    const GridLines& grid = stage.CanvasInUse().Grid();
    const auto print = [&](std::string_view name, const GridFamily& family) {
        for (int line = 1; line <= family.count; ++line) {
            stage.out.Say("line", Bare(std::string(name) + '(' + std::to_string(line) + ')'), "place",
                          family.PlaceOf(line), "length", family.length, "visible", grid.visible);
        }
    };
    print("lnGridX", HorizontalLines(grid));
    print("lnGridY", VerticalLines(grid));
}

void PrintBands(Stage& stage, const Arguments&)
{
    for (const std::unique_ptr<Band>& band : stage.Main().abViewEdit().Bands()) {
        stage.out.Say("band", Bare(band->Name), "caption", band->Caption, "visible", band->Visible());
        for (const BandTool& tool : band->Tools()) {
            stage.out.Say("tool", Bare(tool.Tool().Name), "caption", tool.Caption(), "tip", tool.Tip());
        }
    }
}

void PrintToolbox(Stage& stage, const Arguments&)
{
    int index = 0;
    for (const ToolboxButton& button : stage.Main().Toolbox().cmdTool()) {
        stage.out.Say("button", index++, "left", button.place.left, "top", button.place.top, "width",
                      button.place.width, "height", button.place.height);
    }
}

void SetTrace(Stage& stage, const Arguments& words)
{
    stage.traced.erase(words[1]);
    if (words[2] == "on") {
        stage.traced.insert(words[1]);
    }
}

constexpr StepRow rows[] = {
    {"print elements", PrintElements},
    {"print element NAME [SETTING]", PrintElement},
    {"print widget NAME [PROPERTY]", PrintWidget},
    {"print order", PrintOrder},
    {"print handles", PrintHandles},
    {"print tools", PrintTools},
    {"print view", PrintView},
    {"print file PATH", PrintFile},
    {"print same PATH PATH2", PrintSame},
    {"print log", [](Stage& stage, const Arguments&) { stage.out.Text(stage.LogText()); }},
    {"print files", PrintFiles},
    {"print clipboard", [](Stage& stage, const Arguments&) { stage.out.Text(stage.clipboard.text); }},
    {"print grid", PrintGrid},
    {"print bands", PrintBands},
    {"print toolbox", PrintToolbox},
    {"trace widgets|pages|server|sources|files|screen on|off", SetTrace},
};

} // namespace

std::span<const StepRow> ShowingSteps()
{
    return rows;
}

} // namespace quor
