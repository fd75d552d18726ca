#include "apps/tool/view_renderer.h"
#include "base/failure.h"
#include "qt/canvas/canvas_painting.h"
#include "qt/ports/qt_pictures.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <array>

namespace quor {

namespace {

// While it lives, the toolkit finds no place for the folder of the run, which it makes in the temporary one where the
// session has none, and leaves.
class NoFolderOfTheRun {
public:
    NoFolderOfTheRun()
    {
        for (Variable& each : m_variables) {
            each.wasSet = qEnvironmentVariableIsSet(each.name);
            each.value = qgetenv(each.name);
            qputenv(each.name, "/dev/null");
        }
    }
    ~NoFolderOfTheRun()
    {
        for (const Variable& each : m_variables) {
            if (each.wasSet) {
                qputenv(each.name, each.value);
            } else {
                qunsetenv(each.name);
            }
        }
    }
    NoFolderOfTheRun(const NoFolderOfTheRun&) = delete;
    NoFolderOfTheRun& operator=(const NoFolderOfTheRun&) = delete;

private:
    struct Variable {
        const char* name;
        bool wasSet = false;
        QByteArray value;
    };
    std::array<Variable, 2> m_variables = {{{"XDG_RUNTIME_DIR", false, {}}, {"TMPDIR", false, {}}}};
};

// The toolkit, on a screen in memory, unless the program has one already.
class Toolkit {
public:
    Toolkit()
    {
        if (QCoreApplication::instance() == nullptr) {
            qputenv("QT_QPA_PLATFORM", "offscreen");
            qInstallMessageHandler(
                [](QtMsgType /*type*/, const QMessageLogContext& /*from*/, const QString& /*text*/) {});
            const NoFolderOfTheRun none;
            m_application = std::make_unique<QGuiApplication>(m_count, m_arguments.data());
        }
    }

private:
    int m_count = 1;
    std::array<char, 15> m_name{"quor-view-tool"};
    std::array<char*, 2> m_arguments{m_name.data(), nullptr};
    std::unique_ptr<QGuiApplication> m_application;
};

class QtViewRenderer final : public ViewRenderer {
public:
    Pictures& PictureFiles() override
    {
        Start();
        return m_pictures;
    }

    std::vector<std::uint8_t> Png(const Canvas& canvas, int width, int height, double scale) override
    {
        Start();
        const QSize size(width, height);
        QImage image((QSizeF(size) * scale).toSize(), QImage::Format_RGB32);
        if (image.isNull()) {
            throw Failure(failures::outOfMemory);
        }
        QPainter painter(&image);
        painter.scale(scale, scale); // the image's own ratio can't be below 1
        const QRect all(QPoint(0, 0), size);
        CanvasPainter(canvas).Paint(painter, size, all.adjusted(0, 0, 1, 1),
                                    {.isEdited = false}); // the size may be rounded up
        painter.end();
        QBuffer file;
        file.open(QIODevice::WriteOnly);
        image.save(&file, "png");
        return {file.data().begin(), file.data().end()};
    }

private:
    // Only now: the other commands do without.
    void Start()
    {
        if (m_toolkit == nullptr) {
            m_toolkit = std::make_unique<Toolkit>();
        }
    }

    std::unique_ptr<Toolkit> m_toolkit;
    QtPictures m_pictures;
};

} // namespace

std::unique_ptr<ViewRenderer> MakeViewRenderer()
{
    return std::make_unique<QtViewRenderer>();
}

} // namespace quor
