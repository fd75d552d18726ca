#pragma once
// The plain controls of forms as models: labels, buttons, progress bars, images and rules. fields.h has those that hold
// what a user enters.

#include "forms/look.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace quor {

// Fails with 380 unless the index is one of `count` positions from 0, or -1 for none.
void RequireIndex(std::int32_t index, std::size_t count);

// A control of a form. Forms make and own their controls (Form::Make).
class Control : public Looks<Control> {
public:
    const std::string& Name() const noexcept { return m_name; }

    Property<"Enabled", bool> Enabled{true};
    Property<"Visible", bool> Visible{true};
    Property<"Tag", std::string> Tag;

    // A user can reach it. What stands for the user's mouse and keys does nothing otherwise.
    bool AcceptsUser() const noexcept { return Enabled() && Visible(); }

    // Asks whoever draws it to give it the keyboard.
    Event<> Focused;
    void Focus() { Focused.Raise(); }

protected:
    explicit Control(std::string name) : m_name(std::move(name)) {}

private:
    std::string m_name;
};

// The base of the control class Self.
template <class Self> class ControlOn : public Looks<Self, Control> {
public:
    using Looks<Self, Control>::Looks;
};

// What a label is for decides its type and colour. Of a headed one the first line is a heading; a tab is the only one.
enum class LabelRole { Text, Caption, Message, Heading, Title, Headed, Tab };

class Label final : public ControlOn<Label> {
public:
    explicit Label(std::string name, std::string caption = {}, LabelRole role = LabelRole::Text)
        : ControlOn(std::move(name)), Caption(std::move(caption)), m_role(role)
    {
    }

    Property<"Caption", std::string> Caption; // an ampersand stands for itself
    Property<"WordWrap", bool> WordWrap;
    Property<"AlignRight", bool> AlignRight;

    LabelRole Role() const noexcept { return m_role; }

private:
    LabelRole m_role;
};

class Button final : public ControlOn<Button> {
public:
    explicit Button(std::string name, std::string caption = {})
        : ControlOn(std::move(name)), Caption(std::move(caption))
    {
    }

    Property<"Caption", std::string> Caption; // '&' marks the letter for the keyboard
    Property<"Default", bool> Default;        // Enter pushes it
    Property<"Cancel", bool> Cancel;          // Escape pushes it

    Event<> Click;

    // As the user does.
    void Push();
};

class ProgressBar final : public ControlOn<ProgressBar> {
public:
    explicit ProgressBar(std::string name) : ControlOn(std::move(name)) {}

    std::int32_t Maximum() const noexcept { return m_maximum(); }
    std::int32_t Value() const noexcept { return m_value(); }

    // Above 0, else 380. A value beyond it becomes the maximum.
    void Maximum(std::int32_t maximum);

    // From 0 to the maximum, else 380.
    void Value(std::int32_t value);

private:
    Property<"Maximum", std::int32_t> m_maximum{100};
    Property<"Value", std::int32_t> m_value;
};

// An icon of the program, by its name.
class Image final : public ControlOn<Image> {
public:
    explicit Image(std::string name, std::string icon = {}) : ControlOn(std::move(name)), Icon(std::move(icon)) {}

    Property<"Icon", std::string> Icon;
};

// A line that divides.
class Rule final : public ControlOn<Rule> {
public:
    explicit Rule(std::string name) : ControlOn(std::move(name)) {}
};

} // namespace quor
