#include "search/codes/codeSource.h"

#include "core/runTimeError.h"
#include "core/text.h"
#include "core/translate.h"
#include "entry/retrieveData.h"

#include <utility>

namespace search {

namespace {

[[noreturn]] void refuseSource(const std::string& reason) {
    throw core::RunTimeError(core::errors::typeMismatch, reason);
}

const core::Column& namedColumn(const core::Document& document, std::string_view name) {
    const core::Column* column = document.LV.columns.find(name);
    if (column != nullptr && column->Index != 1) return *column;
    refuseSource(core::fill(core::tr("There is no column \"%1\""), {name}));
}

} // namespace

CodeSource::CodeSource(const core::Document& document, std::string_view text) {
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isTwice = i + 1 < text.size() && text[i + 1] == text[i];
        if ((text[i] == '{' || text[i] == '}') && isTwice) {
            plain.push_back(text[i++]);
        } else if (text[i] == '{') {
            const std::size_t end = text.find('}', i);
            if (end == std::string_view::npos)
                refuseSource(core::fill(core::tr("The brace at place %1 is not closed"),
                                        {std::to_string(core::length(text.substr(0, i)) + 1)}));
            const core::Column& column = namedColumn(document, text.substr(i + 1, end - i - 1));
            if (!plain.empty()) pieces_.push_back({std::exchange(plain, {}), nullptr});
            pieces_.push_back({{}, &column});
            i = end;
        } else {
            plain.push_back(text[i]);
        }
    }
    if (!plain.empty()) pieces_.push_back({plain, nullptr});
}

std::string CodeSource::textOf(const core::Item& record) const {
    std::string text;
    bool hasColumns = false, isFilled = false;
    for (const Piece& piece : pieces_) {
        if (piece.column == nullptr) {
            text.append(piece.text);
            continue;
        }
        const std::string cell =
            entry::shownText(*piece.column, core::RecordsList::cell(record, *piece.column));
        hasColumns = true;
        isFilled = isFilled || !core::trim(cell).empty();
        text.append(cell);
    }
    return hasColumns && !isFilled ? std::string() : text;
}

std::string withColumnRenamed(std::string_view text, std::string_view from, std::string_view to) {
    std::string renamed;
    for (std::size_t i = 0; i < text.size(); ++i) {
        renamed.push_back(text[i]);
        if (text[i] != '{' && text[i] != '}') continue;
        if (i + 1 < text.size() && text[i + 1] == text[i]) {
            renamed.push_back(text[i++]);
            continue;
        }
        const std::size_t end = text[i] == '{' ? text.find('}', i) : std::string_view::npos;
        if (end == std::string_view::npos) continue;
        const std::string_view name = text.substr(i + 1, end - i - 1);
        renamed.append(core::equalsNoCase(name, from) ? to : name).push_back('}');
        i = end;
    }
    return renamed;
}

} // namespace search
