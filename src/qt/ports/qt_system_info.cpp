#include "qt/ports/qt_system_info.h"

#include "base/text.h"
#include "qt/ports/qt_text.h"

#include <QGuiApplication>
#include <QScreen>
#include <QSysInfo>

namespace quor {

namespace {

std::string ScreenText(const QScreen& screen)
{
    const QSize size = screen.size();
    return std::to_string(size.width()) + " x " + std::to_string(size.height()) + ", " +
           std::to_string(screen.depth()) + " bits, " + Decimal(qRound(screen.refreshRate() * 10) / 10.0) + " Hz";
}

} // namespace

std::vector<SystemFact> QtSystemInfo::Facts()
{
    std::vector<SystemFact> facts{
        {"System", FromQt(QSysInfo::prettyProductName())},
        {"Kernel", FromQt(QSysInfo::kernelType() + QLatin1Char(' ') + QSysInfo::kernelVersion())},
        {"Processor", FromQt(QSysInfo::currentCpuArchitecture())},
        {"Qt", qVersion()},
        {"Window system", FromQt(QGuiApplication::platformName())},
    };
    if (const QScreen* screen = QGuiApplication::primaryScreen()) {
        facts.push_back({"Screen", ScreenText(*screen)});
        facts.push_back({"Scale factor", Decimal(screen->devicePixelRatio())});
    }
    return facts;
}

} // namespace quor
