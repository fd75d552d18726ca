#include "document/view_document.h"

#include "base/guard.h"
#include "base/narrow.h"
#include "base/text.h"
#include "binding/live.h"
#include "document/kinds.h"
#include "format/record.h"
#include "platform/pictures.h"
#include "platform/timer.h"
#include "widgets/canvas.h"

#include <algorithm>

namespace quor {

namespace {

// The kinds in the orders in which the document goes through its collections.
using KindOrder = std::array<std::uint8_t, clsCustView::collectionCount>;
constexpr KindOrder tableOrder = {3, 4, 2, 1, 8, 9, 0, 10, 6, 7, 5};
constexpr KindOrder nameOrder = {3, 4, 0, 1, 2, 9, 10, 8, 7, 6, 5};
constexpr KindOrder refreshOrder = {3, 4, 2, 1, 0, 6, 7, 5, 9, 10, 8};
constexpr KindOrder endOrder = {3, 4, 8, 0, 1, 2, 10, 5, 7, 6, 9};
constexpr std::array<std::uint8_t, 3> repaintOrder = {3, 2, 1};

constexpr std::int32_t scrollMargin = 120; // twips

} // namespace

clsCustView::clsCustView(const ViewPorts& ports, Canvas& canvas) : m_ports(ports), m_canvas(canvas)
{
    ClearAll();
    m_canvas.PlaceBackground(static_cast<float>(-m_canvas.ScrollOffsetX()),
                             static_cast<float>(-m_canvas.ScrollOffsetY()));
}

clsCustView::~clsCustView()
{
    const CanvasHold hold(m_canvas);
    IgnoreFailure([&] { SetAllVisible(false); });
    IgnoreFailure([&] { HideBackground(); });
    m_order->Clear();
    for (const std::uint8_t type : endOrder) {
        m_collections[type].reset();
    }
}

void clsCustView::ClearAll()
{
    const CanvasHold hold(m_canvas);
    if (m_order != nullptr) {
        m_order->Clear();
    }
    for (const std::uint8_t type : tableOrder) {
        m_collections[type] = std::make_unique<Collection>(*FindKind(std::int32_t{type}), m_canvas, m_ports.live);
    }
    m_order = std::make_shared<ElementOrder>();
    for (const std::uint8_t type : tableOrder) {
        m_collections[type]->SetCtlOrder(m_order);
    }
    m_ports.pictures.BeginView();
}

std::int32_t clsCustView::GetCount() const noexcept
{
    std::size_t count = 0;
    for (const std::unique_ptr<Collection>& collection : m_collections) {
        count += collection->Count();
    }
    return static_cast<std::int32_t>(count);
}

bool clsCustView::FindName(std::string_view name) const noexcept
{
    return std::any_of(nameOrder.begin(), nameOrder.end(),
                       [&](std::uint8_t type) { return m_collections[type]->FindItem(name); });
}

Collection& clsCustView::CollectionOf(std::int32_t type) const
{
    if (FindKind(type) == nullptr) {
        throw Failure(failures::outOfRange);
    }
    return *m_collections[static_cast<std::size_t>(type)];
}

void clsCustView::Reorder(const std::string& name, bool toFront)
{
    Element* element = m_order->Remove(name);
    Widget& widget = *element->MyControl();
    if (toFront) {
        m_canvas.BringToFront(widget);
        m_order->Add(name, element);
        return;
    }
    m_canvas.SendToBack(widget);
    if (m_order->Count() == 0) {
        m_order->Add(name, element);
    } else {
        m_order->AddBefore(1, name, element);
    }
}

void clsCustView::SizeScrollBars()
{
    float bottom = 0;
    float right = 0;
    for (const std::uint8_t type : tableOrder) {
        for (const std::unique_ptr<Element>& element : *m_collections[type]) {
            const Area area = element->MyControl()->Bounds();
            bottom = std::max(bottom, area.top + area.height);
            right = std::max(right, area.left + area.width);
        }
    }
    m_canvas.SetScrollMaxima(Narrow<std::int32_t>(double{right} + scrollMargin),
                             Narrow<std::int32_t>(double{bottom} + scrollMargin));
}

void clsCustView::SetAllVisible(bool visible)
{
    const CanvasHold hold(m_canvas);
    for (const std::uint8_t type : tableOrder) {
        for (const std::unique_ptr<Element>& element : *m_collections[type]) {
            element->MyControl()->Set(&Widget::Visible, visible);
        }
    }
}

void clsCustView::RefreshAll()
{
    for (const std::uint8_t type : refreshOrder) {
        for (const std::unique_ptr<Element>& element : *m_collections[type]) {
            element->RefreshData();
        }
    }
}

void clsCustView::RepaintAll()
{
    for (const std::uint8_t type : repaintOrder) {
        for (const std::unique_ptr<Element>& element : *m_collections[type]) {
            element->RepaintWhatShowsThrough();
        }
    }
}

void clsCustView::Fields(FieldWalk& record)
{
    record(BGColor, BGPicMode, ViewName, ViewCategory, BGPicture);
}

void clsCustView::Written(const decltype(ViewCategory)&)
{
    if (TrimBlanks(ViewCategory()).empty()) {
        PropertyAccess::Value(ViewCategory) = "General";
    }
}

} // namespace quor
