#include "cli/recordEntry.h"

#include "calc/serialNumbers.h"
#include "entry/editRecord.h"
#include "file/archive/zip.h"

#include <algorithm>

namespace cli {

namespace {

using core::Column;
using core::ColumnType;
using entry::BoxText;

CellValue cellValue(Session& session, const std::string& argument) {
    const std::size_t first = argument.find('=');
    if (first == std::string::npos)
        throw Failure(session.file, "\"" + argument + "\" is not of the form NAME=VALUE");
    for (std::size_t place = first; place != std::string::npos; place = argument.find('=', place + 1)) {
        const Column* column = session.app.document.LV.columns.find(argument.substr(0, place));
        if (column != nullptr && column->Index != 1)
            return {column, session.typed(argument.substr(place + 1))};
    }
    return {&session.column(argument.substr(0, first)), {}}; // tells that there is none
}

void requireImage(Session& session, const std::string& name) {
    if (name.empty()) return;
    file::Zip Zip;
    Zip.OpenArchive(session.app.document.currentFile);
    if (!Zip.contains(name)) throw Failure(session.file, "it has no image \"" + name + "\"");
}

struct Boxes {
    std::vector<BoxText> fields, pictures;
};

Boxes boxesOf(const std::vector<CellValue>& values) {
    Boxes boxes;
    for (const auto& [column, text] : values)
        (column->isType(ColumnType::Picture) ? boxes.pictures : boxes.fields).push_back({column->Text, text});
    return boxes;
}

} // namespace

std::vector<CellValue> cellValues(Session& session, const std::vector<std::string>& arguments) {
    std::vector<CellValue> values;
    for (const std::string& argument : arguments) {
        CellValue value = cellValue(session, argument);
        const std::string named = "the column \"" + value.column->Text + "\"";
        if (std::ranges::find(values, value.column, &CellValue::column) != values.end())
            throw Failure(session.file, named + " is named twice");
        if (value.column->isType(ColumnType::Calculation))
            throw Failure(session.file, named + " is calculated and takes no value");
        if (value.column->isType(ColumnType::Picture)) requireImage(session, value.text);
        values.push_back(std::move(value));
    }
    return values;
}

core::Item& addRecord(Session& session, const std::vector<CellValue>& values) {
    core::Item* added = nullptr;
    session.change([&] {
        Boxes boxes = boxesOf(values);
        for (const Column& column : session.app.document.LV.columns) {
            const bool isTypedInto = column.Index != 1 && !column.isType(ColumnType::Calculation) &&
                                     !column.isType(ColumnType::Picture);
            if (!isTypedInto || std::ranges::find(values, &column, &CellValue::column) != values.end())
                continue;
            boxes.fields.push_back({column.Text, calc::proposedValue(session.app, column.Text).value_or("")});
        }
        added = entry::EditRecord(session.app, false, boxes.fields, boxes.pictures);
    });
    return *added;
}

void updateRecord(Session& session, core::Item& record, const std::vector<CellValue>& values) {
    session.change([&] {
        session.app.document.LV.setSelectedItem(&record);
        const Boxes boxes = boxesOf(values);
        entry::EditRecord(session.app, true, boxes.fields, boxes.pictures);
    });
}

} // namespace cli
