#include "core/translate.h"
#include "exchange/columnTypes.h"
#include "exchange/formats/formats.h"
#include "exchange/formats/sheetNumbers.h"
#include "exchange/jsonText.h"
#include "exchange/outCells.h"

#include <nlohmann/json.hpp>
#include <unordered_map>

namespace exchange {

namespace {

using nlohmann::json;

// Takes the values one by one, since a tree of all of them would take many times the memory. A row is an
// array or an object in the outermost array, or in the first array of the outermost object that holds rows,
// but for its "columns". The objects' names are the heading row. An object with "cells", as the list of
// records has it, is the row of its cells. A value that is itself an array or an object comes in as its JSON
// text.
class RowEvents : public nlohmann::json_sax<json> {
public:
    explicit RowEvents(const Progress& progress) : progress_(progress) {}

    bool null() override { return value(SheetCell::Kind::Empty, "null", {}); }
    bool boolean(bool truth) override {
        const char* text = truth ? "true" : "false";
        return value(SheetCell::Kind::Boolean, text, text);
    }
    bool number_integer(number_integer_t number) override {
        const std::string text = std::to_string(number);
        return value(SheetCell::Kind::Number, text, text);
    }
    bool number_unsigned(number_unsigned_t number) override {
        const std::string text = std::to_string(number);
        return value(SheetCell::Kind::Number, text, text);
    }
    bool number_float(number_float_t number, const string_t& written) override {
        return value(SheetCell::Kind::Number, written, numberDigits(number));
    }
    bool string(string_t& text) override {
        std::string written;
        if (isNested()) appendJsonText(written, text);
        return value(SheetCell::Kind::Text, written, text);
    }
    bool binary(binary_t& /*bytes*/) override { return false; }

    bool start_object(std::size_t /*size*/) override { return start('{'); }
    bool start_array(std::size_t /*size*/) override { return start('['); }
    bool end_object() override { return end('}'); }
    bool end_array() override { return end(']'); }
    bool key(string_t& name) override {
        if (isNested()) {
            comma();
            appendJsonText(nested_, name);
            nested_.push_back(':');
            bComma_ = false;
        } else {
            key_ = name;
        }
        return true;
    }
    bool parse_error(std::size_t place, const std::string& /*token*/,
                     const nlohmann::detail::exception& /*error*/) override {
        refuseSheet(core::fill(core::tr("its JSON is damaged at byte %1"), {std::to_string(place)}));
    }

    Sheet take() {
        Sheet sheet = collector_.take();
        const std::vector<std::string>& heading = heading_.empty() ? names_ : heading_;
        if (sheet.rows.empty() && heading.empty()) refuseSheet(core::tr("it has no rows"));
        if (!heading.empty()) {
            SheetRow row;
            for (const std::string& name : heading) row.push_back({SheetCell::Kind::Text, name});
            sheet.rows.insert(sheet.rows.begin(), std::move(row));
        }
        sheet.bTyped = true;
        return sheet;
    }

private:
    // How deep a row is: in the outermost array, or in an array of the outermost object.
    std::size_t rowDepth() const { return bInObject_ ? 3 : 2; }
    bool isNested() const { return !nested_.empty(); }
    bool isInRow() const { return bRow_ && depth_ >= rowDepth(); }

    bool start(char bracket) {
        constexpr std::size_t deepest = 500;
        if (++depth_ > deepest) refuseSheet(core::tr("its JSON is nested too deep"));
        if (depth_ == 1) {
            bInObject_ = bracket == '{';
            return true;
        }
        if (isNested()) {
            comma();
            nested_.push_back(bracket);
            bComma_ = false;
            return true;
        }
        if (bInObject_ && depth_ == 2) {
            list_ = bracket == '[' ? key_ : std::string();
            // Two lists of records would be two tables.
            bRows_ = bracket == '[' && list_ != "columns" && list_ != "totals" && collector_.row() == 0;
            return true;
        }
        if (depth_ == rowDepth() && (!bInObject_ || bRows_)) {
            bRow_ = true;
            bObjectRow_ = bracket == '{';
            row_.clear();
            return true;
        }
        if (isInRow() && bObjectRow_ && bracket == '[' && key_ == "cells") {
            row_.clear(); // of the key
            bCells_ = true;
            return true;
        }
        if (isInRow()) {
            nested_.push_back(bracket);
            nestedFrom_ = depth_;
            bComma_ = false;
        }
        return true;
    }

    bool end(char bracket) {
        if (isNested()) {
            nested_.push_back(bracket);
            bComma_ = true;
            if (depth_-- == nestedFrom_) {
                std::string text;
                text.swap(nested_);
                put({SheetCell::Kind::Text, std::move(text)});
            }
            return true;
        }
        if (bRow_ && depth_ == rowDepth()) {
            keepRow();
        } else if (bInObject_ && depth_ == 3 && list_ == "columns") {
            heading_.push_back(typedHeader(column_));
            column_ = {};
        }
        --depth_;
        return true;
    }

    bool value(SheetCell::Kind kind, std::string_view written, std::string text) {
        if (isNested()) {
            comma();
            nested_.append(written);
            bComma_ = true;
        } else if (isInRow()) {
            put({kind, std::move(text)});
        } else if (list_ == "columns" && bInObject_ && depth_ == 2) {
            heading_.push_back(std::move(text));
        } else if (list_ == "columns" && bInObject_ && depth_ == 3) {
            if (key_ == "type") column_.setTypeFromFile(typeTag(text));
            if (key_ == "name") column_.Text = std::move(text);
        } else if (depth_ < rowDepth()) {
            if (!bInObject_) refuseSheet(core::tr("it is no list of records"));
        }
        return true;
    }

    static std::string typeTag(std::string_view name) {
        std::string header = "x:";
        const auto column = typedColumn(header.append(name));
        return std::to_string(static_cast<int>(column ? column->type : core::ColumnType::Text));
    }

    void put(SheetCell cell) {
        if (!bObjectRow_ || bCells_) {
            row_.push_back(std::move(cell));
        } else {
            const auto [place, bNew] = columns_.emplace(key_, columns_.size());
            if (columns_.size() > SheetBounds::columns) refuseSheet(core::tr("it has too many columns"));
            row_.resize(std::max(row_.size(), place->second + 1));
            row_[place->second] = std::move(cell);
            if (bNew) names_.push_back(key_);
        }
        if (row_.size() > SheetBounds::columns) refuseSheet(core::tr("it has too many columns"));
    }

    void keepRow() {
        constexpr std::size_t rowsBetween = 500;
        for (SheetCell& each : row_) collector_.cell(std::move(each));
        collector_.endRow();
        bRow_ = bCells_ = false;
        if (collector_.row() % rowsBetween == 0) tellProgress(progress_, collector_.row(), SheetBounds::rows);
    }

    void comma() {
        if (bComma_) nested_.push_back(',');
    }

    const Progress& progress_;
    SheetCollector collector_;
    SheetRow row_;
    std::vector<std::string> heading_, names_;
    std::unordered_map<std::string, std::size_t> columns_; // of objects, by name
    core::Column column_;
    std::string key_, list_, nested_;
    std::size_t depth_ = 0, nestedFrom_ = 0;
    bool bInObject_ = false, bRows_ = false, bRow_ = false, bObjectRow_ = false, bCells_ = false;
    bool bComma_ = false;
};

} // namespace

Sheet readJsonSheet(const std::string& text, const Progress& progress) {
    RowEvents events(progress);
    if (!json::sax_parse(text, &events)) refuseSheet(core::tr("its JSON is damaged"));
    return events.take();
}

std::string jsonText(const OutTable& table, const Progress& progress) {
    std::string out = "{\"columns\": [";
    for (const OutColumn& column : table.columns) {
        out.append(out.back() == '[' ? "\n  {\"name\": " : ",\n  {\"name\": ");
        appendJsonText(out, column.name);
        out.append(", \"type\": ");
        appendJsonText(out, core::typeName(column.type));
        out.push_back('}');
    }
    out.append("],\n \"records\": [");
    const auto appendCells = [&](std::size_t row) {
        out.push_back('[');
        for (std::size_t i = 0; i < table.columns.size(); ++i) {
            if (i > 0) out.append(", ");
            appendJsonText(out, cellIn(table, row, i));
        }
        out.push_back(']');
    };
    const std::size_t totals = table.bLastIsTotals && !table.rows.empty() ? 1 : 0;
    for (std::size_t row = 0; row + totals < table.rows.size(); ++row) {
        constexpr std::size_t rowsBetween = 500;
        out.append(row == 0 ? "\n  " : ",\n  ");
        appendCells(row);
        if (row % rowsBetween == 0) tellProgress(progress, row, table.rows.size());
    }
    out.push_back(']');
    if (totals > 0) {
        out.append(",\n \"totals\": ");
        appendCells(table.rows.size() - 1);
    }
    return out.append("}\n");
}

} // namespace exchange
