#include "elements/led_round.h"
#include "elements/meter_text.h"
#include "tests/editor/editor_fixture.h"
#include "tests/support/fake_server.h"

namespace quor {
namespace {

constexpr const char* statusPage = "frmCVBlnDataSource";
constexpr const char* actionPage = "frmCVCmdDataSource";
constexpr const char* meterPage = "frmCVMtrDataSource";

struct ADataPage : EditorFixture {
    FakeServer server;
    FakeUnit* antenna = nullptr;
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
        antenna = &unit;
        EditorFixture::SetUp();
        led = &Insert<clsLEDRound>();
    }

    using EditorFixture::Insert;

    // A new element that has the page, selected.
    Element& Insert(std::string_view page)
    {
        return page == meterPage ? static_cast<Element&>(Insert<clsMeterText>()) : Insert<clsLEDRound>();
    }

    static std::string SourceOf(const Element& element, std::string_view page)
    {
        const auto place = [](const auto& source) {
            return source.Site() + " " + std::to_string(source.Unit()) + " " + std::to_string(source.Channel());
        };
        if (page == meterPage) {
            const clsMtrDataSource& source = dynamic_cast<const clsMeterText&>(element).MtrDataSource;
            return place(source) + " " + std::to_string(source.DecimalPlaces());
        }
        const clsBlnDataSource& source = dynamic_cast<const clsLEDRound&>(element).BlnDataSource;
        return page == statusPage
                   ? std::to_string(source.BlnDataType()) + " " + place(source)
                   : std::to_string(element.ClickAction.CmdDataType()) + " " + place(element.ClickAction);
    }

    // Which of the controls that come and go are visible.
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
    // Writes the source and shows it on the page; what it holds then.
    std::string ShownSource(std::int32_t type, const std::string& site)
    {
        clsBlnDataSource& source = led->BlnDataSource;
        source.Set(&clsBlnDataSource::BlnDataType, type);
        source.Set(&clsBlnDataSource::Site, site);
        source.Set(&clsBlnDataSource::Unit, 3);
        source.Set(&clsBlnDataSource::Channel, 2);
        main.Panel().FindPage(statusPage)->SetOwner(*led, "ctlLEDRound");
        return SourceOf(*led, statusPage);
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
            EXPECT_EQ(Shown(statusPage), shown[type]) << "type " << type;
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

TEST_F(TheStatusPage, ShowsEitherStatusInTheDesigner)
{
    EXPECT_EQ(On<OptionArray>(statusPage, "optTmpStatus").Index(), 1);
    On<OptionArray>(statusPage, "optTmpStatus").Choose(0);
    EXPECT_TRUE(dynamic_cast<const RoundLed*>(led->MyControl())->Active());
    Insert<clsLEDRound>();
    EXPECT_EQ(On<OptionArray>(statusPage, "optTmpStatus").Index(), 1);
    Select(*led);
    EXPECT_EQ(On<OptionArray>(statusPage, "optTmpStatus").Index(), 0);
}

struct TheActionPage : ADataPage {
    std::string ShownSource(std::int32_t type, std::uint8_t unit, std::uint8_t channel)
    {
        clsCmdDataSource& source = led->ClickAction;
        source.Set(&clsCmdDataSource::CmdDataType, type);
        source.Set(&clsCmdDataSource::Site, "Ridge");
        source.Set(&clsCmdDataSource::Unit, unit);
        source.Set(&clsCmdDataSource::Channel, channel);
        main.Panel().FindPage(actionPage)->SetOwner(*led, "ctlLEDRound");
        return SourceOf(*led, actionPage);
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
        EXPECT_EQ(Shown(actionPage), expected[type].second) << type;
    }
    EXPECT_EQ(ShownSource(actions::clearUnitAlarms, 0, 2), "6 Ridge 0 2");
    EXPECT_THROW(ShownSource(actions::stopMacro, 3, 32), Failure) << "there is no row for it";
}

TEST_F(ADataPage, OfAMeterHasNoRowForTheUnitThatItsSiteHasLost)
{
    auto& meter = Insert<clsMeterText>();
    auto& page = *main.Panel().FindPage("frmCVMtrDataSource");
    clsMtrDataSource& source = meter.MtrDataSource;
    source.Set(&clsMtrDataSource::Site, "Ridge");
    source.Set(&clsMtrDataSource::Unit, 3);
    source.Set(&clsMtrDataSource::Channel, 2);
    source.Set(&clsMtrDataSource::DecimalPlaces, 3);
    page.SetOwner(meter, "ctlMeterText");
    EXPECT_EQ(source.Channel(), 2);
    EXPECT_EQ(On<ListBox>("frmCVMtrDataSource", "cboDec").ListIndex(), 3);
    On<ListBox>("frmCVMtrDataSource", "cboSite").Choose(1);
    EXPECT_EQ(source.Unit(), 255);
    EXPECT_THROW(page.SetOwner(meter, "ctlMeterText"), Failure) << "no row is unit 255";
}

// What the user picks, by the texts of the rows, and what the source holds then: type, site, unit and channel, of a
// meter site, unit, channel and decimal places. Each row begins with a new element.
struct PickedRow {
    const char* page;
    std::vector<std::pair<const char*, const char*>> picks;
    const char* source;
};

const PickedRow pickedRows[] = {
    {statusPage,
     {{"cboDataType", "Status Channel"},
      {"cboSite", "Ridge"},
      {"cboUnit", "Antenna"},
      {"cboChan", "2 - Closed / Open"}},
     "18 Ridge 3 2"},
    {statusPage,
     {{"cboDataType", "Status Channel"}, {"cboSite", "Ridge"}, {"cboUnit", "Antenna"}, {"cboChan", "3 - Hot"}},
     "18 Ridge 3 3"},
    {statusPage,
     {{"cboDataType", "Status Channel"}, {"cboSite", "Ridge"}, {"cboUnit", "Unit 1"}, {"cboChan", "16"}},
     "18 Ridge 1 16"},
    {statusPage,
     {{"cboDataType", "Command State"}, {"cboSite", "Ridge"}, {"cboUnit", "Antenna"}, {"cboChan", "2 - Raise"}},
     "11 Ridge 3 2"},
    {statusPage,
     {{"cboDataType", "Command State"}, {"cboSite", "Ridge"}, {"cboUnit", "Antenna"}, {"cboChan", "3 - B"}},
     "12 Ridge 3 3"},
    {statusPage,
     {{"cboDataType", "Command State"}, {"cboSite", "Listed"}, {"cboUnit", "Unit 15"}, {"cboChan", "16 - A"}},
     "11 Listed 15 16"},
    {statusPage,
     {{"cboDataType", "Macro Status"}, {"cboSite", "Ridge"}, {"cboUnit", "Antenna"}, {"cboMacro", "5 - Warm up"}},
     "17 Ridge 3 5"},
    {statusPage,
     {{"cboDataType", "Macro Status"}, {"cboSite", "Listed"}, {"cboUnit", "Unit 0"}, {"cboMacro", "32 - Macro 32"}},
     "17 Listed 0 32"},
    {statusPage,
     {{"cboDataType", "Meter Limit"}, {"cboSite", "Ridge"}, {"cboUnit", "Antenna"}, {"cboChan", "2 - Power"}},
     "0  0 0"},
    {statusPage,
     {{"cboDataType", "Meter Limit"},
      {"cboSite", "Ridge"},
      {"cboUnit", "Antenna"},
      {"cboChan", "2 - Power"},
      {"cboLimitType", "Any"}},
     "5 Ridge 3 2"},
    {statusPage,
     {{"cboDataType", "Meter Limit"},
      {"cboSite", "Ridge"},
      {"cboUnit", "Antenna"},
      {"cboChan", "2 - Power"},
      {"cboLimitType", "Second Lower"}},
     "1 Ridge 3 2"},
    {statusPage,
     {{"cboDataType", "Meter Limit"},
      {"cboSite", "Ridge"},
      {"cboUnit", "Antenna"},
      {"cboChan", "2 - Power"},
      {"cboLimitType", "First Lower"}},
     "2 Ridge 3 2"},
    {statusPage,
     {{"cboDataType", "Meter Limit"},
      {"cboSite", "Ridge"},
      {"cboUnit", "Antenna"},
      {"cboChan", "2 - Power"},
      {"cboLimitType", "First Upper"}},
     "3 Ridge 3 2"},
    {statusPage,
     {{"cboDataType", "Meter Limit"},
      {"cboSite", "Ridge"},
      {"cboUnit", "Antenna"},
      {"cboChan", "2 - Power"},
      {"cboLimitType", "Second Upper"}},
     "4 Ridge 3 2"},
    {statusPage, {{"cboDataType", "Alarm"}, {"cboSite", "All Sites"}}, "10  0 0"},
    {statusPage, {{"cboDataType", "Alarm"}, {"cboSite", "Ridge"}}, "0  0 0"},
    {statusPage, {{"cboDataType", "Alarm"}, {"cboSite", "Ridge"}, {"cboUnit", "All Units"}}, "8 Ridge 0 0"},
    {statusPage, {{"cboDataType", "Alarm"}, {"cboSite", "Ridge"}, {"cboUnit", "Unit 0"}}, "9 Ridge 0 0"},
    {statusPage, {{"cboDataType", "Alarm"}, {"cboSite", "Ridge"}, {"cboUnit", "Antenna"}}, "9 Ridge 3 0"},
    {statusPage,
     {{"cboDataType", "Status Mute"}, {"cboSite", "Ridge"}, {"cboUnit", "Antenna"}, {"cboChan", "2 - Closed / Open"}},
     "14 Ridge 3 2"},
    {statusPage,
     {{"cboDataType", "Meter Mute"}, {"cboSite", "Ridge"}, {"cboUnit", "Antenna"}, {"cboChan", "2 - Power"}},
     "13 Ridge 3 2"},
    {statusPage, {{"cboDataType", "Site Connected (Primary)"}, {"cboSite", "Listed"}}, "6 Listed 0 0"},
    {statusPage, {{"cboDataType", "Site Connected (Backup)"}, {"cboSite", "Listed"}}, "7 Listed 0 0"},
    {statusPage, {{"cboDataType", "Local Mode"}, {"cboSite", "Ridge"}, {"cboUnit", "Antenna"}}, "15 Ridge 3 0"},
    {statusPage, {{"cboDataType", "Captures Pending"}, {"cboSite", "Ridge"}, {"cboUnit", "Antenna"}}, "16 Ridge 3 0"},
    {statusPage,
     {{"cboDataType", "Local Mode"}, {"cboSite", "Ridge"}, {"cboUnit", "Antenna"}, {"cboDataType", "None"}},
     "0 Ridge 3 0"},
    {actionPage, {{"cboAction", "Issue Command"}, {"cboSite", "Ridge"}, {"cboUnit", "Antenna"}}, "0  0 0"},
    {actionPage,
     {{"cboAction", "Issue Command"}, {"cboSite", "Ridge"}, {"cboUnit", "Antenna"}, {"cboChannel", "2 - Raise"}},
     "1 Ridge 3 2"},
    {actionPage,
     {{"cboAction", "Issue Command"}, {"cboSite", "Ridge"}, {"cboUnit", "Antenna"}, {"cboChannel", "3 - B"}},
     "2 Ridge 3 3"},
    {actionPage,
     {{"cboAction", "Issue Command"}, {"cboSite", "Listed"}, {"cboUnit", "Unit 4"}, {"cboChannel", "1 - A"}},
     "1 Listed 4 1"},
    {actionPage,
     {{"cboAction", "Run Macro"}, {"cboSite", "Ridge"}, {"cboUnit", "Antenna"}, {"cboChannel", "1 - Macro 1"}},
     "3 Ridge 3 1"},
    {actionPage,
     {{"cboAction", "Run Macro"}, {"cboSite", "Ridge"}, {"cboUnit", "Antenna"}, {"cboChannel", "5 - Warm up"}},
     "3 Ridge 3 5"},
    {actionPage,
     {{"cboAction", "Stop Macro"}, {"cboSite", "Ridge"}, {"cboUnit", "Antenna"}, {"cboChannel", "1 - Macro 1"}},
     "5 Ridge 3 0"},
    {actionPage,
     {{"cboAction", "Stop Macro"}, {"cboSite", "Ridge"}, {"cboUnit", "Antenna"}, {"cboChannel", "5 - Warm up"}},
     "4 Ridge 3 5"},
    {actionPage, {{"cboAction", "Clear Alarms"}, {"cboSite", "All Sites"}}, "8  0 0"},
    {actionPage, {{"cboAction", "Clear Alarms"}, {"cboSite", "Ridge"}, {"cboUnit", "All Units"}}, "6 Ridge 0 0"},
    {actionPage, {{"cboAction", "Clear Alarms"}, {"cboSite", "Ridge"}, {"cboUnit", "Unit 0"}}, "7 Ridge 0 0"},
    {actionPage, {{"cboAction", "Clear Alarms"}, {"cboSite", "Ridge"}, {"cboUnit", "Antenna"}}, "7 Ridge 3 0"},
    {actionPage, {{"cboAction", "Open Custom View"}}, "9  0 0"},
    {actionPage, {{"cboAction", "Open Custom View"}, {"cboAction", "No Click-Action"}}, "0  0 0"},
    {meterPage, {{"cboSite", "Ridge"}}, "Ridge 255 0 2"},
    {meterPage, {{"cboSite", "Ridge"}, {"cboUnit", "Antenna"}}, "Ridge 3 0 2"},
    {meterPage,
     {{"cboSite", "Ridge"}, {"cboUnit", "Antenna"}, {"cboChan", "2 - Power"}, {"cboDec", "4"}},
     "Ridge 3 2 4"},
    {meterPage, {{"cboSite", "Listed"}, {"cboUnit", "Unit 15"}, {"cboChan", "16"}}, "Listed 15 16 2"},
    {meterPage,
     {{"cboSite", "Ridge"}, {"cboUnit", "Antenna"}, {"cboChan", "2 - Power"}, {"cboUnit", "Unit 1"}},
     "Ridge 1 0 2"},
    {meterPage,
     {{"cboSite", "Ridge"}, {"cboUnit", "Antenna"}, {"cboChan", "2 - Power"}, {"cboSite", "Listed"}},
     "Listed 255 0 2"},
};

TEST_F(ADataPage, WritesWhatIsPicked)
{
    for (const PickedRow& row : pickedRows) {
        Element& element = Insert(row.page);
        std::string picked = row.page;
        for (const auto& [name, text] : row.picks) {
            auto& list = On<ListBox>(row.page, name);
            const auto found = std::ranges::find(list.Items(), text);
            picked += std::string(", ") + text;
            ASSERT_NE(found, list.Items().end()) << picked;
            list.Choose(static_cast<std::int32_t>(found - list.Items().begin()));
        }
        EXPECT_EQ(SourceOf(element, row.page), row.source) << picked;
    }
}

TEST_F(ADataPage, ReportsEachFailureUnderItsNumberAndInItsWords)
{
    const char* const general = "An error occurred while setting the property value. Please try again.";
    const struct {
        std::int32_t ref;
        const char* words;
        const char* page;
        std::vector<std::pair<const char*, int>> picks; // the last one fails
        std::string_view fault = "";                    // of the server; without one, no unit is chosen any more
        int failsAt = 1;                                // behind the looks whether site and unit are there
    } rows[] = {
        {14069, "Unable to set status data.", statusPage, {{"cboDataType", 1}}, "reload"},
        {14070,
         "Unable to set channel.",
         statusPage,
         {{"cboDataType", 1}, {"cboSite", 0}, {"cboUnit", 3}, {"cboSite", 0}, {"cboChan", 1}},
         ""},
        {14071, "Unable to set limit type.", statusPage, {{"cboDataType", 4}, {"cboSite", 0}, {"cboLimitType", 1}}, ""},
        {14072,
         "Unable to set macro.",
         statusPage,
         {{"cboDataType", 3}, {"cboSite", 0}, {"cboUnit", 3}, {"cboSite", 0}, {"cboMacro", 1}},
         ""},
        {14073, "Unable to set site.", statusPage, {{"cboDataType", 1}, {"cboSite", 0}}, "sites", 2},
        {14074, "Unable to set unit.", statusPage, {{"cboDataType", 1}, {"cboSite", 0}, {"cboUnit", 3}}, "tables"},
        {14094, general, actionPage, {{"cboAction", 1}}, "reload"},
        {14095,
         general,
         actionPage,
         {{"cboAction", 1}, {"cboSite", 0}, {"cboUnit", 3}, {"cboSite", 0}, {"cboChannel", 1}},
         ""},
        {14096, general, actionPage, {{"cboAction", 1}, {"cboSite", 0}}, "sites", 2},
        {14097, general, actionPage, {{"cboAction", 1}, {"cboSite", 0}, {"cboUnit", 3}}, "tables"},
        {14208, general, meterPage, {{"cboSite", 0}}, "sites", 4},
        {14209, general, meterPage, {{"cboSite", 0}, {"cboUnit", 3}}, "tables"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.ref);
        Insert(row.page);
        for (const auto& [list, index] : row.picks) {
            if (&list == &row.picks.back().first) {
                reporter.Announce(RefNumber{row.ref, {}});
                server.planned.Plan(row.fault, row.failsAt);
                antenna->channelTable.resize(row.fault == "tables" ? 0 : 16 * 13);
            }
            On<ListBox>(row.page, list).Choose(index);
        }
        EXPECT_EQ(reporter.reports.back().message, row.words);
        antenna->channelTable.resize(16 * 13);
    }
    Insert(actionPage);
    On<ListBox>(actionPage, "cboAction").Choose(5);
    dialog.planned.Plan("open", 1);
    reporter.Announce(RefNumber{14099, {}});
    On<Button>(actionPage, "cmdBrwsViews").Push();
    EXPECT_EQ(reporter.reports.back().message, general);
    // What only stores, or forces a status, doesn't fail, but it has its numbers.
    for (const auto& [page, control, number] : {std::tuple{statusPage, "optTmpStatus", 14075},
                                                {actionPage, "chkCtrlClick", 14098},
                                                {actionPage, "txtCustView", 14100},
                                                {meterPage, "cboChan", 14206},
                                                {meterPage, "cboDec", 14207},
                                                {"frmCVViewProps", "chkBakColorDef", 14231},
                                                {"frmCVViewProps", "txtViewCategory", 14236},
                                                {"frmCVViewProps", "txtViewName", 14237}}) {
        EXPECT_EQ(FindRef(page, control).number, number) << control;
    }
}

TEST_F(ADataPage, WritesAndSaysNothingWhileItIsNotBound)
{
    for (const char* page : {statusPage, actionPage, meterPage}) {
        Element& element = Insert(page);
        const std::string before = SourceOf(element, page);
        main.Panel().FindPage(page)->ClearOwner();
        for (const auto& control : main.Panel().FindPage(page)->Controls()) {
            EXPECT_FALSE(control->Enabled()) << page << '.' << control->Name();
            if (auto* list = dynamic_cast<ListBox*>(control.get()); list != nullptr && !list->Items().empty()) {
                list->ListIndex(0);
            }
        }
        EXPECT_EQ(SourceOf(element, page), before);
    }
    // An action that can't be shown keeps the status page from being bound; the next lamp binds it again.
    Insert<clsLEDRound>();
    auto& lamp = Insert<clsLEDRound>();
    lamp.ClickAction.Set(&clsCmdDataSource::CmdDataType, actions::stopMacro);
    lamp.ClickAction.Set(&clsCmdDataSource::Site, "Ridge");
    lamp.ClickAction.Set(&clsCmdDataSource::Channel, 32);
    main.ReleaseControl();
    reporter.Announce(Ref("frmMain.ShowPropertyPages"));
    Select(lamp);
    EXPECT_EQ(reporter.reports.back().description,
              "The setting ClickAction.Channel holds 32, for which this page has no choice.");
    EXPECT_FALSE(On<ListBox>(statusPage, "cboDataType").Enabled());
    Insert(statusPage);
    EXPECT_TRUE(On<ListBox>(statusPage, "cboDataType").Enabled());
}

} // namespace
} // namespace quor
