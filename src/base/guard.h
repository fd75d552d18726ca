#pragma once
// The guarded procedure: a failure inside it is reported with its sentence and reference, and the program goes on.

#include "base/failure.h"
#include "base/ref.h"

#include <string>
#include <string_view>
#include <utility>

namespace quor {

struct ErrorReport {
    std::string message; // the sentence for the user
    std::int32_t number = 0;
    std::string source;
    std::string description;
    std::int32_t ref = 0;
};

// Takes reports of failures. Implementations don't fail.
class Reporter {
public:
    virtual ~Reporter() = default;
    virtual void ShowError(const ErrorReport& report) noexcept = 0;

    // For the log alone: the user has nothing to do about it.
    virtual void LogError(const ErrorReport& report) noexcept = 0;
};

// Tells of the failure being handled, in one of the reporter's ways; its source is the reference's owner where it has
// none of its own.
void TellCurrentFailure(Reporter& reporter, void (Reporter::*way)(const ErrorReport&) noexcept, RefNumber ref,
                        std::string_view message) noexcept;

// Runs the body. True if it ended well; otherwise the failure has been reported.
template <class Body>
bool Guard(Reporter& reporter, RefNumber ref, std::string_view message, Body&& body,
           void (Reporter::*way)(const ErrorReport&) noexcept = &Reporter::ShowError)
{
    try {
        std::forward<Body>(body)();
        return true;
    } catch (...) {
        TellCurrentFailure(reporter, way, ref, message);
        return false;
    }
}

// The same, but the failure goes to the log alone.
template <class Body> bool GuardToLog(Reporter& reporter, RefNumber ref, std::string_view message, Body&& body)
{
    return Guard(reporter, ref, message, std::forward<Body>(body), &Reporter::LogError);
}

// Runs the body and forgets its failure, if any. True if it ended well.
template <class Body> bool IgnoreFailure(Body&& body) noexcept
{
    try {
        std::forward<Body>(body)();
        return true;
    } catch (...) {
        return false;
    }
}

// The handler with its failures kept to itself.
template <class Handler> auto Quietly(Handler handler)
{
    return [handler = std::move(handler)](auto&&... arguments) mutable {
        IgnoreFailure([&] { handler(std::forward<decltype(arguments)>(arguments)...); });
    };
}

} // namespace quor
