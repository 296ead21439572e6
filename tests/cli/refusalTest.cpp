#include "fwkProgram.h"

#include <gmock/gmock.h>

using ::testing::HasSubstr;

namespace {

constexpr const char* nameTaken = "Column with that name already exists!";
constexpr const char* noName = "You must enter a column name.";
constexpr const char* tooMany = "You have added the maximum number of columns to the database.";
constexpr const char* notNumeric = "You entered a non numeric value.";
constexpr const char* locked =
    "The database structure and layout have been locked.  Use the Options menu to unlock.";
constexpr const char* notWritten =
    "There was an error writing to the file.  If saving to removable media, please make sure that the disk "
    "is inserted properly, or that the device is plugged in.";

class Refusals : public FwkTest {
protected:
    void SetUp() override {
        copyOf("books.fwk", "a.fwk");
        copyOf("invoices.fwk", "inv.fwk");
    }
    Outcome refused(const std::string& line, int code) const {
        const auto before = state();
        Outcome outcome = run(line);
        EXPECT_EQ(outcome.out, "") << line;
        EXPECT_EQ(outcome.code, code) << line << outcome.err;
        EXPECT_TRUE(state() == before) << line;
        return outcome;
    }
    // Commands that are refused with a message of the window, or none, and a reason.
    void expectAll(const char* message,
                   const std::vector<std::pair<std::string, std::string>>& refusals) const {
        for (const auto& [line, reason] : refusals)
            EXPECT_EQ(refused(line, 1).err,
                      (*message == '\0' ? "" : std::string("Ferrowick: ") + message + "\n") +
                          "fwk: " + reason + "\n")
                << line;
    }
    void expectUsage(std::initializer_list<const char*> lines) const {
        for (const std::string line : lines)
            EXPECT_THAT(refused(line, 2).err, HasSubstr("\nUsage: fwk " + line.substr(0, line.find(' '))));
    }
};

TEST_F(Refusals, ColumnsAndNewDatabases) {
    DataFile lockedData;
    lockedData.more = "[Lock          ]scrambled\r\n";
    make("locked.fwk", lockedData.text());
    std::string columns;
    for (int i = 0; i < 51; ++i) columns += " C" + std::to_string(i) + ":Text";
    expectUsage({"new new.fwk A", "new new.fwk A:Tex", "column a.fwk", "column add a.fwk New:Texts"});
    expectAll(notWritten,
              {{"new no/a.fwk A:Text", "no/a.fwk: could not be saved: its folder does not exist"}});
    expectAll(noName, {{"new new.fwk A:Text :Text", "new.fwk: the column \"\" is not added"},
                       {"column add a.fwk '   :Text'", "a.fwk: the column \"   \" is not added"}});
    expectAll(nameTaken, {{"new new.fwk A:Text A:Number", "new.fwk: the column \"A\" is not added"},
                          {"column add a.fwk Price:Text", "a.fwk: the column \"Price\" is not added"},
                          {"column rename a.fwk Price Title", "a.fwk: the column \"Price\" keeps its name"}});
    expectAll(tooMany, {{"new new.fwk" + columns, "new.fwk: the column \"C50\" is not added"},
                        {"new a.fwk --yes" + columns, "a.fwk: the column \"C50\" is not added"}});
    expectAll("Column name must not be a number.",
              {{"column rename a.fwk Price 1e3", "a.fwk: the column \"Price\" keeps its name"}});
    expectAll(locked, {{"column add locked.fwk A:Text", "locked.fwk: its design is locked"},
                       {"column remove locked.fwk Qty --yes", "locked.fwk: its design is locked"}});
    expectAll("", {{"new a.fwk A:Text", "a.fwk: it exists already, --yes overwrites it"},
                   {"new '' A:Text", "a database needs a file name"},
                   {"new new.fwk --invoice A:Picture", "new.fwk: an invoice database has no Picture columns"},
                   {"column add a.fwk price:Text", "a.fwk: Key is not unique in collection: price"},
                   {"column add a.fwk INDEX:Text", "a.fwk: Key is not unique in collection: INDEX"},
                   {"column add a.fwk A|B:Text",
                    "a.fwk: \"A|B\" holds a \"|\", which divides names and expressions in the file"},
                   {"column add a.fwk A\nB:Text", "a.fwk: \"A B\" is more than one line"},
                   {"column add a.fwk New:Text --auto",
                    "a.fwk: only Date and Number columns have values of their own"},
                   {"column add inv.fwk P:picture", "inv.fwk: an invoice database has no Picture columns"},
                   {"column rename a.fwk Prise Cost", "a.fwk: no column \"Prise\""},
                   {"column rename a.fwk Index Cost", "a.fwk: no column \"Index\""},
                   {"column rename a.fwk Price TITLE", "a.fwk: Key is not unique in collection: TITLE"},
                   {"column rename a.fwk Price ' '", "a.fwk: the column \"Price\" keeps its name"},
                   {"column remove a.fwk Prise --yes", "a.fwk: no column \"Prise\""},
                   {"column remove a.fwk Price",
                    "a.fwk: ALL data in the column \"Price\" would be lost, --yes removes it"}});
    EXPECT_EQ(run("add locked.fwk Name=x").out, "i3\n") << "the design is locked, not the records";
}

TEST_F(Refusals, CalculationAndRecords) {
    DataFile stale;
    stale.more = "[Totaled Cols  ]Gone|\r\n[Formulas      ]Gone,Qty * 2|\r\n[Increments    ]Qty,x|\r\n";
    make("stale.fwk", stale.text());
    expectUsage({"serial a.fwk No", "update a.fwk i1", "delete a.fwk", "duplicate a.fwk i1 many",
                 "duplicate a.fwk i1 1,000", "duplicate a.fwk i1 -1"});
    expectAll(notNumeric, {{"serial a.fwk No 12x", "a.fwk: the serial number of \"No\" is not set"},
                           {"serial stale.fwk Qty x", "stale.fwk: the serial number of \"Qty\" is not set"},
                           {"serial a.fwk No ''", "a.fwk: the serial number of \"No\" is not set"}});
    expectAll(
        "", {{"expression a.fwk Vale 1", "a.fwk: no column \"Vale\""},
             {"expression a.fwk Vale", "a.fwk: no column \"Vale\""},
             {"expression a.fwk Price 1", "a.fwk: the column \"Price\" is no calculation column"},
             {"expression a.fwk Va,lue 1",
              "a.fwk: the column \"Va,lue\" can have no expression: a comma divides names from expressions"},
             {"expression a.fwk Value '1 | 2'",
              "a.fwk: \"1 | 2\" holds a \"|\", which divides names and expressions in the file"},
             {"total a.fwk Value Title", "a.fwk: the column \"Title\" cannot be totalled"},
             {"total a.fwk Vale", "a.fwk: no column \"Vale\""},
             {"total stale.fwk Qty", "stale.fwk: Element not found: Gone"},
             {"recalculate stale.fwk", "stale.fwk: Element not found: Gone"},
             {"serial a.fwk Price 1", "a.fwk: the column \"Price\" has no serial numbers"},
             {"add a.fwk Title", "a.fwk: \"Title\" is not of the form NAME=VALUE"},
             {"add a.fwk Titel=x=y", "a.fwk: no column \"Titel\""},
             {"add a.fwk Index=x", "a.fwk: no column \"Index\""},
             {"add a.fwk Title=x TITLE=y", "a.fwk: the column \"Title\" is named twice"},
             {"add a.fwk Value=1", "a.fwk: the column \"Value\" is calculated and takes no value"},
             {"add a.fwk Title=x\r\ny", "a.fwk: \"x  y\" is more than one line"},
             {"add a.fwk Title=\xFFx", "a.fwk: \"\xEF\xBF\xBDx\" is not UTF-8"},
             {"add a.fwk Cover=absent.jpg", "a.fwk: it has no image \"absent.jpg\""},
             {"update a.fwk i43 Title=x", "a.fwk: no record \"i43\""},
             {"update a.fwk Totals Title=x", "a.fwk: no record \"Totals\""},
             {"update a.fwk i1 Titel=x", "a.fwk: no column \"Titel\""},
             {"delete a.fwk i1 i43", "a.fwk: no record \"i43\""},
             {"delete a.fwk Totals", "a.fwk: no record \"Totals\""},
             {"duplicate a.fwk i0 1", "a.fwk: no record \"i0\""},
             {"duplicate a.fwk i1 40000", "a.fwk: Overflow: 40000"},
             {"add inv.fwk Qty=1@2@3@4@5@6@7@8@", "inv.fwk: the column \"Qty\" has 6 rows on the layout"},
             {"update inv.fwk i9 Customer=x", "inv.fwk: no record \"i9\""},
             {"delete inv.fwk Totals", "inv.fwk: no record \"Totals\""}});
}

TEST_F(Refusals, OneRecordMoreThanThereCanBe) {
    copyOf("packages-32000.fwk", "a.fwk");
    outputOf("duplicate a.fwk i7 767");
    EXPECT_EQ(info("a.fwk", "/records"), "32767");
    expectAll("", {{"add a.fwk Package=x", "a.fwk: Overflow: record keys"},
                   {"duplicate a.fwk i1 1", "a.fwk: Overflow: record keys"}});
    std::string all = "delete a.fwk";
    for (int i = 8; i <= 32767; ++i) all += " i" + std::to_string(i);
    outputOf(all);
    const std::string sums = rows("a.fwk");
    EXPECT_EQ(std::ranges::count(sums, '\n'), 8);
    outputOf("recalculate a.fwk");
    EXPECT_EQ(rows("a.fwk"), sums) << "what was taken from the sums is what they had been given";
}

} // namespace
