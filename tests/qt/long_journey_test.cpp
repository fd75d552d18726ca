// A whole day's work at the real window: a panel is composed, restyled, saved and opened again by the next start.

#include "tests/qt/desk.h"

#include "document/view_document.h"
#include "elements/led_round.h"
#include "tests/qt/test.h"

#include <QAbstractButton>
#include <QColorDialog>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QStandardPaths>

namespace {

constexpr int roundLed = 3;
constexpr int rectLed = 4;

QPoint PlaceOf(int lamp)
{
    return {100 + 60 * (lamp % 4), 100 + 50 * (lamp / 4)};
}

template <class W = QWidget> W& Part(EditorDesk& desk, const char* name)
{
    W* found = desk.Window().findChild<W*>(name);
    if (found == nullptr) {
        throw std::runtime_error(name);
    }
    return *found;
}

void ShowPage(EditorDesk& desk, const char* caption)
{
    QTest::mouseClick(&Part(desk, caption), Qt::LeftButton);
    desk.Settle();
}

void Type(EditorDesk& desk, const char* field, const char* text)
{
    auto& edit = Part<QLineEdit>(desk, field);
    QTest::mouseClick(&edit, Qt::LeftButton);
    edit.selectAll();
    QTest::keyClicks(&edit, text);
    desk.Settle();
}

QColor PixelAt(EditorDesk& desk, const QPoint& place)
{
    return desk.Window().Canvas().viewport()->grab().toImage().pixelColor(place);
}

void RestyleLamp(EditorDesk& desk, int lamp)
{
    desk.Click(PlaceOf(lamp) + QPoint(8, 8));
    ShowPage(desk, "LED (Round)");
    Part<QComboBox>(desk, "cboBevelStyle").setFocus();
    QTest::keyClick(&Part(desk, "cboBevelStyle"), Qt::Key_Home); // None
    const QColor before = PixelAt(desk, PlaceOf(lamp) + QPoint(8, 13));
    desk.Meet([](QWidget& dialog) {
        auto& colors = dynamic_cast<QColorDialog&>(dialog);
        colors.setCurrentColor(QColor(0xC02020));
        colors.accept();
    });
    QTest::mouseClick(&Part(desk, "clrOn"), Qt::LeftButton);
    EXPECT_EQ(desk.Met().size(), 1);
    EXPECT_NE(PixelAt(desk, PlaceOf(lamp) + QPoint(8, 13)), before) << "the unlit colour follows the lit one at once";
}

void SetPitch(EditorDesk& desk, const char* pixels)
{
    desk.Meet([pixels](QWidget& dialog) {
        auto* size = dialog.findChild<QLineEdit*>("txtGridSize");
        size->selectAll();
        QTest::keyClicks(size, pixels);
        dialog.findChild<QAbstractButton*>("cmdOK")->click();
    });
    desk.Choose("miOptions");
    EXPECT_EQ(desk.Met().size(), 1);
}

void TakeNewOffTheToolbar(EditorDesk& desk)
{
    desk.Meet([](QWidget& dialog) {
        auto* toolbar = dialog.findChild<QListWidget*>("lstToolbar");
        toolbar->setCurrentRow(0);
        QTest::keyClick(toolbar, Qt::Key_Return);
        dialog.findChild<QAbstractButton*>("cmdOK")->click();
    });
    desk.Choose("miCustomize");
    EXPECT_EQ(desk.Met().size(), 1);
}

TEST(Window, APanelOfTwelveLampsIsComposedAndStandsAtTheNextStart)
{
    const QString layout = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/quor";
    QByteArray file;
    QStringList drawn;
    QStringList toolbar;
    {
        EditorDesk desk;
        for (int lamp = 0; lamp < 12; ++lamp) {
            desk.DragTool(roundLed, PlaceOf(lamp) + QPoint(1, 1));
        }
        desk.DragTool(rectLed, {401, 101});
        ASSERT_EQ(desk.Elements().size(), 13);
        RestyleLamp(desk, 0);
        RestyleLamp(desk, 5);

        desk.Click(PlaceOf(1) + QPoint(8, 8));
        ShowPage(desk, "General");
        Type(desk, "txtX", "333");
        Type(desk, "txtY", "41");
        Type(desk, "txtWidth", "30");
        EXPECT_EQ(desk.Elements().at(1), "LED (Round) 2 333,41 30x17");

        SetPitch(desk, "20");
        desk.Drag(PlaceOf(2) + QPoint(5, 5), PlaceOf(2) + QPoint(38, 71));
        EXPECT_EQ(desk.Elements().at(2), "LED (Round) 3 260,160 17x17");

        desk.Click({405, 105});
        desk.Choose("miSendBack");
        EXPECT_EQ(desk.Elements().first(), "LED (Rectangular) 1 400,100 105x25");

        desk.Click(PlaceOf(11) + QPoint(8, 8));
        desk.Key(Qt::Key_X, Qt::ControlModifier);
        EXPECT_EQ(desk.Elements().size(), 12);
        desk.Key(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(desk.Elements().last(), "LED (Round) 12 0,0 17x17");

        TakeNewOffTheToolbar(desk);
        toolbar = desk.Toolbar();
        EXPECT_EQ(toolbar.first(), "miOpen");
        drawn = desk.Elements();
        desk.MeetAndType(desk.PathOf("twelve.qvw"));
        desk.Key(Qt::Key_S, Qt::ControlModifier);
        EXPECT_EQ(desk.Met().size(), 1);
        QFile saved(desk.PathOf("twelve.qvw"));
        ASSERT_TRUE(saved.open(QFile::ReadOnly));
        file = saved.readAll();
        EXPECT_TRUE(desk.Window().close());
        EXPECT_TRUE(desk.HasEnded());
    }
    {
        EditorDesk desk;
        EXPECT_EQ(desk.Toolbar(), toolbar);
        EXPECT_EQ(desk.Main().Grid().Size(), 20);
        QFile copy(desk.PathOf("twelve.qvw"));
        ASSERT_TRUE(copy.open(QFile::WriteOnly));
        copy.write(file);
        copy.close();
        desk.MeetAndType(desk.PathOf("twelve.qvw"));
        desk.Key(Qt::Key_O, Qt::ControlModifier);
        EXPECT_EQ(desk.Met().size(), 1);
        EXPECT_EQ(desk.Elements(), drawn);
        const auto& restyled =
            dynamic_cast<const clsLEDRound&>(desk.Main().View().CollectionOf(roundLed).Item("LED (Round) 6"));
        EXPECT_EQ(restyled.ColorActive(), (Color{0x2020C0}));
        EXPECT_EQ(restyled.BevelStyle(), bevels::none);
        SetPitch(desk, "10"); // the settings outlive the test
    }
    EXPECT_TRUE(QDir(layout).removeRecursively());
}

} // namespace
