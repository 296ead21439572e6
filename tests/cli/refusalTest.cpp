#include "fwkProgram.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

using nlohmann::json;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::StartsWith;

namespace {

using Arguments = std::vector<std::string>;

struct Refusal {
    Arguments arguments;
    const char* message; // of the window; empty: none
    const char* reason;  // empty: the command line is wrong
};

class Refusals : public FwkTest {
protected:
    // Nothing at all changes on the disk, whatever is refused.
    void expectAll(const std::vector<Refusal>& refusals) const {
        const auto before = state();
        for (const auto& [arguments, message, reason] : refusals) {
            const std::string what = ::testing::PrintToString(arguments);
            const Outcome outcome = run(arguments);
            EXPECT_EQ(outcome.out, "") << what;
            EXPECT_EQ(outcome.code, *reason == '\0' ? 2 : 1) << what << outcome.err;
            if (*reason == '\0') {
                EXPECT_THAT(outcome.err, HasSubstr("\nUsage: fwk " + arguments[0])) << what;
            } else {
                const std::string told = *message == '\0' ? "" : std::string("Ferrowick: ") + message + "\n";
                EXPECT_EQ(outcome.err, told + "fwk: " + reason + "\n") << what;
            }
            EXPECT_TRUE(state() == before) << what;
        }
    }
};

constexpr const char* nameTaken = "Column with that name already exists!";
constexpr const char* locked =
    "The database structure and layout have been locked.  Use the Options menu to unlock.";

TEST_F(Refusals, ColumnsAndNewDatabases) {
    copyOf("books.fwk", "a.fwk");
    copyOf("invoices.fwk", "inv.fwk");
    DataFile lockedData;
    lockedData.more = "[Lock          ]scrambled\r\n";
    make("locked.fwk", lockedData.text());
    Arguments tooMany{"new", "new.fwk"};
    for (int i = 0; i < 51; ++i) tooMany.push_back("C" + std::to_string(i) + ":Text");
    Arguments overA = tooMany;
    overA[1] = "a.fwk";
    overA.emplace_back("--yes");
    constexpr const char* tooManyTold = "You have added the maximum number of columns to the database.";
    std::filesystem::create_directory(path("folder"));
    expectAll({
        {{"new", "a.fwk", "A:Text"}, "", "a.fwk: it exists already, --yes overwrites it"},
        {{"new", "no/a.fwk", "A:Text"},
         "There was an error writing to the file.  If saving to removable media, please make sure that the "
         "disk "
         "is inserted properly, or that the device is plugged in.",
         "no/a.fwk: could not be saved: its folder does not exist"},
        {{"new", "", "A:Text"}, "", "a database needs a file name"},
        {{"new", "new.fwk", "A"}, "", ""},
        {{"new", "new.fwk", "A:Tex"}, "", ""},
        {{"new", "new.fwk", "A:Text", ":Text"},
         "You must enter a column name.",
         "new.fwk: the column \"\" is not added"},
        {{"new", "new.fwk", "A:Text", "A:Number"}, nameTaken, "new.fwk: the column \"A\" is not added"},
        {{"new", "new.fwk", "--invoice", "A:Picture"},
         "",
         "new.fwk: an invoice database has no Picture columns"},
        {tooMany, tooManyTold, "new.fwk: the column \"C50\" is not added"},
        {overA, tooManyTold, "a.fwk: the column \"C50\" is not added"},
        {{"column", "a.fwk"}, "", ""},
        {{"column", "add", "a.fwk", "New:Texts"}, "", ""},
        {{"column", "add", "a.fwk", "Price:Text"}, nameTaken, "a.fwk: the column \"Price\" is not added"},
        {{"column", "add", "a.fwk", "price:Text"}, "", "a.fwk: Key is not unique in collection: price"},
        {{"column", "add", "a.fwk", "INDEX:Text"}, "", "a.fwk: Key is not unique in collection: INDEX"},
        {{"column", "add", "a.fwk", "   :Text"},
         "You must enter a column name.",
         "a.fwk: the column \"   \" is not added"},
        {{"column", "add", "a.fwk", "A|B:Text"},
         "",
         "a.fwk: \"A|B\" holds a \"|\", which divides names and expressions in the file"},
        {{"column", "add", "a.fwk", "A\nB:Text"}, "", "a.fwk: \"A B\" is more than one line"},
        {{"column", "add", "a.fwk", "New:Text", "--auto"},
         "",
         "a.fwk: only Date and Number columns have values of their own"},
        {{"column", "add", "inv.fwk", "P:picture"},
         "",
         "inv.fwk: an invoice database has no Picture columns"},
        {{"column", "rename", "a.fwk", "Prise", "Cost"}, "", "a.fwk: no column \"Prise\""},
        {{"column", "rename", "a.fwk", "Index", "Cost"}, "", "a.fwk: no column \"Index\""},
        {{"column", "rename", "a.fwk", "Price", "1e3"},
         "Column name must not be a number.",
         "a.fwk: the column \"Price\" keeps its name"},
        {{"column", "rename", "a.fwk", "Price", "Title"},
         nameTaken,
         "a.fwk: the column \"Price\" keeps its name"},
        {{"column", "rename", "a.fwk", "Price", "TITLE"},
         "",
         "a.fwk: Key is not unique in collection: TITLE"},
        {{"column", "rename", "a.fwk", "Price", " "}, "", "a.fwk: the column \"Price\" keeps its name"},
        {{"column", "remove", "a.fwk", "Prise", "--yes"}, "", "a.fwk: no column \"Prise\""},
        {{"column", "remove", "a.fwk", "Price"},
         "",
         "a.fwk: ALL data in the column \"Price\" would be lost, --yes removes it"},
        {{"column", "add", "locked.fwk", "A:Text"}, locked, "locked.fwk: its design is locked"},
        {{"column", "remove", "locked.fwk", "Qty", "--yes"}, locked, "locked.fwk: its design is locked"},
    });
    EXPECT_EQ(run("add locked.fwk Name=x").out, "i3\n") << "the design is locked, not the records";
}

TEST_F(Refusals, CalculationAndRecords) {
    copyOf("books.fwk", "a.fwk");
    copyOf("invoices.fwk", "inv.fwk");
    DataFile stale;
    stale.more = "[Totaled Cols  ]Gone|\r\n[Formulas      ]Gone,Qty * 2|\r\n";
    make("stale.fwk", stale.text());
    expectAll({
        {{"expression", "a.fwk", "Vale", "1"}, "", "a.fwk: no column \"Vale\""},
        {{"expression", "a.fwk", "Vale"}, "", "a.fwk: no column \"Vale\""},
        {{"expression", "a.fwk", "Price", "1"}, "", "a.fwk: the column \"Price\" is no calculation column"},
        {{"expression", "a.fwk", "Value", "1 | 2"},
         "",
         "a.fwk: \"1 | 2\" holds a \"|\", which divides names and expressions in the file"},
        {{"total", "a.fwk", "Value", "Title"}, "", "a.fwk: the column \"Title\" cannot be totalled"},
        {{"total", "a.fwk", "Vale"}, "", "a.fwk: no column \"Vale\""},
        {{"total", "stale.fwk", "Qty"}, "", "stale.fwk: Element not found: Gone"},
        {{"recalculate", "stale.fwk"}, "", "stale.fwk: Element not found: Gone"},
        {{"serial", "a.fwk", "No", "12x"},
         "You entered a non numeric value.",
         "a.fwk: the serial number of \"No\" is not set"},
        {{"serial", "a.fwk", "No", ""},
         "You entered a non numeric value.",
         "a.fwk: the serial number of \"No\" is not set"},
        {{"serial", "a.fwk", "Price", "1"}, "", "a.fwk: the column \"Price\" has no serial numbers"},
        {{"serial", "a.fwk", "No"}, "", ""},
        {{"add", "a.fwk", "Title"}, "", "a.fwk: \"Title\" is not of the form NAME=VALUE"},
        {{"add", "a.fwk", "Titel=x=y"}, "", "a.fwk: no column \"Titel\""},
        {{"add", "a.fwk", "Index=x"}, "", "a.fwk: no column \"Index\""},
        {{"add", "a.fwk", "Title=x", "TITLE=y"}, "", "a.fwk: the column \"Title\" is named twice"},
        {{"add", "a.fwk", "Value=1"}, "", "a.fwk: the column \"Value\" is calculated and takes no value"},
        {{"add", "a.fwk", "Title=x\r\ny"}, "", "a.fwk: \"x  y\" is more than one line"},
        {{"add", "a.fwk", "Title=\xFFx"}, "", "a.fwk: \"\xEF\xBF\xBDx\" is not UTF-8"},
        {{"add", "a.fwk", "Cover=absent.jpg"}, "", "a.fwk: it has no image \"absent.jpg\""},
        {{"update", "a.fwk", "i43", "Title=x"}, "", "a.fwk: no record \"i43\""},
        {{"update", "a.fwk", "Totals", "Title=x"}, "", "a.fwk: no record \"Totals\""},
        {{"update", "a.fwk", "i1", "Titel=x"}, "", "a.fwk: no column \"Titel\""},
        {{"update", "a.fwk", "i1"}, "", ""},
        {{"delete", "a.fwk", "i1", "i43"}, "", "a.fwk: no record \"i43\""},
        {{"delete", "a.fwk", "Totals"}, "", "a.fwk: no record \"Totals\""},
        {{"delete", "a.fwk"}, "", ""},
        {{"duplicate", "a.fwk", "i0", "1"}, "", "a.fwk: no record \"i0\""},
        {{"duplicate", "a.fwk", "i1", "many"}, "", ""},
        {{"duplicate", "a.fwk", "i1", "1,000"}, "", ""},
        {{"duplicate", "a.fwk", "i1", "-1"}, "", ""},
        {{"duplicate", "a.fwk", "i1", "40000"}, "", "a.fwk: Overflow: 40000"},
        {{"add", "inv.fwk", "Qty=1@2@3@4@5@6@7@8@"},
         "",
         "inv.fwk: the column \"Qty\" has 6 rows on the layout"},
        {{"update", "inv.fwk", "i9", "Customer=x"}, "", "inv.fwk: no record \"i9\""},
        {{"delete", "inv.fwk", "Totals"}, "", "inv.fwk: no record \"Totals\""},
    });
}

TEST_F(Refusals, GarbageForAnExpression) {
    copyOf("books.fwk", "a.fwk");
    const auto before = state();
    for (const char* garbage :
         {"*", "( Price", "Price * ", "Price Copies Author", "1 / 0", "Price ; 1", "And", "\"1\"", "= 3"}) {
        const Outcome outcome = run(Arguments{"expression", "a.fwk", "Value", garbage});
        EXPECT_EQ(outcome.code, 1) << garbage;
        EXPECT_THAT(outcome.err,
                    StartsWith("Ferrowick: An error has occured during one of your calculations."));
        EXPECT_THAT(outcome.err,
                    EndsWith("\nfwk: a.fwk: the calculation failed, so that nothing is saved\n"));
        EXPECT_TRUE(state() == before) << garbage;
    }
    // A name that is no column's is a name without a value, and that is 0.
    EXPECT_EQ(run(Arguments{"expression", "a.fwk", "Value", "Prise * Copies"}).code, 0);
    EXPECT_EQ(json::parse(outputOf("records a.fwk --json --columns Value"))["totals"], (json{"0"}));
}

TEST_F(Refusals, OneRecordMoreThanThereCanBe) {
    copyOf("packages-32000.fwk", "a.fwk");
    ASSERT_EQ(run("duplicate a.fwk i7 767").code, 0);
    const json info = json::parse(outputOf("info a.fwk --json"));
    EXPECT_EQ(info["records"], 32767);
    expectAll({{{"add", "a.fwk", "Package=x"}, "", "a.fwk: Overflow: record keys"},
               {{"duplicate", "a.fwk", "i1", "1"}, "", "a.fwk: Overflow: record keys"}});
    Arguments all{"delete", "a.fwk"};
    for (int i = 8; i <= 32767; ++i) all.push_back("i" + std::to_string(i));
    ASSERT_EQ(run(all).code, 0);
    const std::string sums = outputOf("records a.fwk --json");
    EXPECT_EQ(json::parse(sums)["records"].size(), 7U);
    outputOf("recalculate a.fwk");
    EXPECT_EQ(outputOf("records a.fwk --json"), sums)
        << "what was taken from the sums is what they had been given";
}

} // namespace
