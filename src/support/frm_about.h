#pragma once
// What the program is, its version, and where to get support.

#include "forms/form.h"
#include "forms/panes.h"

namespace quor {

class Forms;
class MessageBoxes;
class SystemInfo;

class frmAbout final : public Form {
public:
    struct Ports {
        Forms& forms;
        MessageBoxes& boxes;
        SystemInfo& systemInfo;
    };

    explicit frmAbout(const Ports& ports);

    Image& Image1 = Make<Image>("Image1", "application");
    Label& lblTitle = Make<Label>("lblTitle", "", LabelRole::Title);
    Label& lblVersion = Make<Label>("lblVersion", "", LabelRole::Caption);
    Label& lblDescription = Make<Label>("lblDescription", "Draws live instrument panels for remote sites.");
    FormPanel& SSPanel1 = Make<FormPanel>("SSPanel1", FormPanel::Look::Box);
    Label& lblSupport = Make<Label>("lblSupport", "", LabelRole::Headed);
    Button& cmdSysInfo = Make<Button>("cmdSysInfo", "&System Info...");
    Button& cmdFiles = Make<Button>("cmdFiles", "Components"); // does nothing
    Button& cmdOK = Make<Button>("cmdOK", "OK");

private:
    void Form_Load() override;
    void StartSysInfo();
    void Place();

    Ports m_ports;
    Subscription m_onSysInfo;
    Subscription m_onOk;
};

} // namespace quor
