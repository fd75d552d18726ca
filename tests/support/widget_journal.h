#pragma once
// What is written to widgets, and their repaints, as short text.

#include "platform/trace.h"
#include "widgets/widget.h"

#include <string>
#include <utility>

namespace quor {

class WidgetJournal final : public Trace, public PropertyVisitor {
public:
    // What came since the last call, such as "Active=true repaint ".
    std::string Take() { return std::exchange(m_text, {}); }

    // The same without the values.
    std::string TakeNames() { return std::exchange(m_names, {}); }

    void Writes(const Widget& /*widget*/, const WrittenProperty& property) const override
    {
        property.visit(const_cast<WidgetJournal&>(*this), property);
    }
    void Repaints(const Widget& /*widget*/) const override { m_text += "repaint "; }
    void Visit(std::string_view name, bool value) override { Add(name, value ? "true" : "false"); }
    void Visit(std::string_view name, std::int32_t value) override { Add(name, std::to_string(value)); }
    void Visit(std::string_view name, float value) override { Add(name, std::to_string(static_cast<int>(value))); }
    void Visit(std::string_view name, double value) override { Add(name, std::to_string(static_cast<int>(value))); }
    void Visit(std::string_view name, Color value) override { Add(name, std::to_string(value.value)); }
    void Visit(std::string_view name, const Font& value) override { Add(name, value.Name); }
    void Visit(std::string_view name, const std::string& value) override { Add(name, value); }
    void Visit(std::string_view name, const PictureRef& value) override
    {
        Add(name, value == nullptr ? "none" : value->Path());
    }

private:
    void Add(std::string_view name, const std::string& value)
    {
        m_names += std::string(name) + ' ';
        m_text += std::string(name) + '=' + value + ' ';
    }

    mutable std::string m_text;
    std::string m_names;
};

} // namespace quor
