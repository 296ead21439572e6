#include "file/dataReader.h"

#include "core/encoding.h"
#include "core/number.h"
#include "core/runTimeError.h"
#include "core/sectionMarker.h"
#include "core/text.h"
#include "core/translate.h"
#include "file/layoutLines.h"
#include "file/lineReader.h"
#include "file/values.h"

#include <algorithm>
#include <array>
#include <optional>

namespace file {

namespace {

using core::ColumnType;
using core::Document;
using core::markerSize;

constexpr std::string_view beginData = "[Begin Data    ]";
// Far more columns than the program lets anyone add; a table beyond it is no database but an attempt
// to have memory for rows times columns set aside.
constexpr std::size_t mostColumns = 1000;

// The elements of a list line. Each ends in a separator, so what stands behind the last one is none.
std::vector<std::string_view> elementsOf(std::string_view value) {
    std::vector<std::string_view> parts = splitLine(value);
    parts.pop_back();
    return parts;
}

class Reader {
public:
    Reader(std::string_view text, Document& document, const ReadObserver* observer)
        : lines_(text), document_(document), observer_(observer) {}

    void read() {
        readLayoutBlock();
        readSections();
        buildColumns();
        readRows();
        restorePositions();
    }

private:
    void report(const std::string& what) const {
        if (observer_ != nullptr && observer_->finding) observer_->finding(lines_.number(), what);
    }

    void readLayoutBlock() {
        lines_.next(); // the opening line is taken as it is
        for (std::string_view line = lines_.next(); line != "[LayoutEnd]"; line = lines_.next())
            if (!readLayoutLine(line, document_.layout)) report("unknown layout line");
    }

    void readSections() {
        for (;;) {
            const std::string_view line = lines_.next();
            if (line.substr(0, markerSize) == beginData) return;
            const std::string_view marker = line.substr(0, markerSize);
            // A view into the line even when it is empty: a lock value may go on from there.
            const std::string_view value = line.substr(std::min(line.size(), markerSize));
            if (!readSection(marker, value)) report("unknown section");
        }
    }

    bool readSection(std::string_view marker, std::string_view value) {
        if (marker == "[Layout Options]") return readLayoutOptions(value), true;
        if (marker == "[Report Data   ]") return readReportData(value), true;
        if (marker == "[Column Names  ]") return names_ = elementsOf(value), true;
        if (marker == "[Column Types  ]") return types_ = elementsOf(value), true;
        if (marker == "[Column Widths ]") return widths_ = elementsOf(value), true;
        if (marker == "[Column Spots  ]") return spots_ = elementsOf(value), true;
        if (marker == "[Increments    ]") return readIncrements(value), true;
        if (marker == "[DatabaseStyle ]") return document_.bInvoiceStyle = booleanOf(value), true;
        if (marker == "[InvoiceView   ]") return document_.bInvoiceView = booleanOf(value), true;
        if (marker == "[Lock          ]") return document_.lockPassword = lockValue(value), true;
        return readCollection(marker, value);
    }

    bool readCollection(std::string_view marker, std::string_view value) {
        if (marker == "[Formulas      ]") {
            for (const std::string_view element : elementsOf(value))
                document_.formulas.add(element, element.substr(0, element.find(',')));
            return true;
        }
        if (marker == "[InvoiceCols   ]" || marker == "[ItemLevelCols ]") {
            auto& positions = marker == "[InvoiceCols   ]" ? document_.invoiceCols : document_.itemLevelCols;
            for (const std::string_view element : elementsOf(value)) positions.add(element);
            return true;
        }
        const std::array<std::pair<std::string_view, core::NamedCollection*>, 6> keyed{{
            {"[Printed Cols  ]", &document_.printedCols},
            {"[PrnInvoiceCols]", &document_.prnInvoiceCols},
            {"[PrnItemCols   ]", &document_.prnItemCols},
            {"[Totaled Cols  ]", &document_.totaledCols},
            {"[Optioned Cols ]", &document_.optionedCols},
            {"[Locks         ]", &document_.locks},
        }};
        for (const auto& [name, collection] : keyed) {
            if (marker != name) continue;
            for (const std::string_view element : elementsOf(value)) collection->add(element, element);
            return true;
        }
        return false;
    }

    void readLayoutOptions(std::string_view value) {
        const Elements fields(value);
        core::LayoutOptions& options = document_.layoutOptions;
        options.customPaperLength = fields.single(0);
        options.customPaperHeight = fields.single(1);
        options.layoutLeftMargin = fields.single(2);
        options.layoutTopMargin = fields.single(3);
        options.layoutBottomMargin = fields.single(4);
        options.layoutRightMargin = fields.single(5);
        options.layoutPaperSize = fields.integer(6);
        options.layoutOrientation = fields.integer(7);
        options.layoutSpacing = fields.single(8);
    }

    void readReportData(std::string_view value) {
        const Elements fields(value);
        core::ReportData& report = document_.reportData;
        report.reportLeftMargin = fields.single(0);
        report.reportRightMargin = fields.single(1);
        report.reportTopMargin = fields.single(2);
        report.reportBottomMargin = fields.single(3);
        report.reportPaperSize = fields.integer(4);
        report.reportOrientation = fields.integer(5);
        report.reportTitle = fields.text(6);
        // A title with a separator in it makes more elements; the flag then keeps its value.
        if (fields.count() == 9) report.bReportBoldHeaders = fields.boolean(7);
    }

    void readIncrements(std::string_view value) {
        for (const std::string_view element : elementsOf(value)) {
            const std::size_t comma = element.find(',');
            if (comma == std::string_view::npos)
                core::raise(core::errors::subscriptOutOfRange, core::tr("increment"));
            const std::string_view name = element.substr(0, comma);
            if (document_.SerialsLV.find(name) != nullptr)
                core::raise(core::errors::keyNotUnique, std::string(name));
            const std::string_view counter = element.substr(comma + 1);
            document_.SerialsLV.add(name, name).subItem(1) = counter.substr(0, counter.find(','));
        }
    }

    // The scrambled lock can hold line ends. They are told from real ones by what follows: a line that
    // is no section belongs to the lock.
    std::string_view lockValue(std::string_view value) {
        std::size_t end = lines_.offsetOf(value) + value.size();
        for (;;) {
            const std::optional<std::string_view> line = lines_.peek();
            if (!line || core::beginsWithMarker(*line)) break;
            end = lines_.offsetOf(*line) + line->size();
            lines_.next();
        }
        return lines_.text().substr(lines_.offsetOf(value), end - lines_.offsetOf(value));
    }

    void buildColumns() {
        if (names_.size() > mostColumns) core::raise(core::errors::overflow, core::tr("columns"));
        for (std::size_t i = 0; i < names_.size(); ++i) {
            if (i >= types_.size() || i >= widths_.size())
                core::raise(core::errors::subscriptOutOfRange,
                            core::fill(core::tr("column %1"), {names_[i]}));
            const double width = std::clamp(core::val(widths_[i]), -widestColumn, widestColumn);
            document_.LV.columns.add(names_[i], names_[i], static_cast<float>(width))
                .setTypeFromFile(types_[i]);
        }
    }

    void readRows() {
        document_.iLastKey = 0;
        std::vector<bool> isText;
        for (const core::Column& column : document_.LV.columns)
            if (column.Index != 1) isText.push_back(column.isType(ColumnType::Text));
        document_.LV.reserve(lines_.remainingLines());
        // The last line is the Totals row, whatever it holds.
        while (std::optional<std::string_view> line = lines_.nextFilled()) {
            core::Item& item =
                document_.LV.add(lines_.atEnd() ? std::string(core::totalsKey) : document_.nextKey());
            fillRow(item, *line, isText);
        }
    }

    void fillRow(core::Item& item, std::string_view line, const std::vector<bool>& isText) const {
        std::size_t cell = 0;
        std::size_t from = 0;
        for (std::size_t bar = line.find('|'); bar != std::string_view::npos; bar = line.find('|', from)) {
            if (cell < isText.size()) {
                const std::string_view text = line.substr(from, bar - from);
                item.cells[cell] = isText[cell] ? text : core::trim(text);
            }
            ++cell;
            from = bar + 1;
        }
        if (observer_ == nullptr) return;
        if (cell < isText.size()) report("row with too few cells");
        if (cell > isText.size()) report("row with too many cells");
        if (from < line.size()) report("row without a separator at its end");
    }

    void restorePositions() {
        std::vector<int> positions;
        positions.reserve(spots_.size());
        for (const std::string_view spot : spots_) positions.push_back(core::toInt16(core::val(spot)));
        document_.LV.columns.setPositions(positions);
    }

    LineReader lines_;
    Document& document_;
    const ReadObserver* observer_;
    std::vector<std::string_view> names_, types_, widths_, spots_;
};

} // namespace

void readDataFile(std::string text, Document& document, const ReadObserver* observer) {
    const std::string decoded = decodeDataFile(std::move(text));
    Reader(decoded, document, observer).read();
}

} // namespace file
