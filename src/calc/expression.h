#pragma once

#include "core/recordsList.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace calc {

// An expression over the columns of a list, made ready for many rows: the columns that its words name are
// looked up once. Words stand between blanks; one that names no column is part of the arithmetic. The text
// and the list outlive it.
class Expression {
public:
    Expression(std::string_view text, const core::RecordsList& list);

    // Takes over the cells of a row; what is no number is worth 0. Raises overflow for an amount that is too
    // large.
    void read(const core::Item& row);
    // The value of what was read. Raises what evaluate raises.
    double value() const;
    // Whether a result is shown as money: as soon as a fraction or a currency is in it.
    bool isMoney() const { return bDecimal_; }

private:
    struct Word {
        std::string_view text;
        int subItem = 0; // of the column that it names; 0 for none
        bool isCurrency = false;
    };

    std::vector<Word> words_;
    std::string joined_;
    bool bDecimal_ = false;
};

// What is wrong with an expression that somebody has typed, with the place, counted in characters from 1:
// an error of form, or a name that is no column, which an Expression would take for 0.
std::optional<std::string> faultOf(std::string_view expression, const core::RecordsList& list);

} // namespace calc
