// What painting costs: a meter's new value and its face, beside the plainest that the toolkit can do, and a frame of
// all kinds.

#include "bench/cases.h"
#include "bench/rows.h"
#include "document/kinds.h"
#include "qt/canvas/canvas_painting.h"
#include "qt/painters/painters.h"
#include "qt/painters/widget_painters.h"
#include "widgets/analog_display.h"
#include "widgets/angular_gauge.h"
#include "widgets/arc_layout.h"
#include "widgets/canvas.h"
#include "widgets/rect_led.h"
#include "widgets/round_led.h"
#include "widgets/switch_led.h"
#include "widgets/widget_array.h"

#include <QFont>
#include <QImage>
#include <QPainter>
#include <QPolygonF>
#include <QRegion>

#include <cmath>
#include <memory>
#include <span>
#include <vector>

namespace quor::bench {

namespace {

constexpr std::int64_t dialSize = 105;
constexpr std::int64_t instruments = 1'000;
constexpr QSize wholeView(1920, 1080);
constexpr QRectF dialArea(8, 8, dialSize, dialSize);
constexpr const char* newValue = "angular meter, new value";
constexpr const char* pictureAndPolygons = "a picture and its polygons";
constexpr const char* newFace = "angular meter, face";
constexpr const char* partsOfFace = "ellipse, five arcs, text";
constexpr const char* frame = "frame of all kinds, new values";

QImage Sheet(const QSize& size)
{
    QImage sheet(size, QImage::Format_RGB32);
    sheet.fill(Qt::white);
    return sheet;
}

// A member of a kind as it is inserted, with this place.
Widget& Loaded(Canvas& canvas, const Kind& kind, std::int32_t index, float left, float top)
{
    WidgetArray& array = *canvas.FindArray(kind.array);
    Widget& widget = array.Load(index);
    widget.Set(&Widget::Left, left);
    widget.Set(&Widget::Top, top);
    widget.Set(&Widget::Visible, true);
    return widget;
}

double ValueAt(std::size_t step)
{
    return static_cast<double>(step * 37 % 10'000);
}

// As a canvas paints it: only where the gauge says that it changed.
void PaintNewValue(benchmark::State& state)
{
    Canvas canvas;
    AddWidgetArrays(canvas);
    auto& gauge = static_cast<AngularGauge&>(Loaded(canvas, *FindKind("ctlMeterAngle"), 1, 120, 120));
    QRegion changed;
    const Subscription subscription =
        canvas.Changed.Subscribe([&](const Area& area) { changed |= PixelsOf(area).toAlignedRect(); });
    QImage sheet = Sheet({200, 200});
    QPainter painter(&sheet);
    KeptPictures kept;
    std::size_t step = 0;
    for (auto _ : state) {
        gauge.Set(&ScaleGauge::Position, ValueAt(++step));
        painter.setClipRegion(changed);
        PaintWidget(painter, gauge, dialArea, kept);
        changed = QRegion();
    }
}

QPolygonF PolygonOf(std::span<const Point> points)
{
    QPolygonF polygon;
    for (const Point& corner : points) {
        polygon.append(dialArea.topLeft() + QPointF(corner.x, corner.y));
    }
    return polygon;
}

// Halo, shadow, body and hub of the pointer, as the toolkit fills them, on a picture of the face.
void PaintPictureAndPolygons(benchmark::State& state)
{
    Canvas canvas;
    AddWidgetArrays(canvas);
    auto& gauge = static_cast<AngularGauge&>(Loaded(canvas, *FindKind("ctlMeterAngle"), 1, 120, 120));
    const ArcLayout arc = ArcOf(gauge, dialSize, dialSize, 1);
    const PointerRelief relief = ReliefOf(arc);
    const QPointF shadow(relief.shadows.front().x, relief.shadows.front().y);
    QPolygonF hub;
    for (int corner = 0; corner < 24; ++corner) {
        const Point place = arc.At(corner * 360.0 / 24, gauge.HubSize() / 2.0);
        hub.append(dialArea.topLeft() + QPointF(place.x, place.y));
    }
    const QImage picture = Sheet(dialArea.size().toSize());
    QImage sheet = Sheet({200, 200});
    QPainter painter(&sheet);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    std::size_t step = 0;
    for (auto _ : state) {
        PropertyAccess::Value(gauge.Position) = ValueAt(++step);
        const Outline outline = PointerOutline(gauge, arc);
        const QPolygonF body = PolygonOf(outline.Points());
        painter.drawImage(dialArea.topLeft(), picture);
        painter.drawPolygon(PolygonOf(outline.Grown(relief.halo).Points()), Qt::WindingFill);
        painter.drawPolygon(body.translated(shadow), Qt::WindingFill);
        painter.drawPolygon(body, Qt::WindingFill);
        painter.drawPolygon(hub, Qt::WindingFill);
    }
}

void PaintFace(benchmark::State& state)
{
    Canvas canvas;
    AddWidgetArrays(canvas);
    const auto& gauge = static_cast<const AngularGauge&>(canvas.FindArray("ctlMeterAngle")->Pattern());
    QImage sheet = Sheet({200, 200});
    QPainter painter(&sheet);
    KeptPictures kept;
    const WidgetSpace space(painter, dialArea, kept);
    for (auto _ : state) {
        painter.setClipping(false);
        DrawDialFace(painter, gauge, space);
    }
}

void PaintPartsOfFace(benchmark::State& state)
{
    QImage sheet = Sheet({200, 200});
    QPainter painter(&sheet);
    painter.setRenderHint(QPainter::Antialiasing);
    QFont font(QStringLiteral("Liberation Sans"));
    font.setPixelSize(11);
    painter.setFont(font);
    for (auto _ : state) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(Qt::white);
        painter.drawEllipse(QRectF(17, 21, 83, 83));
        painter.setBrush(Qt::NoBrush);
        for (int section = 0; section < 5; ++section) {
            painter.setPen(QPen(QColor(40 * section, 90, 0), 5, Qt::SolidLine, Qt::FlatCap));
            painter.drawArc(QRectF(21, 24, 75, 75), (225 - 54 * section) * 16, -54 * 16);
        }
        painter.setPen(Qt::black);
        painter.drawText(QPointF(28, 104), QStringLiteral("0"));
        painter.drawText(QPointF(70, 104), QStringLiteral("10000"));
    }
}

void ShowValue(Widget& widget, std::size_t step)
{
    if (auto* gauge = dynamic_cast<ScaleGauge*>(&widget)) {
        gauge->Set(&ScaleGauge::Position, std::fmod(ValueAt(step), gauge->PositionMax()));
    } else if (auto* display = dynamic_cast<AnalogDisplay*>(&widget)) {
        display->Set(&AnalogDisplay::DisplayValue, ValueAt(step) / 100);
    } else if (auto* round = dynamic_cast<RoundLed*>(&widget)) {
        round->Set(&RoundLed::Active, step % 2 == 0);
    } else if (auto* rect = dynamic_cast<RectLed*>(&widget)) {
        rect->Set(&RectLed::Active, step % 2 == 0);
    } else if (auto* light = dynamic_cast<SwitchLed*>(&widget)) {
        light->Set(&SwitchLed::Active, step % 2 == 0);
    }
}

void PaintFrame(benchmark::State& state)
{
    Canvas canvas;
    AddWidgetArrays(canvas);
    std::vector<Widget*> widgets;
    constexpr std::int32_t perRow = 40;
    for (std::int32_t number = 0; number < state.range(0); ++number) {
        const auto kinds = Kinds();
        const auto left = static_cast<float>(number % perRow * 46) * twipsPerPixelX;
        const auto top = static_cast<float>(number / perRow * 39) * twipsPerPixelY;
        widgets.push_back(
            &Loaded(canvas, kinds[static_cast<std::size_t>(number) % kinds.size()], number + 1, left, top));
    }
    QImage sheet = Sheet(wholeView);
    CanvasPainter canvasPainter(canvas);
    const auto paint = [&] {
        QPainter painter(&sheet);
        canvasPainter.Paint(painter, wholeView, QRect(QPoint(0, 0), wholeView), {});
    };
    paint(); // what stands still is kept from then on
    std::size_t step = 0;
    for (auto _ : state) {
        ++step;
        for (std::size_t index = 0; index < widgets.size(); ++index) {
            ShowValue(*widgets[index], step + index);
        }
        paint();
    }
}

void Register(Results&)
{
    benchmark::RegisterBenchmark(newValue, PaintNewValue)->Arg(dialSize);
    benchmark::RegisterBenchmark(pictureAndPolygons, PaintPictureAndPolygons)->Arg(dialSize);
    benchmark::RegisterBenchmark(newFace, PaintFace)->Arg(dialSize);
    benchmark::RegisterBenchmark(partsOfFace, PaintPartsOfFace)->Arg(dialSize);
    benchmark::RegisterBenchmark(frame, PaintFrame)->Arg(instruments);
}

void AddRows(const Results& results, std::vector<Row>& rows)
{
    rows.push_back(NotOver(results, newValue, dialSize, pictureAndPolygons, 1.5));
    rows.push_back(NotOver(results, newFace, dialSize, partsOfFace, 2));
    rows.push_back(Within(results, frame, instruments, 12e-3));
}

} // namespace

const Family painting{"paint", Register, AddRows};

} // namespace quor::bench
