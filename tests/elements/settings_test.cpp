#include "binding/live.h"
#include "document/collection.h"
#include "document/kinds.h"
#include "format/view_file.h"
#include "tests/support/field_filler.h"
#include "tests/test.h"
#include "widgets/canvas.h"
#include "widgets/widget_array.h"

namespace {

using Bytes = std::vector<std::uint8_t>;

Bytes RecordOf(Element& element)
{
    Bytes record;
    std::int32_t checksum = 0;
    element.SaveToArray(record, checksum);
    std::int32_t sum = 0;
    for (const std::uint8_t byte : record) {
        sum += byte;
    }
    EXPECT_EQ(checksum, sum);
    return record;
}

// The settings that a new element doesn't take from its widget, or not as they were shown.
std::string_view NotTaken(std::uint8_t type)
{
    static constexpr std::string_view fields[] = {
        "none",                                                   // text meter
        "AutoPositions",                                          // angular meter
        "AutoPositions",                                          // linear meter
        "none",                                                   // round LED
        "AutoCaption CaptionOn CaptionOff",                       // rectangular LED
        "AutoCaption CaptionOn CaptionOff BGColor BGTransparent", // status label
        "AutoCaption CaptionOn CaptionOff ImageOn ImageOff",      // status picture
        "AutoCaption",                                            // command with LED
        "AutoCaption ImageFile",                                  // command
        "PictureFile PictureFillMode",                            // picture
        "BGColor BGTransparent",                                  // label
    };
    return fields[type];
}

class EverySetting : public testing::TestWithParam<std::uint8_t> {
protected:
    static constexpr unsigned rounds = 20;

    EverySetting()
    {
        AddWidgetArrays(canvas);
        canvas.SetScrollMaxima(30000, 30000);
    }

    const Kind& kind = Kinds()[GetParam()];
    Canvas canvas;
    Live live;
};

TEST_P(EverySetting, OfARandomRecordComesBackByteForByte)
{
    for (unsigned seed = 0; seed < rounds; ++seed) {
        Collection first(kind, canvas, live);
        first.SetCtlOrder(std::make_shared<ElementOrder>());
        Element& original = first.Add(0, 0, "same name", true);
        FieldFiller filler(seed, FieldFiller::What::All);
        original.Fields(filler);
        const Bytes record = RecordOf(original);

        Collection second(kind, canvas, live);
        second.SetCtlOrder(std::make_shared<ElementOrder>());
        Element& copy = second.Add(5, 5, "same name", false);
        copy.ReadFromArray(std::span(record).subspan(view_file::frameSize));
        EXPECT_EQ(RecordOf(copy), record);
    }
}

TEST_P(EverySetting, IsShownByTheWidgetAndTakenFromIt)
{
    canvas.ScrollTo(150, 300);
    for (unsigned seed = 0; seed < rounds; ++seed) {
        Collection collection(kind, canvas, live);
        collection.SetCtlOrder(std::make_shared<ElementOrder>());
        Element& original = collection.Add(0, 0, "same name", true);
        FieldFiller filler(seed, FieldFiller::What::WithoutParts);
        original.Fields(filler);
        original.WriteControlProps();

        WidgetArray likeIt(canvas, std::string(kind.array), original.MyControl()->Clone());
        const std::unique_ptr<Element> second = kind.makeElement(likeIt.Load(1), live);
        second->Set(&Element::ObjName, "same name");
        second->ReadControlProps();
        for (Element* each : {&original, second.get()}) {
            FieldFiller same(seed, NotTaken(kind.type));
            each->Fields(same);
        }
        EXPECT_EQ(RecordOf(*second), RecordOf(original));
    }
}

INSTANTIATE_TEST_SUITE_P(OfAKind, EverySetting, testing::Range<std::uint8_t>(0, 11),
                         [](const auto& kind) { return std::string(Kinds()[kind.param].array); });

} // namespace
