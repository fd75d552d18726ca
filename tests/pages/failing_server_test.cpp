#include "elements/led_round.h"
#include "tests/editor/editor_fixture.h"
#include "tests/test.h"

namespace {

struct APageOfAFailingServer : EditorFixture {
    FakeServer server;

    void SetUp() override
    {
        server.Add("Ridge");
        server.Add("Broken").fails = true;
        live.Server = &server;
        live.Catalog = &server;
        EditorFixture::SetUp();
        Insert<clsLEDRound>();
    }
};

TEST_F(APageOfAFailingServer, SaysThatItCannotTellTheUnits)
{
    On<ListBox>("frmCVBlnDataSource", "cboDataType").Choose(1);
    On<ListBox>("frmCVBlnDataSource", "cboSite").Choose(0);
    EXPECT_TRUE(reporter.reports.empty()) << "found before the one that fails";
    reporter.Announce(Ref("frmCVBlnDataSource.cboSite"));
    On<ListBox>("frmCVBlnDataSource", "cboSite").Choose(1);
    EXPECT_EQ(reporter.reports.back().message, "Unable to set site.");
    EXPECT_TRUE(On<ListBox>("frmCVBlnDataSource", "cboUnit").Items().empty());
}

} // namespace
