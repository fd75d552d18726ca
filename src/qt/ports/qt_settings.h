#pragma once
// The user's settings in an INI file of the configuration directory.

#include "platform/settings.h"

#include <QSettings>

#include <optional>

namespace quor {

class QtSettings final : public ApplicationSettings {
public:
    // In the given file; DefaultPath() is the user's. A file that can't be used is told by Trouble, and all settings
    // then have their first values; so has each that is out of its range. What can't be kept fails with 75, and the
    // setting stays as it was.
    explicit QtSettings(const QString& path);
    static QString DefaultPath();

    // What the user should know about the file; empty if all is well.
    std::string Trouble() const;

    std::int32_t GridSize() override; // above 0, within 16 bits
    void SetGridSize(std::int32_t pixels) override;
    bool ShowGrid() override;
    void SetShowGrid(bool show) override;
    bool SnapToGrid() override;
    void SetSnapToGrid(bool snap) override;
    std::string ViewsDirectory() override;
    std::string ToolbarDirectory() override; // is made if it doesn't exist
    std::string HelpFile() override;

private:
    QVariant Value(const QString& key, const QVariant& first) const;
    void Keep(const QString& key, const QVariant& value);

    QString m_path;
    std::optional<QSettings> m_settings; // none where the path is that of something else than a file
};

} // namespace quor
