#pragma once

#include "core/runTimeError.h"
#include "core/text.h"
#include "table.h"

#include <gtest/gtest.h>

// Each result with the texts that lead to it, "5 -> 5.|$ 5|+5; -7 -> (7)|- 7; Type mismatch -> 5-5". A
// run-time error is a result too.
template <typename Read>
void expectEach(std::string_view cases, const Read& read) {
    for (const auto& c : table(cases))
        for (const std::string_view text : core::split(c[1], '|')) {
            std::string result;
            try {
                result = read(std::string(text));
            } catch (const core::RunTimeError& error) {
                result = core::split(error.what(), ':')[0];
            }
            EXPECT_EQ(result, c[0]) << "\"" << text << "\"";
        }
}
