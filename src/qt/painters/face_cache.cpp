#include "qt/painters/face_cache.h"

#include "widgets/scale_gauge.h"

#include <cstring>
#include <type_traits>

namespace quor {

namespace {

// One after the other, as bytes.
class Properties final : public PropertyVisitor {
public:
    template <class T> void Add(const T& value)
    {
        static_assert(std::is_scalar_v<T>);
        Append(&value, sizeof value);
    }
    QByteArray Bytes() const { return m_bytes.first(m_length); }

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
        Append(text.data(), text.size());
    }

    void Append(const void* bytes, std::size_t length)
    {
        if (m_length + static_cast<qsizetype>(length) > m_bytes.size()) {
            m_bytes.resize(2 * m_bytes.size() + static_cast<qsizetype>(length));
        }
        std::memcpy(m_bytes.data() + m_length, bytes, length);
        m_length += static_cast<qsizetype>(length);
    }

    // What the place on the canvas and the value decide is painted without it. The size is in the key in another form.
    template <class T> void AddUnlessMoving(std::string_view name, const T& value)
    {
        const bool isMoving = name == decltype(ScaleGauge::Position)::name || name == decltype(Widget::Left)::name ||
                              name == decltype(Widget::Top)::name || name == decltype(Widget::Width)::name ||
                              name == decltype(Widget::Height)::name;
        if (!isMoving) {
            Add(value);
        }
    }

    QByteArray m_bytes{512, Qt::Uninitialized};
    qsizetype m_length = 0;
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
