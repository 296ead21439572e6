#include "exchange/delimited.h"
#include "folderFixture.h"
#include "tables/importTable.h"

#include <iomanip>

namespace {

using exchange::Format;
using std::chrono::year;

exchange::Sheet sheetOf(const std::string& name, std::size_t place) {
    const fs::path file = fs::path(TEST_DATA_DIR) / "tables" / name;
    const Format format = *exchange::formatOf(name);
    if (format != Format::Csv && format != Format::Tsv) return exchange::readSheet(file, format, place);
    const std::string bytes = readBytes(file);
    const std::string text = exchange::decodedText(bytes, exchange::recognizedEncoding(bytes));
    exchange::Sheet sheet;
    sheet.rows = exchange::readDelimited(text, exchange::recognizedDelimiters(text));
    return sheet;
}

// "Name:Text Price:Currency /2 Ann $1.50 /Bob -": the columns, the number of rows, the first and the last
// row.
std::string told(const tables::ImportTable& table) {
    std::ostringstream all;
    for (const auto& column : table.columns())
        all << column.name << ':' << core::typeName(column.how.as.type) << column.how.sign << ' ';
    all << '/' << table.count();
    for (const std::size_t record : {std::size_t{0}, std::max(table.count(), std::size_t{1}) - 1})
        for (std::size_t i = 0; table.count() > 0 && i < table.columns().size(); ++i)
            all << (i == 0 && record > 0 ? " / " : " ")
                << std::quoted(table.cell(record, i).text, '\'', '\\');
    return core::replaceAll(all.str(), "\n", "\\n") + (table.refusedCount() > 0 ? " !" : "");
}

// What these programs show; none of the files was made by hand. The number is that of the sheet.
TEST(TablesOfOtherPrograms, ComeInAsTheyAreShown) {
    std::istringstream cases(readBytes(fs::path(TEST_DATA_DIR) / "tables" / "shown.list"));
    std::string name, line;
    std::size_t place = 0, files = 0;
    while (cases >> name >> place && std::getline(cases >> std::ws, line)) {
        const tables::ImportTable table(sheetOf(name, place), {}, false, year(2024) / 2 / 29);
        EXPECT_EQ(told(table), line) << name << ' ' << place;
        ++files;
    }
    EXPECT_GE(files, 27U);
}

} // namespace
