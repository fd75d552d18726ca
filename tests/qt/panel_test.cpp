// The property panel in the main window: its tabs, what is typed on its pages, and whose keys are whose.

#include "elements/led_round.h"
#include "qt/theme/theme.h"
#include "qt/window/canvas_view.h"
#include "qt/window/main_window.h"
#include "qt/window/panel_tabs.h"
#include "tests/editor/editor_fixture.h"
#include "tests/qt/test.h"

#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

namespace {

std::string Text(const QString& text)
{
    return text.toStdString();
}

// The main window with every port in memory, and its property panel.
struct ThePanel : EditorFixture {
    Theme theme;
    std::unique_ptr<MainWindow> window;

    void SetUp() override
    {
        theme.Apply(*qApp);
        EditorFixture::SetUp();
        window = std::make_unique<MainWindow>(main);
        window->resize(1366, 768);
        window->show();
        window->activateWindow();
        Settle();
    }

    static void Settle() { QApplication::processEvents(); }

    template <class W = QWidget> W& Find(const char* name) const
    {
        W* found = window->findChild<W*>(name);
        if (found == nullptr) {
            throw Failure(failures::invalidCall, name);
        }
        return *found;
    }

    QWidget& Panel() const { return Find("bndObjProps"); }

    // The page with its tab in front.
    QWidget& Show(const char* band, const char* page) const
    {
        main.abViewEdit().BandOf("bndObjProps").SetCurrentChild(band);
        Settle();
        return Find(page);
    }
    QWidget& General() const { return Show("prpGeneral", "frmCVGeneral"); }
    QWidget& Lamp() const { return Show("ctlLEDRound", "frmCVLEDRound"); }

    QLineEdit& Take(const char* field) const
    {
        auto& edit = Find<QLineEdit>(field);
        edit.setFocus(Qt::TabFocusReason);
        edit.selectAll();
        return edit;
    }
};

TEST(PanelTabsOf320Pixels, FlowWithoutClippingInAnyFont)
{
    const QStringList captions = {"General", "Meter (Angular)", "Positions and Colors", "Meter Data", "Action"};
    for (const char* family : {"Inter", "DejaVu Sans"}) {
        QFont font(family);
        font.setPixelSize(12);
        PanelTabs tabs([](int) {});
        tabs.setFont(font);
        tabs.resize(320, 10);
        tabs.Show(captions, 1);
        QRect before(-1, 2, 0, 26);
        int rows = 1;
        for (const QString& caption : captions) {
            const QRect place = tabs.findChild<QAbstractButton*>(caption)->geometry();
            EXPECT_GE(place.width(), QFontMetrics(font).horizontalAdvance(caption) + 8);
            EXPECT_LE(place.right(), 311);
            if (place.y() == before.y()) {
                EXPECT_GT(place.x(), before.right());
            } else {
                EXPECT_GT(place.y(), before.bottom());
                EXPECT_GT(before.right() + 3 + place.width(), 312); // there was no room for it
                ++rows;
            }
            before = place;
        }
        EXPECT_EQ(rows, 2) << family;
        EXPECT_GT(tabs.height(), before.bottom());
    }
}

TEST_F(ThePanel, ShowsTheTabsOfTheSelectionAndKeepsEachPage)
{
    const auto shown = [&] {
        std::string captions;
        for (const auto* tab : Find<PanelTabs>("tabs").findChildren<QAbstractButton*>()) {
            captions += tab->isHidden() ? "" : Text(tab->text()) + (tab->isChecked() ? "* " : " ");
        }
        return captions;
    };
    const auto& first = Insert<clsLEDRound>();
    Settle();
    EXPECT_EQ(shown(), "General* LED (Round) Status Data Action ");
    EXPECT_EQ(window->findChild<QWidget*>("frmCVLEDRound"), nullptr); // not before it is first shown
    QTest::mouseClick(&Find("LED (Round)"), Qt::LeftButton);
    Settle();
    const QWidget& page = Find("frmCVLEDRound");
    EXPECT_TRUE(page.isVisible());
    main.ReleaseControl();
    Settle();
    EXPECT_EQ(shown(), "Custom View Settings* ");
    Select(first);
    EXPECT_EQ(&Lamp(), &page);
    main.abViewEdit().BandOf("bndObjProps").Set(&Band::Visible, false);
    EXPECT_FALSE(page.isVisible());
}

TEST_F(ThePanel, FollowsTheColourThatIsWorkedOut)
{
    Insert<clsLEDRound>();
    Lamp();
    const auto expectUse = [&](bool isUsed) {
        for (const char* part : {"clrOff", "cmdBrwsOffColor", "lblViewProps(2)"}) {
            EXPECT_EQ(Lamp().findChild<QWidget*>(part)->isEnabled(), isUsed) << part;
        }
        EXPECT_EQ(Text(Find<QAbstractButton>("clrOff").text()), isUsed ? "" : "N/A");
        EXPECT_TRUE(Find("clrOn").isEnabled());
    };
    expectUse(false);
    QTest::mouseClick(&Find("chkAutoOffColor"), Qt::LeftButton, {}, QPoint(8, 8));
    expectUse(true);
}

TEST_F(ThePanel, WritesAtEveryKeyAndKeepsTheCaret)
{
    QLineEdit& name = Take("txtViewName");
    QTest::keyClicks(&name, "Plnt");
    EXPECT_EQ(main.View().ViewName(), "Plnt");
    name.setCursorPosition(2);
    QTest::keyClick(&name, 'a');
    EXPECT_EQ(main.View().ViewName(), "Plant");
    EXPECT_EQ(name.cursorPosition(), 3);
    auto& model = On<TextBox>("frmCVViewProps", "txtViewName");
    name.setSelection(4, -2);
    model.Text("Plants");
    EXPECT_EQ(name.selectedText(), "an");
    EXPECT_EQ(name.cursorPosition(), 2);

    const auto& led = Insert<clsLEDRound>();
    General();
    QLineEdit& x = Take("txtX");
    QTest::keyClicks(&x, "12");
    EXPECT_EQ(led.MyControl()->Left(), 12 * 15);
    x.setCursorPosition(1);
    QTest::keyClicks(&x, "5,");
    EXPECT_EQ(Text(x.text()), "152");
    EXPECT_EQ(x.cursorPosition(), 2);
    QLineEdit& width = Take("txtWidth");
    QTest::keyClicks(&width, "2.5");
    for (int count = 0; count < 3; ++count) {
        QTest::keyClick(&width, Qt::Key_Backspace);
    }
    QLineEdit& y = Take("txtY");
    QTest::keyClicks(&y, "012.34");
    EXPECT_EQ(Text(y.text()), "012.34"); // as it is typed
    EXPECT_EQ(Text(width.text()), "2");  // nothing is no number, so the last one is back
    const float top = led.ObjTop();
    main.ReleaseControl();
    Select(led);
    EXPECT_EQ(Text(General().findChild<QLineEdit*>("txtY")->text()), "12.34"); // not with all that a twip adds
    EXPECT_EQ(led.ObjTop(), top);
}

TEST_F(ThePanel, OpensTheColourDialogWithTheColourOfTheSwatch)
{
    auto& led = Insert<clsLEDRound>();
    Lamp();
    std::vector<Color> colors;
    const Subscription watch = dialog.Shown.Subscribe([&](DialogKind) { colors.push_back(dialog.Color); });
    dialog.WillPickColor({0x123456});
    QTest::mouseClick(&Find("clrOn"), Qt::LeftButton);
    dialog.WillPickColor({0x654321});
    QTest::keyClick(&Find("cmdBrwsOnColor"), Qt::Key_Space);
    QTest::mouseClick(&Find("clrOff"), Qt::LeftButton); // it is worked out
    EXPECT_EQ(colors, (std::vector<Color>{{0x00FF00}, {0x123456}}));
    EXPECT_EQ(led.ColorActive(), Color{0x654321});
}

TEST_F(ThePanel, LeadsTheKeyboardFromTopToBottomThroughAllThatHasAName)
{
    const auto walk = [&](QWidget& page, QWidget& from) {
        std::string order;
        from.setFocus(Qt::TabFocusReason);
        for (QWidget* at = window->focusWidget(); page.isAncestorOf(at); at = window->focusWidget()) {
            order += Text(at->objectName() + "=" + at->accessibleName()) + "; ";
            QTest::keyClick(at, Qt::Key_Tab);
        }
        return order;
    };
    QWidget& view = Find("frmCVViewProps");
    QTest::mouseClick(&Find("chkBakColorDef"), Qt::LeftButton, {}, QPoint(8, 8));
    EXPECT_EQ(walk(view, Find("txtViewName")),
              "txtViewName=View Name:; txtViewCategory=Category:; clrViewBG=Back Color:; cmdBrwsBGColor=Back Color:; "
              "chkBakColorDef=Use Default; txtBGImage=File:; cmdBrwsBGFile=File:; optViewBGImageStyle(0)=Centered; ");
    auto& second = Find<QAbstractButton>("optViewBGImageStyle(1)");
    Find("optViewBGImageStyle(0)").setFocus();
    QTest::keyClick(&Find("optViewBGImageStyle(0)"), Qt::Key_Down);
    EXPECT_TRUE(second.hasFocus());
    EXPECT_EQ(main.View().BGPicMode(), 1);
    EXPECT_EQ(Text(Find("optViewBGImageStyle").accessibleName()), "Background Image");

    Insert<clsLEDRound>();
    QWidget& general = General();
    EXPECT_EQ(walk(general, Find("txtType")), "txtType=Type:; txtX=X:; txtY=Y:; txtWidth=Width:; txtHeight=Height:; ");
    QWidget& lamp = Lamp();
    EXPECT_EQ(walk(lamp, Find("cboBevelStyle")),
              "cboBevelStyle=Bevel Style:; clrOn=On Color:; cmdBrwsOnColor=On Color:; chkReflection=Show Reflection; "
              "chkAutoOffColor=Automatically determine Off Color; ");
}

TEST_F(ThePanel, ChangesTabsByTheArrows)
{
    Insert<clsLEDRound>();
    General();
    auto& general = Find<QAbstractButton>("General");
    auto& lamp = Find<QAbstractButton>("LED (Round)");
    EXPECT_EQ(general.focusPolicy(), Qt::TabFocus);
    EXPECT_EQ(lamp.focusPolicy(), Qt::NoFocus);
    general.setFocus();
    QTest::keyClick(&general, Qt::Key_Right);
    Settle();
    EXPECT_TRUE(lamp.isChecked() && lamp.hasFocus());
    EXPECT_TRUE(Find("frmCVLEDRound").isVisible());
    QTest::keyClick(&lamp, Qt::Key_Right); // there is none
    QTest::keyClick(&lamp, Qt::Key_Home);
    Settle();
    EXPECT_TRUE(general.isChecked() && general.hasFocus());
}

TEST_F(ThePanel, KeepsTheEditKeysToTextAndTheCanvasItsOwn)
{
    const auto& led = Insert<clsLEDRound>();
    const std::string name = led.ObjName();
    const auto exists = [&] {
        timers.Advance(1000);
        return main.SelectedWidget() != nullptr && main.SelectedWidget()->Tag() == name;
    };
    General();
    for (const char* field : {"txtX", "txtType"}) { // nothing of the second can be edited
        QLineEdit& edit = Take(field);
        for (const QKeySequence& keys : {QKeySequence(Qt::CTRL | Qt::Key_C), QKeySequence(Qt::CTRL | Qt::Key_X),
                                         QKeySequence(Qt::CTRL | Qt::Key_V), QKeySequence(Qt::Key_Delete)}) {
            QTest::keySequence(&edit, keys);
            EXPECT_TRUE(exists()) << field << ' ' << Text(keys.toString());
        }
    }
    QLineEdit& x = Take("txtX"); // its number was cut and pasted back
    EXPECT_EQ(Text(x.text()), "10");
    x.home(false);
    QTest::keyClick(&x, Qt::Key_Delete);
    EXPECT_EQ(led.ObjLeft(), 0);
    EXPECT_FALSE(main.abViewEdit().Tool("miPaste").Enabled()); // no element was copied
    for (QWidget* other : {&Find("General"), &Lamp(), &Find("cboBevelStyle"), &Find("chkReflection")}) {
        other->setFocus();
        QTest::keyClick(other, Qt::Key_Delete);
        EXPECT_TRUE(exists()) << Text(other->objectName());
    }
    window->Canvas().setFocus();
    QTest::keySequence(&window->Canvas(), QKeySequence(Qt::CTRL | Qt::Key_C));
    EXPECT_TRUE(main.abViewEdit().Tool("miPaste").Enabled());
    QTest::keyClick(&window->Canvas(), Qt::Key_Delete);
    EXPECT_FALSE(exists());
}

TEST_F(ThePanel, IsNotLaidOutAnewForAnotherElementOfTheKind)
{
    struct Watch : QObject {
        int moves = 0;
        bool eventFilter(QObject*, QEvent* event) override
        {
            moves += event->type() == QEvent::Move || event->type() == QEvent::Resize ? 1 : 0;
            return false;
        }
    } watch;
    const auto& first = Insert<clsLEDRound>();
    auto& second = Insert<clsLEDRound>();
    second.Set(&Element::ObjLeft, 4500);
    General();
    for (QWidget* part : Panel().findChildren<QWidget*>()) {
        part->installEventFilter(&watch);
    }
    Select(first);
    Settle();
    EXPECT_EQ(Find<QLineEdit>("txtX").text(), QString::number(first.ObjLeft() / 15));
    Select(second);
    Settle();
    EXPECT_EQ(Find<QLineEdit>("txtX").text(), "300");
    EXPECT_EQ(watch.moves, 0);
}

TEST_F(ThePanel, ScrollsWhereItIsLowAndNothingShifts)
{
    QWidget& view = Find("frmCVViewProps");
    window->resize(1000, 330);
    Settle();
    auto& area = *qobject_cast<QScrollArea*>(view.parentWidget()->parentWidget());
    EXPECT_GT(area.verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(view.width(), 320);
    EXPECT_EQ(Find("cmdBrwsBGFile").geometry().right(), 307); // as without the bar
    auto& last = Find("optViewBGImageStyle(0)");
    EXPECT_FALSE(area.viewport()->rect().contains(QRect(last.mapTo(area.viewport(), QPoint()), last.size())));
    QTest::keyClick(&Take("txtBGImage"), Qt::Key_Tab);
    QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(window->focusWidget(), &last);
    EXPECT_TRUE(area.viewport()->rect().contains(QRect(last.mapTo(area.viewport(), QPoint()), last.size())));
}

TEST_F(ThePanel, IsWidenedByItsEdgeAndFillsItsWidth)
{
    QWidget& view = Find("frmCVViewProps");
    const int height = view.heightForWidth(320);
    const auto drag = [&](int pixels) {
        auto& edge = Find("bndObjProps.edge");
        QTest::mousePress(&edge, Qt::LeftButton, {}, QPoint(1, 300));
        QTest::mouseMove(&edge, QPoint(1 - pixels, 300));
        QTest::mouseRelease(&edge, Qt::LeftButton, {}, QPoint(1, 300));
        Settle();
    };
    drag(200);
    const int width = Panel().width();
    EXPECT_NEAR(width, 520, 2);
    EXPECT_EQ(Find("txtViewName").width(), width - 128);
    EXPECT_EQ(view.heightForWidth(width), height - 3 * 26); // the options stand side by side
    const auto isAllOnScreen = [&] {
        const QPixmap shown = window->screen()->grabWindow(window->winId());
        const QRect place(Panel().mapTo(window.get(), QPoint()), Panel().size());
        return shown.copy(place).toImage().convertToFormat(QImage::Format_RGB32) ==
               Panel().grab().toImage().convertToFormat(QImage::Format_RGB32);
    };
    EXPECT_TRUE(QTest::qWaitFor(isAllOnScreen)) << "all of it was repainted";
    EXPECT_EQ(main.abViewEdit().BandOf("bndObjProps").Extent(), width) << "the layout keeps it";
    drag(-500);
    EXPECT_EQ(Panel().width(), 320);
    main.abViewEdit().BandOf("bndObjProps").SetExtent(400);
    EXPECT_EQ(Panel().width(), 400);
    QTest::mouseDClick(&Find("bndObjProps.edge"), Qt::LeftButton, {}, QPoint(1, 300));
    EXPECT_EQ(Panel().width(), 320);
}

} // namespace
