#include "tests/qt/desk.h"

#include "document/view_document.h"
#include "tests/qt/test.h"
#include "widgets/widget.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QToolBar>

namespace quor {

namespace {

QPoint Middle(const GrabHandle& handle)
{
    constexpr float half = Canvas::handleSize / 2;
    return {qRound((handle.left + half) / twipsPerPixelX), qRound((handle.top + half) / twipsPerPixelY)};
}

QString Told(const QWidget& dialog)
{
    QString text = dialog.windowTitle();
    if (const auto* box = qobject_cast<const QMessageBox*>(&dialog)) {
        text += ": " + box->text();
    } else if (const auto* label = dialog.findChild<QLabel*>("lblError")) {
        text += ": " + label->text();
    }
    return text;
}

QAction* FindAction(const QMenu& menu, const QString& name)
{
    for (QAction* action : menu.actions()) {
        if (action->objectName() == name) {
            return action;
        }
        if (action->menu() != nullptr) {
            emit action->menu()->aboutToShow();
            if (QAction* inner = FindAction(*action->menu(), name)) {
                return inner;
            }
        }
    }
    return nullptr;
}

} // namespace

EditorDesk::Home::Home(const QString& path) : before(QDir::currentPath())
{
    QDir::setCurrent(path);
}

EditorDesk::Home::~Home()
{
    QDir::setCurrent(before);
}

EditorDesk::EditorDesk() : m_home(m_folder.path()), m_program("")
{
    QApplication::setQuitOnLastWindowClosed(false);
    QObject::connect(&m_watch, &QTimer::timeout, &m_watch, [this] { MeetNext(); });
    m_watch.start(5);
    m_program.Start();
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_program.Window() != nullptr; }));
    EXPECT_TRUE(QTest::qWaitForWindowExposed(m_program.Window()));
    m_program.Window()->activateWindow();
    m_program.Window()->resize(1200, 760);
    Settle();
}

EditorDesk::~EditorDesk()
{
    EXPECT_TRUE(m_answers.empty()) << "a dialog was expected and did not come";
    EXPECT_EQ(m_met, QStringList()) << "dialogs came that nobody asked about";
    m_program.EndSession();
}

void EditorDesk::Settle()
{
    QTest::qWait(40);
}

void EditorDesk::DragTool(int index, const QPoint& to)
{
    auto* cell = Window().findChild<QWidget*>(QStringLiteral("cmdTool(%1)").arg(index));
    ASSERT_NE(cell, nullptr);
    const QPoint target = cell->mapFromGlobal(Canvas().mapToGlobal(to));
    QTest::mousePress(cell, Qt::LeftButton, {}, QPoint(10, 10));
    QTest::mouseMove(cell, (target + QPoint(10, 10)) / 2);
    QTest::mouseMove(cell, target);
    QTest::mouseRelease(cell, Qt::LeftButton, {}, target);
    Settle();
}

void EditorDesk::Drag(const QPoint& from, const QPoint& to, bool gives)
{
    QTest::mousePress(&Canvas(), Qt::LeftButton, {}, from);
    QTest::mouseMove(&Canvas(), (from + to) / 2);
    QTest::mouseMove(&Canvas(), to);
    if (gives) {
        Key(Qt::Key_Escape);
    }
    QTest::mouseRelease(&Canvas(), Qt::LeftButton, {}, to);
    Settle();
}

void EditorDesk::Click(const QPoint& at, Qt::MouseButton button)
{
    QTest::mouseClick(&Canvas(), button, {}, at);
    Settle();
}

void EditorDesk::DragHandle(std::size_t handle, const QPoint& by)
{
    const GrabHandle& grab = Main().ssScroll().Handles().at(handle);
    ASSERT_TRUE(grab.visible);
    Drag(Middle(grab), Middle(grab) + by);
}

void EditorDesk::Key(int key, Qt::KeyboardModifiers modifiers)
{
    if (QApplication::activeWindow() == nullptr) { // as a desktop does when a dialog has gone
        Window().activateWindow();
        Settle();
    }
    QWidget* focused = QApplication::focusWidget();
    QTest::keyClick(focused == nullptr ? &Window() : focused, static_cast<Qt::Key>(key), modifiers);
    Settle();
}

void EditorDesk::Choose(const char* tool)
{
    for (QAction* header : Window().menuBar()->actions()) {
        emit header->menu()->aboutToShow();
        if (QAction* action = FindAction(*header->menu(), QString::fromLatin1(tool))) {
            action->trigger();
            Settle();
            return;
        }
    }
    FAIL() << tool << " is in no menu";
}

void EditorDesk::Meet(std::function<void(QWidget&)> answer)
{
    m_answers.push_back(std::move(answer));
}

void EditorDesk::MeetAndCancel()
{
    Meet([](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
}

void EditorDesk::MeetAndType(const QString& path)
{
    Meet([path](QWidget& dialog) {
        auto* name = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        ASSERT_NE(name, nullptr);
        name->setText(path);
        QTest::keyClick(name, Qt::Key_Return);
    });
}

void EditorDesk::MeetAndPush(const QString& button)
{
    Meet([button](QWidget& dialog) {
        for (auto* each : dialog.findChildren<QPushButton*>()) {
            if (each->text().remove(QLatin1Char('&')) == button) {
                QTest::mouseClick(each, Qt::LeftButton);
                return;
            }
        }
        FAIL() << button.toStdString() << " is no button of " << Told(dialog).toStdString();
    });
}

// A dialog that nobody expects is cancelled, and fails the test at its end.
void EditorDesk::MeetNext()
{
    QWidget* dialog = QApplication::activeModalWidget();
    if (dialog == nullptr || !dialog->isVisible()) {
        return;
    }
    m_watch.stop();
    m_met.append(Told(*dialog));
    if (m_answers.empty()) {
        QTest::keyClick(dialog, Qt::Key_Escape);
    } else {
        const auto answer = m_answers.front();
        m_answers.erase(m_answers.begin());
        answer(*dialog);
    }
    m_watch.start();
}

QStringList EditorDesk::Met()
{
    Settle();
    return std::exchange(m_met, {});
}

QStringList EditorDesk::Elements()
{
    QStringList elements;
    for (const Widget* widget = Main().ssScroll().Back(); widget != nullptr; widget = widget->Above()) {
        elements.append(QStringLiteral("%1 %2,%3 %4x%5")
                            .arg(QString::fromStdString(widget->Tag()))
                            .arg(widget->Left() / 15)
                            .arg(widget->Top() / 15)
                            .arg(widget->Width() / 15)
                            .arg(widget->Height() / 15));
    }
    return elements;
}

QStringList EditorDesk::Toolbar()
{
    QStringList tools;
    for (const QAction* action : Window().findChild<QToolBar*>("bndToolBar")->actions()) {
        if (action->isSeparator() || !action->objectName().isEmpty()) {
            tools.append(action->isSeparator() ? QStringLiteral("|") : action->objectName());
        }
    }
    return tools;
}

} // namespace quor
