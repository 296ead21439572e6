#include "print/reportColumns.h"

#include "core/number.h"

#include <algorithm>

namespace print {

std::vector<ReportColumn> reportColumns(const core::Document& document, const core::RecordsList& theList) {
    std::vector<ReportColumn> columns;
    for (const int index : theList.columns.displayOrder()) {
        const core::Column& column = theList.columns.at(index);
        ReportColumn entry{&column};
        entry.isPrinted = column.Index != 1 && isPrintedColumn(document, column.Text);
        if (entry.isPrinted) {
            entry.isNumeric = document.isNumericColumn(column.Text);
            entry.width = core::toInt16(column.Width);
            entry.characters =
                static_cast<std::size_t>(std::max(core::toInt32(column.Width / twipsPerCharacter), 0));
        }
        columns.push_back(entry);
    }
    return columns;
}

std::string_view fittingText(const ReportColumn& column, std::string_view text) {
    return column.isNumeric ? text : core::left(text, column.characters);
}

std::string padded(std::string_view text, std::size_t characters) {
    std::string result(text);
    const std::size_t length = core::length(text);
    if (length < characters) result.append(characters - length, ' ');
    return result;
}

} // namespace print
