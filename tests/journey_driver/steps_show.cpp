// Steps that show what stands: print and trace.

#include "apps/view_json/view_json.h"
#include "binding/live.h"
#include "document/view_document.h"
#include "editor/main_form.h"
#include "elements/mtr_linear.h"
#include "format/container.h"
#include "forms/bars.h"
#include "forms/form.h"
#include "support/frm_view_pbar.h"
#include "tests/journey_driver/control_text.h"
#include "tests/journey_driver/format.h"
#include "tests/journey_driver/lone_view.h"
#include "tests/journey_driver/stage.h"
#include "tests/journey_driver/steps.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace quor {

namespace {

std::string Flag(std::string_view name, bool value)
{
    return ' ' + std::string(name) + ' ' + ValueText(value);
}

std::string Number(std::string_view name, float value)
{
    return ' ' + std::string(name) + ' ' + ValueText(value);
}

// Prints `NAME VALUE`: all, or those of that name or with it in front of a dot.
NamedValue PrintNamed(Stage& stage, const std::string& wanted, bool& isFound)
{
    return [&stage, wanted, &isFound](std::string_view name, const std::string& value) {
        if (wanted.empty() || name == wanted || name.starts_with(wanted + '.')) {
            isFound = true;
            stage.out.Line(std::string(name) + ' ' + value);
        }
    };
}

void MustBeFound(bool isFound, const std::string& what)
{
    if (!isFound) {
        throw JourneyError("there is no " + what);
    }
}

void PrintElements(Stage& stage, const Arguments&)
{
    for (const Element* element : stage.View().CtlOrder()) {
        stage.out.Line("element " + std::to_string(element->ElementType()) + ' ' + Quoted(element->ObjName()) +
                       Number("left", element->ObjLeft()) + Number("top", element->ObjTop()) +
                       Number("width", element->ObjWidth()) + Number("height", element->ObjHeight()));
    }
}

void PrintElement(Stage& stage, const Arguments& arguments)
{
    bool isFound = false;
    FieldPrinter printer(PrintNamed(stage, arguments[2], isFound));
    Element& element = stage.ElementOf(arguments[1]);
    element.Fields(printer);
    if (auto* meter = dynamic_cast<clsMtrLinear*>(&element)) { // which has two settings that no record holds
        static_cast<FieldWalk&>(printer)(meter->PointerColor, meter->TickVals);
    }
    MustBeFound(isFound, arguments[2]);
}

void PrintWidget(Stage& stage, const Arguments& arguments)
{
    bool isFound = false;
    PropertyPrinter printer(PrintNamed(stage, arguments[2], isFound));
    stage.ElementOf(arguments[1]).MyControl()->VisitProperties(printer);
    MustBeFound(isFound, arguments[2]);
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
    std::size_t index = 0;
    for (const GrabHandle& handle : stage.CanvasInUse().Handles()) {
        stage.out.Line("handle " + std::to_string(index++) + Number("left", handle.left) + Number("top", handle.top) +
                       Flag("visible", handle.visible));
    }
}

void PrintPage(Stage& stage, const Arguments& arguments)
{
    bool isFound = false;
    const std::string& wanted = arguments[2];
    for (const std::unique_ptr<Control>& control : stage.FormOf(arguments[1]).Controls()) {
        for (const std::string& line : ControlLines(*control)) {
            if (wanted.empty() || control->Name() == wanted || line.starts_with("control " + wanted + ' ')) {
                isFound = true;
                stage.out.Line(line);
            }
        }
    }
    MustBeFound(isFound || wanted.empty(), wanted);
}

void PrintTools(Stage& stage, const Arguments&)
{
    for (const std::unique_ptr<BarTool>& tool : stage.Main().abViewEdit().Tools()) {
        stage.out.Line("tool " + tool->Name + Flag("enabled", tool->Enabled()) + Flag("checked", tool->Checked()));
    }
}

void PrintView(Stage& stage, const Arguments&)
{
    bool isFound = false;
    FieldPrinter printer(PrintNamed(stage, "", isFound));
    stage.View().Fields(printer);
    if (!stage.IsLive()) {
        stage.out.Line("CurrentFile " + Quoted(stage.Main().Session().CurrentFile()));
        stage.out.Line("SavedChecksum " + ValueText(stage.Main().Session().SavedChecksum()));
    }
}

// Reports of a load that nobody is to see.
class Silence final : public Reporter {
public:
    void ShowError(const ErrorReport& report) noexcept override { words = report.description; }
    void LogError(const ErrorReport& /*report*/) noexcept override {}

    std::string words;
};

void PrintFile(Stage& stage, const Arguments& arguments)
{
    const std::string& path = arguments[1];
    MustBeFound(stage.files.Has(path), "file " + path);
    FakeFiles files;
    files.Put(path, stage.files.Get(path));
    const ViewHeader header = ContainerReader(*files.Open(path, OpenMode::Read)).Header();
    stage.out.Line("version " + std::to_string(header.version));
    FakeTimers timers;
    FakeForms forms(timers);
    FakeBoxes boxes;
    FakePictures pictures(files);
    Silence reporter;
    frmViewPBar progress(forms);
    Live live{true};
    LoneView lone(ViewPorts{files, boxes, reporter, timers, pictures, progress, live});
    lone.Load(path);
    if (lone.View().Verdict() == LoadVerdict::Ok) {
        for (const std::string& line : SplitLines(JsonText(ViewToJson(lone.View())))) {
            stage.out.Line(line);
        }
    }
}

void PrintSame(Stage& stage, const Arguments& arguments)
{
    MustBeFound(stage.files.Has(arguments[1]), "file " + arguments[1]);
    const std::string& other = arguments[2];
    const bool isOfProgram = !stage.HasHostFile(other) && stage.files.Has(other);
    const bool same = stage.files.Get(arguments[1]) == (isOfProgram ? stage.files.Get(other) : stage.HostBytes(other));
    stage.out.Line(same ? "same" : "differs");
}

void PrintLog(Stage& stage, const Arguments&)
{
    for (const std::string& line : stage.LogLines()) {
        stage.out.Text(line);
    }
}

void PrintFiles(Stage& stage, const Arguments&)
{
    for (const std::string& path : stage.FilePaths()) {
        stage.out.Text(path);
    }
}

void PrintClipboard(Stage& stage, const Arguments&)
{
    stage.out.Text(stage.clipboard.text);
}

void PrintGridLines(Stage& stage, std::string_view name, const GridFamily& family, bool visible)
{
    for (int line = 1; line <= family.count; ++line) {
        stage.out.Line("line " + std::string(name) + '(' + std::to_string(line) + ')' +
                       Number("place", family.PlaceOf(line)) + Number("length", family.length) +
                       Flag("visible", visible));
    }
}

void PrintGrid(Stage& stage, const Arguments&)
{
    const GridLines& grid = stage.CanvasInUse().Grid();
    PrintGridLines(stage, "lnGridX", HorizontalLines(grid), grid.visible);
    PrintGridLines(stage, "lnGridY", VerticalLines(grid), grid.visible);
}

void PrintBands(Stage& stage, const Arguments&)
{
    for (const std::unique_ptr<Band>& band : stage.Main().abViewEdit().Bands()) {
        stage.out.Line("band " + band->Name + " caption " + Quoted(band->Caption) + Flag("visible", band->Visible()));
        for (const BandTool& tool : band->Tools()) {
            stage.out.Line("tool " + tool.Tool().Name + " caption " + Quoted(tool.Caption()) + " tip " +
                           Quoted(tool.Tip()));
        }
    }
}

void PrintToolbox(Stage& stage, const Arguments&)
{
    std::size_t index = 0;
    for (const ToolboxButton& button : stage.Main().Toolbox().cmdTool()) {
        stage.out.Line("button " + std::to_string(index++) + Number("left", button.place.left) +
                       Number("top", button.place.top) + Number("width", button.place.width) +
                       Number("height", button.place.height));
    }
}

// The arguments of these include the word itself.
constexpr StepRow prints[] = {
    {"elements", "elements", PrintElements},
    {"element", "element NAME [SETTING]", PrintElement},
    {"widget", "widget NAME [PROPERTY]", PrintWidget},
    {"order", "order", PrintOrder},
    {"handles", "handles", PrintHandles},
    {"page", "page FORM [CONTROL]", PrintPage},
    {"tools", "tools", PrintTools},
    {"view", "view", PrintView},
    {"file", "file PATH", PrintFile},
    {"same", "same PATH PATH2", PrintSame},
    {"log", "log", PrintLog},
    {"files", "files", PrintFiles},
    {"clipboard", "clipboard", PrintClipboard},
    {"grid", "grid", PrintGrid},
    {"bands", "bands", PrintBands},
    {"toolbox", "toolbox", PrintToolbox},
};

const StepRow& FindPrint(const Arguments& arguments)
{
    const auto* row = std::ranges::find(prints, std::string_view(arguments[0]), &StepRow::word);
    if (row == std::end(prints)) {
        throw JourneyError("nothing to print: " + arguments[0]);
    }
    arguments.Check("print", row->shape);
    return *row;
}

void Print(Stage& stage, const Arguments& arguments)
{
    FindPrint(arguments).act(stage, arguments);
}

void CheckPrint(const Arguments& arguments)
{
    FindPrint(arguments);
}

void Trace(Stage& stage, const Arguments& arguments)
{
    if (arguments[1] == "on") {
        stage.traced.insert(arguments[0]);
    } else {
        stage.traced.erase(arguments[0]);
    }
}

constexpr StepRow rows[] = {
    {"print", "WHAT [VALUE...]", Print, CheckPrint},
    {"trace", "widgets|pages|server|sources|files|screen on|off", Trace},
};

} // namespace

std::span<const StepRow> ShowingSteps()
{
    return rows;
}

} // namespace quor
