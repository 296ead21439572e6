#include "fwkProgram.h"

namespace {

// Other programs tell what is in a PDF file.
class Printing : public FwkTest {
protected:
    void SetUp() override {
        if (run("pdfinfo -v").code != 0) GTEST_SKIP() << "poppler-utils is not installed";
        if (run("which fwk-print").code != 0) GTEST_SKIP() << "this build does not print";
        copyOf("books.fwk", "books.fwk");
        copyOf("invoices.fwk", "inv.fwk");
        make("a.fwk", DataFile("Name Qty:4 Price:2", "Bolt and washer|12|$1.50;Nut|7|$.25")
                          .objects("F|Name|1440|1440|4000|400;L|Label|1440|1900|2000|400")
                          .section("Report Data", "1|1|1|1|1|1|Stock|True|"));
        make("wide.fwk", DataFile("Name", "a").objects("F|Name|1440|1440|12000|1000"));
        make("none.fwk", DataFile("Name"));
    }
};

TEST_F(Printing, ReportsAndLayouts) {
    expect(R"sh(
$ fwk report a.fwk -o a.pdf; pdftotext -layout a.pdf - | xargs
Stock Name Qty Price Bolt and 12 $1.50 Nut 7 $.25 ------ ------ ------ // @ a.pdf
$ fwk report a.fwk -o a.pdf --columns PRICE,Name --title Mine; pdftotext -layout a.pdf - | xargs
Mine Name Price Bolt and $1.50 Nut $.25 ------ ------ // @ a.pdf
$ fwk report a.fwk -o a.pdf --title ''; pdftotext -layout a.pdf - | xargs
Name Qty Price Bolt and 12 $1.50 Nut 7 $.25 ------ ------ ------ // @ a.pdf
$ fwk report books.fwk -o a.pdf; pdfinfo a.pdf | grep 'Page size'; pdftotext a.pdf - | grep Moby | head -1
Page size:       612 x 792 pts (letter) // Moby-Dick; or, The W // @ a.pdf
$ fwk report inv.fwk -o a.pdf; pdftotext -layout a.pdf - | head -5 | xargs
Invoices Invoice_No Customer Day Subtotal Tax Total 1 Ærø Maskiner 01/15/20 $9.50 $.76 $10.26 // @ a.pdf
$ fwk report inv.fwk -o a.pdf --columns Total; pdftotext -layout a.pdf - | xargs
Invoices Total $10.26 $27.81 $3.24 $9.72 $51.03 // @ a.pdf
$ fwk layouts a.fwk -o a.pdf; pdftotext -layout a.pdf - | xargs; pdfinfo a.pdf | grep Pages
Bolt and washer Label Nut Label // Pages:           2 // @ a.pdf
$ fwk layouts a.fwk -o a.pdf --records i2,i1; pdftotext -layout a.pdf - | xargs
Nut Label Bolt and washer Label // @ a.pdf
$ fwk layouts a.fwk -o a.pdf --many; pdftotext -layout a.pdf - | xargs; pdfinfo a.pdf | grep Pages
Bolt and washer Nut Label Label // Pages:           1 // @ a.pdf
$ fwk layouts a.fwk -o a.pdf --many --records i2; pdftotext -layout a.pdf - | xargs -> Nut Label // @ a.pdf
$ fwk layouts wide.fwk -o a.pdf -> @ a.pdf
$ fwk layouts books.fwk -o a.pdf --records i1; pdfimages -list a.pdf | grep -c ' image ' -> 2 // @ a.pdf
$ fwk layouts inv.fwk -o a.pdf --records i1; pdftotext -layout a.pdf - | xargs
INVOICE 1 01/15/2004 Ærø Maskiner Item Qty Price Line Bolt M8 2 $1.50 $3.00 Nut M8 3 $2.00 $6.00 Washer 10 $.05 $.50 $.00 $.00 $.00 $9.50 $.76 $10.26
@ a.pdf
)sh");
}

// The last bytes are written when all has been drawn.
TEST_F(Printing, RefusalsLeaveTheOldFile) {
    EXPECT_EQ(run("ln -s a.fwk link.fwk; echo old > old.pdf").code, 0);
    expect(R"sh(
$1 fwk report absent.fwk -o old.pdf -> ! File not found && $1 fwk report a.fwk -o old.pdf --columns Prise
! no column "Prise" && $1 fwk report inv.fwk -o old.pdf --columns Total,Item
! the report does not show the column "Item" && $1 fwk layouts a.fwk -o old.pdf --records i1,i99
! no record "i99" && $1 fwk layouts a.fwk -o old.pdf --records Totals -> ! no record "Totals"
$1 fwk layouts none.fwk -o old.pdf -> ! there are no records && $1 fwk layouts inv.fwk -o old.pdf --many
! invoices print one to a page only && $1 fwk layouts wide.fwk -o old.pdf --many
! Ferrowick: The layout is... // ! no layout fits on a sheet && $1 fwk report a.fwk -o no/such/folder.pdf
! no/such/folder.pdf: File not found: no/such/folder.pdf && $1 fwk report a.fwk -o a.fwk
! is the database itself && $1 fwk layouts a.fwk --many -o link.fwk -> ! link.fwk: is the database itself
$2 fwk report a.fwk -> ! --output is required && $1 ulimit -f 4; fwk report books.fwk -o old.pdf
! old.pdf: could not be written: Device I/O error: old.pdf (File too large)
)sh");
}

} // namespace
