#pragma once
// The small values that settings, widgets and records are made of.

#include <compare>
#include <cstdint>
#include <string>
#include <string_view>

namespace quor {

inline constexpr std::string_view appTitle = "Quor Custom View Editor";

// 15 twips are one pixel of the window system's device-independent coordinates, whatever the scale factor.
inline constexpr float twipsPerPixelX = 15;
inline constexpr float twipsPerPixelY = 15;

// 0x00BBGGRR, or a system colour where the top bit is set.
struct Color {
    std::int32_t value = 0;
    friend constexpr bool operator==(Color, Color) = default;
};

namespace colors {
inline constexpr Color buttonFace{static_cast<std::int32_t>(0x8000000F)};
inline constexpr Color buttonShadow{static_cast<std::int32_t>(0x80000010)};
inline constexpr Color buttonText{static_cast<std::int32_t>(0x80000012)};
inline constexpr Color window{static_cast<std::int32_t>(0x80000005)};
} // namespace colors

struct Rgb {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    friend constexpr bool operator==(Rgb, Rgb) = default;
};

// What a view's colour looks like: system colours are those of one fixed classic scheme, on every desk.
Rgb Resolve(Color color) noexcept;

// A flag that takes two bytes in a record, where other flags take one.
struct WideFlag {
    bool value = false;
    friend constexpr bool operator==(WideFlag, WideFlag) = default;
};

// A font with Bold and Weight tied: the last one set decides.
class Font {
public:
    std::string Name = "MS Sans Serif";
    std::int64_t Size = 82'500; // ten-thousandths of a point
    std::int16_t Charset = 0;
    bool Italic = false;
    bool Strikethrough = false;
    bool Underline = false;

    bool Bold() const noexcept { return m_bold; }
    std::int16_t Weight() const noexcept { return m_weight; }

    // Another value than the present one makes the weight 700 or 400.
    void SetBold(bool bold) noexcept;
    // Bold above 550.
    void SetWeight(std::int16_t weight) noexcept;

    friend bool operator==(const Font&, const Font&) = default;

private:
    bool m_bold = false;
    std::int16_t m_weight = 400;
};

// Copies the eight attributes in their fixed order, the weight last.
void CopyFont(const Font& source, Font& target);

// Twips.
struct Area {
    float left = 0;
    float top = 0;
    float width = 0;
    float height = 0;
    friend constexpr bool operator==(const Area&, const Area&) = default;
};

} // namespace quor
