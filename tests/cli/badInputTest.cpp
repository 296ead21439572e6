#include "fwkProgram.h"

namespace {

using BadInput = FwkTest;

TEST_F(BadInput, IsRefusedAndStaysAsItIs) {
    DataFile rows, types, utf8;
    for (int i = 0; i < 40'000; ++i) rows.rows += "a|1|2|\r\n";
    make("rows.fwk", rows);
    types.types = "3|4|";
    make("types.fwk", types);
    make("good.fwk", DataFile());
    utf8.layout = "\xFF\r\n";
    std::filesystem::rename(
        program.make("bad", "\xEF\xBB\xBF" + utf8.text(), {"aa.jpg", "bb.jpg", "c_c.jpg", "dd.jpg"}),
        path("bad.fwk"));
    // A name twice, a folder in a name, and a wrong checksum in the directory at the end.
    const char* damage = "export LC_ALL=C; touch empty.fwk; head -c -1 good.fwk > cut.fwk;"
                         "sed -i 's/bb.jpg/aa.jpg/g; s,c_c.jpg,c/c.jpg,g' bad.fwk;"
                         "printf 12 | dd of=bad.fwk conv=notrunc bs=1 seek=$(($(wc -c < bad.fwk) - 58));"
                         "sed s/data.dat/Data.dat/g bad.fwk > noData.fwk";
    EXPECT_EQ(run(damage).code, 0);
    expect(R"sh(
$1 for f in cut empty noData rows types; do fwk info $f.fwk; done
! cut.fwk: Invalid file format (Not a zip archive) // ! empty.fwk: Invalid file format: is empty
! noData.fwk: File not found: data.dat is not in the archive // ! rows.fwk: it has more than 32767 records
! types.fwk: Subscript out of range: column Price && $1 fwk check noData.fwk -> entry "aa.jpg" is there twice
entry "c/c.jpg" has a name that is never unpacked // entry "dd.jpg" is damaged, or too large
! File not found: data.dat is not in the archive && $1 fwk check bad.fwk -> entry "aa.jpg" is there twice
entry "c/c.jpg" has a name that is never unpacked // entry "dd.jpg" is damaged, or too large
data.dat has bytes that are no UTF-8 // line 2: unknown layout line // nothing names the image "aa.jpg"
nothing names the image "c/c.jpg" // nothing names the image "dd.jpg" // ! 8 findings
)sh");
}

TEST_F(BadInput, CheckNamesWhatIsWrong) {
    DataFile endless, lengths, order, twice, whole("Name Qty:4 Price:5 Photo:7", "a|1|2|");
    whole.sections("Totaled Cols=Qty|;Formulas=Price,Qty * ( 2.5 + 1E3 )|Qty,Undefined|;"
                   "Locks=tLabel,1|pbLine,1|vLine,1|pBox,1|imgHolder,1|clipPic,1|layoutField,1|");
    whole.objects("F|Qty|1|1|1|1;L|x|1|1|1|1;LN|1|1|1|1|0|;VLN|1|1|1|1|0|;B|1|1|1|1|0|1|;"
                  "P|Photo|1|1|1|1|;C|a.jpg|1|1|1|1|");
    make("whole.fwk", whole, {"a.jpg"});
    DataFile names("Name Qty:4 Price:9 Photo:7", "a|1|2|in.jpg;b|1|2|lost.jpg@in.jpg@lost.jpg");
    names.objects("F|Gone|1|1|1|1;P|Name|1|1|1|1|;C|absent.gif|1|1|1|1|;Z|1");
    names.sections(
        "Totaled Cols=Sum|;Printed Cols=Nme|;PrnInvoiceCols=A|;PrnItemCols=Index|;Increments=No,4|;"
        "Optioned Cols=Day|;Formulas=Qty,Price * Pieces|Value,Undefined|;"
        "Locks=pBox,1|imgHolder,2|clipPic,0|x,1|layoutField|clipPic,99999999999|");
    make("names.fwk", names, {"in.jpg", "orphan.jpg"});
    twice.types = "3|4|2|3|";
    twice.widths = "1|1|1|1|1|";
    twice.spots = "1|2|";
    make("twice.fwk", twice.section("Column Names", "Name|Qty|Price|"));
    order.widths = "1440|1e9|-1|";
    order.spots = "1|2|2|4|";
    order.rows += "last|1|2|\r\n";
    make("order.fwk", order);
    lengths.rows = "a|1|\r\nb|1|2|3|\r\nc|1|2\r\n------|------|Undefined|\r\n";
    make("lengths.fwk", lengths);
    for (int i = 0; i < 20'000; ++i) endless.rows += "a|\r\n";
    make("endless.fwk", endless);
    expect(R"sh(
$ fwk check whole.fwk && $1 fwk check names.fwk -> line 5: unknown layout line
column "Price" has the unknown type "9" // totaledCols names "Sum", which is no column
optionedCols names "Day", which is no column // printedCols names "Nme", which is no column
prnInvoiceCols names "A", which is no column // prnItemCols names "Index", which is no column
a serial counter names "No", which is no column // the formula of "Qty" names "Pieces", which is no column
a formula names "Value", which is no column // layoutField 1 names "Gone", which is no column
imgHolder 1 names "Name", which is no Picture column
clipPic 1 names the image "absent.gif", which is not in the archive
a lock names "pBox,1", which is not on the layout // a lock names "imgHolder,2", which is not on the layout
a lock names "clipPic,0", which is not on the layout // a lock names "x,1", which is not on the layout
a lock names "layoutField", which is not on the layout
a lock names "clipPic,99999999999", which is not on the layout
i2 in "Photo" names the image "lost.jpg", which is not in the archive // nothing names the image "orphan.jpg"
! 21 findings && $1 fwk check twice.fwk -> line 8: section [Column Names] is there twice
section [Column Types] has 4 elements in place of 3 // section [Column Widths] has 5 elements in place of 3
section [Column Spots] has 2 elements in place of 4 // ! 4 findings && $1 fwk check order.fwk
the width "1e9" of a column is out of range // the width "-1" of a column is out of range
section [Column Spots] is no order of the columns // the last row is no Totals row: it has "last" in "Name"
! 4 findings && $1 fwk check lengths.fwk -> line 9: row with too few cells // line 10: row with too many cells
line 11: row with too few cells // line 11: row without a separator at its end // ! 4 findings
$ fwk check endless.fwk 2>&1 | tail -2 -> and 19001 more // fwk: endless.fwk: 20001 findings
)sh");
}

// Texts that would take many times their sizes in memory.
TEST_F(BadInput, ABombIsRefusedWithinBounds) {
    DataFile elements, objects;
    for (int i = 0; i < 640'000; ++i) objects.layout += "F||0|0|0|0|0|0|0||0|0|\r\n";
    make("objects.fwk", objects);
    make("elements.fwk", elements.section("InvoiceCols", std::string(16'000'000, '|')));
    for (const std::string name : {"elements.fwk", "objects.fwk"}) {
        const Outcome outcome = run("timeout 60 fwk info " + name);
        EXPECT_EQ(outcome.code, 1) << name << outcome.err;
        EXPECT_LT(outcome.maxKilobytes, 300'000) << name;
    }
}

} // namespace
