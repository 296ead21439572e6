#include "fwkProgram.h"

namespace {

using Changing = FwkTest;

TEST_F(Changing, FromNothingToSumsThatAreRightToTheCent) {
    expect(R"sh(
$ fwk new shop.fwk Name:Text Price:currency Qty:NUMBER Line:Calculation -> @ shop.fwk
+data.dat:Main Data File: // +[Column Names]Name|Price|Qty|Line| // +[Column Types]3|2|4|5| // +=|=|=|=|
$ fwk column add shop.fwk No:Number --auto -> ~[Column Names]Name|Price|Qty|Line|No|
~[Column Types]3|2|4|5|4| // ~[Optioned Cols]No| // +[Increments]No,0| // +=|=|=|=||
$ fwk column add shop.fwk 'Bought on:Date' --auto -> ~[Column Names]Name|Price|Qty|Line|No|Bought_on|
~[Column Types]3|2|4|5|4|1| // ~[Optioned Cols]No|Bought_on| // ~=|=|=|=|||
$ fwk expression shop.fwk line 'Price * Qty ' -> +[Formulas]Line,Price * Qty| // ~=|=|=|=|=|=|
$ fwk expression shop.fwk LINE -> Price * Qty && $ fwk total shop.fwk Line Qty No
+[Totaled Cols]Qty|Line|No| && $ fwk serial shop.fwk No ' 40 ' -> ! Ferrowick: No's value ha...
~[Increments]No,40| && $ fwk add shop.fwk Name=Bolt Price=1234 Qty=3 -> i1 // ~[Increments]No,41|
~Bolt|$1,234.00|3|$3,702.00|41|TODAY| // +=|=|3|$3,702.00|$41.00|=|
$ fwk add shop.fwk name=Nut PRICE=.255 Qty=7 -> i2 // ~[Increments]No,42| // ~Nut|$.26|7|$1.82|42|TODAY|
+=|=|10|$3,703.82|$83.00|=| && $ fwk add shop.fwk Name=Saw 'Price=(10.50)' Qty=2 No=100 Bought_on=1/2/99 -> i3
~[Increments]No,43| // ~Saw|-$10.50|2|-$21.00|100|1/2/99| // +=|=|12|$3,682.82|$183.00|=|
$ fwk add shop.fwk -> i4 // ~[Increments]No,44| // ~|$.00|0|$.00|44|TODAY| // +=|=|12|$3,682.82|$227.00|=|
# An empty box draws no serial number, and one of the user's own moves the counter by one.
$ fwk add shop.fwk 'Name= Rope = þ@ ' 'Price=$1,000.5' Qty=1e1 No= Bought_on= -> i5
~ Rope = þ@ |$1,000.50|1e1|$10,005.00|0|| // +=|=|22|$13,687.82|$227.00|=|
$ fwk update shop.fwk i1 Qty=4 Name= -> ~|$1,234.00|4|$4,936.00|41|TODAY| // ~=|=|23|$14,921.82|$227.00|=|
$ fwk update shop.fwk I2 Price=0.3 -> ~Nut|$.30|7|$2.10|42|TODAY| // ~=|=|23|$14,922.10|$227.00|=|
$ fwk delete shop.fwk i5 i3 i5 -> -Saw|-$10.50|2|-$21.00|100|1/2/99| // ~=|=|11|$4,938.10|$127.00|=|
-=|=|23|$14,922.10|$227.00|=| && $ fwk duplicate shop.fwk i2 1.6 -> ~Nut|$.30|7|$2.10|42|TODAY|
+Nut|$.30|7|$2.10|42|TODAY| // +=|=|25|$4,942.30|$211.00|=|
# The sums that were kept in step are the sums of all records.
$ fwk recalculate shop.fwk && $ fwk total shop.fwk -> -[Totaled Cols]Qty|Line|No| // ~=|=|=|=|=|=|
)sh");
}

TEST_F(Changing, ColumnsAreRenamedAndRemovedWithWhatHangsOnThem) {
    make("a.fwk",
         DataFile("No:4 Title Price:2 Copies:4 Value:5 Odd:5", "1|Emma|$8.49|2|$16.98|3")
             .objects("F|Price|1|2|3|4;L| PRICE |1|2|3|4;L|Price:|1|2|3|4;L|Title|1|2|3|4")
             .sections("Printed Cols=Price|No|;PrnInvoiceCols=Price|;Totaled Cols=Copies|Value|;"
                       "Formulas=Value,Price * Copies|Odd,No + 2|;Optioned Cols=No|;Increments=No,41|"));
    expect(R"sh(
$ fwk column rename a.fwk Price 'Cost of it' --labels -> ~F|Cost_of_it|1|2|3|4|False|False|False|Arial|10|0|
~L|Cost_of_it|1|2|3|4|False|False|False|Arial|10|0||0| // ~[Column Names]No|Title|Cost_of_it|Copies|Value|Odd|
~[Printed Cols]Cost_of_it|No| // ~[PrnInvoiceCols]Cost_of_it|
+[Formulas]Value,Cost_of_it * Copies|Odd,No + 2| // -[Formulas]Value,Price * Copies|Odd,No + 2|
$ fwk column rename a.fwk title Name -> ~[Column Names]No|Name|Cost_of_it|Copies|Value|Odd|
$ fwk column rename a.fwk No Num -> ~[Column Names]Num|Name|Cost_of_it|Copies|Value|Odd|
~[Printed Cols]Cost_of_it|Num| // ~[Formulas]Value,Cost_of_it * Copies|Odd,Num + 2| // ~[Optioned Cols]Num|
~[Increments]Num,0| && $ fwk column add a.fwk a:b=c:text
~[Column Names]Num|Name|Cost_of_it|Copies|Value|Odd|a:b=c| // ~[Column Types]4|3|2|4|5|5|3|
~1|Emma|$8.49|2|$16.98|3|| // ~=|=|=|=|=|=|| && $ fwk update a.fwk i1 a:b=c=d=e
~1|Emma|$8.49|2|$16.98|3|d=e| // ~=|=|=|0|$.00|=|| && $ fwk expression a.fwk Odd ''
~[Formulas]Value,Cost_of_it * Copies|Odd,Undefined| // ~1|Emma|$8.49|2|$16.98|Undefined|d=e|
~=|=|=|2|$16.98|=|=| && $ fwk expression a.fwk odd -> Undefined && $ fwk column remove a.fwk cost_of_it --yes
-F|Cost_of_it|1|2|3|4|False|False|False|Arial|10|0| // ~[Column Names]Num|Name|Copies|Value|Odd|a:b=c|
~[Column Types]4|3|4|5|5|3| // ~[Formulas]Odd,Undefined| // ~1|Emma|2|Undefined|Undefined|d=e|
~=|=|2|Undefined|=|=|
)sh");
}

// A record that cannot be calculated is stored, as it is in the window. It holds up nothing that is done to
// all of them, nor a table of which it is a row.
TEST_F(Changing, OneThatCannotBeCalculated) {
    make("a.fwk", DataFile("A:4 B:4 Q:5", "7|2|3;6|3|2").section("Formulas", "Q,A / B|"));
    expect(R"sh(
$ fwk recalculate a.fwk -> ~7|2|$3.50| && $ fwk add a.fwk A=1 B=0 -> i3 // ! Ferrowick: An error has ...
+1|0|| && $ fwk total a.fwk A -> ! Ferrowick: An error has ... // ! Ferrowick: During a reca...
! i3 cannot be calculated (Division by zero) // +[Totaled Cols]A| // ~14|=|=|
$ printf 'A,B\n6,0\n8,4\n' | fwk import a.fwk /dev/stdin -> 2
! i4 is stored, but cannot be calculated (Division by zero) // ~6|0|| // +8|4|2| // +28|=|=|
$ fwk expression a.fwk Q 'B / ( A - 7 )' -> ! Ferrowick: An error has ... // ! Ferrowick: During a reca...
! i1 cannot be calculated (Division by zero) // ~[Formulas]Q,B / ( A - 7 )| // ~6|3|-3| // ~1|0|0| // ~6|0|0|
~8|4|4| && $1 fwk expression a.fwk Q 'A / / B' -> ! Ferrowick: An error has ...
! Ferrowick: During a reca... // ! i1 cannot be calculated (Syntax error: 7//2)
! i2 cannot be calculated (Syntax error: 6//3) // ! i3 cannot be calculated (Syntax error: 1//0)
! i4 cannot be calculated (Syntax error: 6//0) // ! i5 cannot be calculated (Syntax error: 8//4)
! the calculation failed, so that nothing is saved
)sh");
    EXPECT_EQ(run("(echo A,B; yes 7,1 | head -22) | fwk import a.fwk /dev/stdin 2>&1 | tail -3").out,
              "fwk: a.fwk: i25 is stored, but cannot be calculated (Division by zero)\nfwk: a.fwk: and 2 "
              "more\n22\n");
}

// An amount without a point has its cents as the last two digits; sums and totals follow. Cells that the
// layout cannot hold are told, and stay while others are changed.
TEST_F(Changing, Invoices) {
    copyOf("invoices.fwk", "a.fwk");
    make("odd.fwk", DataFile("No:4 Paid:2 Item Note", "|100|a@b@c@|;7|$1.00|Desk|x;8|$1.00|a@@@|")
                        .objects("F|No|1|2|3|4;F|Paid|1|2|3|4;F|Item|1|2|3|4;F|Item|1|2|3|4;F|Note|1|2|3|4")
                        .section("DatabaseStyle", "True"));
    expect(R"sh(
$ fwk new empty.fwk --invoice Customer:Text Sum:Calculation -> @ empty.fwk // +data.dat:Main Data File:
+[Column Names]Customer|Sum| // +[Column Types]3|5| // +[DatabaseStyle]True // +=|=|
$ fwk recalculate a.fwk && $ fwk add a.fwk Customer=Ann Item=Bolt@Nut@ Qty=2@3@ Price=150@2.5@ -> i5
~[Increments]Invoice_No,5|
~5|Ann|TODAY|Bolt@Nut@@@@@|2@3@@@@@|$1.50@$2.50@@@@@|$3.00@$7.50@$.00@$.00@$.00@$.00@|$10.50|$.84|$11.34|
+=|=|=|=|=|=|=|=|=|$62.37| && $ fwk update a.fwk i5 Qty=4@
~5|Ann|TODAY|Bolt@Nut@@@@@|4@@@@@@|$1.50@$2.50@@@@@|$6.00@$.00@$.00@$.00@$.00@$.00@|$6.00|$.48|$6.48|
~=|=|=|=|=|=|=|=|=|$57.51| && $ fwk duplicate a.fwk i5 1
~5|Ann|TODAY|Bolt@Nut@@@@@|4@@@@@@|$1.50@$2.50@@@@@|$6.00@$.00@$.00@$.00@$.00@$.00@|$6.00|$.48|$6.48|
+=|=|=|=|=|=|=|=|=|$63.99| && $ fwk delete a.fwk i5 i1 i6
-1|Ærø Maskiner|01/15/2004|Bolt M8@Nut M8@Washer@@@@|2@3@10@@@@|$1.50@$2.00@$.05@@@@|$3.00@$6.00@$.50@$.00@$.00@$.00@|$9.50|$.76|$10.26|
~=|=|=|=|=|=|=|=|=|$40.77|
-5|Ann|TODAY|Bolt@Nut@@@@@|4@@@@@@|$1.50@$2.50@@@@@|$6.00@$.00@$.00@$.00@$.00@$.00@|$6.00|$.48|$6.48|
-=|=|=|=|=|=|=|=|=|$63.99| && $ fwk recalculate a.fwk && $1 fwk check odd.fwk
i1 in "No": "" becomes "0" when the layout stores it
i1 in "Paid": "100" becomes "$1.00" when the layout stores it
i1 in "Item": "a@b@c@" becomes "a@b@" when the layout stores it
i2 in "Item": "Desk" becomes "" when the layout stores it // ! 4 findings && $ fwk update odd.fwk i1 Note=y
~|100|a@b@c@|y| && $ fwk update odd.fwk i2 Note=z -> ~7|$1.00|Desk|z|
)sh");
}

// Equal cells keep their order, and numbers sort as padded texts.
TEST_F(Changing, Sorting) {
    make("a.fwk",
         DataFile("Name Qty:4 Day:1", "b|9|01/02/2001;A|10|02/01/2000;c|-3|01/01/2001;a|10|12/31/1999"));
    expect(R"sh(
$ fwk sort a.fwk Name -> -b|9|01/02/2001| // -c|-3|01/01/2001| // +b|9|01/02/2001| // +c|-3|01/01/2001|
$ fwk sort a.fwk name --descending -> +c|-3|01/01/2001| // +b|9|01/02/2001| // -b|9|01/02/2001|
-c|-3|01/01/2001| && $ fwk sort a.fwk Qty -> -c|-3|01/01/2001| // +c|-3|01/01/2001| && $ fwk sort a.fwk Day
-b|9|01/02/2001| // -c|-3|01/01/2001| // -A|10|02/01/2000| // +A|10|02/01/2000| // +c|-3|01/01/2001|
+b|9|01/02/2001| && $ fwk sort a.fwk Day
)sh");
}

// Neither another name of the file nor the fact that it exists asks for --yes.
TEST_F(Changing, CopiesLocksAndCleaning) {
    make("a.fwk", DataFile("Name No:4 Photo:7", "a|1|b.jpg;c|2|").section("Increments", "No,2|"),
         {"b.jpg", "old.jpg", "Name.JPG", "old.gif"});
    expect(R"sh(
$ fwk save-as a.fwk ../files/a.fwk && $ fwk save-as a.fwk copy.fwk -> @ copy.fwk
$1 fwk save-as a.fwk copy.fwk -> ! copy.fwk: it exists already, --yes overwrites it
$ fwk clone a.fwk clone.fwk -> @ clone.fwk // -b.jpg::bytes of b.jpg // -old.jpg::bytes of old.jpg
-Name.JPG::bytes of Name.JPG // -old.gif::bytes of old.gif // ~[Increments]No,0| // -a|1|b.jpg| // -c|2||
-=|=|=| && $1 echo x | fwk unlock a.fwk -> ! its design is not locked && $1 fwk lock a.fwk
! there is no password on standard input && $1 echo '  ' | fwk lock a.fwk
! there is no password on standard input && $1 printf '\377\n' | fwk lock a.fwk -> ! the password is not UTF-8
$ printf 'zc é\r\nmore\n' | fwk lock a.fwk -> ! Ferrowick: Database Locked. // +N
$1 echo x | fwk lock a.fwk -> ! its design is locked already && $1 printf 'ZC é' | fwk unlock a.fwk
! Ferrowick: Incorrect Pas... // ! its design stays locked && $ fwk add a.fwk Name=d -> i3
~[Increments]No,3| // +d|3|| && $ printf 'zc é' | fwk unlock a.fwk --yes -> -N
$ fwk update a.fwk i1 Name=name.jpg -> ~name.jpg|1|b.jpg| && $ fwk clean a.fwk -> old.jpg
-old.jpg::bytes of old.jpg && $ fwk clean a.fwk
)sh");
}

// A command that has changed the file is done all the same: who runs it again would do its work twice.
TEST_F(Changing, AFullOutputIsAFailureOfReadingAlone) {
    make("a.fwk", DataFile("Name", "a;b"), {"old.jpg"});
    expect(R"sh(
$1 fwk records a.fwk --csv > /dev/full -> ! standard output: No space left on device
$ fwk add a.fwk Name=c > /dev/full -> ! saved, but standard output: No space left on device // +c|
$ fwk replace a.fwk b d > /dev/full -> ! saved, but standard output: No space left on device // ~d|
$ fwk clean a.fwk > /dev/full -> ! saved, but standard output: No space left on device
-old.jpg::bytes of old.jpg
)sh");
}

// A limit on the size of files stands for a full disk.
TEST_F(Changing, AFailedSaveLeavesTheFileAsItWas) {
    copyOf("books.fwk", "a.fwk");
    copyOf("books.fwk", "b.fwk");
    EXPECT_EQ(run("chmod 444 a.fwk; mkdir folder; ln -s loop.fwk loop.fwk; mkfifo pipe").code, 0);
    expect(R"sh(
$1 fwk sort a.fwk Price -> ! Ferrowick: There was an ... // ! could not be saved: it is read-only
$1 ulimit -f 4; fwk sort b.fwk Price -> ! Ferrowick: There was an ...
! could not be saved: Device I/O error (File too large) && $1 ulimit -f 20; fwk sort b.fwk Price
! Ferrowick: There was an ... // ! could not be saved: Device I/O error (File too large)
$1 fwk new no/a.fwk A:Text -> ! Ferrowick: There was an ... // ! could not be saved: its folder does not exist
$1 fwk save-as b.fwk a.fwk/new.fwk -> ! Ferrowick: There was an ...
! a.fwk/new.fwk: could not be saved: its folder does not exist && $1 fwk clone b.fwk folder --yes
! Ferrowick: There was an ... // ! folder: could not be saved: it is a folder && $1 fwk clone b.fwk loop.fwk
! Ferrowick: There was an ... // ! loop.fwk: could not be saved: its link leads nowhere
$1 fwk clone b.fwk pipe --yes -> ! Ferrowick: There was an ...
! pipe: could not be saved: it is no ordinary file
)sh");
}

TEST_F(Changing, OneMoreRecordThanThereCanBe) {
    copyOf("packages-32000.fwk", "a.fwk");
    EXPECT_EQ(run("fwk duplicate a.fwk i7 767").code, 0);
    expect(R"sh(
$1 fwk add a.fwk Package=x -> ! Overflow: record keys && $1 fwk duplicate a.fwk i1 1
! Overflow: record keys && $1 printf 'Package\nx\n' | fwk import a.fwk /dev/stdin
! it would have 32768 records, 32767 is the most
)sh");
}

} // namespace
