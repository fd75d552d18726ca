// Steps that prepare what the program will find and what its user will do.

#include "tests/journey_driver/steps.h"

#include <algorithm>

namespace quor {

namespace {

template <auto Member> void SetSetting(Stage& stage, const Arguments& words)
{
    auto& member = stage.settings.*Member;
    member = words.As<std::remove_reference_t<decltype(member)>>(2);
}

void MakeFile(Stage& stage, const Arguments& words)
{
    std::string digits;
    for (const Word& word : words.From(3)) {
        digits += word.text;
    }
    FakeFiles::Bytes bytes;
    for (std::size_t at = 0; at < digits.size(); at += 2) {
        const std::string byte = digits.substr(at, 2);
        MustBe(byte.size() == 2, "half a byte");
        bytes.push_back(static_cast<std::uint8_t>(To<Color>("0x" + byte).value));
    }
    stage.files.Put(words[1], bytes);
}

template <auto Port> void PlanFailure(Stage& stage, const Arguments& words)
{
    const int n = words.As<int>(2);
    MustBe(n > 0, "the very next call is 1");
    const std::string operation = words[1].substr(words[1].find('.') + 1);
    (stage.*Port).planned.Plan(operation, n, words.Has(3) ? words.As<int>(3) : failures::internal);
}

void Answer(Stage& stage, const Arguments& words)
{
    constexpr std::string_view answers[] = {"ok", "yes", "no", "cancel"};
    for (const Word& word : words.From(1)) {
        const auto* found = std::ranges::find(answers, word.text);
        if (found != std::end(answers)) {
            stage.boxes.answers.push_back(static_cast<BoxAnswer>(found - answers));
        } else {
            stage.reportButtons.push_back(word.text == "copy" ? "cmdCopy" : "cmdDetails");
        }
    }
}

void PickFont(Stage& stage, const Arguments& words)
{
    std::set<std::string> styles;
    for (const Word& word : words.From(4)) {
        styles.insert(word.text);
    }
    stage.dialog.WillPickFont([=, name = words[2], size = words.As<double>(3)](CommonDialog& dialog) {
        dialog.FontName = name;
        dialog.FontSize = size;
        dialog.FontBold = styles.contains("bold");
        dialog.FontItalic = styles.contains("italic");
        dialog.FontUnderline = styles.contains("underline");
        dialog.FontStrikethru = styles.contains("strikethrough");
    });
}

constexpr StepRow rows[] = {
    {"setting GridSize N", SetSetting<&FakeSettings::gridSize>},
    {"setting ShowGrid true|false", SetSetting<&FakeSettings::showGrid>},
    {"setting SnapToGrid true|false", SetSetting<&FakeSettings::snapToGrid>},
    {"setting ViewsDirectory PATH", SetSetting<&FakeSettings::viewsDirectory>},
    {"setting ToolbarDirectory PATH", SetSetting<&FakeSettings::toolbarDirectory>},
    {"setting HelpFile PATH", SetSetting<&FakeSettings::helpFile>},
    {"file PATH from PATH2",
     [](Stage& stage, const Arguments& words) { stage.files.Put(words[1], stage.HostBytes(words[3])); }},
    {"file PATH hex [BYTES...]", MakeFile},
    {"delete PATH",
     [](Stage& stage, const Arguments& words) {
         stage.files.Get(words[1]);
         stage.files.Erase(words[1]);
     }},
    {"readonly PATH", [](Stage& stage, const Arguments& words) { stage.files.SetReadOnly(words[1]); }},
    {"fail files.exists|files.open|files.read|files.write|files.copy|files.move|files.delete N [NUMBER]",
     PlanFailure<&Stage::files>},
    {"fail dialog.open|dialog.save|dialog.color|dialog.font N [NUMBER]", PlanFailure<&Stage::dialog>},
    {"fail pictures.load N [NUMBER]", PlanFailure<&Stage::pictures>},
    {"fail settings.read|settings.write N [NUMBER]", PlanFailure<&Stage::settings>},
    {"fail clipboard.set N [NUMBER]", PlanFailure<&Stage::clipboard>},
    {"answer ok|yes|no|cancel|copy|details...", Answer},
    {"dialog open PATH", [](Stage& stage, const Arguments& words) { stage.dialog.WillOpen(words[2]); }},
    {"dialog save PATH", [](Stage& stage, const Arguments& words) { stage.dialog.WillSave(words[2]); }},
    {"dialog color COLOR",
     [](Stage& stage, const Arguments& words) { stage.dialog.WillPickColor(words.As<Color>(2)); }},
    {"dialog font NAME SIZE [bold|italic|underline|strikethrough...]", PickFont},
    {"dialog cancel", [](Stage& stage, const Arguments&) { stage.dialog.WillCancel(); }},
};

} // namespace

std::span<const StepRow> PreparingSteps()
{
    return rows;
}

} // namespace quor
