#include "forms/panes.h"
#include "qt/forms/row_list_widget.h"
#include "qt/forms/tab_button.h"
#include "qt/forms/view_of.h"
#include "qt/theme/style_parts.h"
#include "qt/theme/theme.h"

#include <QBoxLayout>
#include <QPainter>

namespace quor {

namespace {

class TabStripView final : public ViewOf<TabStrip, QWidget> {
public:
    TabStripView(TabStrip& strip, const Theme& theme, QWidget& parent) : ViewOf(strip, new QWidget(&parent))
    {
        auto* row = new QHBoxLayout(&Shown());
        row->setContentsMargins(0, 0, 0, 0);
        row->setSpacing(2);
        for (const std::string& caption : strip.Captions()) {
            const auto index = static_cast<int>(m_tabs.size());
            auto* tab = new TabButton(theme, &Shown());
            tab->setText(ToQt(caption));
            if (strip.Captions().size() == 1) {
                tab->setFocusPolicy(Qt::NoFocus); // there is nothing to choose
            }
            row->addWidget(tab);
            m_tabs.push_back(tab);
            QObject::connect(tab, &QAbstractButton::clicked, &Shown(),
                             [this, index] { FromUserAndRead([&] { Model().Choose(index); }); });
        }
        row->addStretch();
    }
    int NaturalHeight() const override { return TabButton::tabHeight; }

private:
    void ReadLook() override { m_tabs[static_cast<std::size_t>(Model().Index())]->setChecked(true); }

    std::vector<TabButton*> m_tabs;
};

class PanelGround final : public QWidget {
public:
    PanelGround(const Theme& theme, FormPanel::Look look, QWidget& parent)
        : QWidget(&parent), m_theme(theme), m_look(look)
    {
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        const ThemeColors& colors = m_theme.Colors();
        if (m_look == FormPanel::Look::Box) {
            DrawBox(painter, rect(), radii::control, colors.field, colors.rule);
        } else {
            DrawRule(painter, QRectF(0, 0, width(), 1), Qt::Horizontal, colors.rule);
            DrawRule(painter, QRectF(0, height() - 1, width(), 1), Qt::Horizontal, colors.rule);
        }
    }

private:
    const Theme& m_theme;
    FormPanel::Look m_look;
};

class PanelView final : public ViewOf<FormPanel, PanelGround> {
public:
    PanelView(FormPanel& panel, const Theme& theme, QWidget& parent)
        : ViewOf(panel, new PanelGround(theme, panel.Style(), parent))
    {
    }
};

class RowListView final : public ViewOf<RowList, RowListWidget> {
public:
    RowListView(RowList& list, const Theme& theme, QWidget& parent) : ViewOf(list, new RowListWidget(theme, parent))
    {
        QObject::connect(&Shown(), &QListWidget::currentRowChanged, &Shown(), [this](int row) {
            if (!m_isReading) {
                FromUserAndRead([&] { Model().Choose(row); });
            }
        });
        Shown().onOpen = [this] { FromUserAndRead([&] { Model().Open(); }); };
    }

private:
    void ReadLook() override
    {
        m_isReading = true;
        if (m_rows != Model().Rows()) {
            m_rows = Model().Rows();
            Shown().clear();
            for (const RowList::Row& row : m_rows) {
                Shown().AddRow(ToQt(row.text), row.icon);
            }
        }
        Shown().setCurrentRow(Model().Index());
        m_isReading = false;
    }

    std::vector<RowList::Row> m_rows; // as they are shown
    bool m_isReading = false;
};

} // namespace

std::unique_ptr<ControlView> MakePaneView(Control& control, const Theme& theme, QWidget& parent)
{
    if (auto* strip = dynamic_cast<TabStrip*>(&control)) {
        return std::make_unique<TabStripView>(*strip, theme, parent);
    }
    if (auto* panel = dynamic_cast<FormPanel*>(&control)) {
        return std::make_unique<PanelView>(*panel, theme, parent);
    }
    if (auto* list = dynamic_cast<RowList*>(&control)) {
        return std::make_unique<RowListView>(*list, theme, parent);
    }
    return nullptr;
}

} // namespace quor
