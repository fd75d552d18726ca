// Where the parts of the property panel stand, in any width and height.

#include "qt/window/panel_tabs.h"
#include "tests/qt/panel_fixture.h"
#include "tests/qt/test.h"

#include <QAbstractButton>
#include <QFontInfo>
#include <QLabel>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

namespace {

// What the part looks like, and what of it is on the screen.
QImage PictureOf(QWidget& part)
{
    return part.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

QImage OnScreen(const QWidget& part)
{
    const QWidget& window = *part.window();
    const QRect place(part.mapTo(&window, QPoint()), part.size());
    const QPixmap shown = window.screen()->grabWindow(window.winId());
    return shown.copy(place).toImage().convertToFormat(QImage::Format_RGB32);
}

TEST(PanelTabsOf320Pixels, FlowWithoutClippingInAnyFont)
{
    const struct {
        QStringList captions;
        int rows;
    } panels[] = {
        {{"Custom View Settings"}, 1},
        {{"General", "Meter (Text)", "Meter Data", "Action"}, 1},
        {{"General", "Meter (Angular)", "Positions and Colors", "Meter Data", "Action"}, 2},
        {{"General", "Meter (Linear)", "Positions and Colors", "Meter Data", "Action"}, 2},
        {{"General", "LED (Round)", "Status Data", "Action"}, 1},
        {{"General", "LED (Rectangular)", "Status Data", "Action"}, 2},
        {{"General", "Status Label", "Status Data", "Action"}, 1},
        {{"General", "Status Picture", "Status Data", "Action"}, 1},
        {{"General", "Command and LED", "Status Data", "Action"}, 2},
        {{"General", "Picture", "Action"}, 1},
    };
    for (const char* family : {"Inter", "DejaVu Sans"}) {
        QFont font(family);
        font.setPixelSize(12);
        PanelTabs tabs([](int) {});
        tabs.setFont(font);
        tabs.resize(320, 10);
        for (const auto& panel : panels) {
            SCOPED_TRACE(family + Text(" " + panel.captions.join(", ")));
            tabs.Show(panel.captions, 1);
            QRect before(-1, 2, 0, 26);
            int rows = 1;
            for (const QString& caption : panel.captions) {
                const auto* tab = tabs.findChild<QAbstractButton*>(caption);
                ASSERT_NE(tab, nullptr);
                const QRect place = tab->geometry();
                EXPECT_EQ(place.size(), QSize(QFontMetrics(font).horizontalAdvance(caption) + 16, 26));
                EXPECT_LE(place.right(), 311);
                if (place.y() == before.y()) {
                    EXPECT_EQ(place.x(), before.x() < 0 ? 8 : before.right() + 3);
                } else {
                    EXPECT_EQ(place.topLeft(), QPoint(8, before.y() + 28));
                    EXPECT_GT(before.right() + 3 + place.width(), 312); // there was no room for it
                    ++rows;
                }
                before = place;
            }
            if (QFontInfo(font).family() == "Inter") { // others may be wider
                EXPECT_EQ(rows, panel.rows);
            }
            EXPECT_EQ(tabs.height(), 2 + 28 * rows + 6);
        }
    }
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

TEST_F(ThePanel, StandsToTheMeasures)
{
    const auto expect = [](QWidget& page, const std::map<std::string, QRect>& places) {
        for (const auto& [name, place] : places) {
            const auto* part = page.findChild<QWidget*>(QString::fromStdString(name));
            ASSERT_NE(part, nullptr) << name;
            EXPECT_EQ(part->geometry(), place) << Text(page.objectName()) << '.' << name;
        }
        for (const QLabel* label : page.findChildren<QLabel*>()) {
            if (label->objectName().startsWith("lblViewProps") && label->x() == 12) {
                EXPECT_LE(label->width(), 96) << Text(label->text());
            }
        }
    };
    QWidget& view = Find("frmCVViewProps");
    expect(view, {{"txtViewName", {116, 12, 192, 24}},
                  {"txtViewCategory", {116, 42, 192, 24}},
                  {"txtBGImage", {116, 142, 160, 24}},
                  {"cmdBrwsBGFile", {280, 142, 28, 24}},
                  {"fraViewBGImageStyle", {12, 108, 296, 31}},
                  {"optViewBGImageStyle", {116, 169, 192, 4 * 26}}});
    // The box takes what room its caption needs from the swatch.
    EXPECT_GE(Find("clrViewBG").width(), 40);
    EXPECT_LE(Find("chkBakColorDef").geometry().right(), 307);
    EXPECT_EQ(Find("chkBakColorDef").x(), Find("cmdBrwsBGColor").geometry().right() + 9);

    Insert<clsLEDRound>();
    expect(General(), {{"txtType", {116, 12, 192, 24}},
                       {"txtX", {116, 42, 80, 24}},
                       {"txtY", {116, 72, 80, 24}},
                       {"txtWidth", {116, 102, 80, 24}},
                       {"txtHeight", {116, 132, 80, 24}}});
    for (const char* unit : {"lblViewProps(1)", "lblViewProps(3)", "lblViewProps(5)", "lblViewProps(7)"}) {
        const auto* label = General().findChild<QLabel*>(unit);
        ASSERT_NE(label, nullptr) << unit;
        EXPECT_EQ(Text(label->text()), "(pixels)");
        EXPECT_EQ(label->x(), 204);
    }
    expect(Lamp(), {{"cboBevelStyle", {116, 12, 192, 24}},
                    {"clrOn", {116, 42, 56, 24}},
                    {"cmdBrwsOnColor", {176, 42, 28, 24}},
                    {"clrOff", {116, 72, 56, 24}},
                    {"cmdBrwsOffColor", {176, 72, 28, 24}}});
    EXPECT_EQ(Find("chkReflection").pos(), QPoint(116, 104));
    EXPECT_EQ(Find("chkAutoOffColor").pos(), QPoint(12, 130)); // its caption is too long for the column
}

TEST_F(ThePanel, ScrollsWhereItIsLowAndNothingShifts)
{
    QWidget& view = Find("frmCVViewProps");
    window->resize(1000, 330);
    Settle();
    auto& area = *qobject_cast<QScrollArea*>(view.parentWidget()->parentWidget());
    EXPECT_GT(area.verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(view.width(), 320);
    EXPECT_EQ(Find("cmdBrwsBGFile").geometry(), QRect(280, 142, 28, 24));
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
    EXPECT_TRUE(QTest::qWaitFor([&] { return OnScreen(Panel()) == PictureOf(Panel()); })); // all of it was repainted
    EXPECT_EQ(main.abViewEdit().BandOf("bndObjProps").Extent(), width) << "the layout keeps it";
    drag(-500);
    EXPECT_EQ(Panel().width(), 320);
    main.abViewEdit().BandOf("bndObjProps").SetExtent(400);
    EXPECT_EQ(Panel().width(), 400);
    QTest::mouseDClick(&Find("bndObjProps.edge"), Qt::LeftButton, {}, QPoint(1, 300));
    EXPECT_EQ(Panel().width(), 320);
}

} // namespace
