#pragma once
// Fills the fields of a record with values of a fixed random sequence, to find what one of its orders forgets.

#include "base/overloaded.h"
#include "format/field_walk.h"

#include <random>
#include <string>

namespace quor {

class FieldFiller final : public FieldWalk {
public:
    enum class What { All, WithoutParts }; // the sources are parts

    FieldFiller(unsigned seed, What what) : m_random(seed), m_what(what) {}

    // Fills these fields alone, named one behind the other.
    FieldFiller(unsigned seed, std::string_view fields) : m_random(seed), m_what(What::WithoutParts), m_only(fields) {}

private:
    void Field(std::string_view name, FieldRef field) override
    {
        // Labels show their alignment as a number of 16 bits, and meters subtract two short ones in as many.
        const std::int32_t most = name == "CaptionAlignment" ? 32767 : 2000000000;
        std::visit(
            Overloaded{[&](bool* value) { Fill(name, *value, Draw(0, 1) == 1); },
                       [&](WideFlag* value) { Fill(name, value->value, Draw(0, 1) == 1); },
                       [&](std::uint8_t* value) { Fill(name, *value, static_cast<std::uint8_t>(Draw(0, 255))); },
                       [&](std::int16_t* value) { Fill(name, *value, static_cast<std::int16_t>(Draw(-16384, 16383))); },
                       [&](std::int32_t* value) { Fill(name, *value, Draw(-most, most)); },
                       [&](float* value) { Fill(name, *value, static_cast<float>(Draw(0, 30000)) / 8); },
                       [&](Color* value) { Fill(name, value->value, Draw(0, 0xFFFFFF)); },
                       [&](Font* value) { Fill(name, *value, DrawFont()); },
                       [&](std::string* value) { Fill(name, *value, Text()); },
                       [&](ByteField value) { Fill(name, *value, Draw(0, 255)); }, [](NameField) {}},
            field);
    }
    void Begin(std::string_view /*part*/) override { ++m_depth; }
    void End() override { --m_depth; }

    std::int32_t Draw(std::int32_t least, std::int32_t most)
    {
        return std::uniform_int_distribution<std::int32_t>(least, most)(m_random);
    }

    Font DrawFont()
    {
        Font font;
        font.Name = Text();
        font.Size = Draw(10'000, 720'000);
        font.Italic = Draw(0, 1) == 1;
        font.SetWeight(static_cast<std::int16_t>(Draw(100, 900)));
        return font;
    }

    std::string Text() { return "text " + std::to_string(Draw(0, 99999)) + " \u00E9\u20AC"; }

    template <class T> void Fill(std::string_view name, T& value, T drawn)
    {
        const bool isMeant = m_only.empty() || (' ' + m_only + ' ').find(' ' + std::string(name) + ' ') != m_only.npos;
        if (isMeant && (m_what == What::All || m_depth == 0)) {
            value = std::move(drawn);
        }
    }

    std::mt19937 m_random;
    What m_what;
    std::string m_only;
    int m_depth = 0;
};

} // namespace quor
