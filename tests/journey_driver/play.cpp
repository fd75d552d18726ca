#include "base/failure.h"
#include "tests/journey_driver/steps.h"

#include <algorithm>
#include <exception>
#include <filesystem>

namespace quor {

const StepRow& FindStep(std::span<const Word> words)
{
    std::string usages;
    for (const auto rows : {PreparingSteps(), UserSteps(), FormSteps(), LiveSteps(), ShowingSteps(), SettingSteps()}) {
        for (const StepRow& row : rows) {
            if (FitsUsage(row.usage, words)) {
                return row;
            }
            if (row.usage.substr(0, row.usage.find(' ')) == words.front().text) {
                usages += "\n  " + std::string(row.usage);
            }
        }
    }
    throw JourneyError(usages.empty() ? "no such step: " + words.front().text : "wanted is:" + usages);
}

namespace {

// What an entry fails with, as its own fault.
template <class Act> void OfEntry(const Entry& entry, Act act)
{
    std::string why;
    try {
        return act();
    } catch (const Failure& failure) {
        why = "failed with " + std::to_string(failure.Number()) + ": " + failure.Description();
    } catch (const std::exception& error) {
        why = error.what();
    }
    throw JourneyError(std::to_string(entry.line) + ": " + why);
}

} // namespace

std::string Play(const Journey& journey, const std::string& path, bool compares)
{
    std::string differences;
    Output output;
    output.prints = !compares;
    Stage stage(output, std::filesystem::path(path).parent_path().string());
    for (const Entry& entry : journey) {
        if (!entry.words.empty()) {
            OfEntry(entry, [&] {
                const StepRow& step = FindStep(entry.words);
                stage.BeforeStep(entry.words);
                step.act(stage, Arguments(entry.words));
                stage.AfterStep();
            });
        } else if (const std::string difference = Difference(entry.answers, output.Take());
                   compares && !difference.empty()) {
            differences += path + ':' + std::to_string(entry.line) + ": the program answers otherwise\n" + difference;
        }
    }
    output.prints = false; // what the end of the stage makes the program say
    return differences;
}

} // namespace quor
