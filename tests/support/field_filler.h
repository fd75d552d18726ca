#pragma once
// Fills the fields of a record with values of a fixed random sequence, to find what one of its orders forgets.

#include "document/format/field_walk.h"

#include <random>

namespace quor {

class FieldFiller final : public FieldWalk {
public:
    // With parts: also the fields of the sources.
    FieldFiller(unsigned seed, bool withParts) : m_random(seed), m_withParts(withParts) {}

private:
    void Field(std::string_view /*name*/, bool& value) override { Fill(value, Draw(0, 1) == 1); }
    void Field(std::string_view /*name*/, WideFlag& value) override { Fill(value, WideFlag{Draw(0, 1) == 1}); }
    void Field(std::string_view /*name*/, std::uint8_t& value) override
    {
        Fill(value, static_cast<std::uint8_t>(Draw(0, 255)));
    }
    void Field(std::string_view /*name*/, std::int16_t& value) override
    {
        Fill(value, static_cast<std::int16_t>(Draw(-32768, 32767)));
    }
    void Field(std::string_view /*name*/, std::int32_t& value) override { Fill(value, Draw(-2000000000, 2000000000)); }
    void Field(std::string_view /*name*/, float& value) override
    {
        Fill(value, static_cast<float>(Draw(0, 30000)) / 8);
    }
    void Field(std::string_view /*name*/, Color& value) override { Fill(value, Color{Draw(0, 0xFFFFFF)}); }
    void Field(std::string_view /*name*/, Font& value) override
    {
        Font font;
        font.Name = Text();
        font.Size = Draw(10'000, 720'000);
        font.Italic = Draw(0, 1) == 1;
        font.SetWeight(static_cast<std::int16_t>(Draw(100, 900)));
        Fill(value, font);
    }
    void Field(std::string_view /*name*/, std::string& value) override { Fill(value, Text()); }
    void ByteField(std::string_view /*name*/, std::int32_t& value) override { Fill(value, Draw(0, 255)); }
    void NameField(std::string_view /*name*/, std::string& /*value*/) override {}
    void Begin(std::string_view /*part*/) override { ++m_depth; }
    void End() override { --m_depth; }

    std::int32_t Draw(std::int32_t least, std::int32_t most)
    {
        return std::uniform_int_distribution<std::int32_t>(least, most)(m_random);
    }

    std::string Text() { return "text " + std::to_string(Draw(0, 99999)) + " \u00E9\u20AC"; }

    template <class T> void Fill(T& value, T drawn)
    {
        if (m_withParts || m_depth == 0) {
            value = std::move(drawn);
        }
    }

    std::mt19937 m_random;
    bool m_withParts;
    int m_depth = 0;
};

} // namespace quor
