#include "calc/expression.h"

#include "calc/evaluator.h"
#include "core/currency.h"
#include "core/number.h"
#include "core/text.h"
#include "core/translate.h"

#include <algorithm>

namespace calc {

using core::Column;
using core::RecordsList;

namespace {

// The hidden column carries no data: its cell is what the last sort has left there.
const Column* columnNamed(const RecordsList& list, std::string_view word) {
    const Column* column = list.columns.find(word);
    return column == nullptr || column->Index == 1 ? nullptr : column;
}

// Which character begins there, from 1.
std::string characterAt(std::string_view expression, std::size_t offset) {
    return std::to_string(core::length(expression.substr(0, offset)) + 1);
}

// What is wrong with a word, of which the expression has this one at the offset, that stands for a name, or
// contains one.
std::optional<std::string> faultOfName(std::string_view word, const RecordsList& list,
                                       std::string_view expression, std::size_t offset) {
    constexpr std::string_view marks = "+-*/()";
    if (std::ranges::all_of(word, [&](char c) {
            return core::isDigit(c) || c == '.' || marks.find(c) != std::string_view::npos;
        }))
        return std::nullopt;
    if (core::isNumeric(word) && word.find_first_of("$,") == std::string_view::npos) return std::nullopt;
    // "Price*2", whose name nobody would find.
    for (std::size_t from = 0; from < word.size();) {
        const std::size_t first = std::min(word.find_first_not_of(marks, from), word.size());
        const std::size_t end = std::min(word.find_first_of(marks, first), word.size());
        const std::string_view name = word.substr(first, end - first);
        if (name.size() < word.size() && columnNamed(list, name) != nullptr)
            return core::fill(core::tr("\"%1\" needs a blank on either side (character %2)"),
                              {name, characterAt(expression, offset)});
        from = end;
    }
    return core::fill(core::tr("\"%1\" is neither a column nor a number (character %2)"),
                      {word, characterAt(expression, offset)});
}

} // namespace

Expression::Expression(std::string_view text, const RecordsList& list) {
    for (const std::string_view piece : core::split(text, ' ')) {
        Word word;
        word.text = piece;
        if (const Column* column = columnNamed(list, piece)) {
            word.subItem = column->Index - 1;
            word.isCurrency = column->isType(core::ColumnType::Currency);
        }
        words_.push_back(word);
    }
}

void Expression::read(const core::Item& row) {
    bDecimal_ = false;
    joined_.clear();
    for (const Word& word : words_) {
        if (word.subItem == 0) {
            joined_ += word.text;
            continue;
        }
        if (word.isCurrency) bDecimal_ = true;
        const std::string_view operand = core::trim(row.subItem(word.subItem));
        if (operand.find('.') != std::string_view::npos) bDecimal_ = true;
        // A cell that is no number leaves the column's name, which is worth 0.
        if (core::isNumeric(operand))
            joined_ += core::Currency::parse(operand).text();
        else
            joined_ += word.text;
    }
    if (joined_.find('.') != std::string::npos) bDecimal_ = true;
}

double Expression::value() const {
    return evaluate(joined_);
}

std::optional<std::string> faultOf(std::string_view expression, const RecordsList& list) {
    std::string form; // of the same length, with a number in place of each column
    for (const std::string_view word : core::split(expression, ' ')) {
        const std::size_t offset = form.size();
        if (columnNamed(list, word) != nullptr)
            form.append("1").append(word.size() - 1, ' ');
        else if (std::optional<std::string> fault = faultOfName(word, list, expression, offset))
            return fault;
        else
            form.append(word);
        form.push_back(' ');
    }
    const std::optional<std::size_t> stop = syntaxErrorAt(form);
    if (!stop) return std::nullopt;
    if (*stop >= expression.size())
        return core::fill(core::tr("The expression is not complete (character %1)"),
                          {characterAt(expression, *stop)});
    const std::string_view rest = expression.substr(*stop);
    return core::fill(core::tr("\"%1\" is out of place (character %2)"),
                      {rest.substr(0, rest.find(' ')), characterAt(expression, *stop)});
}

} // namespace calc
