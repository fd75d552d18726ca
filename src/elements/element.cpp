#include "elements/element.h"

#include "base/guard.h"
#include "base/narrow.h"
#include "binding/bln_data_source.h"
#include "binding/mtr_data_source.h"
#include "format/record.h"
#include "widgets/canvas.h"
#include "widgets/widget_array.h"

namespace quor {

Element::~Element()
{
    if (m_widget->Array() != nullptr) {
        m_widget->Array()->Unload(*m_widget);
    }
}

void Element::MoveControl(float top, float left, float height, float width)
{
    PropertyAccess::Value(ObjTop) = top;
    PropertyAccess::Value(ObjLeft) = left;
    PropertyAccess::Value(ObjHeight) = height;
    PropertyAccess::Value(ObjWidth) = width;
    m_widget->Move(left, top, width, height);
}

void Element::SaveToArray(std::vector<std::uint8_t>& buffer, std::int32_t& checksum)
{
    RecordWriter writer(buffer, ElementType());
    Fields(writer);
    checksum = writer.Finish();
}

void Element::ReadFromArray(std::span<const std::uint8_t> payload)
{
    RecordReader reader(payload);
    try {
        Fields(reader);
    } catch (...) {
        BindSources();
        throw;
    }
    BindSources();
    WriteControlProps();
}

void Element::BindSources()
{
    ClickAction.Follow();
    if (clsBlnDataSource* source = StatusSource()) {
        source->Follow();
    }
    if (clsMtrDataSource* source = MeterSource()) {
        source->Follow();
    }
}

std::int32_t Element::ScrollOffsetX() const noexcept
{
    return m_widget->Container()->ScrollOffsetX();
}

std::int32_t Element::ScrollOffsetY() const noexcept
{
    return m_widget->Container()->ScrollOffsetY();
}

void Element::TakeExtents()
{
    ObjWidth.Take(*this);
    ObjHeight.Take(*this);
    ObjTop.Take(*this);
    ObjLeft.Take(*this);
}

void Element::ShowExtents()
{
    ObjWidth.Show(*this);
    ObjHeight.Show(*this);
    ObjTop.Show(*this);
    ObjLeft.Show(*this);
}

float ScrolledX::ToWidget(const Element& element, float value)
{
    return ToSingle(double{value} - element.ScrollOffsetX());
}

float ScrolledX::FromWidget(const Element& element, float value)
{
    return ToSingle(double{value} + element.ScrollOffsetX());
}

float ScrolledY::ToWidget(const Element& element, float value)
{
    return ToSingle(double{value} - element.ScrollOffsetY());
}

float ScrolledY::FromWidget(const Element& element, float value)
{
    return ToSingle(double{value} + element.ScrollOffsetY());
}

} // namespace quor
