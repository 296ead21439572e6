#pragma once

#include "core/locale/localeForm.h"
#include "gui/frame/eventBoundary.h"
#include "gui/summary/barChart.h"
#include "gui/summary/summaryModel.h"
#include "summary/summaryPanel.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QDockWidget>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTimer>
#include <QTreeView>

#include <optional>

namespace gui {

// The dock "Summary" of the main window. It counts a moment after the last change, when it is in sight.
class SummaryDock : public QDockWidget {
    Q_OBJECT

public:
    SummaryDock(app::App& app, EventBoundary& events, QWidget* parent);

    // After each event of the window.
    void refresh();

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Choosers {
        QComboBox *column, *step;
    };

    QLayout* makeChoosers();
    QLayout* makeButtons();
    QWidget* makeResult();
    QPushButton* makeButton(const char* name, const QString& caption,
                            void (summary::SummaryPanel::*handler)());
    void on(const std::function<void()>& handler);
    void count();
    void arrangeChoosers();
    void showChoosers();
    void fillFigures();
    bool isStale() const;
    void showSummary();
    void fitColumns();
    void sortBy(int column);
    void showSortMenu(const QPoint& place);
    void choose(int row);

    app::App& app_;
    EventBoundary& events_;
    summary::SummaryPanel panel_;
    std::array<Choosers, 2> by_{};
    QBoxLayout* choosers_ = nullptr;
    QPushButton* figures_ = nullptr;
    QMenu* figureMenu_ = nullptr;
    QComboBox* bars_ = nullptr;
    QCheckBox* onlyFound_ = nullptr;
    QPushButton *all_ = nullptr, *copy_ = nullptr;
    std::vector<QPushButton*> outputs_; // need a summary
    QTreeView* table_ = nullptr;
    SummaryModel* model_;
    BarChart* chart_ = nullptr;
    QLabel* note_ = nullptr;
    QTimer soon_;
    int shown_ = 0;                        // the counting that is shown
    std::optional<core::LocaleForm> form_; // it is shown in
    summary::Summary inForm_;              // where there is one
    bool showing_ = false;
};

} // namespace gui
