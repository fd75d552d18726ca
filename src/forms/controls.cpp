#include "forms/controls.h"

#include "base/failure.h"

namespace quor {

void RequireIndex(std::int32_t index, std::size_t count)
{
    if (index < -1 || (index >= 0 && static_cast<std::size_t>(index) >= count)) {
        throw Failure(failures::invalidPropertyValue);
    }
}

void Button::Push()
{
    if (AcceptsUser()) {
        Click.Raise();
    }
}

void ProgressBar::Maximum(std::int32_t maximum)
{
    if (maximum <= 0) {
        throw Failure(failures::invalidPropertyValue);
    }
    if (Value() > maximum) {
        Value(maximum);
    }
    Write(m_maximum, maximum);
}

void ProgressBar::Value(std::int32_t value)
{
    if (value < 0 || value > Maximum()) {
        throw Failure(failures::invalidPropertyValue);
    }
    Write(m_value, value);
}

} // namespace quor
