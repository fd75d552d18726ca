#include "base/guard.h"

namespace quor {

void TellCurrentFailure(Reporter& reporter, void (Reporter::*way)(const ErrorReport&) noexcept, RefNumber ref,
                        std::string_view message) noexcept
{
    IgnoreFailure([&] {
        const Failure failure = CurrentFailure();
        std::string source = failure.Source().empty() ? std::string(ref.owner) : failure.Source();
        (reporter.*way)({std::string(message), failure.Number(), std::move(source), failure.Description(), ref.number});
    });
}

} // namespace quor
