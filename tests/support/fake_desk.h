#pragma once
// All ports in memory at once, and what programs are made of them.

#include "binding/live.h"
#include "document/view_document.h"
#include "editor/editor_ports.h"
#include "support/frm_view_pbar.h"
#include "tests/support/fake_files.h"
#include "tests/support/fake_forms.h"
#include "tests/support/fake_ports.h"
#include "tests/support/fake_timers.h"

namespace quor {

struct FakeDesk {
    FakeFiles files;
    FakeTimers timers;
    FakeForms forms{timers};
    FakeBoxes boxes;
    FakeDialog dialog;
    FakeSettings settings;
    FakeLogin login;
    FakePictures pictures{files};
    FakeClipboard clipboard;
    FakeScreen screen;
    FakeClock clock;
    FakeHelp help;
    FakeSystemInfo systemInfo;
    frmViewPBar progress;
    Live live;

    explicit FakeDesk(const Trace& trace = noTrace) : progress(forms, trace)
    {
        live.PictureFiles = &pictures;
        live.Tracer = &trace;
    }

    EditorPorts PortsOfEditor(Reporter& reporter) { return PortsOfEditor(reporter, files); }
    ViewPorts PortsOfView(Reporter& reporter) { return PortsOfView(reporter, files); }

    // The same on other files.
    EditorPorts PortsOfEditor(Reporter& reporter, Files& others)
    {
        return {others,   boxes, dialog,   forms,    timers, screen, pictures,
                settings, login, reporter, progress, live,   help,   systemInfo};
    }
    ViewPorts PortsOfView(Reporter& reporter, Files& others)
    {
        return {others, boxes, reporter, timers, pictures, progress, live};
    }
};

} // namespace quor
