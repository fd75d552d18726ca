#pragma once
// Where a caption and a picture stand on the face of a panel or a button, and where a button's lamp is. Lengths are
// pixels from the face's upper left corner.

#include "widgets/text_side.h"

#include <cstdint>

namespace quor {

struct FaceSize {
    double width = 0;
    double height = 0;
    bool IsNone() const noexcept { return width <= 0 || height <= 0; }
};

struct FaceBox {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
};

// How far things keep from the edge of the face and from each other.
struct FaceGaps {
    double edge = 0;
    double beside = 0;
    double above = 0;
};

struct FacePlan {
    FaceSize face;
    FaceGaps gaps;
    FaceSize caption; // none for no caption
    FaceSize picture;
    std::int32_t captionPlace = 0; // one of the first nine `face_places`; another is the middle
    std::int32_t picturePlace = 0; // one of all `face_places`
};

struct FaceLayout {
    FaceBox caption;
    FaceBox picture;
};

// A picture beside its caption makes a group with it, which stands where the caption is to stand.
FaceLayout LayFace(const FacePlan& plan) noexcept;

// How much of the face's width a caption may take, with such a picture at such a place.
double CaptionRoom(const FaceSize& face, const FaceGaps& gaps, const FaceSize& picture,
                   std::int32_t picturePlace) noexcept;

// At which side of its widest line's ends the other lines of a caption stand.
TextSide ColumnOf(std::int32_t place) noexcept;

// The lamp on a button of this size in device-independent pixels, at one of `lamp_sides`; none where it has no room.
FaceBox LampBar(const FaceSize& button, std::int32_t side) noexcept;

// The part of the button that the lamp leaves to the caption.
FaceBox BesideLampBar(const FaceSize& button, std::int32_t side) noexcept;

} // namespace quor
