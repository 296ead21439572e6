#include "gui/records/recordsHeader.h"

#include <QStyle>
#include <QStyleOptionHeader>

namespace gui {

namespace {

constexpr int narrowestColumn = 20; // pixels; a column that somebody has closed can be opened again

} // namespace

RecordsHeader::RecordsHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {
    setSectionsMovable(true);
    setStretchLastSection(false);
    setHighlightSections(false);
    setMinimumSectionSize(narrowestColumn);
    setResizeContentsPrecision(-1); // a double click on a divider counts the rows out of sight too
}

// The styles that come with Qt clip a name in the middle of a letter, and one at the right edge loses
// its beginning.
void RecordsHeader::initStyleOptionForIndex(QStyleOptionHeader* option, int logicalIndex) const {
    QHeaderView::initStyleOptionForIndex(option, logicalIndex);
    const int margin = style()->pixelMetric(QStyle::PM_HeaderMargin, option, this);
    int room = sectionSize(logicalIndex) - 2 * margin;
    if (!option->icon.isNull()) room -= style()->pixelMetric(QStyle::PM_SmallIconSize, option, this) + margin;
    if (sortIndicatorSection() == logicalIndex)
        room -= style()->pixelMetric(QStyle::PM_HeaderMarkSize, option, this) + margin;
    option->text = option->fontMetrics.elidedText(option->text, Qt::ElideRight, room);
}

} // namespace gui
