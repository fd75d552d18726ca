#pragma once
// The status picture: one status bit as one of two pictures, with a caption for each state.

#include "elements/caption_pair.h"
#include "elements/face_look.h"
#include "elements/file_picture.h"
#include "widgets/panel.h"

#include <memory>

namespace quor {

struct FromFileWhileOn : FromFile {
    static bool Reaches(const StatusElement& element) { return WhileOn::Reaches(element); }
};

struct FromFileWhileOff : FromFile {
    static bool Reaches(const StatusElement& element) { return WhileOff::Reaches(element); }
};

class clsBoolPic final
    : public FaceLook<CaptionPair<PictureElement<ElementOn<Panel, StatusElement>>, &Panel::Caption>, FlagAsNumber> {
public:
    static constexpr std::uint8_t type = 6;

    Setting<"BevelStyle", std::int32_t, &Panel::BevelStyle> BevelStyle;
    Setting<"BGColor", Color, &Panel::BackColor> BGColor;
    // Paths. The one that isn't in force waits unread.
    Setting<"ImageOn", std::string, &Panel::Picture, FromFileWhileOn> ImageOn;
    Setting<"ImageOff", std::string, &Panel::Picture, FromFileWhileOff> ImageOff;

    using FaceLook::FaceLook;

    std::uint8_t ElementType() const noexcept override { return type; }
    void Fields(FieldWalk& record) override;
    void ReadControlProps() override;
    void WriteControlProps() override;

    // A new element's widget.
    static std::unique_ptr<Panel> Prototype();

private:
    void m_BlnDataSource_UpdateBlnData(bool blnValue, bool blnMute) override;
};

} // namespace quor
