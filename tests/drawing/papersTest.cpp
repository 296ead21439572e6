#include "drawing/papers.h"
#include "platform/mailMessage.h"
#include "table.h"

#include <gtest/gtest.h>

namespace {

// Files tell papers by these codes.
TEST(Papers, HaveTheSizesOfTheirStandards) {
    const char* const inches =
        "1 8.5 11; 3 11 17; 4 17 11; 5 8.5 14; 6 5.5 8.5; 7 7.25 10.5; 14 8.5 13; 16 10 14; 18 8.5 11; 19 "
        "3.875 8.875; 20 4.125 9.5; 21 4.5 10.375; 22 4.75 11; 23 5 11.5; 24 17 22; 25 22 34; 26 34 44; 37 "
        "3.875 7.5; 38 3.625 6.5; 44 9 11; 45 10 11; 46 15 11";
    const char* const millimetres =
        "8 297 420; 9 210 297; 11 148 210; 12 257 364; 13 182 257; 15 215 275; 27 110 220; 28 162 229; 29 "
        "324 458; 30 229 324; 31 114 162; 32 114 229; 33 250 353; 34 176 250; 35 176 125; 36 110 230; 42 250 "
        "353; 43 100 148; 66 420 594; 70 105 148";
    std::size_t count = 0;
    for (const auto& [unit, papers] : {std::pair(1440.0, inches), {1440 / 25.4, millimetres}})
        for (const auto& c : table(papers)) {
            SCOPED_TRACE(c[0]);
            int code = 0;
            double width = 0, height = 0;
            ASSERT_EQ(std::sscanf(c[0].c_str(), "%d %lf %lf", &code, &width, &height), 3);
            const drawing::PaperSize* paper = drawing::findPaper(code);
            ASSERT_NE(paper, nullptr);
            EXPECT_NEAR(static_cast<double>(paper->Width), width * unit, 1);
            EXPECT_NEAR(static_cast<double>(paper->Height), height * unit, 1);
            ++count;
        }
    EXPECT_EQ(count, drawing::papers().size());
    EXPECT_EQ(drawing::findPaper(drawing::customPaperCode), nullptr);
}

TEST(MailMessage, BecomesALink) {
    EXPECT_EQ(
        platform::mailtoLink({"a+b@x.org,c@y.org", "50% & é", "one\ntwo\r\nthree\rfour?", ""}),
        "mailto:a+b@x.org,c@y.org?Subject=50%25%20%26%20%C3%A9&Body=one%0D%0Atwo%0D%0Athree%0D%0Afour%3F");
}

} // namespace
