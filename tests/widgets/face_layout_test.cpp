#include "widgets/face_layout.h"

#include "tests/test.h"
#include "widgets/face_places.h"
#include "widgets/switch_led.h"

namespace {

FacePlan PlanWith(std::int32_t captionPlace, std::int32_t picturePlace)
{
    FacePlan plan;
    plan.face = {100, 80};
    plan.gaps = {6, 4, 3};
    plan.caption = {30, 8};
    plan.picture = {20, 16};
    plan.captionPlace = captionPlace;
    plan.picturePlace = picturePlace;
    return plan;
}

void ExpectAt(const FaceBox& box, double left, double top, std::int32_t place)
{
    EXPECT_EQ(box.left, left) << place;
    EXPECT_EQ(box.top, top) << place;
}

TEST(FaceLayout, EachOfTheNinePlacesKeepsTheEdge)
{
    const struct {
        std::int32_t place;
        double left;
        double top;
    } cases[] = {{0, 6, 6},   {1, 6, 36}, {2, 6, 66},  {3, 64, 6}, {4, 64, 36},
                 {5, 64, 66}, {6, 35, 6}, {7, 35, 36}, {8, 35, 66}};
    for (const auto& each : cases) {
        ExpectAt(LayFace(PlanWith(each.place, face_places::leftTop)).caption, each.left, each.top, each.place);
    }
    ExpectAt(LayFace(PlanWith(-1, face_places::leftTop)).caption, 35, 36, -1);
    ExpectAt(LayFace(PlanWith(99, face_places::rightBottom)).picture, 74, 58, 99);
}

TEST(FaceLayout, APictureBesideItsCaptionStandsWithItAsAGroup)
{
    const struct {
        std::int32_t captionPlace;
        std::int32_t picturePlace;
        double captionLeft;
        double captionTop;
        double pictureLeft;
        double pictureTop;
    } cases[] = {
        {face_places::centerMiddle, face_places::leftOfCaption, 47, 36, 23, 32},
        {face_places::centerMiddle, face_places::rightOfCaption, 23, 36, 57, 32},
        {face_places::centerMiddle, face_places::topOfCaption, 35, 46, 40, 27},
        {face_places::centerMiddle, face_places::bottomOfCaption, 35, 27, 40, 38},
        {face_places::rightBottom, face_places::leftOfCaption, 64, 62, 40, 58},
        {face_places::leftTop, face_places::bottomOfCaption, 6, 6, 11, 17},
    };
    for (const auto& each : cases) {
        const FaceLayout layout = LayFace(PlanWith(each.captionPlace, each.picturePlace));
        ExpectAt(layout.caption, each.captionLeft, each.captionTop, each.picturePlace);
        ExpectAt(layout.picture, each.pictureLeft, each.pictureTop, each.picturePlace);
    }
    FacePlan alone = PlanWith(face_places::rightTop, face_places::leftOfCaption);
    alone.caption = {};
    ExpectAt(LayFace(alone).picture, 74, 6, face_places::rightTop);
}

TEST(FaceLayout, ACaptionThatIsTooWideBeginsAtTheEdge)
{
    for (const std::int32_t place : {face_places::rightMiddle, face_places::centerMiddle}) {
        FacePlan plan = PlanWith(place, face_places::leftTop);
        plan.caption = {300, 8};
        EXPECT_EQ(LayFace(plan).caption.left, 6);
    }
}

TEST(LampBar, IsEvenAndKeepsItsDistance)
{
    const struct {
        FaceSize button;
        std::int32_t side;
        FaceBox bar;
    } cases[] = {
        {{105, 33}, lamp_sides::top, {34, 6, 36, 6}},      {{105, 33}, lamp_sides::bottom, {34, 21, 36, 6}},
        {{105, 33}, lamp_sides::left, {7, 6, 6, 20}},      {{105, 33}, lamp_sides::right, {92, 6, 6, 20}},
        {{130, 60}, lamp_sides::top, {43, 8, 44, 10}},     {{160, 30}, lamp_sides::left, {7, 7, 8, 16}},
        {{1000, 1000}, lamp_sides::top, {470, 8, 60, 12}}, {{10, 10}, lamp_sides::top, {3, 3, 4, 4}},
        {{9, 9}, lamp_sides::top, {0, 0, 0, 0}},
    };
    for (const auto& each : cases) {
        const FaceBox bar = LampBar(each.button, each.side);
        EXPECT_EQ(bar.left, each.bar.left) << each.button.width << " wide, side " << each.side;
        EXPECT_EQ(bar.top, each.bar.top) << each.button.width << " wide, side " << each.side;
        EXPECT_EQ(bar.width, each.bar.width) << each.button.width << " wide, side " << each.side;
        EXPECT_EQ(bar.height, each.bar.height) << each.button.width << " wide, side " << each.side;
    }
}

} // namespace
