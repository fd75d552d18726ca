// Lamps are bound to what the server holds, by mouse and keys on their page.

#include "apps/tool/view_tool.h"
#include "document/view_document.h"
#include "elements/led_round.h"
#include "tests/qt/desk.h"
#include "tests/qt/test.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>

#include <nlohmann/json.hpp>

namespace {

struct TheStatusPageAtTheWindow : testing::Test {
    EditorDesk desk;

    // The element at that place, with its status page in front.
    void Select(const QPoint& at)
    {
        desk.Click(at);
        for (auto* tab : desk.Window().findChildren<QAbstractButton*>()) {
            if (tab->isVisible() && tab->text() == QStringLiteral("Status Data")) {
                QTest::mouseClick(tab, Qt::LeftButton);
                desk.Settle();
                return;
            }
        }
        FAIL() << "there is no page for the status";
    }

    QComboBox& List(const char* name)
    {
        auto* page = desk.Window().findChild<QWidget*>(QStringLiteral("frmCVBlnDataSource"));
        auto* list = page == nullptr ? nullptr : page->findChild<QComboBox*>(QString::fromLatin1(name));
        EXPECT_TRUE(list != nullptr && list->isVisible()) << name;
        return *list;
    }

    // Opens the list by a click and goes down to the row by keys.
    void Pick(const char* name, const QString& row)
    {
        QComboBox& list = List(name);
        QTest::mouseClick(&list, Qt::LeftButton);
        for (int steps = 0; steps < list.count() && list.view()->currentIndex().data().toString() != row; ++steps) {
            QTest::keyClick(list.view(), Qt::Key_Down);
        }
        QTest::keyClick(list.view(), Qt::Key_Return);
        desk.Settle();
        EXPECT_EQ(list.currentText(), row) << name;
    }

    bool IsLit(const char* element)
    {
        const Element& led = desk.Main().View().CollectionOf(clsLEDRound::type).Item(std::string_view(element));
        return static_cast<const RoundLed&>(*led.MyControl()).Active();
    }

    nlohmann::json Dump(const QString& path)
    {
        DiskFiles files;
        std::ostringstream out;
        std::ostringstream errors;
        const std::vector<std::string> words = {"dump", path.toStdString()};
        EXPECT_EQ(ViewTool(files, out, errors).Run(words), 0) << errors.str();
        return nlohmann::json::parse(out.str());
    }
};

TEST_F(TheStatusPageAtTheWindow, BindsLampsToAChannelAMacroAndAnAlarm)
{
    for (const int x : {101, 203, 304}) {
        desk.DragTool(3, {x, 98});
    }
    Select({105, 105});
    Pick("cboDataType", "Status Channel");
    Pick("cboSite", "North Ridge");
    Pick("cboUnit", "Building");
    Pick("cboChan", "3 - On generator / Mains present");
    QTest::mouseClick(desk.Window().findChild<QAbstractButton*>("optTmpStatus(0)"), Qt::LeftButton);
    EXPECT_TRUE(IsLit("LED (Round) 1"));
    EXPECT_FALSE(IsLit("LED (Round) 2"));

    Select({205, 105});
    Pick("cboDataType", "Macro Status");
    Pick("cboSite", "North Ridge");
    Pick("cboUnit", "Antenna");
    Pick("cboMacro", "7 - Night pattern");

    Select({305, 105});
    Pick("cboDataType", "Alarm");
    Pick("cboSite", "Harbour");
    Pick("cboUnit", "Pumps");

    desk.MeetAndType(desk.PathOf("lamps.qvw"));
    desk.Choose("miSave");
    EXPECT_EQ(desk.Met().size(), 1);
    const nlohmann::json view = Dump(desk.PathOf("lamps.qvw"));
    const char* sources[] = {R"({"BlnDataType": 18, "Unit": 1, "Channel": 3, "Site": "North Ridge"})",
                             R"({"BlnDataType": 17, "Unit": 3, "Channel": 7, "Site": "North Ridge"})",
                             R"({"BlnDataType": 9, "Unit": 2, "Channel": 0, "Site": "Harbour"})"};
    ASSERT_EQ(view["Elements"].size(), std::size(sources));
    for (std::size_t index = 0; index < std::size(sources); ++index) {
        EXPECT_EQ(view["Elements"][index]["BlnDataSource"], nlohmann::json::parse(sources[index]));
    }
}

} // namespace
