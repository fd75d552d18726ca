// Draws the dialogs into pictures, to be looked at. QT_SCALE_FACTOR scales them.

#include "base/guard.h"
#include "editor/frm_customize.h"
#include "editor/tools.h"
#include "login/frm_log_on.h"
#include "platform/system_info.h"
#include "qt/forms/form_view.h"
#include "qt/ports/qt_system_info.h"
#include "qt/theme/theme.h"
#include "support/error_report.h"
#include "support/frm_about.h"
#include "support/frm_error.h"
#include "support/frm_system_info.h"
#include "tests/support/fake_boxes.h"
#include "tests/support/fake_clipboard.h"
#include "tests/support/fake_forms.h"
#include "tests/support/fake_screen.h"
#include "tests/support/fake_settings.h"
#include "tests/support/fake_system_info.h"
#include "tests/support/fake_timers.h"
#include "tests/support/test_reporter.h"

#include <QApplication>

#include <cstdio>

namespace {

using namespace quor;

class Gallery {
public:
    Gallery(QString folder, bool isDark) : m_folder(std::move(folder))
    {
        m_theme.Apply(*qApp);
        m_theme.UseColors(isDark ? DarkColors() : LightColors());
    }

    bool Draw()
    {
        frmAbout about({m_forms, m_boxes, m_systemInfo});
        frmSystemInfo info(QtSystemInfo().Facts());
        const std::unique_ptr<Bars> bars = MakeEditorBars();
        frmCustomize customize(*bars, LayoutOf(*bars));
        customize.lstTools.Choose(2);
        customize.lstToolbar.Choose(4);
        frmError error(m_screen, m_clipboard, m_clock);
        error.SetError({"An error occurred while setting the property value. Please try again.", 6, "frmCVMeterAngle",
                        "Overflow: 40000 does not fit a whole number of 16 bits.", 14168});
        int failures = 0;
        frmLogOn logOn(m_timers, failures, [](const std::string&, const std::string&) { return false; });
        logOn.txtUser.Text("Ada Holm");
        logOn.txtPassword.Text("secret");
        logOn.cmdOK.Push();
        return Save(logOn) && Save(about) && Save(info) && Save(customize) && Save(error);
    }

private:
    bool Save(Form& form)
    {
        form.Load();
        FormView view(form);
        view.resize(view.sizeHint());
        view.show();
        QApplication::setActiveWindow(&view);
        if (QWidget* first = view.FirstFocus()) {
            first->setFocus();
        }
        QApplication::processEvents();
        const QString name = m_folder + QLatin1Char('/') + QString::fromStdString(form.Name()) + QStringLiteral(".png");
        return view.grab().save(name);
    }

    QString m_folder;
    Theme m_theme;
    FakeTimers m_timers;
    FakeForms m_forms{m_timers};
    FakeBoxes m_boxes;
    FakeScreen m_screen;
    FakeClipboard m_clipboard;
    FakeClock m_clock;
    FakeSystemInfo m_systemInfo;
};

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    if (argc < 2 || !Gallery(QString::fromLocal8Bit(argv[1]), argc > 2).Draw()) {
        std::fputs("usage: dialog_gallery FOLDER [dark]\n", stderr);
        return 2;
    }
    return 0;
}
