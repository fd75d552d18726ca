#pragma once
// A form as a model: its controls by name, its size, and where each control stands, told as data.

#include "base/failure.h"
#include "base/keyed_list.h"
#include "base/values.h"
#include "forms/controls.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace quor {

// One control on a line. Pixels.
struct LayoutItem {
    static constexpr int behind = -1;  // as x: behind the item before it
    static constexpr int filling = -1; // as width: to the item behind it or to the right margin

    Control* control = nullptr;
    int x = behind;
    int width = 0;        // 0: as wide as it needs; a button grows beyond it where its caption doesn't fit
    int height = 0;       // 0: the usual one of its kind; labels, check boxes and images get the line's
    int gap = 8;          // to the item before it
    int least = 0;        // over 0: the width may shrink to it where the line has no room
    int orX = behind;     // instead of x, where it is too wide to end before the right margin
    bool atRight = false; // with the others of its line that are, it ends at the right margin
};

// Controls side by side, each in the middle of the height. Pixels.
struct LayoutLine {
    static constexpr int below = -1; // as y: where the line before it ends

    int y = below;
    int height = 0; // grows where options don't fit side by side; none where no item is visible
    std::vector<LayoutItem> items;
};

class Form : public Looks<Form> {
public:
    using ControlList = KeyedList<std::unique_ptr<Control>>;

    explicit Form(std::string name) : m_name(std::move(name)) {}
    ~Form() override; // unloads it

    const std::string& Name() const noexcept { return m_name; }

    Property<"Caption", std::string> Caption;
    Property<"Width", float> Width;                // of the inner area, twips
    Property<"Height", float> Height;              // the same
    Property<"ControlBox", bool> ControlBox{true}; // the user can close it
    Property<"BackColor", Color> BackColor{colors::buttonFace};

    Event<> Unloaded; // handlers may destroy the form

    // In the order in which they were made.
    const ControlList& Controls() const noexcept { return m_controls; }

    // 5 for a name that isn't there, 13 for a control of another kind.
    template <class C = Control> C& Item(std::string_view name) const
    {
        auto* control = dynamic_cast<C*>(m_controls.Item(name).get());
        if (control == nullptr) {
            throw Failure(failures::typeMismatch);
        }
        return *control;
    }

    // The visible button that Enter or Escape pushes; null if there is none.
    Button* DefaultButton() const;
    Button* CancelButton() const;

    const std::vector<LayoutLine>& Layout() const noexcept { return m_layout; }
    int Margin() const noexcept { return m_margin; } // left and right of the lines, pixels

    // Runs Form_Load unless it is loaded already. Whoever shows a form loads it first, and doesn't show one that
    // unloads itself thereby.
    void Load();
    bool IsLoaded() const noexcept { return m_isLoaded; }

    // Ends a loaded form; it may be loaded anew.
    void Unload();

protected:
    // A control of this form. Members of an array are named "name(0)", "name(1)". 457 for a name in use.
    template <class C, class... Arguments> C& Make(std::string name, Arguments&&... arguments)
    {
        auto control = std::make_unique<C>(name, std::forward<Arguments>(arguments)...);
        C& made = *control;
        m_controls.Add(name, std::move(control));
        return made;
    }

    void Arrange(int margin, std::vector<LayoutLine> lines);

private:
    virtual void Form_Load() {}

    std::string m_name;
    ControlList m_controls;
    std::vector<LayoutLine> m_layout;
    int m_margin = 0;
    bool m_isLoaded = false;
};

} // namespace quor
