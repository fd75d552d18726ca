#include "base/values.h"

#include <array>
#include <cstddef>

namespace quor {

namespace {

constexpr Rgb Hex(std::uint32_t rgb)
{
    return {static_cast<std::uint8_t>(rgb >> 16U), static_cast<std::uint8_t>(rgb >> 8U),
            static_cast<std::uint8_t>(rgb)};
}

// The classic scheme by the number of the system colour.
constexpr std::array<Rgb, 25> classicScheme = {
    Hex(0xE9ECEF), // scroll bar
    Hex(0x3A6EA5), // desktop
    Hex(0x1F4E79), // active title
    Hex(0x8A929B), // inactive title
    Hex(0xFFFFFF), // menu
    Hex(0xFFFFFF), // window
    Hex(0x000000), // window frame
    Hex(0x000000), // menu text
    Hex(0x000000), // window text
    Hex(0xFFFFFF), // title text
    Hex(0xD5D9DE), // active border
    Hex(0xD5D9DE), // inactive border
    Hex(0x8A929B), // workspace
    Hex(0x1F4E79), // selection
    Hex(0xFFFFFF), // selected text
    Hex(0xD5D9DE), // button face
    Hex(0x8A929B), // button shadow
    Hex(0x737B84), // grey text
    Hex(0x000000), // button text
    Hex(0xD5D9DE), // inactive title text
    Hex(0xFFFFFF), // button highlight
    Hex(0x4A525B), // dark shadow
    Hex(0xE9ECEF), // light
    Hex(0x000000), // tip text
    Hex(0xFFFFE1), // tip ground
};

} // namespace

Rgb Resolve(Color color) noexcept
{
    const auto bits = static_cast<std::uint32_t>(color.value);
    if ((bits & 0x80000000U) != 0) {
        const std::size_t number = bits & 0xFFU;
        return number < classicScheme.size() ? classicScheme[number] : Rgb{};
    }
    return {static_cast<std::uint8_t>(bits), static_cast<std::uint8_t>(bits >> 8U),
            static_cast<std::uint8_t>(bits >> 16U)};
}

void Font::SetBold(bool bold) noexcept
{
    if (bold != m_bold) {
        m_bold = bold;
        m_weight = bold ? 700 : 400;
    }
}

void Font::SetWeight(std::int16_t weight) noexcept
{
    m_weight = weight;
    m_bold = weight > 550;
}

void CopyFont(const Font& source, Font& target)
{
    target.SetBold(source.Bold());
    target.Charset = source.Charset;
    target.Italic = source.Italic;
    target.Name = source.Name;
    target.Size = source.Size;
    target.Strikethrough = source.Strikethrough;
    target.Underline = source.Underline;
    target.SetWeight(source.Weight());
}

} // namespace quor
