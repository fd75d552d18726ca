#include "qt/forms/qt_forms.h"

#include "forms/fields.h"
#include "forms/form.h"
#include "qt/forms/form_view.h"
#include "qt/theme/theme.h"
#include "support/frm_error.h"
#include "support/frm_view_pbar.h"
#include "tests/qt/test.h"

#include <QComboBox>
#include <QElapsedTimer>
#include <QProgressBar>
#include <QPushButton>

namespace {

QWidget* WindowOf(const char* form)
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && (window->objectName() == form || window->findChild<QWidget*>(form) != nullptr)) {
            return window;
        }
    }
    return nullptr;
}

template <class W> W& Part(QWidget* window, const char* name)
{
    W* part = window == nullptr ? nullptr : window->findChild<W*>(name);
    if (part == nullptr) {
        throw Failure(failures::invalidCall);
    }
    return *part;
}

struct TheFormRuntime : testing::Test {
    Theme theme;
    QtForms forms;
    FakeScreen screen;
    FakeClipboard clipboard;
    FakeClock clock;
    int steps = 0;

    void SetUp() override { theme.Apply(*qApp); }

    // Shows the error dialog to a user who does that once it is on the screen, and then closes it.
    void ShowError(const std::function<void(QWidget* window)>& user)
    {
        auto form = std::make_unique<frmError>(screen, clipboard, clock);
        form->SetError({"<b>Sentence</b>", 6, "frmMain", "Overflow", 14001});
        QTimer::singleShot(0, qApp, [&] {
            ++steps;
            QWidget* window = WindowOf("frmError");
            EXPECT_NO_THROW(user(window));
            if (window != nullptr && window->isVisible()) {
                window->close();
            }
        });
        forms.ShowModal(std::move(form));
        EXPECT_EQ(steps, 1);
        EXPECT_EQ(WindowOf("frmError"), nullptr);
    }
};

TEST_F(TheFormRuntime, ShowsAFormAsItsModelSaysAndFollowsIt)
{
    ShowError([](QWidget* window) {
        EXPECT_EQ(window->windowTitle(), "Quor Custom View Editor");
        EXPECT_TRUE(window->isModal());
        EXPECT_EQ(Part<QLabel>(window, "lblError").textFormat(), Qt::PlainText);
        EXPECT_FALSE(Part<QLabel>(window, "lblErrNum").isVisible());
        auto& details = Part<QPushButton>(window, "cmdDetails");
        const QRect closed = details.geometry();
        const QSize size = window->size();
        details.click();
        EXPECT_GT(window->height(), size.height() + 100);
        EXPECT_TRUE(Part<QLabel>(window, "lblErrNum").isVisible());
        EXPECT_EQ(details.accessibleName(), "Hide Details <<");
        EXPECT_EQ(details.geometry().right(), closed.right());
        EXPECT_GE(details.width(), details.fontMetrics().horizontalAdvance("Hide Details <<"));
        details.click();
        EXPECT_EQ(window->size(), size);
        EXPECT_EQ(details.geometry(), closed);

        EXPECT_EQ(window->focusWidget(), &Part<QPushButton>(window, "cmdOK"));
        EXPECT_EQ(details.shortcut(), QKeySequence(Qt::ALT | Qt::Key_D));
        QTest::keyClick(window, Qt::Key_Return);
        EXPECT_FALSE(window->isVisible());
    });
    steps = 0;
    ShowError([&](QWidget* window) {
        std::string order;
        for (QWidget* at = &Part<QPushButton>(window, "cmdCopy"); order.size() < 22; at = at->nextInFocusChain()) {
            order += (at->focusPolicy() & Qt::TabFocus) != 0 ? at->objectName().toStdString() + ' ' : "";
        }
        EXPECT_EQ(order, "cmdCopy cmdDetails cmdOK ");
        QTest::keyClick(window, Qt::Key_Escape);
        EXPECT_FALSE(window->isVisible());
    });
}

TEST_F(TheFormRuntime, KeepsAFormThatTheUserCannotCloseAndHidesItWhenItUnloads)
{
    frmViewPBar form(forms);
    form.Load();
    form.InitPBar("Loading custom view...", 50);
    forms.Show(form);
    forms.Show(form);
    QWidget* window = WindowOf("frmViewPBar");
    ASSERT_NE(window, nullptr);
    QTest::keyClick(window, Qt::Key_Escape);
    window->close();
    EXPECT_TRUE(window->isVisible());
    for (int step = 0; step < 20; ++step) {
        form.IncrProgBar();
    }
    EXPECT_EQ(Part<QProgressBar>(window, "pbrConfig").value(), 20);
    form.CloseMe();
    EXPECT_EQ(WindowOf("frmViewPBar"), nullptr);
}

TEST_F(TheFormRuntime, UnloadsAllFormsHiddenOnesToo)
{
    frmViewPBar shown(forms);
    frmViewPBar hidden(forms);
    auto gone = std::make_unique<frmViewPBar>(forms);
    for (frmViewPBar* form : {&shown, &hidden, gone.get()}) {
        forms.Show(*form);
    }
    forms.Hide(hidden);
    gone.reset();
    EXPECT_NE(WindowOf("frmViewPBar"), nullptr);
    forms.UnloadAll();
    EXPECT_FALSE(shown.IsLoaded());
    EXPECT_FALSE(hidden.IsLoaded());
    EXPECT_EQ(WindowOf("frmViewPBar"), nullptr);
}

TEST_F(TheFormRuntime, RunsDueTimersDuringALoad)
{
    int fired = 0;
    QTimer timer;
    timer.setInterval(1);
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] { ++fired; });
    timer.start();
    QElapsedTimer time;
    time.start();
    while (fired == 0 && time.elapsed() < 5000) {
        forms.RunEvents();
    }
    EXPECT_GE(fired, 1);
}

class TryForm final : public Form {
public:
    TryForm() : Form("frmTry")
    {
        Set(&Form::Width, 320 * twipsPerPixelX);
        Arrange(12,
                {{.y = 8, .height = 30, .items = {{.control = &lblStyle, .x = 12}, {.control = &cboStyle, .x = 116}}},
                 {.height = 30,
                  .items = {{.control = &lblColor, .x = 12},
                            {.control = &clrOn, .x = 116, .width = 56, .least = 40},
                            {.control = &cmdBrws, .width = 28, .height = 24, .gap = 4},
                            {.control = &lblRest, .width = LayoutItem::filling}}},
                 {.height = 30, .items = {{.control = &lblWidth, .x = 12}, {.control = &txtWidth, .x = 116}}},
                 {.height = 26, .items = {{.control = &chkLong, .x = 116, .orX = 12}}}});
    }

    Label& lblStyle = Make<Label>("lblViewProps(0)", "Bevel Style:", LabelRole::Caption);
    ListBox& cboStyle = Make<ListBox>("cboStyle", std::vector<std::string>{"None", "Raised"});
    Label& lblColor = Make<Label>("lblViewProps(1)", "On Color:");
    Swatch& clrOn = Make<Swatch>("clrOn");
    Button& cmdBrws = Make<Button>("cmdBrwsOnColor", "...");
    Label& lblRest = Make<Label>("lblRest", "Rest");
    Label& lblWidth = Make<Label>("lblViewProps(2)", "Width:");
    NumberField& txtWidth = Make<NumberField>("txtWidth", 5, 100);
    CheckBox& chkLong = Make<CheckBox>("chkLong", "Automatically determine the colour of what is off");
};

TEST_F(TheFormRuntime, LaysOutALineByTheRoomThatItHas)
{
    TryForm form;
    FormView view(form);
    view.resize(view.sizeHint());
    view.show();
    EXPECT_EQ(Part<QWidget>(&view, "clrOn").geometry(), QRect(116, 41, 56, 24));
    EXPECT_EQ(Part<QWidget>(&view, "cmdBrwsOnColor").geometry(), QRect(176, 41, 28, 24));
    EXPECT_EQ(Part<QWidget>(&view, "lblRest").x(), 212);
    EXPECT_EQ(Part<QWidget>(&view, "lblRest").width(), 96);
    EXPECT_EQ(Part<QWidget>(&view, "chkLong").x(), 12);
    const int height = view.sizeHint().height();
    const int top = Part<QWidget>(&view, "chkLong").y();
    form.txtWidth.Set(&Control::Visible, false);
    EXPECT_EQ(Part<QWidget>(&view, "chkLong").y(), top); // a part of the line above still shows
    form.lblWidth.Set(&Control::Visible, false);
    EXPECT_EQ(Part<QWidget>(&view, "chkLong").y(), top - 30);
    EXPECT_EQ(view.sizeHint().height(), height - 30);
    view.resize(200, 200);
    EXPECT_EQ(Part<QWidget>(&view, "clrOn").width(), 40);
    EXPECT_EQ(Part<QWidget>(&view, "cmdBrwsOnColor").x(), 160);
}

TEST_F(TheFormRuntime, ShowsTheGroundThatAFormSetsUnlessItIsTheSystems)
{
    TryForm form;
    FormView view(form);
    const QColor usual = view.palette().color(QPalette::Light);
    form.Set(&Form::BackColor, Color{0x0000FF});
    EXPECT_EQ(view.palette().color(view.backgroundRole()), QColor(Qt::red));
    form.Set(&Form::BackColor, colors::buttonFace);
    EXPECT_EQ(view.palette().color(view.backgroundRole()), usual);
}

TEST_F(TheFormRuntime, HandsInputToTheModelsAndShowsWhatTheyMakeOfIt)
{
    TryForm form;
    FormView view(form);
    view.show();
    auto& list = Part<QComboBox>(&view, "cboStyle");
    EXPECT_EQ(list.accessibleName(), "Bevel Style:");
    EXPECT_EQ(list.currentIndex(), -1);
    const Subscription refusal = form.cboStyle.Click.Subscribe([&] {
        if (form.cboStyle.ListIndex() == 1) {
            form.cboStyle.ListIndex(0);
        }
    });
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(form.cboStyle.ListIndex(), 0);
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(form.cboStyle.ListIndex(), 0);
    EXPECT_EQ(list.currentIndex(), 0);

    auto& number = Part<QLineEdit>(&view, "txtWidth");
    number.selectAll();
    QTest::keyClicks(&number, "1");
    EXPECT_EQ(form.txtWidth.Value(), 0); // 1 is out of the range, and may become 12
    QTest::keyClicks(&number, "2");
    EXPECT_EQ(form.txtWidth.Value(), 12);
    QTest::keyClicks(&number, "5x"); // 125 is beyond the range
    EXPECT_EQ(number.text(), "12");
    QTest::keyClick(&number, Qt::Key_Backspace);
    EXPECT_EQ(form.txtWidth.Value(), 12);
    QTest::keyClick(&number, Qt::Key_Return); // what was begun goes
    EXPECT_EQ(number.text(), "12");
    form.txtWidth.Value(4000); // code may set anything, and the user may go on from there
    number.end(false);
    QTest::keyClick(&number, Qt::Key_Backspace);
    EXPECT_EQ(number.text(), "400");
    QTest::keyClick(&number, Qt::Key_Backspace);
    EXPECT_EQ(form.txtWidth.Value(), 40);
    form.txtWidth.Set(&Control::Enabled, false);
    EXPECT_FALSE(number.isEnabled());
}

} // namespace
