#include "document/kinds.h"
#include "tests/editor/editor_fixture.h"
#include "tests/test.h"
#include "widgets/canvas.h"

namespace {

struct AnyEdit : EditorFixture {
    std::mt19937 random{20'240'517};

    int Draw(int least, int most) { return std::uniform_int_distribution<int>(least, most)(random); }

    Element* Any()
    {
        const std::size_t count = main.View().CtlOrder().Count();
        return count == 0 ? nullptr
                          : main.View().CtlOrder().Item(static_cast<std::size_t>(Draw(1, static_cast<int>(count))));
    }

    CanvasTarget At(float x, float y) { return HitTest(main.ssScroll(), {}, x, y); }

    void Drag(const Element& element)
    {
        main.Mouse().Press({CanvasTarget::What::Element, element.MyControl()}, MouseButton::Left, 10, 10);
        const auto x = static_cast<float>(Draw(-500, 9000));
        const auto y = static_cast<float>(Draw(-500, 9000));
        if (Draw(0, 5) == 0) {
            main.Mouse().CancelDrag();
            return;
        }
        const CanvasTarget target = At(x, y);
        main.Mouse().Drop(target, x - target.left, y - target.top);
    }

    void Size()
    {
        main.Mouse().Press({CanvasTarget::What::Handle, nullptr, static_cast<std::size_t>(Draw(0, 7))},
                           MouseButton::Left, 0, 0);
        main.Mouse().SizeBy(static_cast<float>(Draw(-600, 600)), static_cast<float>(Draw(-600, 600)));
        if (Draw(0, 5) == 0) {
            main.Mouse().CancelDrag();
        } else {
            main.Mouse().Release({}, MouseButton::Left);
        }
    }

    std::uint8_t AnyKind() { return Kinds()[static_cast<std::size_t>(Draw(0, 10))].type; }

    // Any box or list of the page of its kind.
    void Restyle(const Element& element)
    {
        const Band& tab = main.abViewEdit().BandOf("bndObjProps").Child(element.MyControl()->Name());
        const auto& controls = tab.Tools().front().Tool().HostedForm()->Controls();
        Control* any = controls.Item(static_cast<std::size_t>(Draw(1, static_cast<int>(controls.Count())))).get();
        if (auto* box = dynamic_cast<CheckBox*>(any)) {
            box->Toggle();
        } else if (auto* list = dynamic_cast<ListBox*>(any)) {
            list->Choose(Draw(0, static_cast<int>(list->Items().size()) - 1));
        }
    }

    void Edit()
    {
        Element* element = Any();
        const int what = element == nullptr ? 0 : Draw(0, 13);
        if (what == 0) {
            main.InsertElement(AnyKind());
        } else if (what == 1) {
            Drag(*element);
        } else if (what == 2) {
            main.ReleaseControl();
        } else if (what == 3) {
            main.ssScroll().ScrollTo(Draw(0, 5000), Draw(0, 5000));
        } else if (what == 4) {
            main.Grid().ToggleSnap();
        } else if (what == 5) {
            main.Mouse().BeginToolDrag(AnyKind());
            main.Mouse().Drop(At(300, 300), 5, 5);
        } else if (what < 13) {
            Select(*element);
            EditSelected(*element, what);
        } else if (Draw(0, 40) == 0) {
            main.ClearView();
        }
    }

    void EditSelected(const Element& element, int what)
    {
        if (what == 6) {
            Size();
        } else if (what == 7) {
            main.KeyDown(46);
            timers.Advance(10);
        } else if (what == 8) {
            main.CopyControl();
            main.PasteControl();
        } else if (what == 9) {
            main.ReorderControl(Draw(0, 1) == 1);
        } else if (what == 10) {
            main.AlignToGrid();
            main.SizeToGrid();
        } else if (what == 11) {
            On<NumberField>("frmCVGeneral", "txtX").Type(std::to_string(Draw(0, 300)));
        } else {
            Restyle(element);
        }
    }

    void Check()
    {
        std::set<std::string> names;
        std::size_t inCollections = 0;
        for (const Kind& kind : Kinds()) {
            for (const std::unique_ptr<Element>& element : main.View().CollectionOf(kind.type)) {
                ++inCollections;
                ASSERT_EQ(main.View().CtlOrder().Item(element->ObjName()), element.get());
                ASSERT_EQ(element->MyControl()->Tag(), element->ObjName());
                ASSERT_TRUE(names.insert(element->ObjName()).second) << element->ObjName();
            }
        }
        ASSERT_EQ(main.View().CtlOrder().Count(), inCollections);
        const Widget* widget = main.ssScroll().Back();
        for (const Element* element : main.View().CtlOrder()) {
            ASSERT_EQ(widget, element->MyControl()) << "the order on the canvas is that of the elements";
            widget = widget->Above();
        }
        ASSERT_EQ(widget, nullptr);
        const Widget* selected = main.SelectedWidget();
        ASSERT_TRUE(selected == nullptr || names.contains(selected->Tag()));
        const Band* front = main.abViewEdit().BandOf("bndObjProps").CurrentChild();
        ASSERT_EQ(front->Name, selected == nullptr ? "prpViewProps" : "prpGeneral");
        for (const Kind& kind : Kinds()) {
            const Band& tab = main.abViewEdit().BandOf("bndObjProps").Child(kind.array);
            ASSERT_EQ(tab.Visible(), selected != nullptr && selected->Name() == kind.array) << kind.array;
        }
    }
};

TEST_F(AnyEdit, LeavesTheViewWhole)
{
    for (int step = 0; step < 20'000; ++step) {
        Edit();
        Check();
        if (HasFatalFailure()) {
            FAIL() << "after step " << step;
        }
    }
    ASSERT_TRUE(main.View().SaveFile("walk.qvw"));
    const std::int32_t before = main.GetCurrentChecksum();
    main.ReleaseControl();
    boxes.answers = {BoxAnswer::No};
    main.OpenView("walk.qvw");
    EXPECT_EQ(main.GetCurrentChecksum(), before);
    Check();
}

} // namespace
