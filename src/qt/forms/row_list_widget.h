#pragma once
// A list of rows with icons, drawn as a field; Enter and a double click open the chosen row.

#include <QListWidget>

#include <functional>
#include <string_view>

namespace quor {

class Theme;

class RowListWidget final : public QListWidget {
public:
    RowListWidget(const Theme& theme, QWidget& parent);

    std::function<void()> onOpen;

    // An empty name keeps the icon's room free.
    void AddRow(const QString& text, std::string_view icon);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    const Theme& m_theme;
};

} // namespace quor
