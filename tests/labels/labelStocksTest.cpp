#include "labels/labelStocks.h"
#include "table.h"

#include <fstream>
#include <gmock/gmock.h>
#include <iterator>
#include <sstream>

namespace {

std::string installedTable() {
    std::ifstream file(SAMPLES_DIR "/../stocks/labels.tsv");
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string namesOf(const std::vector<const labels::LabelStock*>& stocks) {
    std::string names;
    for (const labels::LabelStock* stock : stocks) names += (names.empty() ? "" : " ") + stock->number;
    return names;
}

TEST(LabelStocks, AllLinesOfTheTableAreReadSortedAndThereOnce) {
    const std::string text = installedTable();
    const auto stocks = labels::readLabelStocks(text);
    EXPECT_EQ(std::ranges::count(text, '\n'), std::ssize(stocks) + 1);
    EXPECT_GE(stocks.size(), 800U);
    const auto isInOrder = [](const auto& a, const auto& b) {
        return std::tie(a.maker, a.number) >= std::tie(b.maker, b.number);
    };
    EXPECT_EQ(std::ranges::adjacent_find(stocks, isInOrder), stocks.end());
}

// Upper left corners in millimetres, from what is said of the sheets elsewhere.
TEST(LabelStocks, LabelsStandWhereTheSheetHasThem) {
    const auto stocks = labels::readLabelStocks(installedTable());
    for (const auto& row :
         table("5160 30 -> 144.463 241.3; 5161 20 -> 110.331 241.3; 5163 4 -> 110.331 63.5; "
               "5164 6 -> 110.331 182.033; 5167 80 -> 164.306 254; 5371 10 -> 107.95 215.9; "
               "5395 8 -> 112.713 205.317; 5388 3 -> 44.45 177.8; L7160 21 -> 139.29 243.75; "
               "L7163 14 -> 106.25 243.75; L7651 65 -> 167.15 265.1; 5371 11 -> 19.05 12.7; ")) {
        std::string number;
        int n = 0;
        double left = 0, top = 0;
        std::istringstream(row[0]) >> number >> n;
        std::istringstream(row[1]) >> left >> top;
        const auto found = labels::findLabelStocks(stocks, "avery " + number);
        ASSERT_FALSE(found.empty()) << number;
        const auto position = found.front()->position(n);
        EXPECT_NEAR(labels::millimetresOf(position.left), left, 0.1) << row[0];
        EXPECT_NEAR(labels::millimetresOf(position.top), top, 0.1) << row[0];
    }
}

TEST(LabelStocks, AreFoundByWordsAndSizesAndDamagedOnesAreLeftOut) {
    const std::string good = "2\t5\t90\t50\t15\t20\t90\t50\trectangle", heading = "maker\tnumber\n";
    const auto stocks = labels::readLabelStocks(
        heading + "Oda\t10\tBusiness cards\tA4\t" + good +
        "\r\nOda\t1\tDiscs\t100 x 148\t1\t1\t66.675\t25.4\t0\t0\t"
        "66.675\t25.4\tcd\n\nOda\t2\tCards\tA0\t" +
        good + "\nOda\t3\tCards\tA4\t" + good + "s\nOda\t4\tCards\tA5\t" + good + "\n\t5\tCards\tA4\t" +
        good +
        "\nOda\t6\tCards\tA4\t2\t5\tnan\t50\t15\t20\t90\t50\trectangle\n"
        "Oda\t7\tCards\tA4\t2\t5\t90\t50\t15\t20\t80\t50\trectangle\nOda\t8\tCards\tA4"
        "\t0\t5\t90\t50\t15\t20\t90\t50\t"
        "rectangle\nOda\t9\tCards\tA4\t2");
    for (const auto& row :
         table(" -> 10 1; oda 1 -> 1 10; A4 CARDS -> 10; cards discs; 90 x 50 -> 10; 5x9 cm -> 10; 90,4mm "
               "\u00D7 50 mm -> 10; "
               "90.6 x 50; 1 x 2 5/8 in -> 1; 1\" x 2-5/8\" -> 1; 1 x 2 5/0 in; x -> 1; 1/ x in; "))
        EXPECT_EQ(namesOf(labels::findLabelStocks(stocks, row[0])), row[1]) << row[0];
    EXPECT_EQ(labels::readLabelStocks("").size(), 0U);
}

} // namespace
