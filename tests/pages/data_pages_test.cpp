#include "elements/led_round.h"
#include "elements/meter_text.h"
#include "tests/editor/editor_fixture.h"
#include "tests/support/fake_server.h"

namespace quor {
namespace {

struct ADataPage : EditorFixture {
    FakeServer server;
    clsLEDRound* led = nullptr;

    // "Ridge" is held, "Listed" stands in the catalogue alone, "Gone" nowhere.
    void SetUp() override
    {
        FakeUnit& unit = server.Add("Ridge").Add(3);
        unit.name = "Antenna";
        unit.Field(2, 0) = "Power";
        unit.Field(2, 8) = "Closed";
        unit.Field(2, 9) = "Open";
        unit.Field(3, 9) = "Hot";
        unit.Field(2, 11) = "Raise";
        unit.macros[4] = "Warm up";
        server.catalog.emplace_back("Listed");
        live.Server = &server;
        live.Catalog = &server;
        EditorFixture::SetUp();
        led = &Insert<clsLEDRound>();
    }

    std::string Row(std::string_view page, std::string_view list, std::size_t index) const
    {
        return On<ListBox>(page, list).Items().at(index);
    }

    std::string Shown(std::string_view page) const
    {
        std::string names;
        for (const char* list :
             {"cboSite", "cboUnit", "cboChan", "cboChannel", "cboLimitType", "cboMacro", "txtCustView"}) {
            const Form& form = *main.Panel().FindPage(page);
            for (const std::unique_ptr<Control>& control : form.Controls()) {
                names += control->Name() == list && control->Visible() ? std::string(list) + " " : "";
            }
        }
        return names;
    }
};

struct TheStatusPage : ADataPage {
    static constexpr std::string_view page = "frmCVBlnDataSource";

    // Writes the source and shows it on the page; what it holds then.
    std::string ShownSource(std::int32_t type, const std::string& site)
    {
        clsBlnDataSource& source = led->BlnDataSource;
        source.Set(&clsBlnDataSource::BlnDataType, type);
        source.Set(&clsBlnDataSource::Site, site);
        source.Set(&clsBlnDataSource::Unit, 3);
        source.Set(&clsBlnDataSource::Channel, 2);
        main.Panel().FindPage(page)->SetOwner(*led, "ctlLEDRound");
        return std::to_string(source.BlnDataType()) + " " + source.Site() + " " + std::to_string(source.Unit()) + " " +
               std::to_string(source.Channel());
    }
};

TEST_F(TheStatusPage, ShowsEachKindAndLeavesItAsItWas)
{
    const char* const shown[] = {
        "",
        "cboSite cboUnit cboChan cboLimitType ",
        "cboSite cboUnit cboChan cboLimitType ",
        "cboSite cboUnit cboChan cboLimitType ",
        "cboSite cboUnit cboChan cboLimitType ",
        "cboSite cboUnit cboChan cboLimitType ",
        "cboSite ",
        "cboSite ",
        "cboSite cboUnit ",
        "cboSite cboUnit ",
        "cboSite ",
        "cboSite cboUnit cboChan ",
        "cboSite cboUnit cboChan ",
        "cboSite cboUnit cboChan ",
        "cboSite cboUnit cboChan ",
        "cboSite cboUnit ",
        "cboSite cboUnit ",
        "cboSite cboUnit cboMacro ",
        "cboSite cboUnit cboChan ",
    };
    for (const char* site : {"Ridge", "Listed"}) {
        for (std::int32_t type = 0; type < 19; ++type) {
            // "All Units" stands first, so the unit of type 9 moves down by one each time.
            const std::string expected =
                std::to_string(type) + " " + site + (type == watch::unitAlarms ? " 2 2" : " 3 2");
            EXPECT_EQ(ShownSource(type, site), expected);
            EXPECT_EQ(Shown(page), shown[type]) << "type " << type;
        }
    }
}

TEST_F(TheStatusPage, LosesTheSiteOfALimitThatTheCatalogueDoesNotList)
{
    for (std::int32_t type = 1; type < 19; ++type) {
        const bool isLimit = type <= watch::outsideLimits;
        if (isLimit) {
            reporter.Announce(Ref("frmCVBlnDataSource.cboLimitType"));
        }
        EXPECT_EQ(ShownSource(type, "Gone"), std::to_string(type) + (isLimit ? "  3 2" : " Gone 3 2"));
    }
    EXPECT_EQ(reporter.reports.back().message, "Unable to set limit type.");
}

TEST_F(TheStatusPage, WritesAMeterLimitOnlyWithItsType)
{
    On<ListBox>(page, "cboDataType").Choose(4);
    On<ListBox>(page, "cboSite").Choose(0);
    EXPECT_EQ(Row(page, "cboUnit", 3), "Antenna");
    On<ListBox>(page, "cboUnit").Choose(3);
    EXPECT_EQ(Row(page, "cboChan", 0), "1");
    EXPECT_EQ(Row(page, "cboChan", 1), "2 - Power");
    On<ListBox>(page, "cboChan").Choose(1);
    EXPECT_EQ(led->BlnDataSource.BlnDataType(), 0) << "the channel alone is lost";
    On<ListBox>(page, "cboLimitType").Choose(4);
    EXPECT_EQ(led->BlnDataSource.BlnDataType(), watch::aboveSecondUpper);
    EXPECT_EQ(led->BlnDataSource.Channel(), 2);
    On<ListBox>(page, "cboChan").Choose(7);
    EXPECT_EQ(led->BlnDataSource.Channel(), 2);
}

TEST_F(TheStatusPage, ListsChannelsWithTheTextsThatThereAre)
{
    On<ListBox>(page, "cboDataType").Choose(1);
    On<ListBox>(page, "cboSite").Choose(0);
    On<ListBox>(page, "cboUnit").Choose(3);
    EXPECT_EQ(Row(page, "cboChan", 0), "1");
    EXPECT_EQ(Row(page, "cboChan", 1), "2 - Closed / Open");
    EXPECT_EQ(Row(page, "cboChan", 2), "3 - Hot");
    On<ListBox>(page, "cboDataType").Choose(2);
    On<ListBox>(page, "cboSite").Choose(0);
    On<ListBox>(page, "cboUnit").Choose(3);
    EXPECT_EQ(Row(page, "cboChan", 2), "2 - Raise");
    EXPECT_EQ(Row(page, "cboChan", 3), "2 - B");
    On<ListBox>(page, "cboChan").Choose(5);
    EXPECT_EQ(led->BlnDataSource.BlnDataType(), watch::commandB);
    EXPECT_EQ(led->BlnDataSource.Channel(), 3);
}

TEST_F(TheStatusPage, ShowsEitherStatusInTheDesigner)
{
    EXPECT_EQ(On<OptionArray>(page, "optTmpStatus").Index(), 1);
    On<OptionArray>(page, "optTmpStatus").Choose(0);
    EXPECT_TRUE(dynamic_cast<const RoundLed*>(led->MyControl())->Active());
    Insert<clsLEDRound>();
    EXPECT_EQ(On<OptionArray>(page, "optTmpStatus").Index(), 1);
    Select(*led);
    EXPECT_EQ(On<OptionArray>(page, "optTmpStatus").Index(), 0);
}

struct TheActionPage : ADataPage {
    static constexpr std::string_view page = "frmCVCmdDataSource";

    std::string ShownSource(std::int32_t type, std::uint8_t unit, std::uint8_t channel)
    {
        clsCmdDataSource& source = led->ClickAction;
        source.Set(&clsCmdDataSource::CmdDataType, type);
        source.Set(&clsCmdDataSource::Site, "Ridge");
        source.Set(&clsCmdDataSource::Unit, unit);
        source.Set(&clsCmdDataSource::Channel, channel);
        main.Panel().FindPage(page)->SetOwner(*led, "ctlLEDRound");
        return std::to_string(source.CmdDataType()) + " " + source.Site() + " " + std::to_string(source.Unit()) + " " +
               std::to_string(source.Channel());
    }
};

TEST_F(TheActionPage, ShowsEachActionAndMovesTwoOfThem)
{
    const std::pair<const char*, const char*> expected[] = {
        {"0 Ridge 3 2", ""},
        {"1 Ridge 3 2", "cboSite cboUnit cboChannel "},
        {"2 Ridge 3 2", "cboSite cboUnit cboChannel "},
        {"3 Ridge 3 2", "cboSite cboUnit cboChannel "},
        {"4 Ridge 3 3", "cboSite cboUnit cboChannel "}, // the macro moves up at each showing
        {"5 Ridge 3 2", "cboSite cboUnit cboChannel "},
        {"6 Ridge 3 2", "cboSite cboUnit "},
        {"7 Ridge 2 2", "cboSite cboUnit "}, // the unit moves down, for "All Units" stands first
        {"8 Ridge 3 2", "cboSite "},
        {"9 Ridge 3 2", "txtCustView "},
    };
    for (std::int32_t type = 0; type < 10; ++type) {
        EXPECT_EQ(ShownSource(type, 3, 2), expected[type].first);
        EXPECT_EQ(Shown(page), expected[type].second) << type;
    }
    EXPECT_EQ(ShownSource(actions::clearUnitAlarms, 0, 2), "6 Ridge 0 2");
    EXPECT_THROW(ShownSource(actions::stopMacro, 3, 32), Failure) << "there is no row for it";
}

TEST_F(TheActionPage, TakesTheFirstRowOfStopMacroForAllMacros)
{
    On<ListBox>(page, "cboAction").Choose(3);
    On<ListBox>(page, "cboSite").Choose(0);
    On<ListBox>(page, "cboUnit").Choose(3);
    EXPECT_EQ(Row(page, "cboChannel", 0), "1 - Macro 1");
    EXPECT_EQ(Row(page, "cboChannel", 4), "5 - Warm up");
    EXPECT_EQ(On<Label>(page, "lblChannel").Caption(), "Macro:");
    On<ListBox>(page, "cboChannel").Choose(0);
    EXPECT_EQ(led->ClickAction.CmdDataType(), actions::stopAllMacros);
    On<ListBox>(page, "cboChannel").Choose(4);
    EXPECT_EQ(led->ClickAction.CmdDataType(), actions::stopMacro);
    EXPECT_EQ(led->ClickAction.Channel(), 5);
    On<CheckBox>(page, "chkCtrlClick").Toggle();
    EXPECT_TRUE(led->ClickAction.CtrlClick());
}

TEST_F(TheActionPage, KeepsThePathOfTheViewInTheSite)
{
    On<ListBox>(page, "cboAction").Choose(5);
    dialog.WillOpen("plant.qvw");
    On<Button>(page, "cmdBrwsViews").Push();
    EXPECT_EQ(led->ClickAction.Site(), "plant.qvw");
    EXPECT_EQ(led->ClickAction.CmdDataType(), actions::openView);
}

TEST_F(ADataPage, OfAMeterLosesUnitAndChannelWithItsSite)
{
    auto& meter = Insert<clsMeterText>();
    auto& page = *main.Panel().FindPage("frmCVMtrDataSource");
    clsMtrDataSource& source = meter.MtrDataSource;
    source.Set(&clsMtrDataSource::Site, "Ridge");
    source.Set(&clsMtrDataSource::Unit, 3);
    source.Set(&clsMtrDataSource::Channel, 2);
    source.Set(&clsMtrDataSource::DecimalPlaces, 3);
    page.SetOwner(meter, "ctlMeterText");
    EXPECT_EQ(Row("frmCVMtrDataSource", "cboChan", 1), "2 - Power");
    EXPECT_EQ(source.Channel(), 2);
    EXPECT_EQ(On<ListBox>("frmCVMtrDataSource", "cboDec").ListIndex(), 3);
    On<ListBox>("frmCVMtrDataSource", "cboSite").Choose(1);
    EXPECT_EQ(source.Site(), "Listed");
    EXPECT_EQ(source.Unit(), 255);
    EXPECT_EQ(source.Channel(), 0);
    EXPECT_THROW(page.SetOwner(meter, "ctlMeterText"), Failure) << "no row is unit 255";
}

} // namespace
} // namespace quor
