#pragma once
// A reporter for unit tests: it fails the test on any error report that wasn't announced, and on an announced one that
// doesn't come.

#include "base/guard.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace quor {

class TestReporter final : public Reporter {
public:
    TestReporter() = default;
    TestReporter(const TestReporter&) = delete;
    TestReporter& operator=(const TestReporter&) = delete;
    ~TestReporter() override
    {
        for (const std::int32_t ref : m_announced) {
            ADD_FAILURE() << "no report with Ref# " << ref;
        }
    }

    std::vector<ErrorReport> reports; // all that were shown

    // A report with that reference will come; once a call.
    void Announce(RefNumber ref) { m_announced.push_back(ref.number); }

    void ShowError(const ErrorReport& report) noexcept override
    {
        reports.push_back(report);
        LogError(report);
    }
    void LogError(const ErrorReport& report) noexcept override
    {
        const auto announced = std::ranges::find(m_announced, report.ref);
        if (announced == m_announced.end()) {
            ADD_FAILURE() << "Ref# " << report.ref << ": " << report.message << " (" << report.number << ' '
                          << report.source << ": " << report.description << ')';
        } else {
            m_announced.erase(announced);
        }
    }

private:
    std::vector<std::int32_t> m_announced;
};

} // namespace quor
