#include "drawing/papers.h"
#include "platform/mailMessage.h"
#include "table.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

namespace {

const drawing::PaperSize& paper(const std::string& name) {
    for (const drawing::PaperSize& each : drawing::papers())
        if (each.name == name) return each;
    ADD_FAILURE() << "there is no paper " << name;
    return drawing::papers()[0];
}

// Papers are cut from each other, so that a wrong length shows at its neighbours.
TEST(Papers, HalvesOfLargerOnes) {
    const auto sides = [](const std::string& name) {
        return std::array{std::min(paper(name).Width, paper(name).Height),
                          std::max(paper(name).Width, paper(name).Height)};
    };
    for (const auto& c :
         table("A6 -> A5; A5 -> A4; A4 -> A3; A3 -> A2; Statement -> Letter; Letter -> Tabloid; "
               "Note -> Ledger; Tabloid -> C; C -> D; D -> E; B5 (JIS) -> B4 (JIS); "
               "Envelope B6 -> Envelope B5; Envelope B5 -> Envelope B4; Envelope B5 -> B4 (ISO); "
               "Envelope C6 -> Envelope C5; Envelope C5 -> Envelope C4; "
               "Envelope C4 -> Envelope C3")) {
        EXPECT_EQ(sides(c[0])[1], sides(c[1])[0]) << c[0];
        EXPECT_NEAR(2 * sides(c[0])[0], sides(c[1])[1], 60) << c[1]; // a millimetre
    }
    // Of all but these the height is the longer side.
    std::string across;
    for (const drawing::PaperSize& each : drawing::papers()) {
        if (each.Width > each.Height) across += std::string(each.name) + "; ";
        EXPECT_EQ(drawing::findPaper(each.code), &each);
        int width = 0, height = 0; // as some names tell
        if (std::sscanf(each.name.data(), "%d x %d in", &width, &height) == 2) {
            EXPECT_EQ(each.Width, width * 1440) << each.name;
            EXPECT_EQ(each.Height, height * 1440) << each.name;
        }
    }
    EXPECT_EQ(across, "Ledger; Envelope B6; 15 x 11 in; ");
    EXPECT_EQ(drawing::findPaper(drawing::customPaperCode), nullptr);
    for (const auto& c :
         table("Legal -> 8.5 -> 14; Executive -> 7.25 -> 10.5; Folio -> 8.5 -> 13; Quarto -> 8.465 -> "
               "10.827; Envelope #10 -> 4.125 -> 9.5; Envelope DL -> 4.331 -> 8.661",
               3)) {
        EXPECT_NEAR(static_cast<double>(paper(c[0]).Width), std::stod(c[1]) * 1440, 2) << c[0];
        EXPECT_NEAR(static_cast<double>(paper(c[0]).Height), std::stod(c[2]) * 1440, 2) << c[0];
    }
}

TEST(MailMessage, BecomesALink) {
    EXPECT_EQ(
        platform::mailtoLink({"a+b@x.org,c@y.org", "50% & é", "one\ntwo\r\nthree\rfour?", ""}),
        "mailto:a+b@x.org,c@y.org?Subject=50%25%20%26%20%C3%A9&Body=one%0D%0Atwo%0D%0Athree%0D%0Afour%3F");
}

} // namespace
