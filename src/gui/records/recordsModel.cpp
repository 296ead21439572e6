#include "gui/records/recordsModel.h"

#include "gui/records/colourLook.h"
#include "gui/records/listLook.h"
#include "gui/widgets/icon.h"
#include "gui/widgets/palette.h"
#include "gui/widgets/qtText.h"

#include <QApplication>
#include <QFont>

namespace gui {

namespace {

int qtAlignment(core::Alignment align) {
    switch (align) {
    case core::Alignment::Right:
        return Qt::AlignRight | Qt::AlignVCenter;
    case core::Alignment::Centre:
        return Qt::AlignCenter;
    case core::Alignment::Left:
        break;
    }
    return Qt::AlignLeft | Qt::AlignVCenter;
}

QColor totalsColour() {
    // Pure blue cannot be read on a dark ground.
    if (isDark(QApplication::palette())) return {0x8a, 0xb4, 0xf8};
    return {core::blue & 0xFF, core::blue >> 8 & 0xFF, core::blue >> 16 & 0xFF};
}

// The rest of it is that of the list.
QFont totalsFont() {
    QFont font;
    font.setBold(true);
    return font;
}

} // namespace

RecordsModel::RecordsModel(const core::RecordsList& list, QObject* parent)
    : QAbstractTableModel(parent), list_(list), columns_(columnsNow()), rows_(list.count()),
      arrangement_(list.arrangement()) {}

std::vector<RecordsModel::Shown> RecordsModel::columnsNow() const {
    std::vector<Shown> shown;
    for (const core::Column& column : list_.columns)
        if (column.Index > 1) shown.push_back({column.Text, column.Icon, column.align, column.type()});
    return shown;
}

bool RecordsModel::isStale() const {
    return form_ != formNow() || arrangement_ != list_.arrangement() || rows_ != list_.count() ||
           columns_ != columnsNow();
}

std::optional<core::LocaleForm> RecordsModel::formNow() const {
    const core::LocaleForm* form = formInUse ? formInUse() : nullptr;
    return form == nullptr ? std::nullopt : std::optional(*form);
}

QString RecordsModel::shown(std::size_t section, std::string_view cell) const {
    return toQt(form_ ? core::shownIn(*form_, columns_[section].type, cell) : cell);
}

void RecordsModel::reload() {
    beginResetModel();
    form_ = formNow();
    columns_ = columnsNow();
    rows_ = list_.count();
    arrangement_ = list_.arrangement();
    endResetModel();
}

int RecordsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_;
}

int RecordsModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

const core::Item* RecordsModel::item(int row) const {
    return row >= 0 && row < list_.count() ? &list_.at(row + 1) : nullptr;
}

QVariant RecordsModel::data(const QModelIndex& index, int role) const {
    const auto section = static_cast<std::size_t>(index.column());
    if (!index.isValid() || section >= columns_.size()) return {};
    switch (role) {
    case Qt::DisplayRole: {
        const core::Item* row = item(index.row());
        if (row == nullptr || section >= row->cells.size()) return {};
        return shown(section, row->cells[section].view());
    }
    case Qt::TextAlignmentRole:
        return qtAlignment(columns_[section].align);
    case Qt::ToolTipRole:
    case Qt::BackgroundRole:
    case markRole:
    case Qt::AccessibleTextRole: {
        const core::Item* row = item(index.row());
        const QVariant marked = row == nullptr ? QVariant() : markData(*row, index.column(), role);
        return role == Qt::ToolTipRole && marked.isNull() ? QVariant(toQt(columns_[section].text)) : marked;
    }
    case Qt::ForegroundRole:
    case Qt::FontRole: {
        const core::Item* row = item(index.row());
        if (row == nullptr || !row->isTotals()) return {};
        return role == Qt::FontRole ? QVariant(totalsFont()) : QVariant(totalsColour());
    }
    default:
        return {};
    }
}

// Of a cell that a rule marks: the look, and the words for whoever does not see it.
QVariant RecordsModel::markData(const core::Item& row, int section, int role) const {
    const auto place = static_cast<std::size_t>(section);
    if (!markOf || row.isTotals() || place >= row.cells.size() ||
        columnIndex(section) > list_.columns.count())
        return {};
    const core::Column& column = list_.columns.at(columnIndex(section));
    const search::ColourRule* rule = markOf(column, row.cells[place].view());
    if (rule == nullptr) return {};
    if (role == Qt::BackgroundRole) return colourGround(rule->colour);
    if (role == markRole) return colourMark(rule->colour);
    search::ColourRule told = *rule;
    for (std::string* value : {&told.value, &told.upTo}) *value = fromQt(shown(place, *value));
    const bool isTip = role == Qt::ToolTipRole;
    return QStringLiteral("%1: %2").arg(isTip ? toQt(columns_[place].text)
                                              : shown(place, row.cells[place].view()),
                                        toQt(search::ruleText(told, column.type())));
}

QVariant RecordsModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) return {};
    const Shown& column = columns_[static_cast<std::size_t>(section)];
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return toQt(column.text);
    case Qt::TextAlignmentRole:
        return qtAlignment(column.align);
    case Qt::DecorationRole:
        return column.icon == "Picture" ? QVariant(familyIcon(QStringLiteral("picture"))) : QVariant();
    default:
        return {};
    }
}

} // namespace gui

#include "moc_recordsModel.cpp"
