#pragma once

#include "codes/code.h"

namespace codes {

// "EAN-13 of 4006381333932: the last digit should be 1", raised.
[[noreturn]] void refuse(Kind kind, std::string_view text, std::string_view reason);

} // namespace codes
