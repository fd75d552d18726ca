// The pages of the elements and of the view, each control as the user has it: what it writes, what else on the page
// follows, what the widget gets, and under which number it reports. tests/data/kept/pages.txt has the answers.

#include "base/text.h"
#include "document/kinds.h"
#include "tests/editor/editor_fixture.h"
#include "tests/support/field_text.h"
#include "tests/support/kept_text.h"
#include "tests/support/widget_journal.h"

namespace {

using State = FieldText::Texts;

struct APage : EditorFixture {
    WidgetJournal journal;
    int typed = 0;

    void SetUp() override
    {
        EditorFixture::SetUp();
        files.PutText("on.bmp", "on");
        files.PutText("off.bmp", "off");
        main.ssScroll().SetTracer(journal);
    }
    void TearDown() override { main.ssScroll().SetTracer(noTrace); }

    // A new element, selected.
    Element& InsertOf(std::uint8_t type)
    {
        main.InsertElement(type);
        Element& element = main.View().CollectionOf(type).Item(main.SelectedWidget()->Tag());
        main.ReleaseControl();
        Select(element);
        return element;
    }

    // The acts of a user on a control, one a step; empty where there is none left.
    std::string Act(Control& control, std::size_t step)
    {
        const std::string& name = control.Name();
        if (auto* list = dynamic_cast<ListBox*>(&control); list != nullptr && step < list->Items().size()) {
            list->Choose(static_cast<std::int32_t>(step));
            return list->Items()[step];
        }
        if (auto* options = dynamic_cast<OptionArray*>(&control);
            options != nullptr && step <= options->Captions().size()) {
            const std::size_t next = static_cast<std::size_t>(options->Index() + 1) % options->Captions().size();
            options->Choose(static_cast<std::int32_t>(next));
            return options->Captions()[next];
        }
        if (auto* box = dynamic_cast<CheckBox*>(&control); box != nullptr && step < 3) {
            box->Toggle();
            return box->Value() ? "on" : "off";
        }
        if (step > 0) {
            return {};
        }
        if (auto* text = dynamic_cast<TextBox*>(&control); text != nullptr && !text->ReadOnly()) {
            text->Type(name.ends_with("Image") ? "on.bmp" : "text " + std::to_string(++typed));
            return text->Text();
        }
        if (auto* number = dynamic_cast<NumberField*>(&control)) {
            ExpectLimits(*number);
            journal.Take();
            EXPECT_TRUE(number->Type(std::to_string(++typed)));
            return Decimal(number->Least) + " to " + Decimal(number->Most);
        }
        auto* button = dynamic_cast<Button*>(&control);
        if (button == nullptr) {
            return {};
        }
        if (DialogOf(name) == "font") {
            dialog.WillPickFont([](CommonDialog& font) { font.FontName = "Arial"; });
        } else if (DialogOf(name) == "open") {
            dialog.WillOpen("off.bmp");
        } else {
            dialog.WillPickColor(Color{++typed});
        }
        button->Push();
        return "...";
    }

    static std::string_view DialogOf(std::string_view button)
    {
        return button == "cmdBrwsFont"                                 ? "font"
               : button.ends_with("Image") || button.ends_with("File") ? "open"
                                                                       : "color";
    }

    // What the controls of a page show, and which of them take no input.
    static State ShownOn(const Page& page)
    {
        State shown;
        for (const std::unique_ptr<Control>& each : page.Controls()) {
            std::string text;
            if (const auto* list = dynamic_cast<const ListBox*>(each.get())) {
                text = std::to_string(list->ListIndex());
            } else if (const auto* options = dynamic_cast<const OptionArray*>(each.get())) {
                text = std::to_string(options->Index());
            } else if (const auto* box = dynamic_cast<const CheckBox*>(each.get())) {
                text = std::to_string(static_cast<int>(box->Value()));
            } else if (const auto* field = dynamic_cast<const TextBox*>(each.get())) {
                text = field->Text() + (field->BackColor() == colors::window ? "" : " grey");
            } else if (const auto* number = dynamic_cast<const NumberField*>(each.get())) {
                text = Decimal(number->Value());
            } else if (const auto* swatch = dynamic_cast<const Swatch*>(each.get())) {
                text = std::to_string(swatch->BackColor().value) + swatch->Caption();
            }
            shown[each->Name()] = text + (each->Enabled() ? "" : " disabled") + (each->Visible() ? "" : " hidden");
        }
        return shown;
    }

    static RefNumber NumberOf(const Page& page, const Control& control)
    {
        return FindRef(page.Name(), control.Name().substr(0, control.Name().find('(')));
    }

    // The texts that differ.
    static std::string Differences(State before, const State& after)
    {
        std::string told;
        for (const auto& [name, text] : after) {
            told += before[name] == text ? "" : ' ' + name + '=' + text;
        }
        return told;
    }

    // Acts on each control as soon as it takes input, on boxes when nothing else is left, and tells what came of it:
    // the number of the control, the fields of the record and the controls that have another text, and what the widget
    // got.
    std::string ActOnAll(const Page& page, const std::function<State()>& record)
    {
        std::string told;
        std::set<std::string> acted;
        const auto act = [&](Control& control, std::size_t step) {
            State before = ShownOn(page);
            before.merge(record());
            journal.Take();
            const std::string what = Act(control, step);
            State after = ShownOn(page);
            after.merge(record());
            if (!what.empty()) {
                told += page.Name() + '.' + control.Name() + ' ' + std::to_string(NumberOf(page, control).number) +
                        " \"" + what + "\":" + Differences(before, after) + " > " + journal.Take() + '\n';
                acted.insert(control.Name());
            }
            return !what.empty();
        };
        const auto actOnAllButBoxes = [&] {
            for (const std::unique_ptr<Control>& control : page.Controls()) {
                if (control->AcceptsUser() && dynamic_cast<CheckBox*>(control.get()) == nullptr &&
                    !acted.contains(control->Name())) {
                    for (std::size_t step = 0; act(*control, step); ++step) {
                    }
                }
            }
        };
        actOnAllButBoxes();
        for (const std::unique_ptr<Control>& control : page.Controls()) {
            if (dynamic_cast<CheckBox*>(control.get()) != nullptr) {
                for (std::size_t step = 0; act(*control, step); ++step) {
                    actOnAllButBoxes();
                }
            }
        }
        for (const std::unique_ptr<Control>& control : page.Controls()) {
            EXPECT_TRUE(acted.contains(control->Name()) || NumberOf(page, *control).number == 0)
                << page.Name() << '.' << control->Name();
        }
        return told;
    }

    static void ExpectLimits(NumberField& field)
    {
        EXPECT_FALSE(field.Type(Decimal(field.Least - 1))) << field.Name();
        EXPECT_TRUE(field.Type(Decimal(field.Least))) << field.Name();
        EXPECT_FALSE(field.Type(Decimal(field.Most + 1))) << field.Name();
        EXPECT_TRUE(field.Type(Decimal(field.Most))) << field.Name();
    }

    // A dialog doesn't come up, or there is nothing to write to.
    void ExpectReports(Page& page)
    {
        for (const bool isBound : {true, false}) {
            for (const std::unique_ptr<Control>& control : page.Controls()) {
                const RefNumber number = NumberOf(page, *control);
                auto* button = dynamic_cast<Button*>(control.get());
                if (number.number == 0 || (button != nullptr) != isBound) {
                    continue;
                }
                SCOPED_TRACE(page.Name() + '.' + control->Name());
                control->Set(&Control::Enabled, true);
                const std::size_t before = reporter.reports.size();
                reporter.Announce(number);
                if (button != nullptr) {
                    dialog.planned.Plan(DialogOf(control->Name()), 1);
                    button->Push();
                } else if (auto* field = dynamic_cast<NumberField*>(control.get())) {
                    field->Type(std::to_string(++typed));
                } else {
                    for (std::size_t step = 0; reporter.reports.size() == before; ++step) {
                        ASSERT_FALSE(Act(*control, step).empty());
                    }
                }
                ASSERT_EQ(reporter.reports.size(), before + 1);
                EXPECT_EQ(reporter.reports.back().message,
                          "An error occurred while setting the property value. Please try again.");
            }
            page.ClearOwner();
        }
    }
};

TEST_F(APage, WritesEachControlThroughAtOnceReadsItBackAndReportsUnderItsNumber)
{
    std::string told;
    const auto tryPage = [&](const std::string& name, std::uint8_t type) {
        Page& page = *main.Panel().FindPage(name);
        Element& element = InsertOf(type);
        const State first = ShownOn(page);
        told += ActOnAll(page, [&] { return FieldText::Of(element); });
        const State before = ShownOn(page);
        InsertOf(type);
        told += name + " of a new one:" + Differences(first, ShownOn(page)) + '\n';
        journal.TakeNames();
        Select(element);
        told += name + " read again:" + Differences(before, ShownOn(page)) + " > " + journal.TakeNames() + '\n';
        EXPECT_TRUE(boxes.shown.empty());
        ExpectReports(page);
    };
    for (const Kind& kind : Kinds()) {
        tryPage("frmCV" + std::string(kind.array.substr(3)), kind.type);
    }
    tryPage("frmCVMeterProps", 2);
    tryPage("frmCVGeneral", 3);
    ExpectAsKept(told, "pages.txt");
}

TEST_F(APage, OfTheViewWritesEachControlThroughAtOnce)
{
    const Page& page = *main.Panel().FindPage("frmCVViewProps");
    ExpectAsKept(ActOnAll(page,
                          [&]() -> State {
                              const clsCustView& view = main.View();
                              const BackgroundImage& ground = main.ssScroll().Background();
                              return {{"ViewName", view.ViewName()},
                                      {"ViewCategory", view.ViewCategory()},
                                      {"BGColor", std::to_string(view.BGColor().value)},
                                      {"BGPicture", view.BGPicture()},
                                      {"ground", std::to_string(main.ssScroll().BackColor().value)},
                                      {"picture", main.ssScroll().Picture() == nullptr ? "none" : "there"},
                                      {"image", ground.visible ? "visible" : "hidden"}};
                          }),
                 "view_page.txt");
}

} // namespace
