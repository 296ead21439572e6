#include "search/filter/filter.h"

#include "core/text.h"
#include "core/translate.h"
#include "search/filter/folding.h"

#include <algorithm>
#include <array>

namespace search {

namespace {

using Test = FilterTerm::Test;

constexpr std::string_view rangeSign = "..";

bool isBlank(char c) {
    return c == ' ' || (c >= '\0' && c < ' ');
}

bool endsWord(char c) {
    return isBlank(c) || c == '|';
}

// Blanks would end a value, and so would a bar.
std::string filterValue(const std::string& text, bool isQuoted) {
    if (text.empty() || (!isQuoted && std::ranges::none_of(text, endsWord) && !text.starts_with('"')))
        return text;
    std::string quoted = "\"";
    quoted.append(core::replaceAll(text, "\"", "\"\"")).append("\"");
    return quoted;
}

enum class Comparison { Colon, Equal, NotEqual, Less, LessOrEqual, Greater, GreaterOrEqual };

struct Operator {
    std::string_view sign;
    Comparison comparison;
};
// The longer ones first.
constexpr std::array<Operator, 9> operators = {{{">=", Comparison::GreaterOrEqual},
                                                {"<=", Comparison::LessOrEqual},
                                                {"<>", Comparison::NotEqual},
                                                {"!=", Comparison::NotEqual},
                                                {"==", Comparison::Equal},
                                                {"=", Comparison::Equal},
                                                {">", Comparison::Greater},
                                                {"<", Comparison::Less},
                                                {":", Comparison::Colon}}};

// What a word or a side of a comparison was written as.
struct Value {
    std::string text;                 // without its quotes
    std::optional<std::size_t> range; // where ".." stands in the text, outside of quotes
    bool isQuoted = false;
    std::size_t offset = 0, size = 0; // in the filter
};

class Parser {
public:
    Parser(std::string_view text, const FilterColumns& columns, std::chrono::year_month_day today, int scope,
           const ConvertedValue& converted)
        : text_(text), columns_(columns), today_(today), scope_(scope), converted_(converted) {
        names_.reserve(columns.size());
        for (const FilterColumn& column : columns) names_.push_back(folded(column.name));
    }

    Filter run() {
        if (text_.size() > longestFilter) {
            fail(longestFilter, text_.size() - longestFilter, core::tr("The filter is too long"));
            return std::move(filter_);
        }
        while (at_ < text_.size() && !filter_.error) {
            if (isBlank(text_[at_])) {
                ++at_;
            } else if (text_[at_] == '|') {
                ++at_;
                endAlternative();
            } else {
                readTerm();
            }
        }
        endAlternative();
        if (filter_.error) filter_.alternatives.clear();
        filter_.rewritten.append(text_.substr(rewrittenTo_));
        return std::move(filter_);
    }

private:
    void fail(std::size_t offset, std::size_t size, std::string reason) {
        if (!filter_.error) filter_.error = {offset, size, std::move(reason), offset + size == text_.size()};
    }

    void failAs(const Value& value, std::string_view text, bool isDate) {
        const std::string reason = isDate ? core::tr("\"%1\" is no date") : core::tr("\"%1\" is no number");
        fail(value.offset, value.size, core::fill(reason, {text}));
    }

    static std::string noColumn(std::string_view name) {
        return core::fill(core::tr("There is no column \"%1\""), {name});
    }

    // A misspelt name, unless it is the beginning of an address or of a time.
    void doubt(std::string_view name) {
        if (filter_.doubt.empty() && !name.empty() && !core::isDigit(name.front()) &&
            !rest().starts_with("//"))
            filter_.doubt = noColumn(name);
    }

    void endAlternative() {
        if (!terms_.empty()) filter_.alternatives.push_back(std::move(terms_));
        terms_.clear();
    }

    std::string_view rest() const { return text_.substr(at_); }
    char next() const { return at_ < text_.size() ? text_[at_] : '\0'; }
    void skipBlanks() {
        while (at_ < text_.size() && isBlank(text_[at_])) ++at_;
    }

    int columnNamed(std::string_view name) const {
        const auto place = std::ranges::find(names_, folded(name));
        return place == names_.end() ? anyColumn : static_cast<int>(place - names_.begin());
    }

    std::optional<Comparison> readOperator() {
        for (const Operator& each : operators)
            if (rest().starts_with(each.sign)) {
                at_ += each.sign.size();
                return each.comparison;
            }
        return {};
    }

    // Appends what the quotes hold to the value. Without a second quote that is all the rest.
    void readQuoted(Value& value) {
        value.isQuoted = true;
        for (++at_; at_ < text_.size(); ++at_) {
            if (text_[at_] == '"') {
                ++at_;
                if (next() != '"') return;
            }
            value.text.push_back(text_[at_]);
        }
    }

    Value readValue() {
        Value value;
        value.offset = at_;
        while (at_ < text_.size() && !endsWord(text_[at_])) {
            if (text_[at_] == '"') {
                readQuoted(value);
                continue;
            }
            if (!value.range && rest().starts_with(rangeSign)) {
                value.range = value.text.size();
                value.text.append(rangeSign);
                at_ += rangeSign.size();
                continue;
            }
            value.text.push_back(text_[at_++]);
        }
        value.size = at_ - value.offset;
        return value;
    }

    // The name in front of an operator, and whether it was written so that it can be nothing else; at_ is
    // behind it afterwards.
    std::pair<std::string, bool> readName() {
        if (next() == '[') {
            const std::size_t end = rest().find(']');
            if (end == std::string_view::npos) return {};
            std::string name(rest().substr(1, end - 1));
            at_ += end + 1;
            return {std::move(name), true};
        }
        if (next() == '"') {
            Value value;
            readQuoted(value);
            return {std::move(value.text), false};
        }
        const std::size_t from = at_;
        while (at_ < text_.size() && !endsWord(text_[at_]) &&
               std::string_view(":<>=!\"").find(text_[at_]) == std::string_view::npos)
            ++at_;
        return {std::string(text_.substr(from, at_ - from)), false};
    }

    // COLUMN OPERATOR VALUE. False, with nothing read, when it is none of these.
    bool readComparison(bool isNegated) {
        const std::size_t from = at_;
        const auto [name, isBracketed] = readName();
        const std::size_t behindName = at_;
        int column = name.empty() && scope_ != anyColumn ? scope_ : columnNamed(name);
        skipBlanks();
        const bool isApart = at_ != behindName;
        const std::optional<Comparison> comparison = readOperator();
        if (!comparison || (isApart && *comparison == Comparison::Colon) ||
            (column == anyColumn && !isBracketed) || (name.empty() && *comparison == Comparison::Colon)) {
            if (comparison && !isApart && column == anyColumn) doubt(name);
            at_ = from;
            return false;
        }
        if (column == anyColumn) {
            fail(from, behindName - from, noColumn(name));
            return true;
        }
        if (!name.empty()) filter_.names.push_back({from, behindName - from, column});
        std::optional<Comparison> second; // "Price:>10" is "Price>10"
        if (*comparison == Comparison::Colon)
            second = readOperator();
        else
            skipBlanks();
        addTerm(column, second.value_or(*comparison), readValue(), isNegated);
        return true;
    }

    void readTerm() {
        const std::size_t from = at_;
        const bool isNegated = next() == '-';
        if (isNegated) ++at_;
        if (at_ == text_.size() || endsWord(next())) return; // a dash alone is the beginning of something
        if (readComparison(isNegated)) return;
        const Value value = readValue();
        const bool isOr = !value.isQuoted && !isNegated && core::equalsNoCase(value.text, "or");
        // At the head it is a word, and at the end the beginning of something.
        if (isOr && !terms_.empty()) {
            endAlternative();
        } else if (scope_ != anyColumn) {
            addTerm(scope_, Comparison::Colon, value, isNegated);
        } else if (!value.text.empty()) {
            terms_.push_back({Test::Contains, anyColumn, isNegated, false, folded(value.text)});
        }
        if (at_ == from) ++at_; // whatever it is
    }

    // From and to, where it is a range.
    void convert(int column, Value& value) {
        if (!converted_ || value.text.empty()) return;
        const core::ColumnType type = columns_[static_cast<std::size_t>(column)].type;
        std::string text, written;
        std::optional<std::size_t> range;
        std::size_t from = 0;
        for (const std::size_t end : {value.range.value_or(std::string::npos), value.text.size()}) {
            if (end == std::string::npos) continue;
            const std::string side = converted_(type, std::string_view(value.text).substr(from, end - from));
            text.append(side);
            written.append(filterValue(side, value.isQuoted));
            from = end + rangeSign.size();
            if (end == value.text.size()) break;
            range = text.size();
            text.append(rangeSign);
            written.append(rangeSign);
        }
        if (text == value.text) return;
        filter_.rewritten.append(text_.substr(rewrittenTo_, value.offset - rewrittenTo_)).append(written);
        rewrittenTo_ = value.offset + value.size;
        value.text = std::move(text);
        value.range = range;
    }

    void addTerm(int column, Comparison comparison, Value value, bool isNegated) {
        convert(column, value);
        FilterTerm term;
        term.column = column;
        term.isNegated = isNegated != (comparison == Comparison::NotEqual);
        if (core::trim(value.text).empty()) {
            term.test = Test::Filled;
            const bool isEmptySought =
                value.isQuoted ? comparison == Comparison::Colon || comparison == Comparison::Equal ||
                                     comparison == Comparison::NotEqual
                               : comparison == Comparison::Equal || comparison == Comparison::NotEqual;
            term.isNegated = term.isNegated != isEmptySought;
        } else if (!makeRange(term, comparison, value) && !makeComparison(term, comparison, value)) {
            return;
        }
        terms_.push_back(std::move(term));
    }

    core::ColumnType typeOf(const FilterTerm& term) const {
        return columns_[static_cast<std::size_t>(term.column)].type;
    }
    bool isNumeric(const FilterTerm& term) const {
        const core::ColumnType type = typeOf(term);
        return type == core::ColumnType::Number || type == core::ColumnType::Currency ||
               type == core::ColumnType::Calculation;
    }

    // FROM..TO. False for what is no range.
    bool makeRange(FilterTerm& term, Comparison comparison, const Value& value) {
        const bool takesRange = comparison == Comparison::Colon || comparison == Comparison::Equal ||
                                comparison == Comparison::NotEqual;
        if (!value.range || !takesRange) return false;
        const std::string_view whole = value.text;
        const std::string_view from = core::trim(whole.substr(0, *value.range));
        const std::string_view to = core::trim(whole.substr(*value.range + rangeSign.size()));
        const bool isDate = typeOf(term) == core::ColumnType::Date;
        FilterTerm range = term;
        range.test = isDate ? Test::Days : Test::Numbers;
        for (const std::string_view side : {from, to}) {
            if (side.empty()) continue;
            const std::optional<Days> bounds = isDate ? filterDays(side, today_) : numbers(side);
            if (!bounds) {
                if (!isDate && !isNumeric(term)) return false; // a text with two points in it
                failAs(value, side, isDate);
                return true;
            }
            if (side.data() == from.data()) range.first = bounds->first;
            if (side.data() == to.data()) range.last = bounds->last;
        }
        if (from.empty() && to.empty()) range.test = Test::Filled;
        term = range;
        return true;
    }

    static std::optional<Days> numbers(std::string_view text) {
        const std::optional<std::int64_t> number = filterNumber(text);
        if (!number) return {};
        return Days{*number, *number};
    }

    // Part of a text, or the days that a text stands for.
    void makeWord(FilterTerm& term, const Value& value, bool isDate) const {
        const std::optional<Days> days = isDate ? filterDays(core::trim(value.text), today_) : std::nullopt;
        if (days) setBounds(term, Test::Days, Comparison::Colon, *days);
        term.needle = days ? std::string() : folded(value.text);
    }

    // False when there is nothing to compare.
    bool makeComparison(FilterTerm& term, Comparison comparison, const Value& value) {
        const std::string_view text = core::trim(value.text);
        const bool isDate = typeOf(term) == core::ColumnType::Date;
        if (comparison == Comparison::Colon) {
            makeWord(term, value, isDate);
            return true;
        }
        const bool isEquality = comparison == Comparison::Equal || comparison == Comparison::NotEqual;
        const std::optional<Days> bounds = isDate ? filterDays(text, today_) : numbers(text);
        if (isDate || isNumeric(term) || (bounds && !isEquality)) {
            if (bounds)
                setBounds(term, isDate ? Test::Days : Test::Numbers, comparison, *bounds);
            else
                failAs(value, text, isDate);
            return bounds.has_value();
        }
        compareTexts(term, comparison, text);
        return true;
    }

    static void compareTexts(FilterTerm& term, Comparison comparison, std::string_view text) {
        const bool isEquality = comparison == Comparison::Equal || comparison == Comparison::NotEqual;
        const bool isUp = comparison == Comparison::Greater || comparison == Comparison::GreaterOrEqual;
        term.needle = folded(text);
        term.test = isEquality ? Test::Equal : isUp ? Test::Above : Test::Below;
        term.isInclusive = comparison == Comparison::GreaterOrEqual || comparison == Comparison::LessOrEqual;
    }

    static void setBounds(FilterTerm& term, Test test, Comparison comparison, const Days& bounds) {
        term.test = test;
        switch (comparison) {
        case Comparison::Greater:
            term.first = bounds.last + 1;
            break;
        case Comparison::GreaterOrEqual:
            term.first = bounds.first;
            break;
        case Comparison::Less:
            term.last = bounds.first - 1;
            break;
        case Comparison::LessOrEqual:
            term.last = bounds.last;
            break;
        default:
            term.first = bounds.first;
            term.last = bounds.last;
        }
    }

    std::string_view text_;
    const FilterColumns& columns_;
    std::chrono::year_month_day today_;
    int scope_;
    const ConvertedValue& converted_;
    std::size_t rewrittenTo_ = 0;
    std::vector<std::string> names_; // folded
    std::size_t at_ = 0;
    std::vector<FilterTerm> terms_;
    Filter filter_;
};

} // namespace

Filter parseFilter(std::string_view text, const FilterColumns& columns, std::chrono::year_month_day today,
                   int scope, const ConvertedValue& converted) {
    return Parser(text, columns, today, scope, converted).run();
}

} // namespace search
