#pragma once
// The settings of an element as text, by their names in the record: to compare what is stored with what is wanted.

#include "base/overloaded.h"
#include "format/field_walk.h"

#include <map>
#include <string>
#include <string_view>

namespace quor {

// Flags are 1 and 0, a font is its name; those of the sources are left out.
class FieldText final : public FieldWalk {
public:
    using Texts = std::map<std::string, std::string, std::less<>>;

    template <class E> static Texts Of(E& element)
    {
        FieldText walk;
        element.Fields(walk);
        return std::move(walk.m_texts);
    }

private:
    void Field(std::string_view name, FieldRef field) override
    {
        const auto keep = [&](std::string text) {
            if (m_depth == 0) {
                m_texts.insert_or_assign(std::string(name), std::move(text));
            }
        };
        std::visit(Overloaded{[&](auto value) { keep(std::to_string(*value)); },
                              [&](WideFlag* value) { keep(std::to_string(value->value)); },
                              [&](Color* value) { keep(std::to_string(value->value)); },
                              [&](Font* value) { keep(value->Name); }, [&](std::string* value) { keep(*value); },
                              [&](NameField value) { keep(*value); }},
                   field);
    }
    void Begin(std::string_view /*part*/) override { ++m_depth; }
    void End() override { --m_depth; }

    Texts m_texts;
    int m_depth = 0;
};

} // namespace quor
