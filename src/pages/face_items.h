#pragma once
// The places of captions and pictures as the lists of pages offer them.

#include <string>
#include <vector>

namespace quor {

// Nine places on the face.
inline std::vector<std::string> CaptionPlaces()
{
    return {"Left Top",     "Left Middle", "Left Bottom",   "Right Top",    "Right Middle",
            "Right Bottom", "Center Top",  "Center Middle", "Center Bottom"};
}

// The same, and four beside the caption.
inline std::vector<std::string> PicturePlaces()
{
    std::vector<std::string> places = CaptionPlaces();
    places.insert(places.end(), {"Left of Caption", "Right of Caption", "Top of Caption", "Bottom of Caption"});
    return places;
}

} // namespace quor
