#pragma once
// The program on its stage: every port in memory, and what it says as lines.

#include "binding/bln_data_source.h"
#include "binding/cmd_data_source.h"
#include "binding/mtr_data_source.h"
#include "platform/trace.h"
#include "support/error_report.h"
#include "tests/journey_driver/words.h"
#include "tests/support/fake_desk.h"
#include "tests/support/fake_server.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace quor {

class Application;
class Canvas;
class Element;
class Form;
class LoneView;
class clsCustView;
class frmMain;

// The lines that come out of a journey.
class Output {
public:
    bool prints = false; // each line as it comes

    template <class... T> void Say(const T&... values) { Add({Line(values...)}); }

    // A bare text, as the lines that it has.
    void Text(std::string_view text);

    // The lines since the last time.
    std::vector<AnswerLine> Take() { return std::exchange(m_pending, {}); }

private:
    void Add(AnswerLine line);

    std::vector<AnswerLine> m_pending;
};

class Stage : private Trace, public FakeDesk {
public:
    // Paths of the journey's own files are relative to the folder.
    Stage(Output& output, std::string folder);
    ~Stage();
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    Output& out;
    FakeServer server;
    std::set<std::int16_t> loginRights = login.rightsHeld; // of whom logs on next
    std::vector<std::string> reportButtons;                // that the user pushes in the next error report
    std::set<std::string, std::less<>> traced;             // what is traced

    // A file of the journey's folder; fails with JourneyError.
    bool HasHostFile(const std::string& path) const;
    FakeFiles::Bytes HostBytes(const std::string& path) const;

    // Runs one step; what it leaves to be ended, ends behind it.
    void BeforeStep(std::span<const Word> words);
    void AfterStep();

    void Start(const std::string& tail);
    void OpenLive(const std::string& path);

    bool IsLive() const noexcept { return m_liveView != nullptr; }

    bool HasView() const;

    // Each fails with JourneyError where there is none.
    frmMain& Main() const;
    clsCustView& View() const;
    Canvas& CanvasInUse() const;
    Element& ElementOf(const std::string& name) const;
    Form& FormOf(std::string_view name) const;

    // Runs what raises an event: the lines about elements come in the order of the elements.
    void Raise(const std::function<void()>& raise);

    std::string LogText() const;
    std::vector<std::string> FilePaths() const; // without the log

private:
    // A line if that is traced.
    template <class... T> void SayIf(std::string_view what, const T&... values) const
    {
        if (traced.contains(what)) {
            out.Say(values...);
        }
    }

    // A line about an element, by its widget's tag or its source.
    void Tell(const std::string& name, const std::string& line) const;
    void Tell(const ServerListener& source, const std::string& line) const;

    void Writes(const Widget& widget, const WrittenProperty& property) const override;
    void Repaints(const Widget& widget) const override;
    void UpdateBlnData(const clsBlnDataSource& source, bool value, bool mute) const override
    {
        Tell(source, Line("UpdateBlnData", value, mute));
    }
    void LabelData(const clsBlnDataSource& source, const std::string& on, const std::string& off) const override
    {
        Tell(source, Line("LabelData", on, off));
    }
    void UpdateMtrData(const clsMtrDataSource& source, float value, bool mute) const override
    {
        Tell(source, Line("UpdateMtrData", value, mute));
    }
    void DecPlacesChanged(const clsMtrDataSource& source, std::int16_t places) const override
    {
        Tell(source, Line("DecPlacesChanged", places));
    }
    void LabelData(const clsMtrDataSource& source, const MeterLabel& label) const override
    {
        Tell(source, Line("LabelData", label.strLabel, label.sngMin, label.sngMax, label.sngSecondLower,
                          label.sngFirstLower, label.sngFirstUpper, label.sngSecondUpper));
    }
    void LabelData(const clsCmdDataSource& source, const std::string& caption) const override
    {
        Tell(source, Line("LabelData", caption));
    }
    void ToggleEnable(const clsCmdDataSource& source, bool enable) const override
    {
        Tell(source, Line("ToggleEnable", enable));
    }
    void Selects(const Widget* widget) const override;
    void SetsStatus(const std::string& text) const override;
    void SetsTabs(const Band& panel) const override;
    void Calls(std::string_view verb, const std::string& page, const std::string& element) const override;
    void Reports(const ErrorReport& report) const override;
    void Steps(std::int32_t value) const override { SayIf("screen", "progress step", value); }

    void ListenToPorts();
    void OnForm(Form& form);
    void CloseReports();

    std::string m_folder;
    ErrorReporter m_reporter;
    std::unique_ptr<Application> m_application;
    std::unique_ptr<LoneView> m_liveView;
    std::multimap<std::size_t, std::string>* m_raised = nullptr; // lines of the event under way, by their element
    mutable std::string m_selected;                              // the name of the selected element
    mutable std::optional<std::string> m_status;                 // the text that was last told in this step
    bool m_endIsTold = true;
    std::vector<Subscription> m_portSubscriptions;
    std::vector<Subscription> m_programSubscriptions;
};

} // namespace quor
