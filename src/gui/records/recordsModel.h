#pragma once

#include "core/locale/localeForm.h"
#include "core/recordsList.h"
#include "search/colourRules.h"

#include <QAbstractTableModel>

#include <functional>
#include <optional>
#include <vector>

namespace gui {

// A records list as a table for Qt. Cells are read when they are drawn; nothing is copied but the
// number of rows and the look of the columns, so that a list that a handler has changed in the
// meantime does no harm until refreshed() or reload() has been called.
// Section s is the column with Index s + 2: the hidden column Index never shows.
class RecordsModel : public QAbstractTableModel {
    Q_OBJECT

public:
    explicit RecordsModel(const core::RecordsList& list, QObject* parent = nullptr);

    static int columnIndex(int section) { return section + 2; }
    static int section(const core::Column& column) { return column.Index - 2; }

    // The rule that marks a cell, if there is one. Asked whenever a cell is drawn.
    std::function<const search::ColourRule*(const core::Column& column, std::string_view cell)> markOf;

    // The form that cells are shown in; nullptr for their own.
    std::function<const core::LocaleForm*()> formInUse;

    // The rows, the columns or the form are other ones than those that Qt knows.
    bool isStale() const;
    void reload();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    struct Shown {
        std::string text;
        std::string icon;
        core::Alignment align;
        core::ColumnType type;
        bool operator==(const Shown&) const = default;
    };
    std::vector<Shown> columnsNow() const;
    std::optional<core::LocaleForm> formNow() const;
    QString shown(std::size_t section, std::string_view cell) const;
    const core::Item* item(int row) const;
    QVariant markData(const core::Item& row, int section, int role) const;

    const core::RecordsList& list_;
    std::vector<Shown> columns_;
    std::optional<core::LocaleForm> form_;
    int rows_ = 0;
    std::uint64_t arrangement_ = 0;
};

} // namespace gui
