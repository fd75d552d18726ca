#pragma once
// A control of a form on the screen: the widget that shows the model and hands the user's input to it.

#include "base/event.h"
#include "base/guard.h"

#include <memory>
#include <utility>
#include <vector>

class QWidget;

namespace quor {

class Control;

class ControlView {
public:
    explicit ControlView(QWidget& widget) : m_widget(&widget) {}
    ControlView(const ControlView&) = delete;
    ControlView& operator=(const ControlView&) = delete;
    virtual ~ControlView() = default;

    QWidget& Widget() const noexcept { return *m_widget; } // its parent's

    // Brings the widget in line with the model.
    void Read()
    {
        m_wasRead = true;
        ReadAll();
    }

    // Pixels, with the model's present look. A height of 0 is that of the line.
    virtual int NaturalWidth() const = 0;
    virtual int NaturalHeight() const = 0;

    // What a width that the form asks for becomes.
    virtual int FittingWidth(int asked) const { return asked; }

    // What its line has to be high at least, where it is that wide.
    virtual int LineHeight(int /*width*/) const { return 0; }

    // Where the keyboard stops, in order.
    virtual std::vector<QWidget*> Stops() const { return {m_widget}; }

    // Off, it looks and is disabled, whatever the model says.
    void SetOff(bool isOff)
    {
        if (m_isOff != isOff) {
            m_isOff = isOff;
            Read();
        }
    }

    // From now on the user's input goes nowhere: the model may be gone.
    void Detach() noexcept { m_isAttached = false; }

protected:
    bool IsOff() const noexcept { return m_isOff; }
    bool IsAttached() const noexcept { return m_isAttached; }

    // Hands the user's input to the model. Failures have their own reports; none may pass through the event loop.
    template <class Body> void FromUser(Body&& body)
    {
        if (m_isAttached) {
            IgnoreFailure(std::forward<Body>(body));
        }
    }

    // The same; then the widget shows what the model made of it, which a model that didn't change doesn't tell.
    template <class Body> void FromUserAndRead(Body&& body)
    {
        m_wasRead = false;
        FromUser(std::forward<Body>(body));
        if (m_isAttached && !m_wasRead) {
            Read();
        }
    }

private:
    virtual void ReadAll() = 0;

    QWidget* m_widget;
    bool m_wasRead = false; // since the user's last input
    bool m_isAttached = true;
    bool m_isOff = false;
};

// The view of any control, in the parent. The control outlives it. Fails with 13 for a control of an unknown kind.
std::unique_ptr<ControlView> MakeControlView(Control& control, QWidget& parent);

} // namespace quor
