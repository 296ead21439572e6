#include "fwkProgram.h"

namespace {

using Refusals = FwkTest;

TEST_F(Refusals, ChangeNothingAndSayWhy) {
    copyOf("books.fwk", "a.fwk");
    copyOf("invoices.fwk", "inv.fwk");
    make("locked.fwk", DataFile().section("Lock", "scrambled"));
    DataFile stale;
    stale.sections("Totaled Cols=Gone|;Formulas=Gone,Qty * 2|;Increments=Qty,x|");
    make("stale.fwk", stale);
    make("d.fwk", DataFile("Bought:1 Note", "01/05/2004|1/5/2004"));
    EXPECT_EQ(run("ln -s a.fwk link.fwk; ln -s a.fwk link.csv; mkdir folder").code, 0);
    expect(R"sh(
$2 fwk -> ! A command is required && $2 fwk nonsense a.fwk -> ! no command "nonsense" && $2 fwk new new.fwk A
! COLUMN: "A" is not of the form NAME:TYPE && $2 fwk new new.fwk A:Tex
! COLUMN: "Tex" is none of the types Text, Number, Currency, Date, Picture, Calculation
$2 fwk duplicate a.fwk i1 1,000 -> ! COPIES: "1,000" is no number of copies
$2 fwk add a.fwk --wait=-1 -> ! --wait: "-1" is no number of seconds && $2 fwk new n.fwk A:Text --wait nan
! --wait: "nan" is no number of seconds && $2 fwk import n.fwk t.csv --wait 5s -> ! --wait: "5s" is no number of seconds
$2 fwk search a.fwk --where Title like x
! --where: HOW is ge, le, is, within or range (which alone takes TO), not "like"
$2 fwk search a.fwk --where Title is x y -> ! --where: HOW is missing
$2 fwk search a.fwk --where Copies range 1 -> ! --where: TO is missing
$2 fwk search a.fwk --where A is 1 --where A is 1 --where A is 1 --where A is 1
! --where: there are three at most && $2 fwk search a.fwk --where Title is x --yes -> ! --yes requires -o
$2 fwk search a.fwk --where Title is --csv -> ! --where: VALUE is missing
$2 fwk search a.fwk --where Title is -x -y -> ! The following argument was not expected: -y
$1 fwk sort inv.fwk Prise -> ! no column "Prise" && $1 fwk records absent.fwk -> ! File not found
$1 fwk check folder -> ! Path/file access error: is not a file && $1 fwk new '' A:Text
! a database needs a file name && $1 fwk new new.fwk --invoice A:Picture
! an invoice database has no Picture columns && $1 fwk column add a.fwk '   :Text'
! Ferrowick: You must ente... // ! the column "   " is not added && $1 fwk column add a.fwk price:Text
! Key is not unique in collection: price && $1 fwk column add a.fwk 'A|B:Text'
! "A|B" holds a "|", which divides names and expressions in the file
$1 fwk column add a.fwk New:Text --auto -> ! only Date and Number columns have values of their own
$1 fwk column add locked.fwk A:Text -> ! Ferrowick: The database ... // ! its design is locked
$1 fwk column rename a.fwk Price ' ' -> ! the column "Price" keeps its name
$1 fwk column remove a.fwk Price -> ! ALL data in the column "Price" would be lost, --yes removes it
$1 fwk serial stale.fwk Qty x -> ! Ferrowick: You entered a... // ! the serial number of "Qty" is not set
$1 fwk serial a.fwk Price 1 -> ! the column "Price" has no serial numbers && $1 fwk expression a.fwk Price
! the column "Price" is no calculation column && $1 fwk expression a.fwk Va,lue 1
! the column "Va,lue" can have no expression: a comma divides names from expressions
$1 fwk total a.fwk Value Title -> ! the column "Title" cannot be totalled && $1 fwk recalculate stale.fwk
! Element not found: Gone && $1 fwk add a.fwk Title -> ! "Title" is not of the form NAME=VALUE
$1 fwk add a.fwk Titel=x=y -> ! no column "Titel" && $1 fwk add a.fwk Index=x -> ! no column "Index"
$1 fwk add a.fwk Title=x TITLE=y -> ! the column "Title" is named twice && $1 fwk add a.fwk Value=1
! the column "Value" is calculated and takes no value && $1 fwk add a.fwk "$(printf 'Title=x\r\ny')"
! "x  y" is more than one line && $1 fwk add a.fwk "$(printf 'Title=\377x')" -> ! "�x" is not UTF-8
$1 fwk add a.fwk Cover=absent.jpg -> ! it has no image "absent.jpg" && $1 fwk delete a.fwk i1 i43
! no record "i43" && $1 fwk delete a.fwk Totals -> ! no record "Totals" && $1 fwk duplicate a.fwk i1 40000
! Overflow: 40000 && $1 fwk search inv.fwk --where Item is x -> ! the view on show has no column "Item"
$1 fwk search d.fwk --where Bought range 1/1/2004 soon -> ! "soon" is no date for the column "Bought"
$1 fwk search d.fwk --where Note ge soon -> ! Type mismatch: "SOON" is no date
$1 fwk search a.fwk --where Title is x -o link.fwk --yes -> ! Ferrowick: You cannot sa...
! link.fwk: is the database that was searched && $1 fwk replace inv.fwk a b -> ! Ferrowick: This feature ...
! words have not been replaced && $1 fwk export a.fwk -o t.txt -> ! t.txt: a table is a .csv or a .json file, or a .tsv, .xlsx, .ods, .sqlite, .html or .vcf one
$1 fwk export a.fwk -o no/t.csv -> ! no/t.csv: could not be written: File not found: no/t.csv
$1 fwk export a.fwk -o link.csv -> ! link.csv: is the database itself
$ cp $(which fwk) $HOME/tmp/x; $HOME/tmp/x report a.fwk -o a.pdf; rm $HOME/tmp/x
! this fwk cannot print: fwk-print is not installed
)sh");
}

} // namespace
