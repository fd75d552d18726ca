#include "binding/sites.h"
#include "tests/test.h"

namespace {

struct AServerOfThreeSites : testing::Test {
    FakeServer server;

    AServerOfThreeSites()
    {
        FakeSite& ridge = server.Add("Ridge");
        ridge.Add(2);
        ridge.Add(16);
        server.Add("Harbour").Add(16).name = "Telephone";
        server.Add("Broken").fails = true;
    }
};

TEST_F(AServerOfThreeSites, NamesEveryUnitSomehow)
{
    EXPECT_EQ(UnitCaption(&server, "Ridge", 2), "Unit 2");
    EXPECT_EQ(UnitCaption(&server, "Ridge", 16), "Voice Interface");
    EXPECT_EQ(UnitCaption(&server, "Harbour", 16), "Telephone");
    EXPECT_EQ(UnitCaption(&server, "harbour", 16), "Unit 16") << "no such site";
    EXPECT_EQ(UnitCaption(nullptr, "Harbour", 16), "Unit 16");
}

TEST_F(AServerOfThreeSites, IsWalkedToTheFirstMatchAndItsFailuresPass)
{
    EXPECT_TRUE(SiteExists(&server, "Harbour"));
    EXPECT_TRUE(UnitExists(&server, "Ridge", 16));
    EXPECT_FALSE(UnitExists(&server, "Ridge", 3));
    EXPECT_FALSE(UnitExists(nullptr, "Ridge", 2));
    EXPECT_THROW(SiteExists(&server, "harbour"), Failure);
    EXPECT_THROW(UnitExists(&server, "Nowhere", 2), Failure);
}

} // namespace
