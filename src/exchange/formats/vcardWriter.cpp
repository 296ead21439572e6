#include "core/text.h"
#include "core/translate.h"
#include "exchange/formats/formats.h"
#include "exchange/formats/sheetNumbers.h"
#include "exchange/formats/vcardFields.h"
#include "exchange/outCells.h"

#include <algorithm>

namespace exchange {

namespace {

std::string escapedValue(std::string_view text) {
    std::string out;
    for (const char c : text) {
        if (c == '\\' || c == ',' || c == ';') out.push_back('\\');
        if (c == '\n')
            out.append("\\n");
        else if (c != '\r')
            out.push_back(c);
    }
    return out;
}

// A line has 75 bytes at most and goes on behind a blank, between characters.
void appendFolded(std::string& out, std::string_view line) {
    constexpr std::size_t longest = 75;
    std::size_t room = longest;
    for (std::size_t at = 0; at < line.size();) {
        std::size_t next = at;
        (void)core::nextCodePoint(line, next);
        if (next - at > room) {
            out.append("\r\n ");
            room = longest - 1;
        }
        out.append(line.substr(at, next - at));
        room -= next - at;
        at = next;
    }
    out.append("\r\n");
}

class CardWriter {
public:
    explicit CardWriter(const OutTable& table) : table_(table) {
        for (const VcardField& field : vcardFields) columns_.push_back(columnFor(field));
    }

    void append(std::string& out, std::size_t row) const {
        out.append("BEGIN:VCARD\r\nVERSION:3.0\r\n");
        line(out, "FN", {}, escapedValue(nameOf(row)));
        appendParts(out, row, "N", 5, true);
        for (std::size_t i = 0; i < vcardFields.size(); ++i) {
            const VcardField& field = vcardFields[i];
            const std::string_view value = valueOf(row, i);
            if (field.part >= 0 || field.property == "FN" || value.empty()) continue;
            line(out, field.property, field.type,
                 escapedValue(field.property == "BDAY" ? isoDate(value) : value));
        }
        appendParts(out, row, "ORG", 1, false);
        appendParts(out, row, "ADR", 7, false);
        out.append("END:VCARD\r\n");
    }

private:
    std::optional<std::size_t> columnFor(const VcardField& field) const {
        for (const std::string_view name : core::split(field.names, ' '))
            for (std::size_t i = 0; i < table_.columns.size(); ++i)
                if (core::equalsNoCase(core::replaceAll(table_.columns[i].name, " ", "_"), name)) return i;
        return std::nullopt;
    }
    std::string_view valueOf(std::size_t row, std::size_t field) const {
        return columns_[field] ? cellIn(table_, row, *columns_[field]) : std::string_view();
    }
    std::string_view partOf(std::size_t row, std::string_view property, int part) const {
        const auto field = std::ranges::find_if(vcardFields, [&](const VcardField& each) {
            return each.property == property && each.part == part;
        });
        if (field == vcardFields.end()) return {};
        return valueOf(row, static_cast<std::size_t>(field - vcardFields.begin()));
    }

    // A card must have a name to show.
    std::string nameOf(std::size_t row) const {
        std::string name(valueOf(row, 0));
        for (const int part : {1, 0}) { // first name, last name
            if (!valueOf(row, 0).empty()) break;
            if (!name.empty() && !partOf(row, "N", part).empty()) name.push_back(' ');
            name.append(partOf(row, "N", part));
        }
        if (name.empty()) name = partOf(row, "ORG", 0);
        if (name.empty()) name = cellIn(table_, row, 0);
        return name;
    }

    void appendParts(std::string& out, std::size_t row, std::string_view property, int count,
                     bool bAlways) const {
        std::string value;
        bool bAny = bAlways;
        for (int part = 0; part < count; ++part) {
            if (part > 0) value.push_back(';');
            value.append(escapedValue(partOf(row, property, part)));
            bAny = bAny || !partOf(row, property, part).empty();
        }
        if (bAny) line(out, property, {}, value);
    }

    static void line(std::string& out, std::string_view property, std::string_view type,
                     std::string_view value) {
        std::string text(property);
        if (!type.empty()) text.append(";TYPE=").append(type);
        appendFolded(out, text.append(":").append(value));
    }

    const OutTable& table_;
    std::vector<std::optional<std::size_t>> columns_; // by field
};

} // namespace

std::string vcardText(const OutTable& table, const Progress& progress) {
    constexpr std::size_t cardsBetween = 500;
    if (table.columns.empty()) refuseSheet(core::tr("it has no columns"));
    const CardWriter writer(table);
    std::string out;
    const std::size_t totals = table.bLastIsTotals && !table.rows.empty() ? 1 : 0;
    for (std::size_t row = 0; row + totals < table.rows.size(); ++row) {
        writer.append(out, row);
        if (row % cardsBetween == 0) tellProgress(progress, row, table.rows.size());
    }
    return out;
}

} // namespace exchange
