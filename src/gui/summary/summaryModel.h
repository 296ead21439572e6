#pragma once

#include "summary/summaryTable.h"

#include <QAbstractTableModel>

namespace gui {

// A summary as a table for Qt: a row for each group, and the grand total last.
class SummaryModel : public QAbstractTableModel {
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void show(const summary::Summary& summary);
    int groups() const { return rowCount() - 1; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::size_t groupColumns_ = 0;
    exchange::OutTable table_;
};

} // namespace gui
