#include "cli/infoJson.h"

#include "core/number.h"

#include <cmath>
#include <nlohmann/json.hpp>

namespace cli {

namespace {

using Json = nlohmann::ordered_json;
using core::Document;

// As the file has it: 0.15 and not 0.15000000596, 1440 and not 1440.0.
Json number(float value) {
    constexpr float wholeBelow = 1e9F;
    if (std::trunc(value) == value && std::abs(value) < wholeBelow) return static_cast<long>(value);
    return core::val(core::numberText(value));
}

Json columnsOf(const Document& document) {
    Json columns = Json::array();
    for (const core::Column& column : document.LV.columns) {
        if (column.Index == 1) continue;
        columns.push_back({{"name", column.Text},
                           {"type", core::typeName(column.type())},
                           {"width", number(column.Width)},
                           {"position", column.Position}});
    }
    return columns;
}

Json serialsOf(const Document& document) {
    Json serials = Json::object();
    document.SerialsLV.forEach(
        [&](const core::Item& serial) { serials[serial.Text.str()] = serial.subItem(1).str(); });
    return serials;
}

Json layoutOptionsOf(const core::LayoutOptions& options) {
    return {{"customPaperLength", number(options.customPaperLength)},
            {"customPaperHeight", number(options.customPaperHeight)},
            {"layoutLeftMargin", number(options.layoutLeftMargin)},
            {"layoutTopMargin", number(options.layoutTopMargin)},
            {"layoutBottomMargin", number(options.layoutBottomMargin)},
            {"layoutRightMargin", number(options.layoutRightMargin)},
            {"layoutPaperSize", options.layoutPaperSize},
            {"layoutOrientation", options.layoutOrientation},
            {"layoutSpacing", number(options.layoutSpacing)}};
}

Json reportDataOf(const core::ReportData& report) {
    return {{"reportLeftMargin", number(report.reportLeftMargin)},
            {"reportRightMargin", number(report.reportRightMargin)},
            {"reportTopMargin", number(report.reportTopMargin)},
            {"reportBottomMargin", number(report.reportBottomMargin)},
            {"reportPaperSize", report.reportPaperSize},
            {"reportOrientation", report.reportOrientation},
            {"reportTitle", report.reportTitle},
            {"bReportBoldHeaders", report.bReportBoldHeaders}};
}

Json objectOf(const char* family, const core::LayoutObject& object) {
    return {{"family", family},
            {"index", object.Index},
            {"Tag", object.Tag},
            {"Left", number(object.Left)},
            {"Top", number(object.Top)},
            {"Width", number(object.Width)},
            {"Height", number(object.Height)}};
}

void addFont(Json& entry, const core::ObjectFont& font, std::int32_t foreColor) {
    entry["FontBold"] = font.FontBold;
    entry["FontItalic"] = font.FontItalic;
    entry["FontUnderline"] = font.FontUnderline;
    entry["FontName"] = font.FontName;
    entry["FontSize"] = number(font.FontSize);
    entry["ForeColor"] = foreColor;
}

// The file has no alignment of a field; it follows the type of the column.
core::Alignment alignmentOf(const core::LayoutField& field, const Document& document) {
    const core::Column* column = document.LV.columns.find(field.Tag);
    return column != nullptr && column->isNumeric() ? core::Alignment::Right : core::Alignment::Left;
}

Json layoutOf(const Document& document) {
    const core::LayoutObjects& layout = document.layout;
    Json objects = Json::array();
    layout.layoutField.forEach([&](const core::LayoutField& field) {
        Json& entry = objects.emplace_back(objectOf("layoutField", field));
        addFont(entry, field, field.ForeColor);
        entry["Alignment"] = alignmentOf(field, document);
    });
    layout.tLabel.forEach([&](const core::Label& label) {
        Json& entry = objects.emplace_back(objectOf("tLabel", label));
        entry["Text"] = label.Text;
        addFont(entry, label, label.ForeColor);
        entry["Alignment"] = label.align;
    });
    const auto addLines = [&](const char* family, const core::ControlArray<core::LineObject>& lines) {
        lines.forEach([&](const core::LineObject& line) {
            objects.emplace_back(objectOf(family, line))["BackColor"] = line.BackColor;
        });
    };
    addLines("pbLine", layout.pbLine);
    addLines("vLine", layout.vLine);
    layout.pBox.forEach([&](const core::BoxObject& box) {
        Json& entry = objects.emplace_back(objectOf("pBox", box));
        entry["ForeColor"] = box.ForeColor;
        entry["DrawWidth"] = box.DrawWidth;
    });
    layout.imgHolder.forEach(
        [&](const core::ImgHolder& holder) { objects.push_back(objectOf("imgHolder", holder)); });
    layout.clipPic.forEach([&](const core::ClipPic& clip) { objects.push_back(objectOf("clipPic", clip)); });
    return objects;
}

Json entriesOf(const std::vector<ArchiveEntry>& entries) {
    Json list = Json::array();
    for (const ArchiveEntry& entry : entries)
        list.push_back({{"name", entry.name}, {"comment", entry.comment}, {"size", entry.size}});
    return list;
}

} // namespace

std::string infoAsJson(const Document& document, const std::vector<ArchiveEntry>& entries) {
    Json info;
    info["style"] = styleName(document);
    info["view"] = viewName(document);
    info["locked"] = !document.lockPassword.empty();
    info["records"] = document.LV.count() - 1;
    info["columns"] = columnsOf(document);
    info["formulas"] = document.formulas.items();
    info["totaledCols"] = document.totaledCols.items();
    info["optionedCols"] = document.optionedCols.items();
    info["serials"] = serialsOf(document);
    info["printedCols"] = document.printedCols.items();
    info["prnInvoiceCols"] = document.prnInvoiceCols.items();
    info["prnItemCols"] = document.prnItemCols.items();
    info["invoiceCols"] = document.invoiceCols.items();
    info["itemLevelCols"] = document.itemLevelCols.items();
    info["locks"] = document.locks.items();
    info["layoutOptions"] = layoutOptionsOf(document.layoutOptions);
    info["reportData"] = reportDataOf(document.reportData);
    info["layout"] = layoutOf(document);
    info["entries"] = entriesOf(entries);
    constexpr int indentation = 2;
    // Names of entries can hold any bytes.
    return info.dump(indentation, ' ', false, Json::error_handler_t::replace) + "\n";
}

const char* styleName(const Document& document) {
    return document.bInvoiceStyle ? "invoice" : "standard";
}

const char* viewName(const Document& document) {
    return document.bInvoiceView ? "items" : "invoices";
}

} // namespace cli
