#pragma once
// The controls that divide a form or hold many rows: panels and row lists.

#include "forms/controls.h"

#include <vector>

namespace quor {

// The ground of the controls that stand on it, which are made and laid out behind it.
class FormPanel final : public ControlOn<FormPanel> {
public:
    enum class Look {
        Plain, // between a rule above and a rule below
        Box,   // a field with a border
    };

    FormPanel(std::string name, Look look) : ControlOn(std::move(name)), m_look(look) {}

    Look Style() const noexcept { return m_look; }

private:
    Look m_look;
};

// A list whose rows show, with an icon of the program each; one row may be chosen.
class RowList final : public ControlOn<RowList> {
public:
    struct Row {
        std::string text;
        std::string icon; // its name, or empty
        friend bool operator==(const Row&, const Row&) = default;
    };

    explicit RowList(std::string name) : ControlOn(std::move(name)) {}

    Event<> Click;    // another row is chosen
    Event<> DblClick; // the chosen row was opened: a double click, Enter

    const std::vector<Row>& Rows() const noexcept { return m_rows(); }
    std::int32_t Index() const noexcept { return m_index(); } // -1: none

    // Other rows: the chosen one is the same by number, or the last.
    void SetRows(std::vector<Row> rows);

    // From -1 to the last row, else 380.
    void Index(std::int32_t index);
    void Choose(std::int32_t index);
    void Open();

private:
    Property<"Rows", std::vector<Row>> m_rows;
    Property<"Index", std::int32_t> m_index{-1};
};

} // namespace quor
