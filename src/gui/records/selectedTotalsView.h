#pragma once

#include "core/recordsList.h"

#include <QTreeWidget>

namespace gui {

// The sums of the selected records: a row for each numeric column.
class SelectedTotalsView : public QTreeWidget {
    Q_OBJECT

public:
    explicit SelectedTotalsView(const core::RecordsList& list, QWidget* parent = nullptr);

    void refresh();
    QSize sizeHint() const override;

private:
    const core::RecordsList& list_;
};

} // namespace gui
