#include "fwkProgram.h"

namespace {

// Other programs tell what is in a PDF file. The last bytes are written when all has been drawn, and a
// refusal leaves the old file.
using Printing = FwkTest;

TEST_F(Printing, ReportsAndLayouts) {
    if (run("pdfinfo -v").code != 0) GTEST_SKIP() << "poppler-utils is not installed";
    if (run("which fwk-print").code != 0) GTEST_SKIP() << "this build does not print";
    copyOf("books.fwk", "books.fwk");
    copyOf("invoices.fwk", "inv.fwk");
    make("a.fwk", DataFile("Name Qty:4 Price:2", "Bolt and washer|12|$1.50;Nut|7|$.25")
                      .objects("F|Name|1440|1440|4000|400;L|Label|1440|1900|2000|400")
                      .section("Report Data", "1|1|1|1|1|1|Stock|True|"));
    make("wide.fwk", DataFile("Name", "a").objects("F|Name|1440|1440|12000|1000"));
    make("odd.fwk", DataFile("Name", "a").section("Report Data", "1|1|1|1|300|1|Odd|True|"));
    make("none.fwk", DataFile("Name"));
    std::string rows;
    for (int i = 1; i <= 66; ++i)
        rows += "n" + std::to_string(i) + "|.5|" + (i % 2 == 0 ? "02/03/2024;" : "01/31/2024;");
    make("long.fwk", DataFile("Name Qty:4 Day:1", rows)
                         .section("Totaled Cols", "Qty|")
                         .section("Report Data", "1|1|1|1|1|1|Long|True|"));
    EXPECT_EQ(run("ln -s a.fwk link.fwk").code, 0);
    expect(R"sh(
$ fwk report a.fwk -o a.pdf; pdftotext -layout a.pdf - | xargs
Stock Name Qty Price Bolt and 12 $1.50 Nut 7 $.25 ------ ------ ------
! Too narrow for the longest text: Name (9 of 15 characters). Use --widen to print them whole. // @ a.pdf
$ fwk report a.fwk -o a.pdf --columns PRICE,Name --title '' --widen; pdftotext -layout a.pdf - | xargs
Name Price Bolt and washer $1.50 Nut $.25 ------ ------ // @ a.pdf
$ fwk report long.fwk -o a.pdf --heads --page-numbers --sheet-totals --group-by day:MONTH --columns Name,Qty
@ a.pdf && $ pdftotext -layout -f 2 a.pdf - | xargs | sed 's/n34.* n66/n34 ... n66/'
Long Name Qty Brought forward 24.5 Day: 2024-02 (continued) n34 ... n66 .5 33 records 16.5 ------ ------ 2 of 2
$ fwk report long.fwk -o a.pdf --date --widen; pdftotext -layout -f 2 a.pdf - | xargs | sed 's/n57.* n66/n57 ... n66/'
n57 ... n66 .5 02/03/2024 ------ ------ ------ TODAY // @ a.pdf
$1 fwk report long.fwk -o a.pdf --group-by Qty:month -> ! "month" is no step of the column "Qty": a number above 0
$1 fwk report inv.fwk -o a.pdf --group-by Item -> ! the report does not show the column "Item"
$ fwk report inv.fwk -o a.pdf; pdftotext -layout a.pdf - | head -5 | xargs
Invoices Invoice_No Customer Day Subtotal Tax Total 1 Ærø Maskiner 01/15/20 $9.50 $.76 $10.26
! Too narrow for the longest text: Invoice_No (8 of 10 characters), Day (8 of 10 characters). Use --widen to print them whole.
@ a.pdf
$ fwk layouts a.fwk -o a.pdf --records i2,i1; pdftotext -layout a.pdf - | xargs; pdfinfo a.pdf | grep Pages
Nut Label Bolt and washer Label // Pages:           2 // @ a.pdf
$ fwk layouts a.fwk -o a.pdf --many; pdftotext -layout a.pdf - | xargs; pdfinfo a.pdf | grep Pages
Bolt and washer Nut Label Label // Pages:           1 // @ a.pdf
$ fwk layouts a.fwk -o a.pdf --many --records i2; pdftotext -layout a.pdf - | xargs -> Nut Label // @ a.pdf
$ fwk report a.fwk -o a.pdf --paper a4; pdfinfo a.pdf | grep Page.size -> Page size:       595 x 842 pts (A4)
! Too narrow for the longest text: Name (9 of 15 characters). Use --widen to print them whole. // @ a.pdf
$ fwk layouts a.fwk -o a.pdf --paper A5; pdfinfo a.pdf | grep Page.size; fwk info a.fwk --json | grep -c PaperSize.*1,
Page size:       420 x 595 pts (A5) // 2 // @ a.pdf
$ fwk report odd.fwk -o a.pdf; pdfinfo a.pdf | grep Page.size -> Page size:       612 x 792 pts (letter)
! the paper with the code 300 is not known: it is printed on Letter // @ a.pdf
$ fwk report a.fwk -o a.pdf --paper Pizza 2>&1 | head -1 | cut -c 1-62
fwk: --paper: "Pizza" is none of the papers: Letter, Letter sm
$ LC_ALL=de_DE fwk new de.fwk A:Text; fwk info de.fwk --json | grep -c PaperSize.*9,; rm de.fwk -> 2
$ fwk layouts wide.fwk -o a.pdf; pdftotext a.pdf - | xargs -> a // @ a.pdf
$ fwk layouts books.fwk -o a.pdf --records i1; pdfimages -list a.pdf | grep -c ' image ' -> 2 // @ a.pdf
$ fwk report a.fwk -o a.pdf; grep -aoE '<00(09|20)>' a.pdf | sort -u -> <0020>
! Too narrow for the longest text: Name (9 of 15 characters). Use --widen to print them whole. // @ a.pdf
$ fwk layouts inv.fwk -o a.pdf; pdftotext -layout -l 1 a.pdf - | xargs | cut -c 1-99
INVOICE 1 01/15/2004 Ærø Maskiner Item Qty Price Line Bolt M8 2 $1.50 $3.00 Nut M8 3 $2.00 $6.00  // @ a.pdf
$ fwk thumbnail a.fwk -o a.png --size 64; od -An -tu1 -j16 -N4 a.png | xargs; rm a.png -> 0 0 0 64
$1 fwk thumbnail none.fwk -o b.png -> ! b.png: could not be written: nothing stands on its layout
$ head -c 300 books.fwk >b; fwk thumbnail b -o b.png; echo $? b.p*; rm b -> 1 b.p*
! b: Invalid file format (Not a zip archive)
$1 fwk report absent.fwk -o a.pdf -> ! File not found && $1 fwk report a.fwk -o a.pdf --columns Prise
! no column "Prise" && $1 fwk report inv.fwk -o a.pdf --columns Total,Item
! the report does not show the column "Item" && $1 fwk layouts a.fwk -o a.pdf --records i1,i99
! no record "i99" && $1 fwk layouts a.fwk -o a.pdf --records Totals -> ! no record "Totals"
$1 fwk layouts none.fwk -o a.pdf -> ! there are no records && $1 fwk layouts inv.fwk -o a.pdf --many
! invoices print one to a page only && $1 fwk layouts wide.fwk -o a.pdf --many
! Ferrowick: The layout is... // ! no layout fits on a sheet && $1 fwk report a.fwk -o no/a.pdf
! no/a.pdf: File not found: no/a.pdf && $1 fwk report a.fwk -o link.fwk -> ! link.fwk: is the database itself
$ fwk labels avery l7163 --csv -> maker,number,kind,paper,shape,columns,rows,width,height,left,top,columnPitch,rowPitch
Avery,L7163,Address labels,A4,rounded,2,7,99.1,38.1,4.65,15.15,101.6,38.1
$ fwk labels 1 x 2 5/8 in --json | grep -A7 '"5160"' | tail -4 | xargs -> columns: 3, rows: 10, width: 66.675, height: 25.4,
$ fwk labels 5160 | sed -n 3p | xargs -> Avery 5160 Address labels Letter rounded 3 10 66.675 25.4 4.762 12.7 69.85 25.4
$ fwk labels no such && $2 fwk labels --csv --json -> ! --json excludes --csv
$ fwk labels a.fwk --stock 'Avery L7163' --pdf a.pdf --start 14 --copies Qty --columns 'No {Name}'; pdfinfo a.pdf | grep Pages
Pages:           3 // @ a.pdf
$ pdftotext -l 1 a.pdf - | xargs -> No Bolt and washer
$1 fwk labels a.fwk --stock 'Nobody 1' --pdf a.pdf -> ! --stock Nobody 1: no such stock; fwk labels TEXT lists them
$1 fwk labels a.fwk --stock avery --pdf a.pdf -> ! --stock avery: 373 stocks are called so; give maker and number
$1 fwk labels a.fwk --stock 'avery l7163' --pdf a.pdf --paper letter -> ! --stock avery l7163: it is not on letter, but on A4
$ fwk labels l7163 --paper Letter && fwk labels l7163 --paper B9 2>&1 | sed -n '1s/ Letter,.*//p' -> fwk: --paper: "B9" is none of the papers:
$1 fwk labels a.fwk --stock 'avery l7163' --pdf a.pdf --start 15 -> ! --start: the sheet has labels 1 to 14
$1 fwk labels a.fwk --stock 'avery l7163' --pdf a.pdf --copies 1e9 -> ! --copies: from 1 to 1000
$1 fwk labels a.fwk --stock 'avery l7163' --pdf a.pdf --columns Nme -> ! There is no column "Nme" whose text could be printed.
$1 fwk labels inv.fwk --stock 'avery l7163' --pdf a.pdf -> ! invoices print one to a page only
$2 fwk labels a.fwk --stock x -> ! --stock requires --pdf
$2 fwk report a.fwk -> ! --output is required && $1 ulimit -f 4; fwk report books.fwk -o a.pdf --widen
! a.pdf: could not be written: Device I/O error: a.pdf (File too large)
)sh");
}

// A hundred codes on paper say what the records say to who reads them there, and a save that fails leaves
// none.
TEST_F(Printing, CodesAreReadBackFromPaper) {
    if (run("which zbarimg pdftoppm fwk-print").code != 0) GTEST_SKIP() << "no reader of codes";
    std::string rows, wanted;
    for (int i = 100; i < 134; ++i) {
        const std::string number = std::to_string(i);
        rows += "B\xF8"
                "lt " +
                number + "|400638133" + number + "|||;"; // in Windows-1252
        wanted +=
            "CODE-128:No " + number + "\nEAN-13:400638133" + number + "\nQR-Code:B\u00f8lt " + number + "\n";
    }
    make("a.fwk", DataFile("Name No Q:7 E:7 C:7", rows)
                      .objects("P|Q|1440|1440|1815|1575|;P|E|1440|3100|2900|2000|;P|C|1440|5200|4400|1575|"));
    const std::string before = ScriptedPlatform::read(path("a.fwk"));
    EXPECT_EQ(run("ulimit -f 20; fwk codes a.fwk --column Q --from {Name} --kind qr").code, 1);
    EXPECT_TRUE(ScriptedPlatform::read(path("a.fwk")) == before);
    EXPECT_EQ(run("fwk codes a.fwk --column Q --from {Name} --kind qr --records i1,i2 && fwk codes a.fwk "
                  "--column Q "
                  "--from {Name} --kind qr && fwk codes a.fwk --column E --from {No} --kind EAN-13")
                  .out,
              "2\n32\n34\n");
    EXPECT_EQ(run("fwk update a.fwk i2 Name=x && fwk codes a.fwk --column E --from {Name} --kind ean8").code,
              1);
    EXPECT_EQ(run("fwk update a.fwk i2 'Name=B\u00f8lt 101'").code, 0);
    EXPECT_EQ(run("fwk codes a.fwk --column C --from 'No {No}' --kind code128").out, "34\n");
    const Outcome read = run("fwk layouts a.fwk -o a.pdf && pdftoppm -r 150 -gray -W 700 -H 750 a.pdf a && "
                             "for page in *.pgm; do zbarimg -q $page | sort; done | sed -E "
                             "'s/^(EAN.*).$/\\1/; s/(No )400638133/\\1/'");
    EXPECT_EQ(read.out, wanted) << read.err;
    if (run("which dmtxread").code != 0) return; // no reader of this kind
    const Outcome matrix =
        run("fwk codes a.fwk --column C --from {No} --kind datamatrix --records i1,i34 && "
            "fwk layouts a.fwk -o a.pdf --records i1,i34 && pdftoppm -r 150 -gray -x 100 "
            "-y 500 -W 600 -H 300 a.pdf d && for page in d*.pgm; do dmtxread -n -N1 $page; "
            "done");
    EXPECT_EQ(matrix.out, "2\n400638133100\n400638133133\n") << matrix.err;
}

} // namespace
