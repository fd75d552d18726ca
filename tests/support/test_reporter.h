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
    std::vector<ErrorReport> logged;  // for the log alone

    // A report with that reference will come; once a call.
    void Announce(RefNumber ref) { m_announced.push_back(ref.number); }

    void ShowError(const ErrorReport& report) noexcept override { Take(report, reports); }
    void LogError(const ErrorReport& report) noexcept override { Take(report, logged); }

private:
    void Take(const ErrorReport& report, std::vector<ErrorReport>& taken)
    {
        taken.push_back(report);
        const auto announced = std::find(m_announced.begin(), m_announced.end(), report.ref);
        if (announced == m_announced.end()) {
            ADD_FAILURE() << "Ref# " << report.ref << ": " << report.message << " (" << report.number << ' '
                          << report.source << ": " << report.description << ')';
        } else {
            m_announced.erase(announced);
        }
    }

    std::vector<std::int32_t> m_announced;
};

} // namespace quor
