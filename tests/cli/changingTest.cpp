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
$ fwk expression shop.fwk LINE -> Price * Qty && $ fwk total shop.fwk Line Qty -> +[Totaled Cols]Qty|Line|
$ fwk serial shop.fwk No ' 40 ' -> ! Ferrowick: No's value ha... // ~[Increments]No,40|
$ fwk add shop.fwk name=Bolt Price=1234 Qty=3 -> i1 // ~[Increments]No,41|
~Bolt|$1,234.00|3|$3,702.00|41|TODAY| // +=|=|3|$3,702.00|=|=|
$ fwk add shop.fwk 'Name= Nut = þ@ ' PRICE=.255 Qty=7 No= Bought_on=1/2/99 -> i2
~ Nut = þ@ |$.26|7|$1.82|0|1/2/99| // +=|=|10|$3,703.82|=|=| && $ fwk add shop.fwk -> i3
~[Increments]No,42| // +|$.00|0|$.00|42|TODAY| && $ fwk update shop.fwk I2 Price=0.3 Name=
~|$.30|7|$2.10|0|1/2/99| // ~=|=|10|$3,704.10|=|=| && $ fwk duplicate shop.fwk i1 1.6
~Bolt|$1,234.00|3|$3,702.00|41|TODAY| // +Bolt|$1,234.00|3|$3,702.00|41|TODAY| // +=|=|16|$11,108.10|=|=|
$ fwk delete shop.fwk i2 i4 i2 -> -|$.30|7|$2.10|0|1/2/99| // ~=|=|6|$7,404.00|=|=| // -=|=|16|$11,108.10|=|=|
$ fwk sort shop.fwk price -> -Bolt|$1,234.00|3|$3,702.00|41|TODAY| // +Bolt|$1,234.00|3|$3,702.00|41|TODAY|
$ fwk sort shop.fwk Price --descending -> -|$.00|0|$.00|42|TODAY| // +|$.00|0|$.00|42|TODAY|
$ fwk recalculate shop.fwk && $ fwk total shop.fwk -> -[Totaled Cols]Qty|Line| // ~=|=|=|=|=|=|
)sh");
}

TEST_F(Changing, ColumnsAreRenamedAndRemoved) {
    make("a.fwk", DataFile("No:4 Price:2 Value:5", "1|$8.49|$16.98")
                      .objects("F|Price|1|2|3|4;L| PRICE |1|2|3|4;L|No|1|2|3|4")
                      .section("Formulas", "Value,Price * 2|"));
    expect(R"sh(
$ fwk column rename a.fwk price 'Cost of it' --labels -> ~F|Cost_of_it|1|2|3|4|False|False|False|Arial|10|0|
~L|Cost_of_it|1|2|3|4|False|False|False|Arial|10|0||0| // ~[Column Names]No|Cost_of_it|Value|
~[Formulas]Value,Cost_of_it * 2| && $ fwk column rename a.fwk No Num -> ~[Column Names]Num|Cost_of_it|Value|
$ fwk column add a.fwk a:b=c:text -> ~[Column Names]Num|Cost_of_it|Value|a:b=c| // ~[Column Types]4|2|5|3|
~1|$8.49|$16.98|| // ~=|=|=|| && $ fwk update a.fwk i1 a:b=c=d=e -> ~1|$8.49|$16.98|d=e|
$ fwk expression a.fwk Value '' -> ~[Formulas]Value,Undefined| // ~1|$8.49|Undefined|d=e| // ~=|=|=|=|
$ fwk expression a.fwk value -> Undefined && $ fwk column remove a.fwk cost_of_it --yes
-F|Cost_of_it|1|2|3|4|False|False|False|Arial|10|0| // ~[Column Names]Num|Value|a:b=c|
~[Column Types]4|5|3| // ~1|Undefined|d=e| // ~=|=|=|
)sh");
}

// A record that cannot be calculated is stored, as it is in the window. It holds up nothing that is done to
// all of them, nor a table of which it is a row.
TEST_F(Changing, OneThatCannotBeCalculated) {
    make("a.fwk", DataFile("A:4 B:4 Q:5", "7|2|3").section("Formulas", "Q,A / B|"));
    expect(R"sh(
$ fwk recalculate a.fwk -> ~7|2|$3.50| && $ fwk add a.fwk A=1 B=0 -> i2 // ! Ferrowick: An error has ...
+1|0|| && $ fwk total a.fwk A -> ! Ferrowick: An error has ... // ! Ferrowick: During a reca...
! i2 cannot be calculated (Division by zero) // +[Totaled Cols]A| // ~8|=|=|
$ printf 'A,B\n6,0\n8,4\n' | fwk import a.fwk /dev/stdin -> 2
! i3 is stored, but cannot be calculated (Division by zero) // ~6|0|| // +8|4|2| // +22|=|=|
$1 fwk expression a.fwk Q 'A / / B' -> ! Ferrowick: An error has ... // ! Ferrowick: During a reca...
! i1 cannot be calculated (Syntax error: 7//2) // ! i2 cannot be calculated (Syntax error: 1//0)
! i3 cannot be calculated (Syntax error: 6//0) // ! i4 cannot be calculated (Syntax error: 8//4)
! the calculation failed, so that nothing is saved
$ for n in 20 21; do cp a.fwk ../b; (echo A; yes 7 | head -$n) | fwk import ../b /dev/stdin 2>&1; done | grep more
fwk: ../b: and 1 more
)sh");
}

// What the layout cannot hold of an invoice is told, and stays while other cells are changed.
TEST_F(Changing, Invoices) {
    make("a.fwk", DataFile("No:4 Paid:2 Item Note Sum:5", "|100|a@b@c@||2;7|$1.00|Desk|x|2;8|$1.00|a@@@||2")
                      .objects("F|No|1|2|3|4;F|Paid|1|2|3|4;F|Item|1|2|3|4;F|Item|1|2|3|4;F|Sum|1|2|3|4")
                      .sections("DatabaseStyle=True;Formulas=Sum,Paid * 2|;Optioned Cols=No|;"
                                "Increments=No,8|;Totaled Cols=Sum|"));
    expect(R"sh(
$ fwk new empty.fwk --invoice Customer:Text Sum:Calculation -> @ empty.fwk // +data.dat:Main Data File:
+[Column Names]Customer|Sum| // +[Column Types]3|5| // +[DatabaseStyle]True // +=|=| && $1 fwk check a.fwk
i1 in "No": "" becomes "0" when the layout stores it
i1 in "Paid": "100" becomes "$1.00" when the layout stores it
i1 in "Item": "a@b@c@" becomes "a@b@" when the layout stores it
i2 in "Item": "Desk" becomes "" when the layout stores it // ! 4 findings
$ fwk add a.fwk Paid=150 Item=Bolt@ -> i4 // -[DatabaseStyle]True // -[Optioned Cols]No| // -[Increments]No,8|
+[Optioned Cols]No| // +[Increments]No,9| // +[DatabaseStyle]True // ~9|$1.50|Bolt@@||$3.00|
+=|=|=|=|$3.00| && $ fwk update a.fwk i1 No=5 -> ~5|100|a@b@c@||$200.00| // ~=|=|=|=|$201.00|
$ fwk update a.fwk i2 Item=Nut@Saw -> ~7|$1.00|Nut@Saw@|x|$2.00| && $1 fwk add a.fwk Item=1@2@3@
! the column "Item" has 2 rows on the layout && $1 fwk add a.fwk Note=x
! the column "Note" has no field on the layout
$ printf 'No,Paid,Item,Note,Sum\n,5,Bolt@Nut@,,7\n' | fwk import a.fwk /dev/stdin -> 1 // ~[Increments]No,10|
~0|$5.00|Bolt@Nut@||$10.00| // +=|=|=|=|$211.00|
$ printf 'Paid:Currency,Item:Text\n100,Nut@\n' | fwk import a.fwk /dev/stdin -> 1
~[Increments]No,11| // ~11|$100.00|Nut@@||$200.00| // +=|=|=|=|$411.00|
$1 printf 'Item,Note\nBolt,x' | fwk import a.fwk /dev/stdin -> ! the column "Note" has no field on the layout
)sh");
}

// Neither another name of the file nor the fact that it exists asks for --yes. A command that has changed the
// file is done even when its outcome cannot be printed: who runs it again would do its work twice.
TEST_F(Changing, CopiesLocksAndCleaning) {
    make("a.fwk", DataFile("Name No:4 Photo:7", "a|1|b.jpg;c|2|").section("Increments", "No,2|"),
         {"b.jpg", "old.jpg", "Name.JPG", "old.gif"});
    expect(R"sh(
$ fwk save-as a.fwk ../files/a.fwk && $ fwk save-as a.fwk copy.fwk -> @ copy.fwk
$1 fwk clone a.fwk copy.fwk -> ! copy.fwk: it exists already, --yes overwrites it
$ fwk clone a.fwk copy.fwk --yes -> @ copy.fwk // -b.jpg::bytes of b.jpg // -old.jpg::bytes of old.jpg
-Name.JPG::bytes of Name.JPG // -old.gif::bytes of old.gif // ~[Increments]No,0| // -a|1|b.jpg| // -c|2||
-=|=|=| && $1 echo x | fwk unlock a.fwk -> ! its design is not locked && $1 fwk lock a.fwk
! there is no password on standard input && $1 echo '  ' | fwk lock a.fwk
! there is no password on standard input && $1 printf '\377\n' | fwk lock a.fwk -> ! the password is not UTF-8
$ printf 'zc é\r\nmore\n' | fwk lock a.fwk -> ! Ferrowick: Database Locked. // +N
$1 echo x | fwk lock a.fwk -> ! its design is locked already && $1 printf 'ZC é' | fwk unlock a.fwk
! Ferrowick: Incorrect Pas... // ! its design stays locked && $ fwk add a.fwk Name=NAME.jpg > /dev/full
! saved, but standard output: No space left on device // ~[Increments]No,3| // +NAME.jpg|3||
$ printf 'zc é' | fwk unlock a.fwk --yes -> -N && $ fwk clean a.fwk -> old.jpg // -old.jpg::bytes of old.jpg
$1 fwk records a.fwk > /dev/full -> ! standard output: No space left on device
)sh");
}

// A limit on the size of files stands for a full disk.
TEST_F(Changing, AFailedSaveLeavesTheFileAsItWas) {
    copyOf("books.fwk", "a.fwk");
    EXPECT_EQ(run("cp a.fwk b.fwk; chmod 444 a.fwk; mkdir folder; ln -s loop.fwk loop.fwk; mkfifo pipe").code,
              0);
    expect(R"sh(
$1 fwk sort a.fwk Price -> ! Ferrowick: There was an ... // ! could not be saved: it is read-only
$1 ulimit -f 4; fwk sort b.fwk Price -> ! Ferrowick: There was an ...
! could not be saved: Device I/O error (File too large) && $1 fwk save-as b.fwk a.fwk/new.fwk
! Ferrowick: There was an ... // ! a.fwk/new.fwk: could not be saved: its folder does not exist
$1 fwk clone b.fwk folder --yes -> ! Ferrowick: There was an ...
! folder: could not be saved: it is a folder && $1 fwk clone b.fwk loop.fwk -> ! Ferrowick: There was an ...
! loop.fwk: could not be saved: its link leads nowhere && $1 fwk clone b.fwk pipe --yes
! Ferrowick: There was an ... // ! pipe: could not be saved: it is no ordinary file
)sh");
}

} // namespace
