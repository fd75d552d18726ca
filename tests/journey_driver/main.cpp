// quor-view-journey [--print] FILE...: tells journeys and compares what the program answers.
//
// Exit status: 0 all as expected, 1 something differs, 2 a journey can't be read.

#include "tests/journey_driver/journey.h"

#include <algorithm>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <vector>

namespace {

enum Status { allAsExpected, somethingDiffers, cannotBeRead };

Status PlayFile(const std::string& path, bool prints)
{
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        std::cerr << path << ": can't be opened\n";
        return cannotBeRead;
    }
    const std::string text((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    try {
        const quor::Journey journey = quor::ReadJourney(text);
        const bool hasAnswers =
            std::ranges::any_of(journey, [](const quor::Entry& entry) { return !entry.answers.empty(); });
        const std::string differences = quor::Play(journey, path, !prints && hasAnswers);
        std::cout << differences << std::flush;
        return differences.empty() ? allAsExpected : somethingDiffers;
    } catch (const quor::JourneyError& error) {
        std::cout.flush();
        std::cerr << path << ':' << error.what() << '\n';
        return cannotBeRead;
    }
}

} // namespace

int main(int argumentCount, char** argumentTexts)
{
    std::vector<std::string> paths(argumentTexts + 1, argumentTexts + argumentCount);
    const bool prints = std::erase(paths, "--print") > 0;
    if (paths.empty()) {
        std::cerr << "usage: quor-view-journey [--print] FILE...\n";
        return cannotBeRead;
    }
    Status status = allAsExpected;
    for (const std::string& path : paths) {
        status = std::max(status, PlayFile(path, prints));
    }
    return status;
}
