#include "platform/localePaper.h"
#include "table.h"

#include <gtest/gtest.h>

namespace {

TEST(LocalePaper, IsA4WhereLetterIsNotSold) {
    for (const auto& c :
         table("C 1; POSIX 1; C.UTF-8 1; en_US.UTF-8 1; es_MX 1; fr_CA@euro 1; en 1; de_ 1; en_USA 1; "
               "de_DE.UTF-8 9; en_GB 9; ca_ES@valencia 9; pt_BR.ISO-8859-1 9"))
        EXPECT_EQ(platform::paperOfLocale(c[0].substr(0, c[0].find(' '))), c[0].back() - '0') << c[0];
}

} // namespace
