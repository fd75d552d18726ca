#include "qt/theme/theme.h"

#include "qt/theme/desk_style.h"
#include "qt/theme/desktop_scheme.h"
#include "qt/theme/icon_engine.h"

#include <QApplication>
#include <QFile>
#include <QFontDatabase>
#include <QFontInfo>
#include <QPixmapCache>
#include <QTimer>

#include <string>
#include <utility>

// Out of a namespace, as the macro asks.
static void LoadIconFiles()
{
    Q_INIT_RESOURCE(icons);
}

namespace quor {

// Hears of a change of the desktop's theme, once for all windows that are told.
class Theme::Follower final : public QObject {
public:
    explicit Follower(std::function<void()> onChange) : m_onChange(std::move(onChange))
    {
        m_soon.setSingleShot(true);
        connect(&m_soon, &QTimer::timeout, this, [this] { m_onChange(); });
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::ThemeChange) {
            m_soon.start(0);
        }
        return QObject::eventFilter(watched, event);
    }

private:
    std::function<void()> m_onChange;
    QTimer m_soon;
};

namespace {

constexpr int textSize = 12; // pixels

bool IsDark(const QPalette& palette)
{
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

// The desktop's font; where it names none of its own, the one that the surroundings are drawn for, if it is there.
QFont DesktopFont()
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    if (font.family().startsWith(QStringLiteral("Sans"))) {
        const QFont drawnFor(QStringLiteral("Inter"));
        if (QFontInfo(drawnFor).family() == drawnFor.family()) {
            font.setFamily(drawnFor.family());
        }
    }
    return font;
}

QFont FontOf(QFont font, int pixels, QFont::Weight weight)
{
    font.setPixelSize(pixels);
    font.setWeight(weight);
    return font;
}

} // namespace

Theme::Theme()
{
    LoadIconFiles();
}

Theme::~Theme() = default;

void Theme::Apply(QApplication& application)
{
    AdoptDesktop();
    QApplication::setStyle(new DeskStyle(m_shared));
    Spread();
    m_follower = std::make_unique<Follower>([this] {
        QApplication::setPalette(QPalette());
        AdoptDesktop();
        Spread();
    });
    application.installEventFilter(m_follower.get());
}

void Theme::AdoptDesktop()
{
    m_font = DesktopFont();
    const QPalette desktop = QApplication::palette();
    const std::unique_ptr<QStyle> fallback(DeskStyle::MakeBase());
    if (IsOwnPalette(desktop, fallback->standardPalette())) {
        m_colors = ColorsFrom(desktop);
    } else {
        m_colors = IsDark(desktop) || DesktopPrefersDark() ? DarkColors() : LightColors();
    }
}

void Theme::Spread() const
{
    QPixmapCache::clear(); // icons of other colours
    QApplication::setPalette(PaletteOf(m_colors));
    QApplication::setFont(FontOf(m_font, textSize, QFont::Normal));
    for (const char* widgetClass : {"QMenu", "QMenuBar", "QMessageBox"}) {
        QApplication::setFont(MenuFont(), widgetClass);
    }
}

const ThemeColors& ColorsInUse()
{
    return dynamic_cast<const DeskStyle&>(*QApplication::style()).Colors();
}

QIcon IconOf(std::string_view name)
{
    const QString path =
        QStringLiteral(":/icons/") + QString::fromUtf8(name.data(), qsizetype(name.size())) + QStringLiteral(".svg");
    return QFile::exists(path) ? QIcon(new ThemedIconEngine(path)) : QIcon();
}

QFont MenuFont()
{
    return FontOf(QApplication::font(), 13, QFont::Normal);
}

QFont TitleFont()
{
    return FontOf(QApplication::font(), textSize, QFont::DemiBold);
}

QFont HeadingFont()
{
    return FontOf(QApplication::font(), 18, QFont::DemiBold);
}

} // namespace quor
