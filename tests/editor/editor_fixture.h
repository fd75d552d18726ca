#pragma once
// The main form with every port in memory.

#include "editor/main_form.h"
#include "editor/property_panel.h"
#include "forms/bars.h"
#include "forms/fields.h"
#include "forms/form.h"
#include "pages/page.h"
#include "tests/support/fake_desk.h"
#include "tests/test.h"

namespace quor {

struct EditorFixture : testing::Test, FakeDesk {
    EditorFixture() : FakeDesk(trace) {}

    struct StepTrace final : Trace {
        std::function<void()> atAStep = [] {};
        void Steps(std::int32_t /*progress*/) const override { atAStep(); }
    } trace;
    TestReporter reporter;
    frmMain main{PortsOfEditor(reporter)};

    void SetUp() override { main.Form_Load(""); }

    // A new element of that kind, selected.
    template <class E> E& Insert()
    {
        main.InsertElement(E::type);
        return dynamic_cast<E&>(main.View().CollectionOf(E::type).Item(main.SelectedWidget()->Tag()));
    }

    void Select(const Element& element)
    {
        CanvasTarget target{CanvasTarget::What::Element, element.MyControl()};
        main.Mouse().Press(target, MouseButton::Middle, 0, 0);
    }

    template <class C = Control> C& On(std::string_view page, std::string_view control) const
    {
        return main.Panel().FindPage(page)->Item<C>(control);
    }
};

} // namespace quor
