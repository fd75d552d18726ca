#pragma once
// The error dialog: a sentence for the user, the technical details on demand, and all of it for the clipboard.

#include "base/guard.h"
#include "forms/form.h"

namespace quor {

class Clipboard;
class Clock;
class Screen;

class frmError final : public Form {
public:
    frmError(Screen& screen, Clipboard& clipboard, Clock& clock);

    Image& imgError = Make<Image>("imgError", "error");
    Label& lblError = Make<Label>("lblError", "", LabelRole::Message);
    Button& cmdCopy = Make<Button>("cmdCopy", "&Copy");
    Button& cmdDetails = Make<Button>("cmdDetails");
    Button& cmdOK = Make<Button>("cmdOK", "OK");
    Rule& sspDivider = Make<Rule>("sspDivider");
    Label& lblErrorNumber = Make<Label>("lblErrorDetails(0)", "Error Number:", LabelRole::Caption);
    Label& lblErrNum = Make<Label>("lblErrNum");
    Label& lblRefNum = Make<Label>("lblRefNum", "", LabelRole::Heading);
    Label& lblErrorSource = Make<Label>("lblErrorDetails(1)", "Source:", LabelRole::Caption);
    Label& lblErrSource = Make<Label>("lblErrSource");
    Label& lblErrorDescription = Make<Label>("lblErrorDetails(2)", "Description:", LabelRole::Caption);
    Label& lblErrDescription = Make<Label>("lblErrDescription");

    // Fills the dialog, and takes an hourglass off the screen that the failure may have left.
    void SetError(const ErrorReport& report);

private:
    void Form_Load() override;
    void ShowDetails(bool show);
    void CopyToClipboard();

    Screen& m_screen;
    Clipboard& m_clipboard;
    Clock& m_clock;
    bool m_showsDetails = false;
    Subscription m_onCopy;
    Subscription m_onDetails;
    Subscription m_onOk;
};

} // namespace quor
