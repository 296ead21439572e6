#pragma once

#include "app/app.h"

#include <QTreeWidget>

namespace gui {

// The sums of the selected records: a row for each numeric column.
class SelectedTotalsView : public QTreeWidget {
    Q_OBJECT

public:
    explicit SelectedTotalsView(const app::App& app, QWidget* parent = nullptr);

    void refresh();
    QSize sizeHint() const override;

private:
    const app::App& app_;
    const core::RecordsList& list_;
};

} // namespace gui
