#include "gui/summary/summaryModel.h"

#include "core/text.h"
#include "gui/widgets/qtText.h"
#include "gui/widgets/toolTip.h"

#include <QApplication>
#include <QFont>

namespace gui {

namespace {

constexpr std::size_t mostLetters = 300; // shown of a text: a view measures all of them each time it paints
constexpr std::size_t mostTold = 2000;   // of it, when the pointer stays

} // namespace

void SummaryModel::show(const summary::Summary& summary) {
    beginResetModel();
    groupColumns_ = summary.request.by.size();
    table_ = summary::tableOf(summary, {}, mostTold);
    endResetModel();
}

int SummaryModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(table_.rows.size());
}

int SummaryModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(table_.columns.size());
}

QVariant SummaryModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount() || index.column() >= columnCount()) return {};
    const auto row = static_cast<std::size_t>(index.row()), column = static_cast<std::size_t>(index.column());
    switch (role) {
    case Qt::DisplayRole:
        return toQt(core::left(table_.rows[row][column], mostLetters));
    case Qt::ToolTipRole:
        return toolTipOf(toQt(table_.rows[row][column]));
    case Qt::TextAlignmentRole:
        return QVariant((column < groupColumns_ ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
    case Qt::FontRole: {
        QFont font = QApplication::font("QAbstractItemView");
        font.setBold(true);
        return index.row() == groups() ? QVariant(font) : QVariant();
    }
    default:
        return {};
    }
}

QVariant SummaryModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) return {};
    const auto column = static_cast<std::size_t>(section);
    if (role == Qt::DisplayRole) return toQt(table_.columns[column].name);
    if (role == Qt::TextAlignmentRole)
        return QVariant((column < groupColumns_ ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
    return {};
}

} // namespace gui

#include "moc_summaryModel.cpp"
