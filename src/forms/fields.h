#pragma once
// The controls that hold what a user enters: lists, boxes, options, text and number fields, swatches.
//
// Their values run handlers, so they are calls: `box.Value()` reads, `box.Value(true)` writes. What stands for the
// user's mouse and keys (Choose, Toggle, Type, Push) does nothing where the control is disabled or hidden.

#include "base/values.h"
#include "forms/controls.h"

#include <vector>

namespace quor {

// A drop-down list.
class ListBox final : public ControlOn<ListBox> {
public:
    explicit ListBox(std::string name, std::vector<std::string> items = {})
        : ControlOn(std::move(name)), m_items(std::move(items))
    {
    }

    Event<> Click; // at each call of ListIndex(index), also with the index that it has

    const std::vector<std::string>& Items() const noexcept { return m_items(); }
    std::int32_t ListIndex() const noexcept { return m_index(); } // -1: none

    void AddItem(std::string item);
    void Clear(); // nothing is chosen afterwards; runs no handler

    // From -1 to the last item, else 380.
    void ListIndex(std::int32_t index);
    void Choose(std::int32_t index);

private:
    Property<"Items", std::vector<std::string>> m_items;
    Property<"ListIndex", std::int32_t> m_index{-1};
};

class CheckBox final : public ControlOn<CheckBox> {
public:
    explicit CheckBox(std::string name, std::string caption = {})
        : ControlOn(std::move(name)), Caption(std::move(caption))
    {
    }

    Property<"Caption", std::string> Caption;

    Event<> Click; // the value is another one

    bool Value() const noexcept { return m_value(); }
    void Value(bool value);
    void Toggle();

private:
    Property<"Value", bool> m_value;
};

// An array of options of which one is chosen.
class OptionArray final : public ControlOn<OptionArray> {
public:
    OptionArray(std::string name, std::vector<std::string> captions)
        : ControlOn(std::move(name)), m_captions(std::move(captions))
    {
    }

    Event<> Click; // another one is chosen

    const std::vector<std::string>& Captions() const noexcept { return m_captions; }
    std::int32_t Index() const noexcept { return m_index(); } // -1: none

    // From 0 to the last option, else 380: once chosen, there is always one.
    void Index(std::int32_t index);
    void Choose(std::int32_t index);

private:
    std::vector<std::string> m_captions;
    Property<"Index", std::int32_t> m_index{-1};
};

class TextBox final : public ControlOn<TextBox> {
public:
    explicit TextBox(std::string name) : ControlOn(std::move(name)) {}

    Property<"ReadOnly", bool> ReadOnly;
    Property<"Masked", bool> Masked; // what is typed doesn't show
    Property<"BackColor", Color> BackColor{colors::window};

    Event<> Change; // the text is another one

    const std::string& Text() const noexcept { return m_text(); }
    void Text(std::string text);
    void Type(std::string text); // the text as a whole
    void Take(std::string text); // what was browsed for: the handlers run for the same text, too

private:
    Property<"Text", std::string> m_text;
};

// A number with a range. What a user types out of it is refused; code may set anything.
class NumberField final : public ControlOn<NumberField> {
public:
    NumberField(std::string name, double least, double most, int decimals = 0)
        : ControlOn(std::move(name)), Least(least), Most(most), Decimals(decimals)
    {
    }

    const double Least;
    const double Most;
    const int Decimals;

    Event<> Change; // the value is another one

    double Value() const noexcept { return m_value(); }
    void Value(double value);

    // What a person has typed so far: Begun may become a number in the range by more digits.
    enum class Typing { Refused, Begun, Done };
    Typing Judge(std::string_view text) const noexcept;

    // False if the text isn't a number within the range yet, or never will be.
    bool Type(std::string_view text);

private:
    Property<"Value", double> m_value;
};

// A coloured label.
class Swatch final : public ControlOn<Swatch> {
public:
    explicit Swatch(std::string name) : ControlOn(std::move(name)) {}

    Property<"BackColor", Color> BackColor{colors::buttonFace};
    Property<"Caption", std::string> Caption;

    Event<> Click;

    void Push();
};

// The title of the lines below it.
class Frame final : public ControlOn<Frame> {
public:
    Frame(std::string name, std::string caption) : ControlOn(std::move(name)), Caption(std::move(caption)) {}

    Property<"Caption", std::string> Caption;
};

} // namespace quor
