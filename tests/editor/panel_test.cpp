#include "elements/led_round.h"
#include "tests/editor/editor_fixture.h"
#include "tests/test.h"

namespace {

using ThePanel = EditorFixture;

TEST_F(ThePanel, ComesToTheFrontWithTheGeneralPageAtEachSelection)
{
    Insert<clsLEDRound>();
    main.abViewEdit().BandOf("bndObjProps").SetCurrentChild("ctlLEDRound");
    Insert<clsLEDRound>();
    EXPECT_EQ(main.abViewEdit().BandOf("bndObjProps").CurrentChild()->Name, "prpGeneral");
}

} // namespace
