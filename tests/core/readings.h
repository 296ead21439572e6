#pragma once

#include "core/text.h"
#include "raised.h"
#include "table.h"

#include <gtest/gtest.h>

// Each result with the texts that lead to it, "5 -> 5.|$ 5|+5; -7 -> (7)|- 7".
template <typename Check>
void forEachReading(std::string_view cases, const Check& check) {
    for (const auto& c : table(cases))
        for (const std::string_view text : core::split(c[1], '|')) {
            SCOPED_TRACE("\"" + std::string(text) + "\" as " + c[0]);
            check(c[0], std::string(text));
        }
}
