#pragma once
// The shape of all views of controls, for the files that make them.

#include "forms/controls.h"
#include "qt/forms/control_view.h"
#include "qt/ports/qt_text.h"

#include <QWidget>

#include <algorithm>

namespace quor {

// The height of a box or an option with its caption beside it.
inline int BoxHeight(const QWidget& box)
{
    constexpr int boxSize = 16; // pixels
    return std::max(boxSize, box.fontMetrics().height());
}

// Shows a control of the class C by a widget of the class W. Derived classes read what C adds to every control.
template <class C, class W> class ViewOf : public ControlView {
public:
    using ModelClass = C;

    ViewOf(C& control, W* widget) : ControlView(*widget), m_control(control), m_shown(widget)
    {
        widget->setObjectName(ToQt(control.Name()));
    }

    int NaturalWidth() const override { return m_shown->sizeHint().width(); }
    int NaturalHeight() const override { return 0; }

protected:
    C& Model() const noexcept { return m_control; }
    W& Shown() const noexcept { return *m_shown; }

private:
    void ReadAll() override
    {
        m_shown->setEnabled(m_control.Enabled() && !IsOff());
        m_shown->setVisible(m_control.Visible());
        ReadLook();
    }
    virtual void ReadLook() {}

    C& m_control;
    W* m_shown;
};

// The first of these views that shows such a control; null if none does.
template <class... Views> std::unique_ptr<ControlView> MakeFirstOf(Control& control, QWidget& parent)
{
    std::unique_ptr<ControlView> made;
    const auto isMade = [&]<class View>(const View* /*kind*/) {
        if (auto* model = dynamic_cast<typename View::ModelClass*>(&control)) {
            made = std::make_unique<View>(*model, parent);
        }
        return made != nullptr;
    };
    static_cast<void>((isMade(static_cast<const Views*>(nullptr)) || ...));
    return made;
}

// The views of the controls that hold what a user enters; null for other controls.
std::unique_ptr<ControlView> MakeFieldView(Control& control, QWidget& parent);
std::unique_ptr<ControlView> MakeTypedView(Control& control, QWidget& parent);
std::unique_ptr<ControlView> MakeOptionsView(Control& control, QWidget& parent);

// The views of what divides a form or holds many rows; null for other controls.
std::unique_ptr<ControlView> MakePaneView(Control& control, QWidget& parent);

} // namespace quor
