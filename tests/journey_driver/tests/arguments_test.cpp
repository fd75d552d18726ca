#include "tests/journey_driver/arguments.h"
#include "tests/test.h"

namespace {

TEST(TheWordsOfAStep, FitItsShapeOrAreRefused)
{
    struct Case {
        const char* shape;
        const char* line;
        bool fits;
    };
    const Case cases[] = {
        {"", "x", true},
        {"", "x y", false},
        {"PATH from|hex TEXT", "x a from b", true},
        {"PATH from|hex TEXT", "x a into b", false},
        {"PATH from|hex TEXT", "x a from", false},
        {"WHERE X Y [left|right|middle]", "x canvas 1.5 -2", true},
        {"WHERE X Y [left|right|middle]", "x canvas 1 2 right", true},
        {"WHERE X Y [left|right|middle]", "x canvas 1 2 up", false},
        {"WHERE X Y [left|right|middle]", "x canvas 1 2 left left", false},
        {"WHERE X Y", "x canvas 1 2px", false},
        {"MS", "x 1.5", false},
        {"on|off [RIGHT...]", "x on", true},
        {"on|off [RIGHT...]", "x on 1 2 3", true},
        {"on|off [RIGHT...]", "x on 1 b", false},
        {"WORD...", "x", false},
        {"WORD...", "x a b", true},
    };
    for (const Case& each : cases) {
        const Journey journey = ReadJourney(each.line);
        bool fits = true;
        try {
            Arguments(std::span(journey[0].words).subspan(1)).Check("x", each.shape);
        } catch (const JourneyError&) {
            fits = false;
        }
        EXPECT_EQ(fits, each.fits) << each.shape << " on " << each.line;
    }
}

} // namespace
