#include "forms/controls.h"

#include "base/failure.h"

namespace quor {

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
