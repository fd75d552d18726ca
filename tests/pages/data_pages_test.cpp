#include "elements/led_round.h"
#include "elements/meter_text.h"
#include "tests/editor/editor_fixture.h"
#include "tests/test.h"

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

    // "Site Ridge; Unit Antenna": these rows of cboSite and cboUnit, one after the other.
    void Pick(std::string_view page, std::string picks, const std::function<void()>& beforeTheLast = {})
    {
        while (!picks.empty()) {
            const std::string pick = picks.substr(0, picks.find("; "));
            picks.erase(0, pick.size() + 2);
            if (picks.empty() && beforeTheLast) {
                beforeTheLast();
            }
            const std::size_t blank = pick.find(' ');
            auto& list = On<ListBox>(page, "cbo" + pick.substr(0, blank));
            const auto found = std::ranges::find(list.Items(), pick.substr(blank + 1));
            ASSERT_NE(found, list.Items().end()) << pick;
            list.Choose(static_cast<std::int32_t>(found - list.Items().begin()));
        }
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

// What the user picks, list by list, and what the source holds then: type, site, unit and channel, of a meter site,
// unit, channel and decimal places. Each row begins with a new element.
struct PickedRow {
    const char* page;
    const char* picks;
    const char* source;
};

const PickedRow pickedRows[] = {
    {statusPage, "DataType Status Channel; Site Ridge; Unit Antenna; Chan 2 - Closed / Open", "18 Ridge 3 2"},
    {statusPage, "DataType Status Channel; Site Ridge; Unit Antenna; Chan 3 - Hot", "18 Ridge 3 3"},
    {statusPage, "DataType Status Channel; Site Ridge; Unit Unit 1; Chan 16", "18 Ridge 1 16"},
    {statusPage, "DataType Command State; Site Ridge; Unit Antenna; Chan 2 - Raise", "11 Ridge 3 2"},
    {statusPage, "DataType Command State; Site Ridge; Unit Antenna; Chan 3 - B", "12 Ridge 3 3"},
    {statusPage, "DataType Command State; Site Listed; Unit Unit 15; Chan 16 - A", "11 Listed 15 16"},
    {statusPage, "DataType Macro Status; Site Ridge; Unit Antenna; Macro 5 - Warm up", "17 Ridge 3 5"},
    {statusPage, "DataType Macro Status; Site Listed; Unit Unit 0; Macro 32 - Macro 32", "17 Listed 0 32"},
    {statusPage, "DataType Meter Limit; Site Ridge; Unit Antenna; Chan 2 - Power", "0  0 0"},
    {statusPage, "DataType Meter Limit; Site Ridge; Unit Antenna; Chan 2 - Power; LimitType Any", "5 Ridge 3 2"},
    {statusPage, "DataType Meter Limit; Site Ridge; Unit Antenna; Chan 2 - Power; LimitType Second Lower",
     "1 Ridge 3 2"},
    {statusPage, "DataType Meter Limit; Site Ridge; Unit Antenna; Chan 2 - Power; LimitType First Lower",
     "2 Ridge 3 2"},
    {statusPage, "DataType Meter Limit; Site Ridge; Unit Antenna; Chan 2 - Power; LimitType First Upper",
     "3 Ridge 3 2"},
    {statusPage, "DataType Meter Limit; Site Ridge; Unit Antenna; Chan 2 - Power; LimitType Second Upper",
     "4 Ridge 3 2"},
    {statusPage, "DataType Alarm; Site All Sites", "10  0 0"},
    {statusPage, "DataType Alarm; Site Ridge", "0  0 0"},
    {statusPage, "DataType Alarm; Site Ridge; Unit All Units", "8 Ridge 0 0"},
    {statusPage, "DataType Alarm; Site Ridge; Unit Unit 0", "9 Ridge 0 0"},
    {statusPage, "DataType Alarm; Site Ridge; Unit Antenna", "9 Ridge 3 0"},
    {statusPage, "DataType Status Mute; Site Ridge; Unit Antenna; Chan 2 - Closed / Open", "14 Ridge 3 2"},
    {statusPage, "DataType Meter Mute; Site Ridge; Unit Antenna; Chan 2 - Power", "13 Ridge 3 2"},
    {statusPage, "DataType Site Connected (Primary); Site Listed", "6 Listed 0 0"},
    {statusPage, "DataType Site Connected (Backup); Site Listed", "7 Listed 0 0"},
    {statusPage, "DataType Local Mode; Site Ridge; Unit Antenna", "15 Ridge 3 0"},
    {statusPage, "DataType Captures Pending; Site Ridge; Unit Antenna", "16 Ridge 3 0"},
    {statusPage, "DataType Local Mode; Site Ridge; Unit Antenna; DataType None", "0 Ridge 3 0"},
    {actionPage, "Action Issue Command; Site Ridge; Unit Antenna", "0  0 0"},
    {actionPage, "Action Issue Command; Site Ridge; Unit Antenna; Channel 2 - Raise", "1 Ridge 3 2"},
    {actionPage, "Action Issue Command; Site Ridge; Unit Antenna; Channel 3 - B", "2 Ridge 3 3"},
    {actionPage, "Action Issue Command; Site Listed; Unit Unit 4; Channel 1 - A", "1 Listed 4 1"},
    {actionPage, "Action Run Macro; Site Ridge; Unit Antenna; Channel 1 - Macro 1", "3 Ridge 3 1"},
    {actionPage, "Action Run Macro; Site Ridge; Unit Antenna; Channel 5 - Warm up", "3 Ridge 3 5"},
    {actionPage, "Action Stop Macro; Site Ridge; Unit Antenna; Channel 1 - Macro 1", "5 Ridge 3 0"},
    {actionPage, "Action Stop Macro; Site Ridge; Unit Antenna; Channel 5 - Warm up", "4 Ridge 3 5"},
    {actionPage, "Action Clear Alarms; Site All Sites", "8  0 0"},
    {actionPage, "Action Clear Alarms; Site Ridge; Unit All Units", "6 Ridge 0 0"},
    {actionPage, "Action Clear Alarms; Site Ridge; Unit Unit 0", "7 Ridge 0 0"},
    {actionPage, "Action Clear Alarms; Site Ridge; Unit Antenna", "7 Ridge 3 0"},
    {actionPage, "Action Open Custom View", "9  0 0"},
    {actionPage, "Action Open Custom View; Action No Click-Action", "0  0 0"},
    {meterPage, "Site Ridge", "Ridge 255 0 2"},
    {meterPage, "Site Ridge; Unit Antenna", "Ridge 3 0 2"},
    {meterPage, "Site Ridge; Unit Antenna; Chan 2 - Power; Dec 4", "Ridge 3 2 4"},
    {meterPage, "Site Listed; Unit Unit 15; Chan 16", "Listed 15 16 2"},
    {meterPage, "Site Ridge; Unit Antenna; Chan 2 - Power; Unit Unit 1", "Ridge 1 0 2"},
    {meterPage, "Site Ridge; Unit Antenna; Chan 2 - Power; Site Listed", "Listed 255 0 2"},
};

TEST_F(ADataPage, WritesWhatIsPicked)
{
    for (const PickedRow& row : pickedRows) {
        Element& element = Insert(row.page);
        Pick(row.page, row.picks);
        EXPECT_EQ(SourceOf(element, row.page), row.source) << row.page << ": " << row.picks;
    }
}

TEST_F(ADataPage, ReportsEachFailureUnderItsNumberAndInItsWords)
{
    const char* const general = "An error occurred while setting the property value. Please try again.";
    const struct {
        std::int32_t ref;
        const char* words;
        const char* page;
        const char* picks;           // the last one fails
        std::string_view fault = ""; // of the server; without one, no unit is chosen any more
        int failsAt = 1;             // behind the looks whether site and unit are there
    } rows[] = {
        {14069, "Unable to set status data.", statusPage, "DataType Alarm", "reload"},
        {14070, "Unable to set channel.", statusPage,
         "DataType Meter Mute; Site Ridge; Unit Unit 0; Site Ridge; Chan 1"},
        {14071, "Unable to set limit type.", statusPage, "DataType Meter Limit; Site Ridge; LimitType Any"},
        {14072, "Unable to set macro.", statusPage,
         "DataType Macro Status; Site Ridge; Unit Unit 0; Site Ridge; Macro 1 - Macro 1"},
        {14073, "Unable to set site.", statusPage, "DataType Meter Mute; Site Ridge", "sites", 2},
        {14074, "Unable to set unit.", statusPage, "DataType Meter Mute; Site Ridge; Unit Antenna", "tables"},
        {14094, general, actionPage, "Action Run Macro", "reload"},
        {14095, general, actionPage, "Action Issue Command; Site Ridge; Unit Unit 0; Site Ridge; Channel 1 - A"},
        {14096, general, actionPage, "Action Run Macro; Site Ridge", "sites", 2},
        {14097, general, actionPage, "Action Issue Command; Site Ridge; Unit Antenna", "tables"},
        {14208, general, meterPage, "Site Ridge", "sites", 4},
        {14209, general, meterPage, "Site Ridge; Unit Antenna", "tables"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.ref);
        Insert(row.page);
        Pick(row.page, row.picks, [&] {
            reporter.Announce(RefNumber{row.ref, {}});
            server.planned.Plan(row.fault, row.failsAt);
            antenna->channelTable.resize(row.fault == "tables" ? 0 : 16 * 13);
        });
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
