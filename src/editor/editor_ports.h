#pragma once
// All that the editor uses of the world around it.

namespace quor {

class ApplicationSettings;
class CommonDialog;
class Files;
class Forms;
class Help;
class MessageBoxes;
class Pictures;
class QuorLogin;
class Reporter;
class Screen;
class SystemInfo;
class Timers;
class frmViewPBar;
struct Live;

struct EditorPorts {
    Files& files;
    MessageBoxes& boxes;
    CommonDialog& dlgProp;
    Forms& forms;
    Timers& timers;
    Screen& screen;
    Pictures& pictures;
    ApplicationSettings& settings;
    QuorLogin& login;
    Reporter& reporter;
    frmViewPBar& progress;
    Live& live;
    Help& help;
    SystemInfo& systemInfo;
};

} // namespace quor
