#include "support/frm_error.h"

#include "base/values.h"
#include "platform/clipboard.h"
#include "platform/clock.h"
#include "platform/screen.h"

#include <array>
#include <charconv>

namespace quor {

namespace {

constexpr std::string_view detailsTag = "Details";
constexpr float heightWithoutDetails = 2010; // twips
constexpr float heightWithDetails = 4130;    // twips

// Negative numbers are those of the platform, which support knows by their hexadecimal digits.
std::string NumberText(std::int32_t number)
{
    if (number >= 0) {
        return std::to_string(number);
    }
    std::array<char, 8> digits{};
    std::to_chars(digits.begin(), digits.end(), static_cast<std::uint32_t>(number), 16);
    for (char& digit : digits) {
        digit = digit >= 'a' ? static_cast<char>(digit - 'a' + 'A') : digit;
    }
    return {digits.begin(), digits.end()};
}

} // namespace

frmError::frmError(Screen& screen, Clipboard& clipboard, Clock& clock)
    : Form("frmError"), m_screen(screen), m_clipboard(clipboard), m_clock(clock)
{
    lblError.Set(&Label::WordWrap, true);
    lblErrDescription.Set(&Label::WordWrap, true);
    lblRefNum.Set(&Label::AlignRight, true);
    cmdOK.Set(&Button::Default, true);
    cmdOK.Set(&Button::Cancel, true);
    for (Control* detail :
         std::initializer_list<Control*>{&sspDivider, &lblErrorNumber, &lblErrNum, &lblRefNum, &lblErrorSource,
                                         &lblErrSource, &lblErrorDescription, &lblErrDescription}) {
        detail->Set(&Control::Tag, std::string(detailsTag));
    }
    Set(&Form::Width, 480 * twipsPerPixelX);
    Arrange(
        20,
        {{.y = 20, .height = 32, .items = {{.control = &imgError, .x = 20, .width = 32}}},
         {.y = 20, .height = 62, .items = {{.control = &lblError, .x = 68, .width = LayoutItem::filling}}},
         {.y = 90,
          .height = 28,
          .items = {{.control = &cmdCopy, .x = 20, .width = 72},
                    {.control = &cmdDetails, .width = 96, .atRight = true},
                    {.control = &cmdOK, .width = 80, .atRight = true}}},
         {.y = 134, .height = 1, .items = {{.control = &sspDivider, .x = 20, .width = LayoutItem::filling}}},
         {.y = 141,
          .height = 24,
          .items = {{.control = &lblErrorNumber, .x = 20},
                    {.control = &lblErrNum, .x = 124, .width = 160},
                    {.control = &lblRefNum, .width = 160, .atRight = true}}},
         {.height = 24,
          .items = {{.control = &lblErrorSource, .x = 20},
                    {.control = &lblErrSource, .x = 124, .width = LayoutItem::filling}}},
         {.height = 24, .items = {{.control = &lblErrorDescription, .x = 20}}},
         {.y = 194, .height = 72, .items = {{.control = &lblErrDescription, .x = 124, .width = LayoutItem::filling}}}});
    m_onCopy = cmdCopy.Click.Subscribe(Quietly([this] { CopyToClipboard(); }));
    m_onDetails = cmdDetails.Click.Subscribe(Quietly([this] { ShowDetails(!m_showsDetails); }));
    m_onOk = cmdOK.Click.Subscribe(Quietly([this] { Unload(); }));
}

void frmError::SetError(const ErrorReport& report)
{
    lblError.Set(&Label::Caption, report.message);
    lblErrNum.Set(&Label::Caption, NumberText(report.number));
    lblErrSource.Set(&Label::Caption, report.source);
    lblErrDescription.Set(&Label::Caption, report.description);
    lblRefNum.Set(&Label::Caption, "Ref# " + std::to_string(report.ref));
    m_screen.SetMousePointer(MousePointer::Default);
}

void frmError::Form_Load()
{
    Set(&Form::Caption, std::string(appTitle));
    ShowDetails(false);
}

void frmError::ShowDetails(bool show)
{
    m_showsDetails = show;
    Set(&Form::Height, show ? heightWithDetails : heightWithoutDetails);
    cmdDetails.Set(&Button::Caption, show ? "Hide &Details <<" : "&Details >>");
    for (const std::unique_ptr<Control>& control : Controls()) {
        if (control->Tag() == detailsTag) {
            control->Set(&Control::Visible, show);
        }
    }
}

void frmError::CopyToClipboard()
{
    m_clipboard.Clear();
    m_clipboard.SetText("Error Message: " + lblError.Caption() + '\n' +              //
                        lblRefNum.Caption() + '\n' +                                 //
                        "Error Number: " + lblErrNum.Caption() + '\n' +              //
                        "Error Source: " + lblErrSource.Caption() + '\n' +           //
                        "Error Description: " + lblErrDescription.Caption() + '\n' + //
                        "Time: " + m_clock.Now());
}

} // namespace quor
