#include "tests/journey_driver/steps.h"

#include <algorithm>

namespace quor {

const StepRow& FindStep(std::span<const Word> words)
{
    const Word& word = words.front();
    for (const auto rows :
         {PreparingSteps(), RunningSteps(), LiveSteps(), MouseSteps(), FormSteps(), ShowingSteps(), SettingSteps()}) {
        const auto row = std::ranges::find(rows, word.text, &StepRow::word);
        if (row != rows.end() && !word.isQuoted) {
            const Arguments arguments(words.subspan(1));
            arguments.Check(row->word, row->shape);
            if (row->check != nullptr) {
                row->check(arguments);
            }
            return *row;
        }
    }
    throw JourneyError("no such step: " + word.text);
}

} // namespace quor
