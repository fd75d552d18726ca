// quor-view-journey [--print] FILE...: tells journeys and compares what the program answers.
//
// Exit status: 0 all as expected, 1 something differs, 2 a journey can't be read.

#include "tests/journey_driver/play.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <vector>

namespace {

constexpr int allAsExpected = 0;
constexpr int somethingDiffers = 1;
constexpr int cannotBeRead = 2;

bool HasAnswers(const quor::Journey& journey)
{
    return std::ranges::any_of(journey, [](const quor::Entry& entry) { return !entry.answers.empty(); });
}

int PlayFile(const std::string& path, bool prints)
{
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        std::cerr << path << ": can't be opened\n";
        return cannotBeRead;
    }
    const std::string text((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    std::string differences;
    try {
        const quor::Journey journey = quor::ReadJourney(text);
        const bool compares = !prints && HasAnswers(journey);
        differences = quor::Play(journey, path, compares);
    } catch (const quor::JourneyError& error) {
        std::cout.flush();
        std::cerr << path << ':' << error.what() << '\n';
        return cannotBeRead;
    }
    std::cout << differences << std::flush;
    return differences.empty() ? allAsExpected : somethingDiffers;
}

} // namespace

int main(int argumentCount, char** argumentTexts)
{
    std::vector<std::string> paths(argumentTexts + 1, argumentTexts + argumentCount);
    const bool prints = !paths.empty() && paths.front() == "--print";
    if (prints) {
        paths.erase(paths.begin());
    }
    if (paths.empty()) {
        std::cerr << "usage: quor-view-journey [--print] FILE...\n";
        return cannotBeRead;
    }
    int status = allAsExpected;
    for (const std::string& path : paths) {
        status = std::max(status, PlayFile(path, prints));
    }
    return status;
}
