#include "core/text.h"
#include "exchange/textRows.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <utility>

namespace exchange {

namespace {

constexpr std::size_t mostSpan = 1000; // of a cell, as browsers have it

bool isBlankCharacter(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\f';
}

char lowerCase(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool startsWithNoCase(std::string_view text, std::string_view lower) {
    return text.size() >= lower.size() &&
           std::equal(lower.begin(), lower.end(), text.begin(),
                      [](char wanted, char c) { return wanted == lowerCase(c); });
}

struct Tag {
    std::string name; // in lower case, with "/" in front at an end
    std::string_view attributes;
};

// The number of an attribute such as colspan="2"; 1 where it has none.
std::size_t spanOf(const Tag& tag, std::string_view attribute) {
    const std::string_view text = tag.attributes;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const bool isStart = at == 0 || isBlankCharacter(text[at - 1]);
        if (!isStart || !startsWithNoCase(text.substr(at), attribute)) continue;
        at += attribute.size();
        while (at < text.size() && (isBlankCharacter(text[at]) || text[at] == '=')) ++at;
        if (at < text.size() && (text[at] == '"' || text[at] == '\'')) ++at;
        std::size_t span = 1;
        std::from_chars(text.data() + at, text.data() + text.size(), span);
        return std::clamp<std::size_t>(span, 1, mostSpan);
    }
    return 1;
}

// Those that programs write in tables; any other one stays as it is.
char32_t namedCharacter(std::string_view name) {
    constexpr std::array<std::pair<std::string_view, char32_t>, 6> names = {
        {{"amp", U'&'}, {"lt", U'<'}, {"gt", U'>'}, {"quot", U'"'}, {"apos", U'\''}, {"nbsp", U' '}}};
    const auto* found = std::ranges::find(names, name, &std::pair<std::string_view, char32_t>::first);
    return found == names.end() ? 0 : found->second;
}

char32_t numberedCharacter(std::string_view digits) {
    const bool isHex = startsWithNoCase(digits, "x");
    if (isHex) digits.remove_prefix(1);
    unsigned code = 0;
    const auto [end, error] =
        std::from_chars(digits.data(), digits.data() + digits.size(), code, isHex ? 16 : 10);
    const bool isWhole = error == std::errc() && end == digits.data() + digits.size();
    const bool isCharacter = code > 0 && code <= 0x10FFFF && (code < 0xD800 || code > 0xDFFF);
    return isWhole && isCharacter ? char32_t{code} : 0;
}

class HtmlReader {
public:
    explicit HtmlReader(std::string_view html) : html_(html), tagsEnd_(html.rfind('>')) {}

    TextRows read() {
        while (at_ < html_.size() && !isOver_) {
            if (html_[at_] == '<' && skipTagOrComment()) continue;
            takeCharacter();
        }
        endRow();
        return rows_.take();
    }

private:
    // False when it is a "<" like any other character.
    bool skipTagOrComment() {
        if (html_.substr(at_).starts_with("<!--")) {
            const std::size_t end = html_.find("-->", at_ + 4);
            at_ = end == std::string_view::npos ? html_.size() : end + 3;
            return true;
        }
        // Asked ahead: to look for an end that is not there at each "<" would take a time that grows as a
        // square.
        if (tagsEnd_ == std::string_view::npos || at_ > tagsEnd_) return false;
        const std::size_t end = html_.find('>', at_);
        const char next = at_ + 1 < html_.size() ? lowerCase(html_[at_ + 1]) : ' ';
        const bool isTag = (next >= 'a' && next <= 'z') || next == '/' || next == '!' || next == '?';
        if (!isTag) return false;
        const std::string_view inside = html_.substr(at_ + 1, end - at_ - 1);
        at_ = end + 1;
        Tag tag;
        std::size_t size = 0;
        while (size < inside.size() && !isBlankCharacter(inside[size]) && (size == 0 || inside[size] != '/'))
            tag.name.push_back(lowerCase(inside[size++]));
        tag.attributes = inside.substr(size);
        follow(tag);
        return true;
    }

    void follow(const Tag& tag) {
        if (tag.name == "script" || tag.name == "style") {
            skipTo("</" + tag.name);
        } else if (tag.name == "table") {
            ++tables_;
        } else if (tag.name == "/table") {
            if (tables_ > 0 && --tables_ == 0) isOver_ = true;
        } else if (tables_ == 1) {
            followInTable(tag);
        }
    }

    void followInTable(const Tag& tag) {
        if (tag.name == "tr") {
            endRow();
            inRow_ = true;
        } else if (tag.name == "/tr") {
            endRow();
        } else if (tag.name == "td" || tag.name == "th") {
            endCell();
            inRow_ = true;
            cell_.emplace();
            columns_ = spanOf(tag, "colspan");
            lines_ = spanOf(tag, "rowspan");
        } else if (tag.name == "/td" || tag.name == "/th") {
            endCell();
        } else if (cell_ && (tag.name == "br" || tag.name == "/p" || tag.name == "/div")) {
            while (cell_->ends_with(' ')) cell_->pop_back();
            cell_->push_back('\n');
        }
    }

    void skipTo(const std::string& tagName) {
        while (at_ < html_.size() && !startsWithNoCase(html_.substr(at_), tagName)) ++at_;
    }

    void takeCharacter() {
        const char c = html_[at_];
        if (!cell_) {
            ++at_;
        } else if (isBlankCharacter(c)) {
            ++at_;
            const bool isNeedless = cell_->empty() || cell_->back() == ' ' || cell_->back() == '\n';
            if (!isNeedless) cell_->push_back(' ');
        } else if (c != '&' || !takeEntity()) {
            cell_->push_back(c);
            ++at_;
        }
    }

    bool takeEntity() {
        constexpr std::size_t longest = 10;
        const std::size_t size = html_.substr(at_, longest).find(';');
        if (size == std::string_view::npos || size < 2) return false;
        const std::string_view name = html_.substr(at_ + 1, size - 1);
        const char32_t character =
            name.front() == '#' ? numberedCharacter(name.substr(1)) : namedCharacter(name);
        if (character == 0) return false;
        core::appendCodePoint(*cell_, character);
        at_ += size + 1;
        return true;
    }

    // The cells that reach down from rows above have their place first.
    void skipSpanned() {
        while (rows_.cellsInRow() < spanned_.size() && spanned_[rows_.cellsInRow()] > 0) {
            --spanned_[rows_.cellsInRow()];
            rows_.cell({});
        }
    }

    void endCell() {
        if (!cell_) return;
        while (cell_->ends_with(' ') || cell_->ends_with('\n')) cell_->pop_back();
        skipSpanned();
        for (std::size_t i = 0; i < columns_; ++i) {
            const std::size_t place = rows_.cellsInRow();
            if (spanned_.size() <= place) spanned_.resize(place + 1);
            spanned_[place] = lines_ - 1;
            rows_.cell(i == 0 ? *std::exchange(cell_, std::string()) : std::string());
        }
        cell_.reset();
    }

    void endRow() {
        endCell();
        if (!inRow_) return;
        skipSpanned();
        rows_.endRow();
        inRow_ = false;
    }

    std::string_view html_;
    std::size_t tagsEnd_;
    std::size_t at_ = 0;
    int tables_ = 0; // one within the other
    bool isOver_ = false;
    bool inRow_ = false;
    std::optional<std::string> cell_;     // that is being read
    std::size_t columns_ = 1, lines_ = 1; // that it spans
    std::vector<std::size_t> spanned_;    // by column: the rows that a cell above still reaches
    RowCollector rows_;
};

std::size_t cellsOf(const TextRows& rows) {
    std::size_t cells = 0;
    for (const TextRow& row : rows) cells += row.cells.size();
    return cells;
}

} // namespace

TextRows readHtmlRows(std::string_view html) {
    return HtmlReader(html).read();
}

TextRows readRowsOfEither(std::string_view text, std::string_view html) {
    TextRows rows = readTabbedRows(text);
    TextRows ofPage = readHtmlRows(html);
    // Each line end that tears a cell makes a row and a cell more. Any other page is another table.
    const bool isSame =
        ofPage.size() < rows.size() && cellsOf(rows) - cellsOf(ofPage) == rows.size() - ofPage.size();
    return !ofPage.empty() && (rows.empty() || isSame) ? ofPage : rows;
}

bool isHtml(std::string_view text) {
    while (!text.empty() && isBlankCharacter(text.front())) text.remove_prefix(1);
    constexpr std::array<std::string_view, 6> beginnings = {"<!doctype html", "<html", "<head",
                                                            "<meta",          "<body", "<table"};
    return std::ranges::any_of(beginnings,
                               [&](std::string_view beginning) { return startsWithNoCase(text, beginning); });
}

void appendHtmlText(std::string& out, std::string_view text) {
    for (const char c : text) {
        switch (c) {
        case '&':
            out.append("&amp;");
            break;
        case '<':
            out.append("&lt;");
            break;
        case '>':
            out.append("&gt;");
            break;
        case '"':
            out.append("&quot;");
            break;
        case '\n':
            out.append("<br>\n"); // some spreadsheets go by the one, some by the other
            break;
        default:
            out.push_back(c);
        }
    }
}

} // namespace exchange
