#include "widgets/face_layout.h"

#include "widgets/face_places.h"
#include "widgets/switch_led.h"

#include <algorithm>
#include <cmath>

namespace quor {

namespace {

enum class FaceRow { Top, Middle, Bottom };

bool IsBeside(std::int32_t place) noexcept
{
    return place == face_places::leftOfCaption || place == face_places::rightOfCaption;
}

bool IsStacked(std::int32_t place) noexcept
{
    return place == face_places::topOfCaption || place == face_places::bottomOfCaption;
}

bool IsPlace(std::int32_t place) noexcept
{
    return place >= face_places::leftTop && place <= face_places::centerBottom;
}

FaceRow RowOf(std::int32_t place) noexcept
{
    return IsPlace(place) ? static_cast<FaceRow>(place % 3) : FaceRow::Middle;
}

// Anything that is too large stands out on both sides of the middle.
FaceBox Placed(const FacePlan& plan, const FaceSize& size, std::int32_t place) noexcept
{
    FaceBox box{plan.gaps.edge, plan.gaps.edge, size.width, size.height};
    const double freeAcross = plan.face.width - size.width;
    const double freeDown = plan.face.height - size.height;
    const TextSide column = ColumnOf(place);
    if (column != TextSide::Left) {
        box.left = column == TextSide::Right ? freeAcross - plan.gaps.edge : freeAcross / 2;
    }
    const FaceRow row = RowOf(place);
    if (row != FaceRow::Top) {
        box.top = row == FaceRow::Bottom ? freeDown - plan.gaps.edge : freeDown / 2;
    }
    return box;
}

// What is too large begins at the edge, so that its beginning can be read.
FaceBox PlacedToRead(const FacePlan& plan, const FaceSize& size, std::int32_t place) noexcept
{
    FaceBox box = Placed(plan, size, place);
    box.left = std::max(box.left, plan.gaps.edge);
    box.top = std::max(box.top, std::min(plan.gaps.edge, (plan.face.height - size.height) / 2));
    return box;
}

// Both side by side, or one above the other; each in the middle of the group across.
FaceLayout Grouped(const FacePlan& plan) noexcept
{
    const bool isStacked = IsStacked(plan.picturePlace);
    const FaceSize& caption = plan.caption;
    const FaceSize& picture = plan.picture;
    const FaceSize sum{caption.width + plan.gaps.beside + picture.width,
                       caption.height + plan.gaps.above + picture.height};
    const FaceSize widest{std::max(caption.width, picture.width), std::max(caption.height, picture.height)};
    FaceBox group = isStacked ? PlacedToRead(plan, {widest.width, sum.height}, plan.captionPlace)
                              : PlacedToRead(plan, {sum.width, widest.height}, plan.captionPlace);
    group.left = std::floor(group.left + 0.5); // so that the gap is a whole one
    group.top = std::floor(group.top + 0.5);
    const bool pictureIsFirst =
        plan.picturePlace == face_places::leftOfCaption || plan.picturePlace == face_places::topOfCaption;
    const auto placed = [&](const FaceSize& size, bool isFirst) {
        if (isStacked) {
            return FaceBox{group.left + (group.width - size.width) / 2,
                           isFirst ? group.top : group.top + group.height - size.height, size.width, size.height};
        }
        return FaceBox{isFirst ? group.left : group.left + group.width - size.width,
                       group.top + (group.height - size.height) / 2, size.width, size.height};
    };
    return {placed(caption, !pictureIsFirst), placed(picture, pictureIsFirst)};
}

double NearestEven(double length, double least, double most) noexcept
{
    return std::clamp(2 * std::round(length / 2), least, most);
}

} // namespace

TextSide ColumnOf(std::int32_t place) noexcept
{
    return IsPlace(place) ? static_cast<TextSide>(place / 3) : TextSide::Center;
}

FaceLayout LayFace(const FacePlan& plan) noexcept
{
    const bool isGroup = IsBeside(plan.picturePlace) || IsStacked(plan.picturePlace);
    if (isGroup && !plan.caption.IsNone() && !plan.picture.IsNone()) {
        return Grouped(plan);
    }
    return {PlacedToRead(plan, plan.caption, plan.captionPlace),
            Placed(plan, plan.picture, isGroup ? plan.captionPlace : plan.picturePlace)};
}

double CaptionRoom(const FaceSize& face, const FaceGaps& gaps, const FaceSize& picture,
                   std::int32_t picturePlace) noexcept
{
    const double whole = face.width - 2 * gaps.edge;
    return picture.IsNone() || !IsBeside(picturePlace) ? whole : whole - picture.width - gaps.beside;
}

FaceBox LampBar(const FaceSize& button, std::int32_t side) noexcept
{
    constexpr double leastRoom = 3; // inside the button's edge
    if (button.width < 2 * leastRoom + 4 || button.height < 2 * leastRoom + 4) {
        return {};
    }
    FaceBox bar;
    const bool isUpright = side == lamp_sides::left || side == lamp_sides::right;
    bar.width = isUpright ? (button.width < 150 ? 6 : 8) : NearestEven(0.34 * button.width, 18, 60);
    bar.height = isUpright ? NearestEven(button.height - 14, 10, 22) : NearestEven(0.16 * button.height, 6, 12);
    bar.width = std::min(bar.width, button.width - 2 * leastRoom);
    bar.height = std::min(bar.height, button.height - 2 * leastRoom);
    const double wanted = isUpright ? 7 : button.height < 44 ? 6 : 8;
    const double free = isUpright ? button.width - bar.width : button.height - bar.height;
    const double gap = std::min(wanted, std::floor(free / 2));
    bar.left = std::floor((button.width - bar.width) / 2);
    bar.top = std::floor((button.height - bar.height) / 2);
    if (isUpright) {
        bar.left = side == lamp_sides::left ? gap : button.width - gap - bar.width;
    } else {
        bar.top = side == lamp_sides::top ? gap : button.height - gap - bar.height;
    }
    return bar;
}

FaceBox BesideLampBar(const FaceSize& button, std::int32_t side) noexcept
{
    constexpr double edge = 3;
    const FaceBox bar = LampBar(button, side);
    FaceBox rest{edge, edge, button.width - 2 * edge, button.height - 2 * edge};
    switch (side) {
    case lamp_sides::left:
        rest.left = bar.left + bar.width;
        rest.width = button.width - edge - rest.left;
        break;
    case lamp_sides::right:
        rest.width = bar.left - edge;
        break;
    case lamp_sides::top:
        rest.top = bar.top + bar.height;
        rest.height = button.height - edge - rest.top;
        break;
    default:
        rest.height = bar.top - edge;
    }
    return rest;
}

} // namespace quor
