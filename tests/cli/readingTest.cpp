#include "fwkProgram.h"

namespace {

using Reading = FwkTest;

TEST_F(Reading, InfoTellsWhatTheFileHolds) {
    DataFile rich("No:4 Title Price:2 Bought:1 Value:5 Cover:7", "1|Emma|$8.49|01/02/2003|$16.98|in.jpg");
    rich.spots = "1|2|3|4|5|7|6|";
    rich.widths = "700|3200|1200.5|1300|1200|900|";
    rich.objects("F|Value|2880|3720|1815|285|True|False|False|Serif|8.25|255|;"
                 "L|Ask|8000|5200|2000|225|False|True|True|Arial|10|7|mailto:a@example.org|2|;"
                 "LN|1|2|3|4|0|;VLN|7|8|9|10|0|;B|1320|960|9000|4500|128|3|;"
                 "P|Cover|5|6|7|8|;C|logo.gif|9|9|1|4|;C|logo.gif|9|9|1|4|");
    rich.sections("Layout Options=4.25|6|1|2|3|4|256|2|0.15|;Report Data=1.5|2|2.5|3|5|2|Books|True|;Lock=x;"
                  "InvoiceCols=1|2|;ItemLevelCols=2|1|;Formulas=Value,Price * No|;Totaled Cols=Value|;"
                  "Locks=pBox,1|;Optioned Cols=No|Bought|;Increments=No,42|;Printed Cols=No|;"
                  "PrnInvoiceCols=Title|;PrnItemCols=Price|");
    make("a.fwk", rich, {"in.jpg"});
    make("b.fwk",
         DataFile("Name").section("Report Data", "1|1|1|1|9|1||False|").section("DatabaseStyle", "1"));
    // In the JSON without what scripts know from the file: the names that begin with capitals.
    expect(R"sh(
$ fwk info a.fwk -> Style:    standard // Design:   locked // Records:  1
Layout:   1 field, 1 label, 2 lines, 1 box, 1 picture, 2 clip arts; 4.25 x 6 in, landscape
Report:   "Books"; Legal, landscape // Column  Type          Width  Position  By itself
------  -----------  ------  --------  ----------------------
No      Number          700         2  serial number, last 42 // Title   Text           3200         3
Price   Currency     1200.5         4 // Bought  Date           1300         5  today's date
Value   Calculation    1200         7  = Price * No, totaled // Cover   Picture         900         6
Entry     Bytes  Comment // --------  -----  -------------- // data.dat    947  Main Data File
in.jpg       15
$ fwk info a.fwk --json | tr -d ' \n' | sed 's/"[A-Z][A-Za-z]*"://g; s/,/& /g' | fold -sw108 | sed 's/ $//'; echo
{"style":"standard", "view":"invoices", "locked":true, "records":1, "columns":[{"name":"No",
"type":"Number", "width":700, "position":2}, {"name":"Title", "type":"Text", "width":3200, "position":3},
{"name":"Price", "type":"Currency", "width":1200.5, "position":4}, {"name":"Bought", "type":"Date",
"width":1300, "position":5}, {"name":"Value", "type":"Calculation", "width":1200, "position":7},
{"name":"Cover", "type":"Picture", "width":900, "position":6}], "formulas":["Value, Price*No"],
"totaledCols":["Value"], "optionedCols":["No", "Bought"], "serials":{"42"}, "printedCols":["No"],
"prnInvoiceCols":["Title"], "prnItemCols":["Price"], "invoiceCols":["1", "2"], "itemLevelCols":["2", "1"],
"locks":["pBox, 1"], "layoutOptions":{"customPaperLength":4.25, "customPaperHeight":6,
"layoutLeftMargin":1, "layoutTopMargin":2, "layoutBottomMargin":3, "layoutRightMargin":4,
"layoutPaperSize":256, "layoutOrientation":2, "layoutSpacing":0.15}, "reportData":{"reportLeftMargin":1.5,
"reportRightMargin":2, "reportTopMargin":2.5, "reportBottomMargin":3, "reportPaperSize":5,
"reportOrientation":2, "reportTitle":"Books", "bReportBoldHeaders":true},
"layout":[{"family":"layoutField", "index":1, "Value", 2880, 3720, 1815, 285, true, false, false, "Serif",
8.25, 255, 1}, {"family":"tLabel", "index":1, "mailto:a@example.org", 8000, 5200, 2000, 225, "Ask", false,
true, true, "Arial", 10, 7, 2}, {"family":"pbLine", "index":1, "", 1, 2, 3, 4, 16777215},
{"family":"vLine", "index":1, "", 7, 8, 9, 10, 16777215}, {"family":"pBox", "index":1, "", 1320, 960, 9000,
4500, 128, 3}, {"family":"imgHolder", "index":1, "Cover", 5, 6, 7, 8}, {"family":"clipPic", "index":1,
"logo.gif", 9, 9, 1, 4}, {"family":"clipPic", "index":2, "logo.gif", 9, 9, 1, 4}],
"entries":[{"name":"data.dat", "comment":"MainDataFile", "size":947}, {"name":"in.jpg", "comment":"",
"size":15}]} && $ fwk info b.fwk | head -6 -> Style:    invoice // View:     invoices // Design:   not locked
Records:  0 // Layout:   empty; Letter, portrait // Report:   no title; paper 9, portrait
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
 "totals": ["------", "2", "$1.50"]} && $ fwk records odd.fwk --csv --columns PRICE,Name -> Price,Name
,"a ""b"", c" // $1.50,"  x // y	\" // (4),Ærø x // , && $ fwk records none.fwk --json -> {"columns": [],
 "records": [], //  "totals": []} && $ fwk --version -> fwk 0.1.0
)sh");
}

// An amount is what it says, without the window's help with the cents. A word may begin like an option; the
// end of a range of texts is looked for in the next column.
TEST_F(Reading, SearchingAndReplacing) {
    make("a.fwk", DataFile("Name Qty:4 Price:2", "Bolt|12|$1.50;Nut, small|-7|$.25;Bolt|7|$12.34")
                      .section("Totaled Cols", "Qty|"));
    make("b.fwk", DataFile("Name Day:1 Note", "-old --long -x|01/05/2004|1/5/2004;plain||"));
    expect(R"sh(
$ fwk search a.fwk --where Name is bolt -> Key     Name    Qty   Price // ------  ------  ---  ------
i1      Bolt     12   $1.50 // i3      Bolt      7  $12.34 // ------  ------  ---  ------
Totals  ------   19  ------ && $ fwk search a.fwk --where name within 't, s' --json
{"columns": ["Name", "Qty", "Price"], //  "records": [
  {"key": "i2", "cells": ["Nut, small", "-7", "$.25"]}], //  "totals": ["------", "-7", "------"]}
$ fwk search a.fwk --where Qty range -10 -1 --csv -> Name,Qty,Price // "Nut, small",-7,$.25
$ fwk search a.fwk --where Name within t --where Qty range 0 9 --where Price ge 1 --csv -> Name,Qty,Price
Bolt,7,$12.34 && $ fwk search a.fwk --where Price is 1234 --csv -> Name,Qty,Price
$ fwk search a.fwk --where Name is '' --where Name is [a,b] --csv -> Name,Qty,Price
$ fwk search a.fwk --filter 'bolt price>2' --csv -> Name,Qty,Price // Bolt,7,$12.34
$ fwk records a.fwk --filter qty:7 --columns Name,Qty -> Key     Name        Qty // ------  ----------  ---
i2      Nut, small   -7 // i3      Bolt          7 // ------  ----------  --- // Totals  ------        0
$ fwk export a.fwk -o - --format csv --columns Name --filter small -> Name:Text // "Nut, small"
$1 fwk records a.fwk --filter 'bölt qty>few' -> ! --filter, character 10: "few" is no number
$ fwk search b.fwk --where Day ge 'Jan 5 2004' --csv -> Name,Day,Note // -old --long -x,01/05/2004,1/5/2004
$ fwk search b.fwk --csv --where Name within -x --where=Name within --long --where Name within -old
Name,Day,Note // -old --long -x,01/05/2004,1/5/2004 && $ fwk search b.fwk --where Name range -x -z --csv
Name,Day,Note && $ fwk search a.fwk --where Name is bolt -o found.fwk -> @ found.fwk // -Nut, small|-7|$.25|
$ fwk search a.fwk --where Name within nut -o found.fwk --yes --csv -> Name,Qty,Price // "Nut, small",-7,$.25
@ found.fwk // ~Nut, small|-7|$.25| // -Bolt|7|$12.34| && $ fwk replace a.fwk BOLT Screw -> 2
~Screw|12|$1.50| // ~Screw|7|$12.34| && $ fwk replace a.fwk nut Dot --column Qty --column Name -> 1
~Dot, small|-7|$.25| && $ fwk replace a.fwk nut Dot --column Qty Price -> 0 && $ fwk replace a.fwk -- -7 -8
1 // ~Dot, small|-8|$.25|
)sh");
}

} // namespace
