#include "tests/journey_driver/play.h"

#include "base/failure.h"
#include "tests/journey_driver/stage.h"
#include "tests/journey_driver/steps.h"

#include <exception>
#include <filesystem>
#include <iostream>

namespace quor {

namespace {

[[noreturn]] void Refuse(const Entry& entry, const std::string& why)
{
    throw JourneyError(std::to_string(entry.line) + ": " + why);
}

void CheckSteps(const Journey& journey)
{
    for (const Entry& entry : journey) {
        try {
            if (!entry.words.empty()) {
                FindStep(entry.words);
            }
        } catch (const JourneyError& error) {
            Refuse(entry, error.what());
        }
    }
}

void Act(Stage& stage, const Entry& entry)
{
    try {
        stage.BeforeStep(entry.words);
        FindStep(entry.words).act(stage, Arguments(std::span(entry.words).subspan(1)));
        stage.AfterStep();
    } catch (const JourneyError& error) {
        Refuse(entry, error.what());
    } catch (const Failure& failure) {
        Refuse(entry, "failed with " + std::to_string(failure.Number()) + ": " + failure.Description());
    } catch (const std::exception& error) {
        Refuse(entry, std::string("failed: ") + error.what());
    }
}

} // namespace

std::string Play(const Journey& journey, const std::string& path, bool compares)
{
    CheckSteps(journey);
    std::string differences;
    Output output;
    if (!compares) {
        output.onLine = [](const std::string& line) { std::cout << line << '\n'; };
    }
    Stage stage(output, std::filesystem::path(path).parent_path().string());
    for (const Entry& entry : journey) {
        if (!entry.words.empty()) {
            Act(stage, entry);
        } else if (const std::string difference = Difference(entry.answers, output.Take());
                   compares && !difference.empty()) {
            differences += path + ':' + std::to_string(entry.line) + ": the program answers otherwise\n" + difference;
        }
    }
    output.End();
    return differences;
}

} // namespace quor
