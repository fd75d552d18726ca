#pragma once
// The small ports in memory: what the user does with boxes and dialogs follows a script, the rest a test sets and sees.

#include "base/event.h"
#include "platform/boxes.h"
#include "platform/clipboard.h"
#include "platform/clock.h"
#include "platform/common_dialog.h"
#include "platform/help.h"
#include "platform/login.h"
#include "platform/pictures.h"
#include "platform/screen.h"
#include "platform/settings.h"
#include "platform/system_info.h"
#include "tests/support/planned_failures.h"

#include <deque>
#include <functional>
#include <set>
#include <vector>

namespace quor {

class FakeFiles;

struct ShownBox {
    std::string text;
    std::string title;
    BoxButtons buttons = BoxButtons::Ok;
    friend bool operator==(const ShownBox&, const ShownBox&) = default;
};

class FakeBoxes final : public MessageBoxes {
public:
    // For the next boxes, in their order. A box without one gets Cancel where it has that, else No or Ok; one without
    // that button fails.
    std::deque<BoxAnswer> answers;
    std::vector<ShownBox> shown;
    Event<const ShownBox&> Shown; // before the answer

    BoxAnswer Show(const std::string& text, const std::string& title, BoxButtons buttons) override;
};

enum class DialogKind { Open, Save, Color, Font };

class FakeDialog final : public CommonDialog {
public:
    PlannedFailures planned; // open, save, color, font
    Event<DialogKind> Shown; // before the user does anything

    // What the user will do in the next dialogs, in their order; without, cancel. A dialog of another kind fails.
    void WillOpen(const std::string& path) { Will(DialogKind::Open, &CommonDialog::FileName, path); }
    void WillSave(const std::string& path) { Will(DialogKind::Save, &CommonDialog::FileName, path); }
    void WillPickColor(quor::Color color) { Will(DialogKind::Color, &CommonDialog::Color, color); }
    void WillPickFont(std::function<void(CommonDialog&)> choice) // sets the six attributes
    {
        m_steps.push_back({DialogKind::Font, std::move(choice)});
    }
    void WillCancel() { m_steps.emplace_back(); }

    void ShowOpen() override { Run(DialogKind::Open); }
    void ShowSave() override { Run(DialogKind::Save); }
    void ShowColor() override { Run(DialogKind::Color); }
    void ShowFont() override { Run(DialogKind::Font); }

private:
    struct Step {
        DialogKind kind = DialogKind::Open;
        std::function<void(CommonDialog&)> act; // none: cancel, in a dialog of any kind
    };
    template <class T> void Will(DialogKind kind, T CommonDialog::*field, const T& value)
    {
        m_steps.push_back({kind, [=](CommonDialog& dialog) { dialog.*field = value; }});
    }
    void Run(DialogKind kind);

    std::deque<Step> m_steps;
};

struct FakeClipboard final : Clipboard {
    PlannedFailures planned; // set

    std::string text;

    void Clear() override { text.clear(); }
    void SetText(const std::string& newText) override
    {
        planned.Count("set");
        text = newText;
    }
};

struct FakeHelp final : Help {
    void ShowContents(const std::string& /*path*/) override {}
};

struct FakeSystemInfo final : SystemInfo {
    std::vector<SystemFact> facts;

    std::vector<SystemFact> Facts() override { return facts; }
};

struct FakeClock final : Clock {
    std::string now = "5/17/2024 9:03:07 AM";

    std::string Now() override { return now; }
};

struct FakeScreen final : Screen {
    MousePointer pointer = MousePointer::Default;
    Event<MousePointer> PointerSet; // to the same as well

    void SetMousePointer(MousePointer to) override
    {
        pointer = to;
        PointerSet.Raise(to);
    }
};

struct FakeLogin final : QuorLogin {
    bool isLoggedOn = true;
    std::set<std::int16_t> rightsHeld = {rights::issueCommands, rights::runMacros, rights::clearAlarms,
                                         rights::editViews};
    Event<> LogOnShown;

    // The user answers the logon dialog.
    void EndLogOn(bool success)
    {
        isLoggedOn = isLoggedOn || success;
        LogOn.Raise(success);
    }

    void EndSession()
    {
        isLoggedOn = false;
        LogOff.Raise();
    }

    void ShowLogOn(bool) override { LogOnShown.Raise(); }
    bool IsLoggedOn() override { return isLoggedOn; }
    bool HasPrivilege(std::int16_t right) override { return isLoggedOn && rightsHeld.contains(right); }
};

// Pictures load wherever the file system in memory has a file that isn't empty.
class FakePictures final : public Pictures {
public:
    explicit FakePictures(const FakeFiles& files) : m_files(files) {}

    PlannedFailures planned; // load

    PictureRef LoadPicture(const std::string& path) override;

private:
    const FakeFiles& m_files;
};

class FakeSettings final : public ApplicationSettings {
public:
    PlannedFailures planned; // read, write

    std::int32_t gridSize = 10;
    bool showGrid = true;
    bool snapToGrid = true;
    std::string viewsDirectory;
    std::string toolbarDirectory;
    std::string helpFile;

    std::int32_t GridSize() override { return Read(gridSize); }
    void SetGridSize(std::int32_t pixels) override { Write(gridSize, pixels); }
    bool ShowGrid() override { return Read(showGrid); }
    void SetShowGrid(bool show) override { Write(showGrid, show); }
    bool SnapToGrid() override { return Read(snapToGrid); }
    void SetSnapToGrid(bool snap) override { Write(snapToGrid, snap); }
    std::string ViewsDirectory() override { return Read(viewsDirectory); }
    std::string ToolbarDirectory() override { return Read(toolbarDirectory); }
    std::string HelpFile() override { return Read(helpFile); }

private:
    template <class T> T Read(const T& member)
    {
        planned.Count("read");
        return member;
    }
    template <class T> void Write(T& member, T value)
    {
        planned.Count("write");
        member = value;
    }
};

} // namespace quor
