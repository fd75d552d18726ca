#include "qt/forms/form_view.h"

#include "base/values.h"
#include "forms/caption.h"
#include "forms/fields.h"
#include "forms/form.h"
#include "qt/ports/qt_text.h"

#include <QAbstractButton>

#include <algorithm>
#include <functional>
#include <map>

namespace quor {

FormView::FormView(Form& form, QWidget* parent) : QWidget(parent), m_form(&form)
{
    setObjectName(ToQt(form.Name()));
    setBackgroundRole(QPalette::Light);
    setAutoFillBackground(true);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    for (const std::unique_ptr<Control>& control : form.Controls()) {
        AddControl(*control);
    }
    NameFields();
    OrderTabs();
    for (const LayoutLine& line : form.Layout()) {
        for (const LayoutItem& item : line.items) {
            m_parts.at(item.control).line = &line;
        }
        ShowUse(line);
    }
    FollowForm();
    m_following = form.Changed.Subscribe([this] { FollowForm(); });
}

FormView::~FormView()
{
    Detach();
    hide(); // a field that has the keyboard gives it up while its view is there
}

void FormView::AddControl(Control& control)
{
    Part& part = m_parts[&control];
    part.view = MakeControlView(control, *this);
    part.view->Read();
    part.natural = part.view->NaturalWidth();
    part.isVisible = control.Visible();
    part.following = control.Changed.Subscribe([this, &control, &part] { FollowControl(control, part); });
    part.focusing = control.Focused.Subscribe([&part] { part.view->Widget().setFocus(); });
}

void FormView::FollowForm()
{
    const Color ground = m_form->BackColor();
    QPalette own;
    if (ground != colors::buttonFace) { // which is the theme's own
        own.setColor(QPalette::Light, ToQt(Resolve(ground)));
    }
    setPalette(own);
    Place();
    updateGeometry();
}

void FormView::FollowControl(const Control& control, Part& part)
{
    part.view->Read();
    if (part.line != nullptr) {
        ShowUse(*part.line);
    }
    const int natural = part.view->NaturalWidth();
    if (natural != part.natural || control.Visible() != part.isVisible) {
        part.natural = natural;
        part.isVisible = control.Visible();
        Place();
        updateGeometry();
    }
}

// A swatch whose button is off is so, too, and the captions of a line look as its first field.
void FormView::ShowUse(const LayoutLine& line)
{
    const auto find = [&](auto from, auto matches) { return std::find_if(from, line.items.end(), matches); };
    const auto swatch =
        find(line.items.begin(), [](const LayoutItem& item) { return dynamic_cast<Swatch*>(item.control) != nullptr; });
    const auto button =
        find(swatch, [](const LayoutItem& item) { return dynamic_cast<Button*>(item.control) != nullptr; });
    if (button != line.items.end()) {
        ViewOfItem(*swatch).SetOff(!button->control->Enabled());
    }
    const auto isLabel = [](const LayoutItem& item) { return dynamic_cast<Label*>(item.control) != nullptr; };
    const auto first = find(line.items.begin(), std::not_fn(isLabel));
    for (const LayoutItem& item : line.items) {
        if (isLabel(item) && first != line.items.end()) {
            ViewOfItem(item).SetOff(!ViewOfItem(*first).Widget().isEnabledTo(this));
        }
    }
}

// A field's name for assistive tools is the caption beside it or right above it, that of options the title above them.
void FormView::NameFields()
{
    QString title;
    std::map<int, QString> above; // by the place of the caption
    for (const LayoutLine& line : m_form->Layout()) {
        QString caption = title;
        for (const LayoutItem& item : line.items) {
            QWidget& widget = ViewOfItem(item).Widget();
            if (const auto* label = dynamic_cast<const Label*>(item.control)) {
                if (label->Role() == LabelRole::Caption) {
                    caption = ToQt(label->Caption());
                    above[item.x] = caption;
                }
            } else if (const auto* frame = dynamic_cast<const Frame*>(item.control)) {
                title = ToQt(frame->Caption());
            } else if (const auto* box = dynamic_cast<const CheckBox*>(item.control)) {
                widget.setAccessibleName(ToQt(PlainCaption(box->Caption())));
            } else if (widget.accessibleName().isEmpty()) {
                const auto over = item.x == LayoutItem::behind ? above.end() : above.find(item.x);
                widget.setAccessibleName(over == above.end() ? caption : over->second);
            }
        }
    }
}

void FormView::OrderTabs()
{
    QWidget* before = nullptr;
    for (const LayoutLine& line : m_form->Layout()) {
        for (const LayoutItem& item : line.items) {
            for (QWidget* stop : ViewOfItem(item).Stops()) {
                if (before != nullptr) {
                    setTabOrder(before, stop);
                }
                before = stop;
            }
        }
    }
}

void FormView::Detach()
{
    m_following.End();
    for (auto& [control, part] : m_parts) {
        part.following.End();
        part.focusing.End();
        part.view->Detach();
    }
    m_form = nullptr;
}

QWidget* FormView::FirstFocus() const
{
    QWidget* first = nullptr;
    for (const LayoutLine& line : m_form->Layout()) {
        for (const LayoutItem& item : line.items) {
            QWidget& widget = ViewOfItem(item).Widget();
            const bool takesFocus = item.control->AcceptsUser() && (widget.focusPolicy() & Qt::TabFocus) != 0;
            first = first == nullptr && takesFocus ? &widget : first;
        }
    }
    const Button* standard = m_form->DefaultButton();
    const bool beginsWithButton = first == nullptr || qobject_cast<QAbstractButton*>(first) != nullptr;
    return standard != nullptr && beginsWithButton ? &m_parts.at(standard).view->Widget() : first;
}

ControlView& FormView::ViewOfItem(const LayoutItem& item) const
{
    return *m_parts.at(item.control).view;
}

} // namespace quor
