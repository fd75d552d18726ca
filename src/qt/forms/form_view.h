#pragma once
// Any form's inner area as a widget: its controls, laid out as the form says, following the models.

#include "qt/forms/control_view.h"

#include <QWidget>

#include <unordered_map>

namespace quor {

class Form;
struct LayoutItem;
struct LayoutLine;

class FormView final : public QWidget {
public:
    // The form outlives the view, or the view is detached before.
    explicit FormView(Form& form, QWidget* parent = nullptr);
    ~FormView() override;

    // As the form's size says, or, where that is 0, as its layout needs.
    QSize sizeHint() const override;
    int heightForWidth(int width) const override;

    // Ends the connection with the form; the widgets stay as they are, without effect.
    void Detach();

    // Where the keyboard is to begin: the default button if the form begins with a button, else its first field.
    QWidget* FirstFocus() const;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    struct Part {
        std::unique_ptr<ControlView> view;
        const LayoutLine* line = nullptr; // on which it stands
        int natural = 0;                  // its width as the lines were laid out
        bool isVisible = true;
        Subscription following;
        Subscription focusing;
    };

    void AddControl(Control& control);
    void NameFields();
    void OrderTabs();
    void FollowForm();
    void FollowControl(const Control& control, Part& part);
    template <class Visit> void VisitLines(int width, Visit visit) const;
    int HeightOf(const LayoutLine& line, int width) const;
    void ShowUse(const LayoutLine& line);
    void Place();
    void PlaceLine(const LayoutLine& line, int top, int height);
    int WidthOf(const LayoutItem& item) const;
    int RightStart(const LayoutLine& line) const;
    int LeftEnd(const LayoutLine& line) const;
    int EndOfFilling(const LayoutLine& line, const LayoutItem& item, int rightGroup) const;
    void Put(const LayoutItem& item, const QRect& place);
    ControlView& ViewOfItem(const LayoutItem& item) const;

    Form* m_form;
    std::unordered_map<const Control*, Part> m_parts;
    Subscription m_following;
};

} // namespace quor
