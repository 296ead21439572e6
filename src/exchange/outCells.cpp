#include "exchange/outCells.h"

#include "core/format.h"
#include "core/number.h"
#include "core/text.h"
#include "exchange/formats/sheetNumbers.h"
#include "file/atomicFile.h"

#include <algorithm>

namespace exchange {

namespace {

using core::ColumnType;

bool isOperator(char c) {
    return c == '+' || c == '-' || c == '*' || c == '/';
}

OutCell plainCell(std::string_view cell) {
    OutCell out;
    const auto value = doubleIn(cell);
    if (!value) return out;
    const std::size_t point = cell.find('.');
    const int places = point == std::string_view::npos ? 0 : static_cast<int>(cell.size() - point - 1);
    for (const bool bLeadingZero : {true, false}) {
        if (places > 15 || numberDigits(*value, places, bLeadingZero) != cell) continue;
        out.what = OutCell::What::Number;
        out.value = *value;
        out.places = places;
        out.bLeadingZero = bLeadingZero;
        out.digits = numberDigits(*value, places);
        break;
    }
    return out;
}

OutCell moneyCell(std::string_view cell) {
    const auto value = core::toDouble(cell);
    if (!value || cell.find('$') == std::string_view::npos ||
        core::format(numberDigits(*value), core::Mask::Money) != cell)
        return plainCell(cell);
    OutCell out;
    out.what = OutCell::What::Money;
    out.value = *value;
    out.places = 2;
    out.bLeadingZero = false;
    out.digits = numberDigits(*value, 2);
    return out;
}

OutCell dateCell(std::string_view cell) {
    OutCell out;
    const auto serial = daySerial(cell);
    if (!serial) return out;
    out.what = OutCell::What::Date;
    out.value = *serial;
    out.iso = isoDate(cell);
    return out;
}

// Operands and operators by turns, and as many parentheses closed as opened: a spreadsheet takes a whole
// file for damaged when one formula is.
bool isWellFormed(const std::vector<std::string>& tokens) {
    int depth = 0;
    bool bOperandNext = true;
    for (const std::string& token : tokens) {
        const char c = token.front();
        const bool bSign = c == '-' || c == '+';
        if (c == '(' && bOperandNext)
            ++depth;
        else if (c == ')' && !bOperandNext && depth > 0)
            --depth;
        else if (isOperator(c) && (!bOperandNext || bSign))
            bOperandNext = true;
        else if (!isOperator(c) && c != '(' && c != ')' && bOperandNext)
            bOperandNext = false;
        else
            return false;
    }
    return depth == 0 && !bOperandNext;
}

// A word of arithmetic, "(2.5*": its tokens, or nothing when anything else is in it.
bool appendTokens(std::vector<std::string>& tokens, std::string_view word) {
    for (std::size_t at = 0; at < word.size();) {
        if (isOperator(word[at]) || word[at] == '(' || word[at] == ')') {
            tokens.emplace_back(1, word[at++]);
            continue;
        }
        const std::size_t end = std::min(word.find_first_of("+-*/()", at), word.size());
        const std::string_view number = word.substr(at, end - at);
        const bool bNumber = number.find_first_not_of("0123456789.") == std::string_view::npos &&
                             core::isDigit(number.front()) && core::isDigit(number.back()) &&
                             doubleIn(number);
        if (!bNumber) return false;
        tokens.emplace_back(number);
        at = end;
    }
    return true;
}

} // namespace

OutCell outCell(ColumnType type, std::string_view cell) {
    switch (type) {
    case ColumnType::Number:
        return plainCell(cell);
    case ColumnType::Currency:
    case ColumnType::Calculation:
        return moneyCell(cell);
    case ColumnType::Date:
        return dateCell(cell);
    default:
        return {};
    }
}

std::string_view cellIn(const OutTable& table, std::size_t row, std::size_t column) {
    const OutRow& cells = table.rows[row];
    return column < cells.size() ? cells[column].view() : std::string_view();
}

OutFormulas::OutFormulas(const OutTable& table, Style style) : table_(table), style_(style) {
    for (const OutColumn& column : table.columns)
        formulas_.push_back(column.formula.empty() ? std::nullopt : wordsOf(column.formula));
}

std::optional<std::vector<OutFormulas::Word>> OutFormulas::wordsOf(std::string_view expression) const {
    std::vector<Word> words;
    std::vector<std::string> tokens;
    for (const std::string_view piece : core::split(expression, ' ')) {
        const auto column = std::ranges::find_if(table_.columns, [&](const OutColumn& each) {
            return !piece.empty() && core::equalsNoCase(each.name, piece);
        });
        Word word;
        if (column != table_.columns.end()) {
            word.column = static_cast<std::size_t>(column - table_.columns.begin());
            tokens.emplace_back("0");
        } else {
            word.text = piece;
            if (!appendTokens(tokens, piece)) return std::nullopt;
        }
        words.push_back(std::move(word));
    }
    return isWellFormed(tokens) ? std::optional(std::move(words)) : std::nullopt;
}

std::optional<std::string> OutFormulas::at(std::size_t row, std::size_t column, const OutCell& value) const {
    const bool bTotals = table_.bLastIsTotals && row + 1 == table_.rows.size();
    if (!formulas_[column] || bTotals || value.what == OutCell::What::Text) return std::nullopt;
    std::string formula = style_ == Style::Xlsx ? "=" : "of:=";
    // Money is rounded where it is stored.
    const bool bMoney = value.what == OutCell::What::Money;
    if (bMoney) formula.append("ROUND(");
    for (const Word& word : *formulas_[column]) {
        formula.append(word.text);
        if (!word.column) continue;
        const std::string_view cell = cellIn(table_, row, *word.column);
        const OutCell operand = outCell(table_.columns[*word.column].type, cell);
        const bool bNumber = operand.what == OutCell::What::Number || operand.what == OutCell::What::Money;
        // An empty cell is worth 0 on both sides, a text is not; and ours counts four places.
        if ((!bNumber && !cell.empty()) || operand.places > 4) return std::nullopt;
        if (style_ == Style::Ods) formula.append("[.");
        formula.append(columnLetters(*word.column)).append(std::to_string(row + 2));
        if (style_ == Style::Ods) formula.push_back(']');
    }
    if (bMoney) formula.append(style_ == Style::Xlsx ? ",2)" : ";2)");
    return formula;
}

std::string columnLetters(std::size_t column) {
    constexpr std::size_t letters = 26;
    std::string text;
    for (std::size_t rest = column + 1; rest > 0; rest = (rest - 1) / letters)
        text.insert(text.begin(), static_cast<char>('A' + (rest - 1) % letters));
    return text;
}

void writeBytes(const Target& target, std::string_view bytes) {
    file::replaceFile(target.file, bytes, target.like);
}

} // namespace exchange
