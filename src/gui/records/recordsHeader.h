#pragma once

#include <QHeaderView>

namespace gui {

// The header of a records list: names that do not fit are cut with dots, at whichever side they stand.
class RecordsHeader : public QHeaderView {
    Q_OBJECT

public:
    explicit RecordsHeader(QWidget* parent = nullptr);

protected:
    void initStyleOptionForIndex(QStyleOptionHeader* option, int logicalIndex) const override;
};

} // namespace gui
