// The view's ground: its colour and its picture, on the canvas.

#include "document/view_document.h"
#include "format/record.h"
#include "platform/boxes.h"
#include "platform/files.h"
#include "widgets/canvas.h"

namespace quor {

void clsCustView::Written(const decltype(BGColor)&)
{
    m_canvas.SetBackColor(BGColor());
}

void clsCustView::Written(const decltype(BGPicMode)&)
{
    SetBackground(BGPicture(), BGPicMode());
}

void clsCustView::Written(const decltype(BGPicture)&)
{
    SetBackground(BGPicture(), BGPicMode());
}

void clsCustView::SetBackground(const std::string& path, std::int32_t mode)
{
    HideBackground();
    if (!path.empty()) {
        if (mode == picture_modes::topLeft) {
            m_canvas.SetBackground(m_ports.pictures.LoadPicture(path), true);
        } else {
            m_canvas.SetPicture(m_ports.pictures.LoadPicture(path), mode);
        }
    }
    RepaintAll();
}

// The canvas may show the ground of the view before, or of the file that failed; a save writes what it shows.
void clsCustView::ShowPlainGround()
{
    Set(&clsCustView::BGColor, colors::buttonFace);
    Set(&clsCustView::BGPicture, std::string());
    Set(&clsCustView::BGPicMode, picture_modes::centered);
}

void clsCustView::HideBackground()
{
    m_canvas.SetPicture(nullptr, m_canvas.PictureMode());
    m_canvas.SetBackground(nullptr, false);
}

void clsCustView::ReadFromArray(std::span<const std::uint8_t> payload)
{
    RecordReader reader(payload);
    Fields(reader);
    m_canvas.SetBackColor(BGColor());
    const std::string path = BGPicture();
    if (path.empty() || m_ports.files.FileExists(path)) {
        SetBackground(path, BGPicMode());
        return;
    }
    m_ports.boxes.Show("Unable to load background picture. The following file could not be found:\n" + path + ".", "",
                       BoxButtons::Ok);
    Set(&clsCustView::BGPicture, std::string());
}

} // namespace quor
