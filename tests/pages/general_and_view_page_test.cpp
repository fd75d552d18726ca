#include "elements/led_round.h"
#include "tests/editor/editor_fixture.h"
#include "tests/test.h"
#include "widgets/canvas.h"

namespace {

using TheGeneralPage = EditorFixture;

TEST_F(TheGeneralPage, WritesPixelsAsTwipsAndTheHandlesAndTheStatusFollow)
{
    struct Case {
        const char* field;
        const char* text;
        float Area::*part;
        float twips;
    };
    const Case cases[] = {
        {"txtX", "100", &Area::left, 1500},
        {"txtY", "50", &Area::top, 750},
        {"txtWidth", "6.67", &Area::width, 6.67F * 15},
        {"txtHeight", "20", &Area::height, 300},
    };
    auto& led = Insert<clsLEDRound>();
    for (const Case& each : cases) {
        EXPECT_TRUE(On<NumberField>("frmCVGeneral", each.field).Type(each.text)) << each.field;
        EXPECT_FLOAT_EQ(led.MyControl()->Bounds().*each.part, each.twips) << each.field;
    }
    EXPECT_EQ(main.ssScroll().Handles()[7].left, 1500 + led.ObjWidth());
    EXPECT_EQ(main.abViewEdit().Tool("lblSelectedControl").Caption(),
              "X: 100     Y: 50     Width: 6.67     Height: 20");
    EXPECT_EQ(On<TextBox>("frmCVGeneral", "txtType").Text(), "LED (Round)");
}

struct TheViewPage : EditorFixture {
    static constexpr std::string_view page = "frmCVViewProps";
};

TEST_F(TheViewPage, WritesNameCategoryAndColour)
{
    On<TextBox>(page, "txtViewName").Type("Plant");
    On<TextBox>(page, "txtViewCategory").Type("");
    EXPECT_EQ(main.View().ViewName(), "Plant");
    EXPECT_EQ(main.View().ViewCategory(), "General");
    EXPECT_EQ(On<TextBox>(page, "txtViewCategory").Text(), "") << "the field stays as it is";

    EXPECT_FALSE(On<Button>(page, "cmdBrwsBGColor").Enabled()) << "a new view has the default colour";
    On<CheckBox>(page, "chkBakColorDef").Toggle();
    EXPECT_EQ(main.ssScroll().BackColor(), colors::buttonFace);
    dialog.WillPickColor(Color{0x00CC00});
    On<Swatch>(page, "clrViewBG").Push();
    EXPECT_EQ(main.ssScroll().BackColor(), Color{0x00CC00});
    On<CheckBox>(page, "chkBakColorDef").Toggle();
    EXPECT_EQ(main.View().BGColor(), colors::buttonFace);
    EXPECT_EQ(On<Swatch>(page, "clrViewBG").BackColor(), colors::buttonFace);
}

TEST_F(TheViewPage, TriesEachTextAsAPictureWithoutAWord)
{
    files.PutText("door.bmp", "picture");
    TextBox& field = On<TextBox>(page, "txtBGImage");
    field.Type("door.bm");
    EXPECT_EQ(main.View().BGPicture(), "");
    EXPECT_EQ(field.Text(), "door.bm");
    field.Type("door.bmp");
    EXPECT_EQ(main.View().BGPicture(), "door.bmp");
    EXPECT_NE(main.ssScroll().Picture(), nullptr);
    On<OptionArray>(page, "optViewBGImageStyle").Choose(3);
    EXPECT_EQ(main.ssScroll().Picture(), nullptr);
    EXPECT_TRUE(main.ssScroll().Background().visible);
    dialog.WillOpen("other.bmp");
    On<Button>(page, "cmdBrwsBGFile").Push();
    EXPECT_EQ(field.Text(), "other.bmp");
    EXPECT_EQ(main.View().BGPicture(), "") << "there is no such file";
    EXPECT_FALSE(main.ssScroll().Background().visible);
}

TEST_F(TheViewPage, IsBoundToTheDocumentOfTheMoment)
{
    On<TextBox>(page, "txtViewName").Type("Old");
    boxes.answers = {BoxAnswer::No};
    main.NewView();
    EXPECT_EQ(On<TextBox>(page, "txtViewName").Text(), "My View");
    On<TextBox>(page, "txtViewName").Type("New");
    EXPECT_EQ(main.View().ViewName(), "New");
}

} // namespace
