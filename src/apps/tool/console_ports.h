#pragma once
// The ports of a document that nobody sees: boxes and reports are kept, progress and pictures are none.

#include "base/failure.h"
#include "base/guard.h"
#include "platform/boxes.h"
#include "platform/load_progress.h"
#include "platform/pictures.h"
#include "platform/timer.h"

#include <algorithm>
#include <vector>

namespace quor {

// Answers No where it can.
class KeptBoxes final : public MessageBoxes {
public:
    std::vector<std::string> texts;

    BoxAnswer Show(const std::string& text, const std::string& /*title*/, BoxButtons buttons) override
    {
        texts.push_back(text);
        return buttons == BoxButtons::Ok ? BoxAnswer::Ok : BoxAnswer::No;
    }
};

class KeptReports final : public Reporter {
public:
    std::vector<ErrorReport> reports;
    std::vector<ErrorReport> logged;

    void ShowError(const ErrorReport& report) noexcept override
    {
        IgnoreFailure([&] { reports.push_back(report); });
    }
    void LogError(const ErrorReport& report) noexcept override
    {
        IgnoreFailure([&] { logged.push_back(report); });
    }
};

class NoProgress final : public LoadProgress {
public:
    void Begin(const std::string& /*caption*/, std::int16_t /*maximum*/, bool /*isShown*/) override {}
    void IncrProgBar() noexcept override {}
    void CloseMe() noexcept override {}
};

class NoTimers final : public Timers {
public:
    std::unique_ptr<Timer> Make() override { throw Failure(failures::invalidCall); }
};

// Pictures of which it is kept what didn't load, in a sentence a file.
class WatchedPictures final : public Pictures {
public:
    explicit WatchedPictures(Pictures& pictures) : m_pictures(pictures) {}

    const std::vector<std::string>& Missing() const noexcept { return m_missing; }

    PictureRef LoadPicture(const std::string& path) override
    {
        try {
            return m_pictures.LoadPicture(path);
        } catch (const Failure& failure) {
            std::string words = "the picture " + path + " isn't shown: " + failure.Description();
            if (std::find(m_missing.begin(), m_missing.end(), words) == m_missing.end()) {
                m_missing.push_back(std::move(words));
            }
            throw;
        }
    }
    void BeginView() override { m_pictures.BeginView(); }

private:
    Pictures& m_pictures;
    std::vector<std::string> m_missing;
};

// Every picture loads, and is empty.
class NoPictures final : public Pictures {
public:
    PictureRef LoadPicture(const std::string& /*path*/) override { return std::make_shared<Empty>(); }

private:
    class Empty final : public Picture {
        const std::string& Path() const override { return m_path; }
        int PixelWidth() const override { return 0; }
        int PixelHeight() const override { return 0; }

        std::string m_path;
    };
};

} // namespace quor
