#include "tests/journey_driver/stage.h"

#include "base/guard.h"
#include "binding/mtr_data_source.h"
#include "document/view_document.h"
#include "editor/application.h"
#include "editor/main_form.h"
#include "editor/property_panel.h"
#include "elements/status_element.h"
#include "forms/bars.h"
#include "pages/page.h"
#include "support/frm_view_pbar.h"
#include "tests/journey_driver/format.h"
#include "tests/journey_driver/lone_view.h"
#include "tests/journey_driver/raised_lines.h"
#include "tests/journey_driver/tracer.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace quor {

namespace {

const std::string programFolder = "program";
const std::string logPath = programFolder + "/error.log";
const std::string reportForm = "frmError";

std::string_view Words(BoxButtons buttons)
{
    constexpr std::string_view words[] = {"ok", "yes no", "yes no cancel"};
    return words[static_cast<std::size_t>(buttons)];
}

std::string DialogText(const CommonDialog& dialog, DialogKind kind)
{
    constexpr std::string_view kinds[] = {"open", "save", "color", "font"};
    std::string text = "dialog " + std::string(kinds[static_cast<std::size_t>(kind)]);
    const bool isOfFiles = kind == DialogKind::Open || kind == DialogKind::Save;
    if (isOfFiles) {
        text += " filter " + Quoted(dialog.Filter);
    }
    text += " flags " + ValueText(dialog.Flags);
    if (isOfFiles) {
        text += " file " + Quoted(dialog.FileName) + " directory " + Quoted(dialog.InitialDirectory);
    }
    return text;
}

} // namespace

Stage::Stage(Output& output, std::string folder)
    : out(output), m_folder(std::move(folder)), m_tracer(std::make_unique<Tracer>(*this)), m_progress(forms, *m_tracer),
      m_reporter(ErrorReporter::Ports{files, forms, screen, clipboard, clock, *m_tracer}, programFolder, "user")
{
    m_live.Server = &server;
    m_live.CatalogHost = &server;
    m_live.Login = &login;
    m_live.Boxes = &boxes;
    m_live.PictureFiles = &pictures;
    m_live.ViewFiles = &files;
    m_live.Tracer = m_tracer.get();
    ListenToPorts();
}

Stage::~Stage() = default;

bool Stage::HasHostFile(const std::string& path) const
{
    return std::filesystem::is_regular_file(std::filesystem::path(m_folder) / path);
}

FakeFiles::Bytes Stage::HostBytes(const std::string& path) const
{
    std::ifstream file(std::filesystem::path(m_folder) / path, std::ios::binary);
    if (!HasHostFile(path) || !file) {
        throw JourneyError("can't be opened: " + path);
    }
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void Stage::ListenToPorts()
{
    const auto keep = [&](Subscription subscription) { m_portSubscriptions.push_back(std::move(subscription)); };
    keep(files.Called.Subscribe([this](const std::string& call) {
        if (IsTraced("files")) {
            out.Line(call);
        }
    }));
    keep(screen.PointerSet.Subscribe([this](MousePointer pointer) {
        if (IsTraced("screen")) {
            out.Line("pointer " + std::to_string(static_cast<int>(pointer)));
        }
    }));
    keep(login.LogOnShown.Subscribe([this] {
        if (IsTraced("screen")) {
            out.Line("logon dialog");
        }
    }));
    keep(server.Called.Subscribe([this](const std::string& call) {
        if (IsTraced("server")) {
            out.Line("call " + call);
        }
    }));
    keep(boxes.Shown.Subscribe([this](const ShownBox& box) {
        out.Line("message " + Quoted(box.text) + " title " + Quoted(box.title) + " buttons " +
                 std::string(Words(box.buttons)));
    }));
    keep(dialog.Shown.Subscribe([this](DialogKind kind) { out.Line(DialogText(dialog, kind)); }));
    keep(forms.Shown.Subscribe([this](Form& form) { OnForm(form); }));
    keep(forms.ModalShown.Subscribe([this](Form& form) {
        if (form.Name() == reportForm) {
            for (const std::string& button : std::exchange(reportButtons, {})) {
                form.Item<Button>(button).Push();
            }
        }
    }));
}

void Stage::OnForm(Form& form)
{
    if (form.Name() == "frmSplash") {
        out.Line("splash " + Quoted(form.Item<Label>("lblSplash").Caption()));
    } else if (const auto* progress = dynamic_cast<const frmViewPBar*>(&form)) {
        out.Line("progress " + Quoted(progress->lblStatus.Caption()) + ' ' + ValueText(progress->pbrConfig.Maximum()));
    }
}

void Stage::BeforeStep(std::span<const Word> words)
{
    m_tracer->BeginStep();
    // An error report stays on the screen for steps that speak of it; else the user has read it.
    const bool isRead = std::ranges::none_of(words, [](const Word& word) { return word.text.starts_with(reportForm); });
    if (isRead) {
        CloseReports();
    }
}

void Stage::CloseReports()
{
    while (Form* report = forms.Find(reportForm)) {
        report->Item<Button>("cmdOK").Push();
    }
}

void Stage::AfterStep()
{
    if (m_application != nullptr && m_application->HasEnded() && !m_endIsTold) {
        CloseReports();
        m_endIsTold = true;
        out.Line("ended");
        m_programSubscriptions.clear();
        m_application.reset();
    }
}

void Stage::Start(const std::string& tail)
{
    if (m_application != nullptr || m_liveView != nullptr) {
        throw JourneyError("the program runs already");
    }
    m_live.DesignMode = false;
    m_live.Catalog = nullptr;
    m_endIsTold = false;
    m_tracer->BeginProgram();
    const EditorPorts ports{files,    boxes, dialog,     forms,      timers, screen, pictures,
                            settings, login, m_reporter, m_progress, m_live, help,   systemInfo};
    m_application = std::make_unique<Application>(ports, tail);
    const auto keep = [&](Subscription subscription) { m_programSubscriptions.push_back(std::move(subscription)); };
    keep(m_application->MainFormShown.Subscribe([this, keep](frmMain& main) {
        out.Line("main form");
        keep(main.abViewEdit().Popup.Subscribe([this](Band& band) { out.Line("popup " + band.Name); }));
    }));
    m_application->Start();
}

void Stage::OpenLive(const std::string& path)
{
    if (m_application != nullptr) {
        throw JourneyError("the editor runs already");
    }
    m_live.DesignMode = false;
    const ViewPorts ports{files, boxes, m_reporter, timers, pictures, m_progress, m_live};
    m_liveView = std::make_unique<LoneView>(ports);
    m_liveView->Load(path);
}

void Stage::Raise(const std::function<void()>& raise)
{
    if (!IsLive()) { // no source hears it, and what it may load is told as it happens
        IgnoreFailure(raise);
        return;
    }
    RaisedLines lines;
    RaisedLines* outer = std::exchange(m_raised, &lines);
    IgnoreFailure(raise);
    m_raised = outer;
    lines.Print(out);
}

// The position of an element that one of the two recognises; none while it is being made or when it is gone.
template <class IsIt> const Element* Stage::Find(std::size_t& position, IsIt isIt) const
{
    const bool hasView = m_liveView != nullptr || (m_application != nullptr && m_application->MainForm() != nullptr);
    position = 0;
    if (hasView) {
        for (const Element* element : View().CtlOrder()) {
            if (isIt(*element)) {
                return element;
            }
            ++position;
        }
    }
    return nullptr;
}

void Stage::Tell(const std::string& name, std::string line)
{
    if (m_raised == nullptr) {
        out.Line(std::move(line));
        return;
    }
    std::size_t position = 0;
    Find(position, [&](const Element& element) { return element.ObjName() == name; });
    m_raised->Add(position, std::move(line));
}

void Stage::Tell(const ServerListener& source, const std::string& words)
{
    const auto isOf = [&](const Element& element) {
        auto& owner = const_cast<Element&>(element);
        return &source == &element.ClickAction || &source == owner.StatusSource() || &source == owner.MeterSource();
    };
    std::size_t position = 0;
    const Element* element = Find(position, isOf);
    if (element == nullptr) {
        return;
    }
    if (m_raised != nullptr) {
        m_raised->Begin(position, &source == &element->ClickAction);
    }
    if (IsTraced("sources")) {
        Tell(element->ObjName(), Quoted(element->ObjName()) + ' ' + words);
    }
}

frmMain& Stage::Main() const
{
    frmMain* main = m_application == nullptr ? nullptr : m_application->MainForm();
    if (main == nullptr) {
        throw JourneyError("the main form isn't there");
    }
    return *main;
}

clsCustView& Stage::View() const
{
    return m_liveView != nullptr ? m_liveView->View() : Main().View();
}

Canvas& Stage::CanvasInUse() const
{
    return m_liveView != nullptr ? m_liveView->OwnCanvas() : Main().ssScroll();
}

Element& Stage::ElementOf(const std::string& name) const
{
    for (Element* element : View().CtlOrder()) {
        if (element->ObjName() == name) {
            return *element;
        }
    }
    throw JourneyError("no such element: " + name);
}

Form& Stage::FormOf(const std::string& name) const
{
    Form* form = forms.Find(name);
    if (form == nullptr && m_application != nullptr) {
        form = Main().Panel().FindPage(name);
    }
    if (form != nullptr) {
        return *form;
    }
    throw JourneyError("no such form: " + name);
}

std::vector<std::string> Stage::LogLines() const
{
    std::vector<std::string> lines;
    if (files.Has(logPath)) {
        lines = SplitLines(files.Text(logPath));
    }
    return lines;
}

std::vector<std::string> Stage::FilePaths() const
{
    std::vector<std::string> paths = files.Paths();
    std::erase(paths, logPath);
    return paths;
}

} // namespace quor
