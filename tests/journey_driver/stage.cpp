#include "tests/journey_driver/stage.h"

#include "base/guard.h"
#include "document/view_document.h"
#include "editor/application.h"
#include "editor/main_form.h"
#include "editor/property_panel.h"
#include "forms/bars.h"
#include "pages/page.h"
#include "tests/journey_driver/lone_view.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>

namespace quor {

namespace {

const std::string programFolder = "program";
const std::string logPath = programFolder + "/error.log";
const std::string reportForm = "frmError";

std::string DialogText(const CommonDialog& dialog, DialogKind kind)
{
    constexpr std::string_view kinds[] = {"open", "save", "color", "font"};
    const std::string_view name = kinds[static_cast<std::size_t>(kind)];
    return kind == DialogKind::Open || kind == DialogKind::Save
               ? Line("dialog", name, "filter", dialog.Filter, "flags", dialog.Flags, "file", dialog.FileName,
                      "directory", dialog.InitialDirectory)
               : Line("dialog", name, "flags", dialog.Flags);
}

} // namespace

void Output::Text(std::string_view text)
{
    for (std::string& line : SplitLines(text)) {
        Add({std::move(line), true});
    }
}

void Output::Add(AnswerLine line)
{
    if (prints) {
        std::cout << line.text << '\n';
    }
    m_pending.push_back(std::move(line));
}

Stage::Stage(Output& output, std::string folder)
    : FakeDesk(static_cast<const Trace&>(*this)), out(output), m_folder(std::move(folder)),
      m_reporter(ErrorReporter::Ports{files, forms, screen, clipboard, clock, *this}, programFolder, "user")
{
    live.Server = &server;
    live.CatalogHost = &server;
    live.Login = &login;
    live.Boxes = &boxes;
    live.ViewFiles = &files;
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
    MustBe(HasHostFile(path) && file, "can't be opened: " + path);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void Stage::ListenToPorts()
{
    const auto keep = [&](Subscription subscription) { m_portSubscriptions.push_back(std::move(subscription)); };
    keep(files.Called.Subscribe([this](const std::string& call) { SayIf("files", std::string_view(call)); }));
    keep(screen.PointerSet.Subscribe(
        [this](MousePointer pointer) { SayIf("screen", "pointer", static_cast<int>(pointer)); }));
    keep(login.LogOnShown.Subscribe([this] { SayIf("screen", "logon dialog"); }));
    keep(server.Called.Subscribe([this](const std::string& call) { SayIf("server", "call", std::string_view(call)); }));
    keep(boxes.Shown.Subscribe([this](const ShownBox& box) {
        constexpr std::string_view buttons[] = {"ok", "yes no", "yes no cancel"};
        out.Say("message", box.text, "title", box.title, "buttons", buttons[static_cast<std::size_t>(box.buttons)]);
    }));
    keep(dialog.Shown.Subscribe([this](DialogKind kind) { out.Say(std::string_view(DialogText(dialog, kind))); }));
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
        out.Say("splash", form.Item<Label>("lblSplash").Caption());
    } else if (form.Name() == progress.Name()) {
        out.Say("progress", progress.lblStatus.Caption(), progress.pbrConfig.Maximum());
    }
}

void Stage::BeforeStep(std::span<const Word> words)
{
    m_status.reset();
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
        out.Say("ended");
        m_programSubscriptions.clear();
        m_application.reset();
    }
}

void Stage::Start(const std::string& tail)
{
    MustBe(m_application == nullptr && !IsLive(), "the program runs already");
    live.DesignMode = false;
    live.Catalog = nullptr;
    m_endIsTold = false;
    m_selected.clear();
    m_application = std::make_unique<Application>(PortsOfEditor(m_reporter), tail);
    const auto keep = [&](Subscription subscription) { m_programSubscriptions.push_back(std::move(subscription)); };
    keep(m_application->MainFormShown.Subscribe([this, keep](frmMain& main) {
        out.Say("main form");
        keep(main.abViewEdit().Popup.Subscribe([this](Band& band) { out.Say("popup", std::string_view(band.Name)); }));
    }));
    m_application->Start();
}

void Stage::OpenLive(const std::string& path)
{
    MustBe(m_application == nullptr, "the editor runs already");
    live.DesignMode = false;
    m_liveView = std::make_unique<LoneView>(PortsOfView(m_reporter));
    m_liveView->Load(path);
}

void Stage::Raise(const std::function<void()>& raise)
{
    std::multimap<std::size_t, std::string> lines;
    m_raised = IsLive() ? &lines : nullptr; // else no source hears it, and what it may load is told as it happens
    IgnoreFailure(raise);
    m_raised = nullptr;
    for (const auto& [position, line] : lines) {
        out.Say(std::string_view(line));
    }
}

void Stage::Tell(const std::string& name, const std::string& line) const
{
    if (m_raised == nullptr) {
        out.Say(std::string_view(line));
    } else {
        const auto& order = View().CtlOrder();
        const auto found = std::ranges::find_if(order, [&](const Element* each) { return each->ObjName() == name; });
        m_raised->emplace(std::ranges::distance(order.begin(), found), line);
    }
}

void Stage::Tell(const ServerListener& source, const std::string& line) const
{
    if (!traced.contains("sources") || !HasView()) {
        return;
    }
    for (Element* element : View().CtlOrder()) { // which hasn't one that is being made
        if (&source == &element->ClickAction || &source == element->StatusSource() ||
            &source == element->MeterSource()) {
            Tell(element->ObjName(), Line(element->ObjName(), std::string_view(line)));
        }
    }
}

void Stage::Writes(const Widget& widget, const WrittenProperty& property) const
{
    PropertyPrinter printer([&](std::string_view name, const std::string& value) {
        Tell(widget.Tag(), Line("write", widget.Tag(), name, std::string_view(value)));
    });
    if (traced.contains("widgets")) {
        property.visit(printer, property);
    }
}

void Stage::Repaints(const Widget& widget) const
{
    if (traced.contains("widgets")) {
        Tell(widget.Tag(), Line("repaint", widget.Tag()));
    }
}

void Stage::Selects(const Widget* widget) const
{
    const std::string name = widget == nullptr ? "" : widget->Tag();
    if (widget == nullptr) {
        out.Say("select none");
    } else if (name != m_selected) {
        out.Say("select", name);
    }
    m_selected = name;
}

void Stage::SetsStatus(const std::string& text) const
{
    // The fields of a page that takes over an element set one and the same text again and again.
    if (m_status != text) {
        out.Say("status", text);
        m_status = text;
    }
}

void Stage::SetsTabs(const Band& panel) const
{
    m_status.reset();
    std::string captions;
    for (const Band* child : panel.Children()) {
        if (child->Visible()) {
            captions += Quoted(child->Caption) + ' ';
        }
    }
    const Band* front = panel.CurrentChild();
    out.Say("tabs", std::string_view(captions + "front"), front == nullptr ? std::string() : front->Caption);
}

void Stage::Calls(std::string_view verb, const std::string& page, const std::string& element) const
{
    if (verb == "SetOwner") {
        SayIf("pages", verb, std::string_view(page), element);
    } else {
        SayIf("pages", verb, std::string_view(page));
    }
}

void Stage::Reports(const ErrorReport& report) const
{
    out.Say("error", report.message, "number", report.number, "source", report.source, "description",
            report.description, "ref", report.ref);
}

bool Stage::HasView() const
{
    return IsLive() || (m_application != nullptr && m_application->MainForm() != nullptr);
}

frmMain& Stage::Main() const
{
    MustBe(HasView() && !IsLive(), "the main form isn't there");
    return *m_application->MainForm();
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

Form& Stage::FormOf(std::string_view name) const
{
    Form* form = forms.Find(name);
    if (form == nullptr && m_application != nullptr) {
        form = Main().Panel().FindPage(name);
    }
    MustBe(form != nullptr, "no such form: " + std::string(name));
    return *form;
}

std::string Stage::LogText() const
{
    return files.Has(logPath) ? files.Text(logPath) : std::string();
}

std::vector<std::string> Stage::FilePaths() const
{
    std::vector<std::string> paths = files.Paths();
    std::erase(paths, logPath);
    return paths;
}

} // namespace quor
