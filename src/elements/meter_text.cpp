#include "elements/meter_text.h"

#include "binding/bln_data_source.h"

namespace quor {

void clsMeterText::Fields(FieldWalk& record)
{
    ExtentFields(record);
    record(BGColor, BorderStyle, FontColor, FontAlignment);
    record.OwnName(ObjName);
    record(Font);
    SourceFields(record);
}

void clsMeterText::ReadControlProps()
{
    TakeExtents();
    Take(*this, BGColor, FontColor, FontAlignment, Font, BorderStyle);
    // The one meter whose decimal places begin with its widget's.
    MtrDataSource.Set(&clsMtrDataSource::DecimalPlaces, Shown().DisplayPrecision());
}

void clsMeterText::WriteControlProps()
{
    ShowExtents();
    Show(*this, BGColor, FontColor, FontAlignment, Font, BorderStyle);
    Shown().Set(&AnalogDisplay::DisplayPrecision, MtrDataSource.DecimalPlaces());
}

void clsMeterText::ShowReading(float value)
{
    // Without data it reads 0, where the gauges point at NoData.
    Shown().Set(&AnalogDisplay::DisplayValue, value <= NoData ? 0 : value);
}

void clsMeterText::ShowMuted(bool isMuted)
{
    Shown().Set(&AnalogDisplay::BackGroundColor, isMuted ? colors::buttonFace : BGColor());
}

void clsMeterText::m_MtrDataSource_DecPlacesChanged(std::int16_t intNewVal)
{
    Shown().Set(&AnalogDisplay::DisplayPrecision, intNewVal);
}

std::unique_ptr<AnalogDisplay> clsMeterText::Prototype()
{
    auto widget = std::make_unique<AnalogDisplay>();
    widget->Move(0, 0, 1575, 285);
    widget->Set(&AnalogDisplay::Alignment, number_alignments::right);
    return widget;
}

} // namespace quor
