#include "drawing/papers.h"
#include "table.h"

#include <cmath>
#include <gtest/gtest.h>
#include <sstream>

namespace {

// Files tell papers by these codes.
TEST(Papers, HaveTheSizesOfTheirStandards) {
    const auto cases =
        table("1 8.5 11; 3 11 17; 4 17 11; 5 8.5 14; 6 5.5 8.5; 7 7.25 10.5; 14 8.5 13; 16 10 14; 18 8.5 11; "
              "19 3.875 8.875; 20 4.125 9.5; 21 4.5 10.375; 22 4.75 11; 23 5 11.5; 24 17 22; 25 22 34; "
              "26 34 44; 37 3.875 7.5; 38 3.625 6.5; 44 9 11; 45 10 11; 46 15 11; 8 297 420 mm; "
              "9 210 297 mm; 11 148 210 mm; 12 257 364 mm; 13 182 257 mm; 15 215 275 mm; 27 110 220 mm; "
              "28 162 229 mm; 29 324 458 mm; 30 229 324 mm; 31 114 162 mm; 32 114 229 mm; 33 250 353 mm; "
              "34 176 250 mm; 35 176 125 mm; 36 110 230 mm; 42 250 353 mm; 43 100 148 mm; 66 420 594 mm; "
              "70 105 148 mm; 2 8.5 11; 10 210 297 mm; 17 11 17; 39 14.875 11; 40 8.5 12; 41 8.5 13; "
              "47 220 220 mm; 57 227 356 mm; 58 305 487 mm; 59 8.5 12.69; 60 210 330 mm; 63 322 445 mm; "
              "64 174 235 mm; 65 201 276 mm; 69 200 148 mm");
    for (const auto& c : cases) {
        int code = 0;
        double width = 0, height = 0;
        std::istringstream(c[0]) >> code >> width >> height;
        const double unit = c[0].ends_with("mm") ? 1440 / 25.4 : 1440;
        const drawing::PaperSize* paper = drawing::findPaper(code);
        EXPECT_TRUE(paper != nullptr && paper->Width == std::lround(width * unit) &&
                    paper->Height == std::lround(height * unit))
            << c[0];
    }
    EXPECT_EQ(cases.size(), drawing::papers().size());
    for (const drawing::PaperSize& paper : drawing::papers()) // a name leads to its paper
        EXPECT_EQ(drawing::findPaper(paper.name), &paper) << paper.name;
    EXPECT_EQ(drawing::findPaper(drawing::customPaperCode), nullptr);
}

} // namespace
