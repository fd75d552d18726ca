// The pages of the data sources: what they write as the user picks list by list, what they show of it again, and when
// they write nothing. tests/data/kept/data_pages.txt has the answers.

#include "elements/led_round.h"
#include "elements/meter_text.h"
#include "tests/editor/editor_fixture.h"
#include "tests/support/field_text.h"
#include "tests/support/kept_text.h"

namespace {

constexpr const char* statusPage = "frmCVBlnDataSource";
constexpr const char* actionPage = "frmCVCmdDataSource";
constexpr const char* meterPage = "frmCVMtrDataSource";

struct ADataPage : EditorFixture {
    FakeServer server;
    FakeUnit* antenna = nullptr;

    // "Ridge" is held, "Broken" fails when it is asked, "Listed" stands in the catalogue alone.
    void SetUp() override
    {
        FakeUnit& unit = server.Add("Ridge").Add(3);
        unit.name = "Antenna";
        unit.Field(2, 0) = "Power";
        unit.Field(2, 8) = "Closed";
        unit.Field(2, 9) = "Open";
        unit.Field(3, 9) = "Hot";
        unit.Field(2, 11) = "Raise";
        unit.macros[2] = "Warm up";
        server.catalog.emplace_back("Listed");
        live.Server = &server;
        live.Catalog = &server;
        antenna = &unit;
        EditorFixture::SetUp();
    }

    using EditorFixture::Insert;

    // A new element that has the page, selected.
    Element& Insert(std::string_view page)
    {
        return page == meterPage ? static_cast<Element&>(Insert<clsMeterText>()) : Insert<clsLEDRound>();
    }

    static std::string SourceOf(Element& element, std::string_view page)
    {
        std::string text;
        for (const auto& [name, value] : page == statusPage   ? FieldText::Of(*element.StatusSource())
                                         : page == actionPage ? FieldText::Of(element.ClickAction)
                                                              : FieldText::Of(*element.MeterSource())) {
            text += ' ' + name + '=' + value;
        }
        return text + '\n';
    }

    std::vector<ListBox*> ShownLists(std::string_view page) const
    {
        std::vector<ListBox*> lists;
        for (const std::unique_ptr<Control>& each : main.Panel().FindPage(page)->Controls()) {
            if (auto* list = dynamic_cast<ListBox*>(each.get()); list != nullptr && list->Visible()) {
                lists.push_back(list);
            }
        }
        return lists;
    }

    static void Pick(ListBox& list, std::size_t row) { list.Choose(static_cast<std::int32_t>(row)); }

    // What each page writes when of each list that it shows the first row is picked, the last, or the one that begins
    // so; and then how it shows that again, and what it has changed thereby.
    std::string PickEach(std::string_view page, std::size_t firstRow, const std::vector<std::string>& beginnings)
    {
        std::string told;
        Element& element = Insert(page);
        const auto tell = [&](const std::string& what) { told += what + " >" + SourceOf(element, page); };
        for (std::size_t at = 0; at < ShownLists(page).size(); ++at) {
            ListBox& list = *ShownLists(page)[at];
            const bool isFirst = at == 0 && page != meterPage;
            std::size_t row = isFirst ? firstRow : 0;
            if (!isFirst && !beginnings.empty()) {
                row = list.Items().size() - 1;
                for (const std::string& beginning : beginnings) {
                    const auto found = std::ranges::find_if(
                        list.Items(), [&](const std::string& item) { return item.starts_with(beginning); });
                    row = found == list.Items().end() ? row : static_cast<std::size_t>(found - list.Items().begin());
                }
            }
            Pick(list, row);
            tell("  " + list.Name() + ' ' + list.Items().at(row));
        }
        std::string shown;
        try {
            main.Panel().FindPage(page)->SetOwner(element, "");
        } catch (const Failure& failure) {
            shown = failure.Description() + ' ';
        }
        for (const ListBox* list : ShownLists(page)) {
            shown += list->Name() + ' ' + std::to_string(list->ListIndex()) + ' ';
        }
        tell("  again " + shown);
        for (std::size_t at = ShownLists(page).size(); beginnings.empty() && at-- > 0;) {
            Pick(*ShownLists(page)[at], 0);
            tell("  first of " + ShownLists(page)[at]->Name());
        }
        return told;
    }
};

TEST_F(ADataPage, WritesWhatIsPickedAndShowsItAgain)
{
    std::string told;
    for (const auto& [page, rows] : {std::pair{statusPage, 12U}, {actionPage, 6U}, {meterPage, 1U}}) {
        for (std::size_t row = 0; row < rows; ++row) {
            for (const std::vector<std::string>& beginnings : {std::vector<std::string>{},
                                                               {"Ridge", "Antenna", "2 - ", "First Lower"},
                                                               {"Ridge", "Antenna", "3 - ", "3 - B", "First Upper"},
                                                               {"Ridge", "Unit 1", "5 - ", "Second Lower"},
                                                               {"none"}}) {
                told += std::string(page) + '\n' + PickEach(page, row, beginnings);
            }
        }
    }
    ExpectAsKept(told, "data_pages.txt");
}

TEST_F(ADataPage, ShowsEitherStatusInTheDesigner)
{
    auto& led = Insert<clsLEDRound>();
    const auto& status = On<OptionArray>(statusPage, "optTmpStatus");
    EXPECT_EQ(status.Index(), 1);
    On<OptionArray>(statusPage, "optTmpStatus").Choose(0);
    EXPECT_TRUE(dynamic_cast<const RoundLed*>(led.MyControl())->Active());
    Insert<clsLEDRound>();
    EXPECT_EQ(status.Index(), 1);
    Select(led);
    EXPECT_EQ(status.Index(), 0);
}

TEST_F(ADataPage, HasNoRowForWhatItsOwnChoicesStored)
{
    auto& meter = Insert<clsMeterText>();
    Pick(On<ListBox>(meterPage, "cboSite"), 0);
    EXPECT_THROW(main.Panel().FindPage(meterPage)->SetOwner(meter, ""), Failure) << "no row is unit 255";

    // An action that can't be shown keeps the status page from being bound; the next lamp binds it again.
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

TEST_F(ADataPage, ReportsEachFailureUnderItsNumberAndInItsWords)
{
    const char* const general = "An error occurred while setting the property value. Please try again.";
    const struct {
        std::int32_t ref;
        const char* words;
        const char* page;
        std::size_t first; // row of the page's first list
        std::string_view list;
        std::string_view fault = ""; // of the server; else no unit is chosen any more
        int failsAt = 1;             // behind the looks whether site and unit are there
    } rows[] = {
        {14069, "Unable to set status data.", statusPage, 5, "cboDataType", "reload"},
        {14070, "Unable to set channel.", statusPage, 7, "cboChan"},
        {14071, "Unable to set limit type.", statusPage, 4, "cboLimitType"},
        {14072, "Unable to set macro.", statusPage, 3, "cboMacro"},
        {14073, "Unable to set site.", statusPage, 7, "cboSite", "sites", 2},
        {14074, "Unable to set unit.", statusPage, 7, "cboUnit", "tables"},
        {14094, general, actionPage, 2, "cboAction", "reload"},
        {14095, general, actionPage, 1, "cboChannel"},
        {14096, general, actionPage, 2, "cboSite", "sites", 2},
        {14097, general, actionPage, 1, "cboUnit", "tables"},
        {14208, general, meterPage, 0, "cboSite", "sites", 4},
        {14209, general, meterPage, 0, "cboUnit", "tables"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.ref);
        Insert(row.page);
        std::size_t at = 0;
        const auto pick = [&] {
            ListBox& list = *ShownLists(row.page)[at];
            Pick(list, list.Name() == "cboUnit" ? 3 : at == 0 ? row.first : 0);
        };
        for (; ShownLists(row.page)[at]->Name() != row.list; ++at) {
            pick();
        }
        if (row.fault.empty()) {
            On<ListBox>(row.page, "cboSite").Choose(0);
        }
        reporter.Announce(RefNumber{row.ref, {}});
        server.planned.Plan(row.fault, row.failsAt);
        antenna->channelTable.resize(row.fault == "tables" ? 0 : 16 * 13);
        pick();
        EXPECT_EQ(reporter.reports.back().message, row.words);
        antenna->channelTable.resize(16 * 13);
    }
    server.Add("Broken").fails = true;
    Insert(statusPage);
    On<ListBox>(statusPage, "cboDataType").Choose(1);
    On<ListBox>(statusPage, "cboSite").Choose(0); // found before the one that fails
    reporter.Announce(Ref("frmCVBlnDataSource.cboSite"));
    On<ListBox>(statusPage, "cboSite").Choose(1); // the catalogue alone lists it, so all are asked
    EXPECT_TRUE(On<ListBox>(statusPage, "cboUnit").Items().empty());

    Insert(actionPage);
    On<ListBox>(actionPage, "cboAction").Choose(5);
    dialog.planned.Plan("open", 1);
    reporter.Announce(RefNumber{14099, {}});
    On<Button>(actionPage, "cmdBrwsViews").Push();
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
            } else if (auto* text = dynamic_cast<TextBox*>(control.get())) {
                text->Text("typed");
            } else if (auto* box = dynamic_cast<CheckBox*>(control.get())) {
                box->Value(true);
            }
        }
        EXPECT_EQ(SourceOf(element, page), before);
    }
}

} // namespace
