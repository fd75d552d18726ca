#pragma once
// A control of a form on the screen: the widget that shows the model and hands the user's input to it.

#include "base/event.h"
#include "base/guard.h"

#include <memory>
#include <utility>

class QWidget;

namespace quor {

class Control;
class Theme;

class ControlView {
public:
    explicit ControlView(QWidget& widget) : m_widget(&widget) {}
    ControlView(const ControlView&) = delete;
    ControlView& operator=(const ControlView&) = delete;
    virtual ~ControlView() = default;

    QWidget& Widget() const noexcept { return *m_widget; } // its parent's

    // Brings the widget in line with the model.
    virtual void Read() = 0;

    // Pixels, with the model's present look. A height of 0 is that of the line.
    virtual int NaturalWidth() const = 0;
    virtual int NaturalHeight() const = 0;

    // What a width that the form asks for becomes.
    virtual int FittingWidth(int asked) const { return asked; }

    // From now on the user's input goes nowhere: the model may be gone.
    void Detach() noexcept { m_isAttached = false; }

protected:
    // Hands the user's input to the model. Failures have their own reports; none may pass through the event loop.
    template <class Body> void FromUser(Body&& body)
    {
        if (m_isAttached) {
            IgnoreFailure(std::forward<Body>(body));
        }
    }

    // The same; then the widget shows what the model made of it.
    template <class Body> void FromUserAndRead(Body&& body)
    {
        FromUser(std::forward<Body>(body));
        if (m_isAttached) {
            Read();
        }
    }

private:
    QWidget* m_widget;
    bool m_isAttached = true;
};

// The view of any control, in the parent. The control outlives it. Fails with 13 for a control of an unknown kind.
std::unique_ptr<ControlView> MakeControlView(Control& control, const Theme& theme, QWidget& parent);

} // namespace quor
