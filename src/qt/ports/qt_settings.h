#pragma once
// The user's settings in an INI file of the configuration directory.

#include "platform/settings.h"

#include <QSettings>

namespace quor {

class QtSettings final : public ApplicationSettings {
public:
    // In the given file; DefaultPath() is the user's.
    explicit QtSettings(const QString& path);
    static QString DefaultPath();

    std::int32_t GridSize() override;
    void SetGridSize(std::int32_t pixels) override;
    bool ShowGrid() override;
    void SetShowGrid(bool show) override;
    bool SnapToGrid() override;
    void SetSnapToGrid(bool snap) override;
    std::string ViewsDirectory() override;
    std::string ToolbarDirectory() override; // is made if it doesn't exist
    std::string HelpFile() override;

private:
    QSettings m_settings;
};

} // namespace quor
