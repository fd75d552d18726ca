#pragma once
// A property page: a table of rows, each a caption, its controls, the setting behind them, and what is read and
// written.
//
// A page's constructor is its table, in the order of the page. A row makes its controls and their line, adds its read
// to SetOwner, and guards its handler with the number that its control's name has. Rules speak of controls by name. The
// handlers run while an owner is loaded, too: they write the same values back and bring dependent controls in line.

#include "base/guard.h"
#include "base/narrow.h"
#include "forms/fields.h"
#include "forms/form.h"
#include "pages/page_host.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace quor {

class Element;

class Page : public Form {
public:
    // The element whose settings the page edits from now on, and the name of its widget array. Fails where a control
    // can't show a setting.
    virtual void SetOwner(Element& /*element*/, std::string_view /*array*/) {}
    virtual void ClearOwner() {}
    // Of the view's page: takes the view from the host and shows it.
    virtual void SetProps() {}

protected:
    Page(std::string name, PageHost& host);

    using Work = std::function<void()>;

    static constexpr std::string_view settingWords =
        "An error occurred while setting the property value. Please try again.";

    // What runs at a control's event: a failure is reported under the control's number, which it must have.
    void Handle(Event<>& event, std::string_view control, Work work, std::string_view words = settingWords);
    // The same for the few controls without a number: a failure is forgotten.
    void HandleQuietly(Event<>& event, Work work);

    // What SetOwner does for a control, in the order of the rows or in that of ReadOrder, which leaves out what it
    // doesn't name.
    void Read(std::string_view control, Work work);
    void ReadOrder(const std::vector<std::string_view>& controls);
    void ReadAll();

    // The parts of a line.
    Label& CaptionOf(std::string_view caption);
    void Line(std::string_view caption, std::vector<LayoutItem> items);
    void CaptionedLine(Label& caption, Control& control, Button* browse = nullptr);
    void BoxLine(CheckBox& box);
    void FrameLine(std::string name, std::string caption);
    // When all lines are there.
    void ArrangeLines();

    ListBox& MakeList(std::string_view name, std::string_view caption, std::vector<std::string> items);
    NumberField& MakeNumber(std::string_view name, std::string_view caption, std::string_view unit, double least,
                            double most, int decimals = 0);
    TextBox& MakeText(std::string_view name, std::string_view caption);
    // A line below a text field, which shows while the text has characters that a view file can't hold.
    void WarningLine(TextBox& text);
    // A text field with a browse button; the field can't be typed in where it only shows.
    TextBox& MakeBrowsed(std::string_view name, std::string_view button, std::string_view caption, bool onlyShows);
    // A swatch with its browse button, and a box behind them if it is named.
    Swatch& MakeSwatch(std::string_view name, std::string_view button, std::string_view caption,
                       std::string_view box = {});
    OptionArray& MakeOptions(std::string_view name, std::vector<std::string> captions);

    OptionArray& FramedOptions(std::string frame, std::string caption, std::string_view name,
                               std::vector<std::string> captions);

    // A click on the swatch is one on its button, where that is enabled.
    void BrowseColor(std::string_view swatch, std::string_view button, std::function<void(Color)> write);
    // The font dialog, which takes the font over, with the swatch's colour where there is a swatch.
    void AskForFont(Font& font, const Swatch* color);
    Color DialogColor();
    // The number of fewest digits that is this float: 0.1 instead of 0.10000000149.
    static double ShortestOf(float number);
    // The stored number where the shown one is equal to it: a field keeps neither a negative zero nor the bits of a
    // number that is none.
    static float SameOr(float stored, float shown);
    // The open dialog for a file that exists; the field takes what is chosen, and its handler writes it.
    void BrowseFile(std::string_view field, std::string_view button, std::string_view filter);
    void BrowsePicture(std::string_view field, std::string_view button);

    // Shows a stored number as a row or an option. Where there is none, the failure (380) says which setting holds it.
    static void ShowStored(ListBox& list, std::string_view setting, std::int32_t row, std::int32_t stored);
    static void ShowStored(OptionArray& options, std::string_view setting, std::int32_t stored);

    // Writes the text of a field for a picture file. Where there is no such file: says so, and empties both.
    void TryPicture(TextBox& field, const std::function<void(const std::string&)>& write);

    template <class C = Control> C& On(std::string_view name) const { return Item<C>(name); }
    void Enable(std::string_view control, bool enabled) const;
    void EnableAll(const std::vector<std::string>& controls, bool enabled) const;

    PageHost& m_host;

private:
    struct Reading {
        std::string control;
        Work work;
    };

    std::vector<Reading> m_readings;
    std::vector<LayoutLine> m_lines;
    std::vector<Subscription> m_subscriptions;
    int m_captions = 0;
};

// The rows of a page whose owner is an Owner, which has settings and a Set for them.
template <class Owner> class PageOf : public Page {
protected:
    using Page::Page;

    // Fails with 91 while the page has none.
    virtual Owner& TheOwner() const = 0;

    // The settings may be those of a base of the owner.
    template <class B, class S> void Write(S B::*setting, typename S::Value value)
    {
        TheOwner().Set(setting, std::move(value));
    }
    template <class B, class S> void WriteThen(S B::*setting, typename S::Value value, const Work& after)
    {
        Write(setting, std::move(value));
        if (after) {
            after();
        }
    }
    template <class B, class S> const typename S::Value& Value(S B::*setting) const { return (TheOwner().*setting)(); }

    template <class B, class S>
    void ListRow(std::string_view name, std::string_view caption, std::vector<std::string> items, S B::*setting)
    {
        ListBox& list = MakeList(name, caption, std::move(items));
        Handle(list.Click, name, [=, this, &list] { Write(setting, Narrow<typename S::Value>(list.ListIndex())); });
        Read(name, [=, this, &list] { ShowStored(list, S::name, Value(setting), Value(setting)); });
    }

    template <class B, class S>
    void ColorRow(std::string_view name, std::string_view button, std::string_view caption, S B::*setting,
                  Work after = {})
    {
        ColorOn(MakeSwatch(name, button, caption), name, button, setting, std::move(after));
    }

    // With "Use Default": on, the button is off, and swatch and setting are the button face.
    template <class B, class S>
    void DefaultColorRow(std::string_view name, std::string_view button, std::string_view box, std::string_view caption,
                         S B::*setting, const Work& after = {}, const Work& whenDefault = {})
    {
        Swatch& swatch = MakeSwatch(name, button, caption, box);
        ColorOn(swatch, name, button, setting, after);
        auto& check = On<CheckBox>(box);
        Handle(check.Click, box, [=, this, &swatch, &check, button = std::string(button)] {
            Enable(button, !check.Value());
            if (check.Value()) {
                swatch.Set(&Swatch::BackColor, colors::buttonFace);
                if (whenDefault) {
                    whenDefault();
                }
                WriteThen(setting, colors::buttonFace, after);
            }
        });
        Read(box, [=, this, &check] { check.Value(Value(setting) == colors::buttonFace); });
    }

    template <class B, class S>
    void CheckRow(std::string_view name, std::string_view caption, S B::*setting, std::function<void(bool)> rule = {})
    {
        auto& box = Make<CheckBox>(std::string(name), std::string(caption));
        BoxLine(box);
        CheckOn(box, name, setting, std::move(rule));
    }

    // On, the element works the colour out by itself: the swatch says so, and its button is off.
    template <class B, class S, class D, class C>
    void AutoColorBox(std::string_view name, std::string_view caption, S B::*setting, std::string_view swatch,
                      std::string_view button, C D::*color)
    {
        CheckRow(name, caption, setting,
                 [=, this, swatch = std::string(swatch), button = std::string(button)](bool isAutomatic) {
                     Enable(button, !isAutomatic);
                     On<Swatch>(swatch).Set(&Swatch::BackColor, isAutomatic ? colors::buttonFace : Value(color));
                     On<Swatch>(swatch).Set(&Swatch::Caption, std::string(isAutomatic ? "N/A" : ""));
                 });
    }

    // On, the source gives the captions: their fields take no text, and their ground says so.
    template <class B, class S>
    void AutoCaptionBox(std::string_view name, std::string_view caption, S B::*setting, std::vector<std::string> fields)
    {
        CheckRow(name, caption, setting, [this, fields = std::move(fields)](bool isAutomatic) {
            for (const std::string& field : fields) {
                Enable(field, !isAutomatic);
                On<TextBox>(field).Set(&TextBox::BackColor, isAutomatic ? colors::buttonFace : colors::window);
            }
        });
    }

    // A box and the colour that is left out of a picture. Off, the swatch is the button face and its button is off.
    template <class B, class S, class D, class C>
    void MaskRows(std::string_view name, S B::*setting, std::string_view swatch, std::string_view button, C D::*color)
    {
        auto& box = Make<CheckBox>(std::string(name), "Use Transparency Mask");
        BoxLine(box);
        ColorRow(swatch, button, "Mask Color:", color);
        Enable(button, false);
        CheckOn(box, name, setting,
                [=, this, swatch = std::string(swatch), button = std::string(button)](bool isMasked) {
                    On<Swatch>(swatch).Set(&Swatch::BackColor, isMasked ? Value(color) : colors::buttonFace);
                    Enable(button, isMasked);
                });
    }

    template <class B, class S>
    void NumberRow(std::string_view name, std::string_view caption, std::string_view unit, double least, double most,
                   S B::*setting, int decimals = 0, Work after = {})
    {
        NumberOn(MakeNumber(name, caption, unit, least, most, decimals), name, setting, std::move(after));
    }

    // The field shows the font's name. Owner::UpdateFont gives the font to the widget.
    template <class B, class F> void FontRow(std::string_view name, std::string_view button, F B::*font)
    {
        FontOn(name, button, font, {}, nullptr);
    }

    // With the colour of the text, which has its own swatch on a row below.
    template <class B, class F, class D, class C>
    void FontRow(std::string_view name, std::string_view button, F B::*font, std::string_view swatch, C D::*color)
    {
        FontOn(name, button, font, swatch, color);
    }

    template <class B, class S> void TextRow(std::string_view name, std::string_view caption, S B::*setting)
    {
        TextOn(MakeText(name, caption), name, setting);
    }

    // A picture file: typed, or browsed for.
    template <class B, class S>
    void PictureRow(std::string_view name, std::string_view button, std::string_view caption, S B::*setting)
    {
        TextOn(MakeBrowsed(name, button, caption, false), name, setting);
        BrowsePicture(name, button);
    }

    // The same; a file that isn't there is told of, and the field is emptied.
    template <class B, class S>
    void CheckedPictureRow(std::string_view name, std::string_view button, std::string_view caption, S B::*setting)
    {
        TextBox& text = MakeBrowsed(name, button, caption, false);
        Handle(text.Change, name,
               [=, this, &text] { TryPicture(text, [=, this](const std::string& path) { Write(setting, path); }); });
        Read(name, [=, this, &text] { text.Text(Value(setting)); });
        BrowsePicture(name, button);
    }

    template <class B, class S>
    void OptionRow(std::string_view name, std::vector<std::string> captions, S B::*setting, Work after = {})
    {
        OptionArray& options = MakeOptions(name, std::move(captions));
        Handle(options.Click, name,
               [=, this, &options] { WriteThen(setting, Narrow<typename S::Value>(options.Index()), after); });
        Read(name, [=, this, &options] { ShowStored(options, S::name, Value(setting)); });
    }

    // What a row does with its controls, for pages that place them by themselves.
    template <class B, class S>
    void ColorOn(Swatch& swatch, std::string_view name, std::string_view button, S B::*setting, Work after = {})
    {
        BrowseColor(name, button, [=, this](Color color) { WriteThen(setting, color, after); });
        Read(name, [=, this, &swatch] { swatch.Set(&Swatch::BackColor, Value(setting)); });
    }

    template <class B, class S> void NumberOn(NumberField& field, std::string_view name, S B::*setting, Work after = {})
    {
        Handle(field.Change, name, [=, this, &field] {
            if constexpr (std::is_floating_point_v<typename S::Value>) {
                WriteThen(setting, SameOr(Value(setting), ToSingle(field.Value())), after);
            } else {
                WriteThen(setting, Narrow<typename S::Value>(field.Value()), after);
            }
        });
        Read(name, [=, this, &field] {
            if constexpr (std::is_floating_point_v<typename S::Value>) {
                field.Value(ShortestOf(Value(setting)));
            } else {
                field.Value(Value(setting));
            }
        });
    }

private:
    template <class B, class S>
    void CheckOn(CheckBox& box, std::string_view name, S B::*setting, const std::function<void(bool)>& rule)
    {
        Handle(box.Click, name, [=, this, &box] {
            Write(setting, typename S::Value{box.Value()});
            if (rule) {
                rule(box.Value());
            }
        });
        Read(name, [=, this, &box] { box.Value(bool{Value(setting) == typename S::Value{true}}); });
    }

    template <class B, class F, class C>
    void FontOn(std::string_view name, std::string_view button, F B::*font, std::string_view swatch, C color)
    {
        TextBox& text = MakeBrowsed(name, button, "Font:", true);
        Handle(On<Button>(button).Click, button, [=, this, &text, swatch = std::string(swatch)] {
            Font chosen = Value(font);
            Swatch* shown = swatch.empty() ? nullptr : &On<Swatch>(swatch);
            AskForFont(chosen, shown);
            Write(font, chosen);
            text.Text(chosen.Name);
            if constexpr (!std::is_null_pointer_v<C>) {
                shown->Set(&Swatch::BackColor, DialogColor());
                Write(color, DialogColor());
            }
            TheOwner().UpdateFont();
        });
        Read(name, [=, this, &text] { text.Text(Value(font).Name); });
    }

    template <class B, class S> void TextOn(TextBox& text, std::string_view name, S B::*setting)
    {
        Handle(text.Change, name, [=, this, &text] { Write(setting, text.Text()); });
        Read(name, [=, this, &text] { text.Text(Value(setting)); });
    }
};

// The page of one class of element.
template <class E> class ElementPage : public PageOf<E> {
public:
    void SetOwner(Element& element, std::string_view /*array*/) override
    {
        m_owner = &dynamic_cast<E&>(element);
        this->ReadAll();
    }
    void ClearOwner() override { m_owner = nullptr; }

protected:
    using PageOf<E>::PageOf;

    E& TheOwner() const override
    {
        if (m_owner == nullptr) {
            throw Failure(failures::objectNotSet);
        }
        return *m_owner;
    }

private:
    E* m_owner = nullptr;
};

} // namespace quor
