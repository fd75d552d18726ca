#include "base/failure.h"
#include "forms/caption.h"
#include "forms/fields.h"
#include "forms/form.h"
#include "tests/test.h"

namespace {

template <class Raiser> struct Count {
    explicit Count(Raiser& event) : subscription(event.Subscribe([this] { ++times; })) {}
    int times = 0;
    Subscription subscription;
};

TEST(ACaption, IsReadWithoutItsMark)
{
    EXPECT_EQ(PlainCaption("Save &As..."), "Save As...");
    EXPECT_EQ(PlainCaption("Fish && &Chips&"), "Fish & Chips");
}

TEST(AButton, IsPushedOnlyWhereAUserCanReachIt)
{
    Button button("cmdOK");
    const Count clicks(button.Click);
    button.Push();
    button.Set(&Button::Enabled, false);
    button.Push();
    button.Set(&Button::Enabled, true);
    button.Set(&Button::Visible, false);
    button.Push();
    EXPECT_EQ(clicks.times, 1);
}

TEST(AList, RunsItsHandlerAtEachCallAndRefusesAnIndexThatIsNotThere)
{
    ListBox list("cboBevelStyle", {"None", "Raised", "Lowered"});
    const Count clicks(list.Click);
    list.ListIndex(2);
    list.ListIndex(2);
    list.ListIndex(-1);
    EXPECT_EQ(clicks.times, 3);
    EXPECT_EQ(FailureOf([&] { list.ListIndex(3); }), failures::invalidPropertyValue);
    EXPECT_EQ(FailureOf([&] { list.ListIndex(-2); }), failures::invalidPropertyValue);
    EXPECT_EQ(clicks.times, 3);
    list.ListIndex(1);
    list.Clear();
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(FailureOf([&] { list.ListIndex(0); }), failures::invalidPropertyValue);
    EXPECT_EQ(clicks.times, 4);
}

TEST(ABoxAnOptionAndAField, RunTheirHandlersOnAChangeOnly)
{
    CheckBox box("chkReflection");
    const Count boxClicks(box.Click);
    box.Value(true);
    box.Value(true);
    box.Toggle();
    EXPECT_EQ(boxClicks.times, 2);

    OptionArray options("optTmpStatus", {"On", "Off"});
    const Count optionClicks(options.Click);
    options.Index(1);
    options.Choose(1);
    options.Choose(0);
    EXPECT_EQ(optionClicks.times, 2);
    for (const int index : {-1, 2}) {
        EXPECT_EQ(FailureOf([&] { options.Index(index); }), failures::invalidPropertyValue);
    }

    TextBox text("txtViewName");
    const Count textChanges(text.Change);
    text.Text("Pump");
    text.Text("Pump");
    text.Set(&TextBox::ReadOnly, true);
    text.Type("Valve");
    EXPECT_EQ(text.Text(), "Pump");
    EXPECT_EQ(textChanges.times, 1);
}

TEST(ANumberField, RefusesWhatAPersonTypesOutOfItsRangeButNotWhatCodeSets)
{
    NumberField field("txtWidth", 1, 100, 1);
    for (const char* text : {"0", "101", "", "12x", "1e1", "nan", "-5", "3.25"}) {
        EXPECT_FALSE(field.Type(text)) << text;
    }
    EXPECT_EQ(field.Value(), 0);
    EXPECT_TRUE(field.Type(" 12.5 "));
    EXPECT_EQ(field.Value(), 12.5);
    field.Value(4000);
    EXPECT_EQ(field.Value(), 4000);
}

TEST(ANumberField, KnowsWhatMayBecomeANumberInItsRange)
{
    using enum NumberField::Typing;
    const NumberField narrow("txtWidth", 5, 100);
    const NumberField wide("txtX", -100, 100, 2);
    const struct {
        const NumberField& field;
        const char* text;
        NumberField::Typing judged;
    } cases[] = {{narrow, "", Begun},    {narrow, "1", Begun},     {narrow, "12", Done},    {narrow, "101", Refused},
                 {narrow, "-", Refused}, {narrow, "5.", Refused},  {narrow, "5x", Refused}, {narrow, "0005", Done},
                 {wide, "-", Begun},     {wide, ".", Begun},       {wide, "-.5", Done},     {wide, "-101", Refused},
                 {wide, "1.25", Done},   {wide, "1.255", Refused}, {wide, "1..", Refused},  {wide, "1e1", Refused},
                 {wide, "--1", Refused}};
    for (const auto& each : cases) {
        EXPECT_EQ(each.field.Judge(each.text), each.judged) << each.text;
    }
    EXPECT_EQ(wide.Judge(std::string(400, '9')), Refused);
}

TEST(AProgressBar, KeepsItsValueWithinItsMaximum)
{
    ProgressBar bar("pbrConfig");
    bar.Maximum(10);
    bar.Value(10);
    EXPECT_EQ(FailureOf([&] { bar.Value(11); }), failures::invalidPropertyValue);
    EXPECT_EQ(FailureOf([&] { bar.Value(-1); }), failures::invalidPropertyValue);
    EXPECT_EQ(FailureOf([&] { bar.Maximum(0); }), failures::invalidPropertyValue);
    EXPECT_EQ(bar.Value(), 10);
    bar.Maximum(4);
    EXPECT_EQ(bar.Value(), 4);
}

class OrderForm final : public Form {
public:
    OrderForm() : Form("frmOrder") { cmdCancel.Set(&Button::Cancel, true); }

    Label& lblFirst = Make<Label>("lblOrder(0)", "First");
    Label& lblSecond = Make<Label>("lblOrder(1)", "Second");
    Button& cmdOK = Make<Button>("cmdOK", "OK");
    Button& cmdCancel = Make<Button>("cmdCancel", "&Cancel");
    int loads = 0;
    bool fails = false;
    void MakeTwin() { Make<Button>("CMDOK"); }

private:
    void Form_Load() override
    {
        ++loads;
        if (fails) {
            throw Failure(failures::internal);
        }
    }
};

TEST(AForm, FindsItsControlsByNameAndKind)
{
    OrderForm form;
    EXPECT_EQ(form.Item<Label>("lblOrder(1)").Caption(), "Second");
    EXPECT_EQ(FailureOf([&] { form.Item("lblOrder"); }), failures::invalidCall);
    EXPECT_EQ(FailureOf([&] { form.Item<Label>("cmdOK"); }), failures::typeMismatch);
    EXPECT_EQ(FailureOf([&] { form.MakeTwin(); }), failures::keyInUse);
    EXPECT_EQ(form.CancelButton(), &form.cmdCancel);
    EXPECT_EQ(form.DefaultButton(), nullptr);
}

TEST(AForm, LoadsOnceAndUnloadsOnceUntilItIsLoadedAnew)
{
    OrderForm form;
    const Count unloads(form.Unloaded);
    form.Unload();
    form.Load();
    form.Load();
    form.Unload();
    form.Unload();
    EXPECT_EQ(form.loads, 1);
    EXPECT_EQ(unloads.times, 1);
    form.fails = true;
    EXPECT_EQ(FailureOf([&] { form.Load(); }), failures::internal);
    EXPECT_FALSE(form.IsLoaded());
}

TEST(AForm, MayBeDestroyedByWhoHearsOfItsEnd)
{
    auto form = std::make_unique<OrderForm>();
    const Subscription onOk = form->cmdOK.Click.Subscribe([&] { form->Unload(); });
    const Subscription onEnd = form->Unloaded.Subscribe([&] { form.reset(); });
    form->Load();
    form->cmdOK.Push();
    EXPECT_EQ(form, nullptr);
}

} // namespace
