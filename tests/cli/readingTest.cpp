#include "fwkProgram.h"

namespace {

using Reading = FwkTest;

TEST_F(Reading, InfoTellsWhatTheFileHolds) {
    DataFile rich("No:4 Title Price:2 Bought:1 Value:5 Cover:7", "1|Emma|$8.49|01/02/2003|$16.98|in.jpg");
    rich.spots = "1|2|3|4|5|7|6|";
    rich.widths = "700|3200|1200.5|1300|1200|900|";
    rich.objects("F|Value|2880|3720|1815|285|True|False|False|Serif|8.25|255|;"
                 "L|Ask|8000|5200|2000|225|False|True|True|Arial|10|7|mailto:a@example.org|2|;"
                 "LN|1|2|3|4|0|;VLN|7400|1560|75|3300|0|;B|1320|960|9000|4500|128|3|;"
                 "P|Cover|5|6|7|8|;C|logo.gif|9000|990|1080|420|;C|logo.gif|9|9|1|4|");
    rich.sections("Layout Options=4.25|6|1|2|3|4|256|2|0.15|;Report Data=1.5|2|2.5|3|5|2|Books|True|;Lock=x;"
                  "InvoiceCols=1|2|;ItemLevelCols=2|1|;Formulas=Value,Price * No|;Totaled Cols=Value|;"
                  "Locks=pBox,1|;Optioned Cols=No|Bought|;Increments=No,42|;Printed Cols=No|;"
                  "PrnInvoiceCols=Title|;PrnItemCols=Price|");
    make("a.fwk", rich, {"in.jpg"});
    make("b.fwk",
         DataFile("Name Sum:5").section("Report Data", "1|1|1|1|9|1||False|").section("DatabaseStyle", "1"));
    expect(R"sh(
$ fwk info a.fwk -> Style:    standard // Design:   locked // Records:  1
Layout:   1 field, 1 label, 2 lines, 1 box, 1 picture, 2 clip arts; 4.25 x 6 in, landscape
Report:   "Books"; Legal, landscape // Column  Type          Width  Position  By itself
------  -----------  ------  --------  ----------------------
No      Number          700         2  serial number, last 42 // Title   Text           3200         3
Price   Currency     1200.5         4 // Bought  Date           1300         5  today's date
Value   Calculation    1200         7  = Price * No, totaled // Cover   Picture         900         6
Entry     Bytes  Comment // --------  -----  -------------- // data.dat    966  Main Data File
in.jpg       15
$ fwk info a.fwk --json | tr -d ' \n' | sed 's/,/, /g' | fold -s -w 108 | sed 's/ $//'; echo
{"style":"standard", "view":"invoices", "locked":true, "records":1, "columns":[{"name":"No",
"type":"Number", "width":700, "position":2}, {"name":"Title", "type":"Text", "width":3200, "position":3},
{"name":"Price", "type":"Currency", "width":1200.5, "position":4}, {"name":"Bought", "type":"Date",
"width":1300, "position":5}, {"name":"Value", "type":"Calculation", "width":1200, "position":7},
{"name":"Cover", "type":"Picture", "width":900, "position":6}], "formulas":["Value, Price*No"],
"totaledCols":["Value"], "optionedCols":["No", "Bought"], "serials":{"No":"42"}, "printedCols":["No"],
"prnInvoiceCols":["Title"], "prnItemCols":["Price"], "invoiceCols":["1", "2"], "itemLevelCols":["2", "1"],
"locks":["pBox, 1"], "layoutOptions":{"customPaperLength":4.25, "customPaperHeight":6,
"layoutLeftMargin":1, "layoutTopMargin":2, "layoutBottomMargin":3, "layoutRightMargin":4,
"layoutPaperSize":256, "layoutOrientation":2, "layoutSpacing":0.15}, "reportData":{"reportLeftMargin":1.5,
"reportRightMargin":2, "reportTopMargin":2.5, "reportBottomMargin":3, "reportPaperSize":5,
"reportOrientation":2, "reportTitle":"Books", "bReportBoldHeaders":true},
"layout":[{"family":"layoutField", "index":1, "Tag":"Value", "Left":2880, "Top":3720, "Width":1815,
"Height":285, "FontBold":true, "FontItalic":false, "FontUnderline":false, "FontName":"Serif",
"FontSize":8.25, "ForeColor":255, "Alignment":1}, {"family":"tLabel", "index":1,
"Tag":"mailto:a@example.org", "Left":8000, "Top":5200, "Width":2000, "Height":225, "Text":"Ask",
"FontBold":false, "FontItalic":true, "FontUnderline":true, "FontName":"Arial", "FontSize":10,
"ForeColor":7, "Alignment":2}, {"family":"pbLine", "index":1, "Tag":"", "Left":1, "Top":2, "Width":3,
"Height":4, "BackColor":16777215}, {"family":"vLine", "index":1, "Tag":"", "Left":7400, "Top":1560,
"Width":75, "Height":3300, "BackColor":16777215}, {"family":"pBox", "index":1, "Tag":"", "Left":1320,
"Top":960, "Width":9000, "Height":4500, "ForeColor":128, "DrawWidth":3}, {"family":"imgHolder", "index":1,
"Tag":"Cover", "Left":5, "Top":6, "Width":7, "Height":8}, {"family":"clipPic", "index":1, "Tag":"logo.gif",
"Left":9000, "Top":990, "Width":1080, "Height":420}, {"family":"clipPic", "index":2, "Tag":"logo.gif",
"Left":9, "Top":9, "Width":1, "Height":4}], "entries":[{"name":"data.dat", "comment":"MainDataFile",
"size":966}, {"name":"in.jpg", "comment":"", "size":15}]} && $ fwk info b.fwk -> Style:    invoice
View:     invoices // Design:   not locked // Records:  0 // Layout:   empty; Letter, portrait
Report:   no title; paper 9, portrait // Column  Type         Width  Position  By itself
------  -----------  -----  --------  --------- // Name    Text          1440         2
Sum     Calculation   1440         3 // Entry     Bytes  Comment // --------  -----  --------------
data.dat    258  Main Data File
)sh");
}

TEST_F(Reading, RecordsComeAsTheyAreStored) {
    DataFile odd, none("");
    odd.rows = "a \"b\", c|1||\r\n  "
               "x\ny\t\\|-2|$1.50|\r\n\xC6r\xF8\xA0x|3|(4)|\r\n\x81\x7F|||\r\n------|2|$1.50|\r\n";
    make("odd.fwk", odd);
    none.rows.clear();
    make("none.fwk", none);
    expect(R"sh(
$ fwk records odd.fwk -> Key     Name      Qty  Price // ------  --------  ---  ----- // i1      a "b", c    1
i2        x y \    -2  $1.50 // i3      Ærø x       3    (4) // i4 // ------  --------  ---  -----
Totals  ------      2  $1.50 && $ fwk records odd.fwk --json -> {"columns": ["Name", "Qty", "Price"],
 "records": [ //   {"key": "i1", "cells": ["a \"b\", c", "1", ""]},
  {"key": "i2", "cells": ["  x\u000ay\u0009\\", "-2", "$1.50"]},
  {"key": "i3", "cells": ["Ærø x", "3", "(4)"]}, //   {"key": "i4", "cells": ["\u007f", "", ""]}],
 "totals": ["------", "2", "$1.50"]} && $ fwk records odd.fwk --csv -> Name,Qty,Price // "a ""b"", c",1,
"  x // y	\",-2,$1.50 // Ærø x,3,(4) // ,, && $ fwk records odd.fwk --csv --columns PRICE,Name -> Price,Name
,"a ""b"", c" // $1.50,"  x // y	\" // (4),Ærø x // , && $ fwk records odd.fwk --csv --columns Price
Price // "" // $1.50 // (4) // "" && $ fwk records none.fwk --json -> {"columns": [], //  "records": [],
 "totals": []} && $ fwk --version -> fwk 0.1.0 && $ fwk --help | grep save-as
  save-as                     Saves a database under another name, with its images
$ fwk records --help | grep -e --columns ->   --columns A,B               These columns alone, in this order
)sh");
}

// An amount is what it says, without the window's help with the cents. A word may begin like an option; the
// end of a range of texts is looked for in the next column.
TEST_F(Reading, SearchingAndReplacing) {
    make("a.fwk", DataFile("Name Qty:4 Price:2", "Bolt|12|$1.50;Nut, small|-7|$.25;Bolt|7|$12.34")
                      .section("Totaled Cols", "Qty|"));
    make("w.fwk", DataFile("Name", "-x;--long;-old;plain"));
    make("dates.fwk", DataFile("Bought:1 Note", "01/05/2004|1/5/2004"));
    copyOf("invoices.fwk", "inv.fwk");
    expect(R"sh(
$ fwk search a.fwk --where Name is bolt -> Key     Name    Qty   Price // ------  ------  ---  ------
i1      Bolt     12   $1.50 // i3      Bolt      7  $12.34 // ------  ------  ---  ------
Totals  ------   19  ------ && $ fwk search a.fwk --where name within 't, s' --json
{"columns": ["Name", "Qty", "Price"], //  "records": [
  {"key": "i2", "cells": ["Nut, small", "-7", "$.25"]}], //  "totals": ["------", "-7", "------"]}
$ fwk search a.fwk --where Qty range -10 -1 --csv -> Name,Qty,Price // "Nut, small",-7,$.25
$ fwk search a.fwk --where Qty le 0 --csv -> Name,Qty,Price // "Nut, small",-7,$.25
$ fwk search a.fwk --where Qty ge 7 --where Price le 2 --csv -> Name,Qty,Price // Bolt,12,$1.50
$ fwk search a.fwk --where Name within t --where Qty range 0 9 --where Price ge 1 --csv -> Name,Qty,Price
Bolt,7,$12.34 && $ fwk search a.fwk --where Price is 1234 --csv -> Name,Qty,Price
$ fwk search a.fwk --where Name is bolt --where Name is '' --where Qty is 7 --csv -> Name,Qty,Price
Bolt,12,$1.50 // Bolt,7,$12.34 && $ fwk search a.fwk --where Name is [a,b] --csv -> Name,Qty,Price
$ fwk search inv.fwk --where Customer within m --csv -> Invoice_No,Customer,Day,Subtotal,Tax,Total
1,Ærø Maskiner,01/15/2004,$9.50,$.76,$10.26 // 2,Smith & Sons,02/15/2004,$25.75,$2.06,$27.81
$ fwk search dates.fwk --where Bought ge 'Jan 5 2004' --csv -> Bought,Note // 01/05/2004,1/5/2004
$ fwk search w.fwk --csv --where Name is -x -> Name // -x && $ fwk search w.fwk --where=Name is --long --csv
Name // --long && $ fwk search w.fwk --where Name is -old --csv -> Name // -old
$ fwk search w.fwk --where Name within -x --where Name is -x --csv -> Name // -x
$ fwk search w.fwk --where Name range -x -z --csv -> Name
$ fwk search a.fwk --where Name is bolt -o found.fwk -> @ found.fwk // -Nut, small|-7|$.25|
$ fwk search a.fwk --where Name is nut -o found.fwk --yes --csv -> Name,Qty,Price // @ found.fwk
-Bolt|12|$1.50| // -Bolt|7|$12.34| && $ fwk replace a.fwk BOLT Screw -> 2 // ~Screw|12|$1.50|
~Screw|7|$12.34| && $ fwk replace a.fwk nut Dot --column Qty Price -> 0
$ fwk replace a.fwk nut Dot --column Qty --column Name -> 1 // ~Dot, small|-7|$.25|
$ fwk replace a.fwk small '' -> 1 // ~Dot, |-7|$.25| && $ fwk replace a.fwk -- -7 -8 -> 1 // ~Dot, |-8|$.25|
)sh");
}

TEST_F(Reading, CheckNamesWhatIsWrong) {
    DataFile good("Name Qty:4 Price:5 Photo:7", "a|1|2|"), counts, order, cut, endless;
    good.sections("Totaled Cols=Qty|;Formulas=Price,Qty * ( 2.5 + 1E3 )|Qty,Undefined|;"
                  "Locks=tLabel,1|pbLine,1|vLine,1|pBox,1|imgHolder,1|clipPic,1|layoutField,1|");
    good.objects("F|Qty|1|1|1|1;L|x|1|1|1|1;LN|1|1|1|1|0|;VLN|1|1|1|1|0|;B|1|1|1|1|0|1|;P|Photo|1|1|1|1|;"
                 "C|a.jpg|1|1|1|1|");
    make("good.fwk", good, {"a.jpg"});
    DataFile names("Name Qty:4 Price:9 Photo:7",
                   "a|1|2|in.jpg;b|1|2|lost.jpg;c|1|2|lost.jpg@in.jpg@more.jpg");
    names.objects("F|Gone|1|1|1|1;P|Name|1|1|1|1|;C|absent.gif|1|1|1|1|");
    names.sections(
        "Totaled Cols=Sum|;Printed Cols=Nme|;PrnInvoiceCols=A|;PrnItemCols=Index|;Increments=No,4|;"
        "Optioned Cols=Day|;Formulas=Qty,Price * Pieces|Value,Undefined|;"
        "Locks=pBox,1|layoutField,1|tLabel,1|pbLine,1|vLine,1|imgHolder,2|clipPic,0|x,1|pBox|");
    make("names.fwk", names, {"in.jpg", "orphan.jpg"});
    counts.types = "3|4|2|3|";
    counts.widths = "1|1|1|1|1|";
    counts.spots = "1|2|";
    make("counts.fwk", counts.section("Column Names", "Name|Qty|Price|"));
    order.widths = "1440|1e9|-1|";
    order.spots = "1|2|2|4|";
    order.rows += "last|1|2|\r\n";
    make("order.fwk", order);
    cut.rows = "a|1|\r\nb|1|2|3|\r\nc|1|2\r\n------|------|Undefined|\r\n";
    make("cut.fwk", cut);
    for (int i = 0; i < 20000; ++i) endless.rows += "a|\r\n";
    make("endless.fwk", endless);
    expect(R"sh(
$ fwk check good.fwk && $1 fwk check names.fwk -> column "Price" has the unknown type "9"
totaledCols names "Sum", which is no column // optionedCols names "Day", which is no column
printedCols names "Nme", which is no column // prnInvoiceCols names "A", which is no column
prnItemCols names "Index", which is no column // a serial counter names "No", which is no column
the formula of "Qty" names "Pieces", which is no column // a formula names "Value", which is no column
layoutField 1 names "Gone", which is no column // imgHolder 1 names "Name", which is no Picture column
clipPic 1 names the image "absent.gif", which is not in the archive
a lock names "pBox,1", which is not on the layout // a lock names "tLabel,1", which is not on the layout
a lock names "pbLine,1", which is not on the layout // a lock names "vLine,1", which is not on the layout
a lock names "imgHolder,2", which is not on the layout // a lock names "clipPic,0", which is not on the layout
a lock names "x,1", which is not on the layout // a lock names "pBox", which is not on the layout
i2 in "Photo" names the image "lost.jpg", which is not in the archive
i3 in "Photo" names the image "more.jpg", which is not in the archive // nothing names the image "orphan.jpg"
! 23 findings && $1 fwk check counts.fwk -> line 8: section [Column Names] is there twice
section [Column Types] has 4 elements in place of 3 // section [Column Widths] has 5 elements in place of 3
section [Column Spots] has 2 elements in place of 4 // ! 4 findings && $1 fwk check order.fwk
the width "1e9" of a column is out of range // the width "-1" of a column is out of range
section [Column Spots] is no order of the columns // the last row is no Totals row: it has "last" in "Name"
! 4 findings && $1 fwk check cut.fwk -> line 9: row with too few cells // line 10: row with too many cells
line 11: row with too few cells // line 11: row without a separator at its end // ! 4 findings
$ fwk check endless.fwk 2>&1 | tail -2 -> and 19001 more // fwk: endless.fwk: 20001 findings
)sh");
}

} // namespace
