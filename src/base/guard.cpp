#include "base/guard.h"

namespace quor {

namespace {

using Way = void (Reporter::*)(const ErrorReport& report) noexcept;

void TellCurrentFailure(Reporter& reporter, Way way, RefNumber ref, std::string_view message) noexcept
{
    IgnoreFailure([&] {
        const Failure failure = CurrentFailure();
        std::string source = failure.Source().empty() ? std::string(ref.owner) : failure.Source();
        (reporter.*way)({std::string(message), failure.Number(), std::move(source), failure.Description(), ref.number});
    });
}

} // namespace

void ReportCurrentFailure(Reporter& reporter, RefNumber ref, std::string_view message) noexcept
{
    TellCurrentFailure(reporter, &Reporter::ShowError, ref, message);
}

void LogCurrentFailure(Reporter& reporter, RefNumber ref, std::string_view message) noexcept
{
    TellCurrentFailure(reporter, &Reporter::LogError, ref, message);
}

} // namespace quor
