#include "apps/tool/desk.h"

#include "base/text.h"
#include "document/kinds.h"
#include "platform/files.h"

#include <algorithm>

namespace quor {

namespace {

Canvas& WithArrays(Canvas& canvas)
{
    AddWidgetArrays(canvas);
    return canvas;
}

} // namespace

std::string OneLine(std::string text)
{
    std::ranges::replace(text, '\r', ' ');
    std::ranges::replace(text, '\n', ' ');
    return Escaped(text);
}

std::string_view WordFor(LoadVerdict verdict)
{
    switch (verdict) {
    case LoadVerdict::Ok:
        return "ok";
    case LoadVerdict::WrongFile:
        return "wrong-file";
    case LoadVerdict::Newer:
        return "newer";
    case LoadVerdict::OldVersion:
        return "old-version";
    case LoadVerdict::Corrupt:
        return "corrupt";
    case LoadVerdict::Missing:
    case LoadVerdict::Failure:
        break;
    }
    return "load-failure";
}

Desk::Desk(Files& files, Pictures* pictures)
    : m_files(files), m_live{true}, m_view({.files = files,
                                            .boxes = m_boxes,
                                            .reporter = m_reports,
                                            .timers = m_timers,
                                            .pictures = pictures == nullptr ? m_pictures : *pictures,
                                            .progress = m_progress,
                                            .live = m_live},
                                           WithArrays(m_canvas))
{
    m_live.PictureFiles = pictures;
}

bool Desk::TryLoad(const std::string& path)
{
    const bool isLoaded = m_view.LoadFile(path);
    if (m_view.Verdict() == LoadVerdict::Missing) { // or what the document takes for it
        try {
            if (!m_files.IsAbsent(path)) {
                m_files.Open(path, OpenMode::Read);
            }
        } catch (...) {
            m_boxes.texts = {CurrentFailure().Description()};
        }
    }
    return isLoaded;
}

void Desk::Load(const std::string& path)
{
    if (!TryLoad(path)) {
        throw Refusal{Verdict()};
    }
}

void Desk::Save(const std::string& path)
{
    if (!m_view.SaveFile(path)) {
        throw Refusal{"cannot save " + path + ": " + Told()};
    }
}

std::string Desk::Verdict() const
{
    const std::string told = Told();
    return std::string(WordFor(m_view.Verdict())) + (told.empty() ? "" : ": " + told);
}

std::string Desk::Told() const
{
    std::string told;
    for (const ErrorReport& report : m_reports.reports) {
        told += (told.empty() ? "" : " ") + report.description;
    }
    for (const std::string& text : m_boxes.texts) {
        told += (told.empty() ? "" : " ") + text;
    }
    return OneLine(told);
}

} // namespace quor
