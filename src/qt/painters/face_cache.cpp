#include "qt/painters/face_cache.h"

#include "widgets/scale_gauge.h"

#include <QVarLengthArray>

#include <algorithm>
#include <array>
#include <type_traits>

namespace quor {

namespace {

// One after the other, as bytes.
class Properties final : public PropertyVisitor {
public:
    template <class T> void Add(const T& value)
    {
        static_assert(std::is_scalar_v<T>);
        m_bytes.append(reinterpret_cast<const char*>(&value), qsizetype{sizeof value});
    }
    QByteArray Bytes() const { return {m_bytes.data(), m_bytes.size()}; }

    void Visit(std::string_view name, bool value) override { AddUnlessMoving(name, value); }
    void Visit(std::string_view name, std::int32_t value) override { AddUnlessMoving(name, value); }
    void Visit(std::string_view name, float value) override { AddUnlessMoving(name, value); }
    void Visit(std::string_view name, double value) override { AddUnlessMoving(name, value); }
    void Visit(std::string_view name, Color value) override { AddUnlessMoving(name, value.value); }
    void Visit(std::string_view /*name*/, const Font& value) override
    {
        Add(value.Name);
        Add(value.Size);
        Add(value.Weight());
        Add(value.Charset);
        Add(value.Italic);
        Add(value.Underline);
        Add(value.Strikethrough);
    }
    void Visit(std::string_view name, const std::string& value) override
    {
        if (name != decltype(Widget::Tag)::name) {
            Add(value);
        }
    }
    void Visit(std::string_view name, const PictureRef& value) override { AddUnlessMoving(name, value.get()); }

private:
    void Add(const std::string& text)
    {
        Add(text.size());
        m_bytes.append(text.data(), static_cast<qsizetype>(text.size()));
    }

    // What the place on the canvas and the value decide is painted without it. The size is in the key in another form.
    template <class T> void AddUnlessMoving(std::string_view name, const T& value)
    {
        constexpr std::array moving = {decltype(ScaleGauge::Position)::name, decltype(Widget::Left)::name,
                                       decltype(Widget::Top)::name, decltype(Widget::Width)::name,
                                       decltype(Widget::Height)::name};
        if (std::find(moving.begin(), moving.end(), name) == moving.end()) {
            Add(value);
        }
    }

    QVarLengthArray<char, 512> m_bytes;
};

} // namespace

QByteArray FaceKey(const Widget& widget, const QSize& size, qreal scale)
{
    Properties properties;
    properties.Add(size.width());
    properties.Add(size.height());
    properties.Add(scale);
    widget.VisitProperties(properties);
    return properties.Bytes();
}

} // namespace quor
