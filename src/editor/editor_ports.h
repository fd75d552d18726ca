#pragma once
// All that the editor uses of the world around it.

namespace quor {

class ApplicationSettings;
class CommonDialog;
class Files;
class Forms;
class Help;
class LoadProgress;
class MessageBoxes;
class Pictures;
class QuorLogin;
class Reporter;
class Screen;
class SystemInfo;
class Timers;
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
    LoadProgress& progress;
    Live& live;
    Help& help;
    SystemInfo& systemInfo;
};

} // namespace quor
