#pragma once

#include <string>
#include <string_view>

namespace core {

// The masks of the program. "#" shows no leading zero: 0.5 is "$.50" as money and 0 is "$.00"; as a
// whole number 0 is the empty text.
enum class Mask {
    Money,        // $###,###,###,###,###.00
    InvoiceMoney, // $###,###,###,###.00: a group less, which shows nowhere, since a mask that is too
                  // short does not cut
    TwoDecimals,  // ###############.00
    Whole,        // ###############
    WholeCommas,  // ###,###,###,###,###
};

// A half is rounded away from zero, on the decimal digits of the value. A minus sign stands in front
// of the dollar sign; what is rounded to zero has none.
std::string format(double value, Mask mask);
// A text that is no number, or one of more than 309 digits, comes back as it stands.
std::string format(std::string_view text, Mask mask);

} // namespace core
