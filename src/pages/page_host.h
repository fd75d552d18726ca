#pragma once
// What property pages use of the form that shows them.

#include <string>

namespace quor {

class CommonDialog;
class MessageBoxes;
class Reporter;
class Widget;
class clsCustView;
struct Live;

class PageHost {
public:
    virtual ~PageHost() = default;

    virtual Reporter& PageReporter() = 0;
    virtual CommonDialog& dlgProp() = 0;
    virtual MessageBoxes& PageBoxes() = 0;
    virtual Live& PageLive() = 0;                   // the server and its catalogue
    virtual clsCustView& View() const noexcept = 0; // the document at this moment

    // The selected widget; null for none.
    virtual Widget* SelectedWidget() const noexcept = 0;
    virtual void PositionHandles(const Widget& widget) = 0;
    virtual void SetStatusCaption(const Widget* widget) = 0;
};

} // namespace quor
