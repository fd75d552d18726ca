#pragma once
// The options: the pitch of the grid.

#include "forms/fields.h"
#include "forms/form.h"
#include "forms/panes.h"

namespace quor {

class ApplicationSettings;
class Help;
class Reporter;
class Screen;
class ViewGrid;

class frmOptions final : public Form {
public:
    struct Ports {
        ApplicationSettings& settings;
        Help& help;
        Screen& screen;
        Reporter& reporter;
        ViewGrid& grid;
    };

    static constexpr double leastGridSize = 1; // pixels, of what a user types
    static constexpr double mostGridSize = 500;

    explicit frmOptions(const Ports& ports);

    Label& tabOptions = Make<Label>("tabOptions", "General", LabelRole::Tab);
    FormPanel& panOptions = Make<FormPanel>("panOptions", FormPanel::Look::Plain);
    Label& lblOptions = Make<Label>("lblOptions", "Grid Size:", LabelRole::Caption);
    NumberField& txtGridSize = Make<NumberField>("txtGridSize", leastGridSize, mostGridSize);
    Button& cmdHelp = Make<Button>("cmdHelp", "Help");
    Button& cmdOK = Make<Button>("cmdOK", "OK");
    Button& cmdCancel = Make<Button>("cmdCancel", "&Cancel");
    Button& cmdApply = Make<Button>("cmdApply", "&Apply");

private:
    void Form_Load() override;
    void ApplySettings();
    void OnButtons();
    void Place();

    Ports m_ports;
    std::vector<Subscription> m_subscriptions;
};

} // namespace quor
