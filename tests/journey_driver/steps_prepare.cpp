// Steps that prepare what the program will find and what its user will do.

#include "tests/journey_driver/format.h"
#include "tests/journey_driver/stage.h"
#include "tests/journey_driver/steps.h"

#include <algorithm>
#include <set>
#include <utility>

namespace quor {

namespace {

void SetSetting(Stage& stage, const Arguments& arguments)
{
    FakeSettings& settings = stage.settings;
    const std::string& name = arguments[0];
    const std::string& value = arguments[1];
    if (name == "GridSize") {
        ReadValue(value, settings.gridSize);
    } else if (name == "ShowGrid") {
        ReadValue(value, settings.showGrid);
    } else if (name == "SnapToGrid") {
        ReadValue(value, settings.snapToGrid);
    } else if (name == "ViewsDirectory") {
        settings.viewsDirectory = value;
    } else if (name == "ToolbarDirectory") {
        settings.toolbarDirectory = value;
    } else {
        settings.helpFile = value;
    }
}

FakeFiles::Bytes FromHex(std::string_view digits)
{
    FakeFiles::Bytes bytes;
    for (; !digits.empty(); digits.remove_prefix(2)) {
        Color byte;
        if (digits.size() < 2) {
            throw JourneyError("half a byte");
        }
        ReadValue("0x" + std::string(digits.substr(0, 2)), byte);
        bytes.push_back(static_cast<std::uint8_t>(byte.value));
    }
    return bytes;
}

void MakeFile(Stage& stage, const Arguments& arguments)
{
    if (arguments[1] == "from") {
        if (arguments.Count() != 3) {
            throw JourneyError("wanted is: file PATH from PATH2");
        }
        stage.files.Put(arguments[0], stage.HostBytes(arguments[2]));
        return;
    }
    std::string digits;
    for (const Word& word : arguments.From(2)) {
        digits += word.text;
    }
    stage.files.Put(arguments[0], FromHex(digits));
}

void DeleteFile(Stage& stage, const Arguments& arguments)
{
    if (!stage.files.Has(arguments[0])) {
        throw JourneyError("no such file: " + arguments[0]);
    }
    stage.files.Erase(arguments[0]);
}

void MakeReadOnly(Stage& stage, const Arguments& arguments)
{
    stage.files.SetReadOnly(arguments[0]);
}

struct FailingCall {
    std::string_view call;
    PlannedFailures& (*port)(Stage& stage);
};

constexpr auto ofFiles = [](Stage& stage) -> PlannedFailures& { return stage.files.planned; };
constexpr auto ofDialog = [](Stage& stage) -> PlannedFailures& { return stage.dialog.planned; };
constexpr auto ofPictures = [](Stage& stage) -> PlannedFailures& { return stage.pictures.planned; };
constexpr auto ofSettings = [](Stage& stage) -> PlannedFailures& { return stage.settings.planned; };
constexpr auto ofClipboard = [](Stage& stage) -> PlannedFailures& { return stage.clipboard.planned; };

constexpr FailingCall failingCalls[] = {
    {"files.exists", ofFiles},     {"files.open", ofFiles},        {"files.read", ofFiles},
    {"files.write", ofFiles},      {"files.copy", ofFiles},        {"files.move", ofFiles},
    {"files.delete", ofFiles},     {"dialog.open", ofDialog},      {"dialog.save", ofDialog},
    {"dialog.color", ofDialog},    {"dialog.font", ofDialog},      {"pictures.load", ofPictures},
    {"settings.read", ofSettings}, {"settings.write", ofSettings}, {"clipboard.set", ofClipboard},
};

const FailingCall& FindCall(const Arguments& arguments)
{
    const auto* call = std::ranges::find(failingCalls, std::string_view(arguments[0]), &FailingCall::call);
    if (call == std::end(failingCalls) || arguments.Integer(1) < 1) {
        throw JourneyError("no such call: " + arguments[0] + ' ' + arguments[1]);
    }
    return *call;
}

void CheckFailure(const Arguments& arguments)
{
    FindCall(arguments);
}

void PlanFailure(Stage& stage, const Arguments& arguments)
{
    const FailingCall& call = FindCall(arguments);
    const std::string_view operation = call.call.substr(call.call.find('.') + 1);
    const std::int32_t number = arguments.Has(2) ? arguments.Integer(2) : failures::internal;
    call.port(stage).Plan(operation, arguments.Integer(1), number);
}

void Answer(Stage& stage, const Arguments& arguments)
{
    using Named = std::pair<std::string_view, BoxAnswer>;
    constexpr Named answers[] = {
        {"ok", BoxAnswer::Ok}, {"yes", BoxAnswer::Yes}, {"no", BoxAnswer::No}, {"cancel", BoxAnswer::Cancel}};
    for (const Word& word : arguments.From(0)) {
        const auto* found = std::ranges::find(answers, std::string_view(word.text), &Named::first);
        if (found != std::end(answers)) {
            stage.boxes.answers.push_back(found->second);
        } else {
            stage.reportButtons.push_back(word.text == "copy" ? "cmdCopy" : "cmdDetails");
        }
    }
}

void PickFont(Stage& stage, const Arguments& arguments)
{
    if (!arguments.Has(2)) {
        throw JourneyError("wanted is: dialog font NAME SIZE [bold] [italic] [underline] [strikethrough]");
    }
    std::set<std::string> styles;
    for (const Word& word : arguments.From(3)) {
        styles.insert(word.text);
    }
    const auto takes = [&](const char* style) { return styles.erase(style) > 0; };
    const bool bold = takes("bold");
    const bool italic = takes("italic");
    const bool underline = takes("underline");
    const bool strikethrough = takes("strikethrough");
    if (!styles.empty()) {
        throw JourneyError("no such style: " + *styles.begin());
    }
    stage.dialog.WillPickFont([=, name = arguments[1], size = arguments.Number(2)](CommonDialog& dialog) {
        dialog.FontName = name;
        dialog.FontSize = size;
        dialog.FontBold = bold;
        dialog.FontItalic = italic;
        dialog.FontUnderline = underline;
        dialog.FontStrikethru = strikethrough;
    });
}

void ScriptDialog(Stage& stage, const Arguments& arguments)
{
    const std::string& kind = arguments[0];
    if (kind == "font") {
        PickFont(stage, arguments);
        return;
    }
    if (arguments.Count() != (kind == "cancel" ? 1U : 2U)) {
        throw JourneyError("wanted is: dialog open|save PATH, dialog color 0x..., dialog cancel");
    }
    if (kind == "open") {
        stage.dialog.WillOpen(arguments[1]);
    } else if (kind == "save") {
        stage.dialog.WillSave(arguments[1]);
    } else if (kind == "color") {
        Color color;
        ReadValue(arguments[1], color);
        stage.dialog.WillPickColor(color);
    } else {
        stage.dialog.WillCancel();
    }
}

constexpr StepRow rows[] = {
    {"setting", "GridSize|ShowGrid|SnapToGrid|ViewsDirectory|ToolbarDirectory|HelpFile VALUE", SetSetting},
    {"file", "PATH from|hex [TEXT...]", MakeFile},
    {"delete", "PATH", DeleteFile},
    {"readonly", "PATH", MakeReadOnly},
    {"fail", "PORT.CALL N [NUMBER]", PlanFailure, CheckFailure},
    {"answer", "ok|yes|no|cancel|copy|details...", Answer},
    {"dialog", "open|save|color|font|cancel [VALUE...]", ScriptDialog},
};

} // namespace

std::span<const StepRow> PreparingSteps()
{
    return rows;
}

} // namespace quor
