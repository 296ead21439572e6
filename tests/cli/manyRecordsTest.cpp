#include "fwkProgram.h"

namespace {

// A refusal leaves the file as it was, and so does a command that changes nothing.
TEST_F(FwkTest, ManyRecordsAtOnce) {
    make("a.fwk",
         DataFile("No:4 Name Price:2 Half:5",
                  "1|Bolt|$1.00|$.50;2|Nut|$.00|$.00;4|bolt |$1.00|$.50;4|Bolt|$1.00|$.50")
             .sections("Formulas=Half,Price / 2|;Optioned Cols=No|;Increments=No,4|;Totaled Cols=Half|"));
    expect(R"sh(
$ fwk recalculate a.fwk -> +[Totaled Cols]Half| // -[Totaled Cols]Half| // ~=|=|=|$1.50|
$ fwk duplicates a.fwk -> Records  Keys   Name  Price // -------  -----  ----  ----- //       2  i1 i4  Bolt  $1.00
$ fwk duplicates a.fwk --by Price,name --json --ignore-case -> {"columns": ["Price", "Name"],
 "groups": [ //   {"keys": ["i1", "i3", "i4"], "cells": ["$1.00", "Bolt"]}]}
$ fwk duplicates a.fwk --by No,Name && $1 fwk duplicates a.fwk --by Nme -> ! no column "Nme"
$1 fwk duplicates a.fwk --by Name --delete -> ! --yes deletes 1 record behind the first of a group
$ fwk serial a.fwk No --check -> 4 twice: i3 i4 // 3 missing
$1 fwk serial a.fwk Name --check -> ! the column "Name" has no serial numbers
$2 fwk serial a.fwk No 3 --check -> ! VALUE excludes --check && $2 fwk serial a.fwk No -> ! VALUE is required
$2 fwk set a.fwk Price 3 -> ! --where or --all is required && $2 fwk set a.fwk Price --all
! VALUE or --expression is required
$1 fwk set a.fwk Price --all --expression 'No / Price' -> ! i2 would get no value (Division by zero), so that nothing is set
$1 fwk set a.fwk Price --all --expression 'No * Prize'
! "Prize" is neither a column nor a number (character 6) && $1 fwk set a.fwk Half 3 --all
! "Half" is calculated and takes no value && $1 fwk set a.fwk Price "$(printf '1\n2')" --all
! "1 2" is more than one line && $ fwk set a.fwk Price 1 --where Name is bolt -> 0
$ fwk set a.fwk Price -3 --where Name is nut --where No le 2 -> 1 // ~2|Nut|-$3.00|-$1.50| // ~=|=|=|$.00|
$ fwk set a.fwk No --expression 'No * 2' --where Price range -3 1 -> 4 // ~2|Bolt|$1.00|$.50| // ~4|Nut|-$3.00|-$1.50|
~8|bolt |$1.00|$.50| // ~8|Bolt|$1.00|$.50|
$ fwk duplicates a.fwk --by Name --ignore-case --delete --yes -> 2 // ~=|=|=|-$1.00|
-8|Bolt|$1.00|$.50| // -=|=|=|$.00| && $ fwk duplicates a.fwk --by Name --ignore-case --delete -> 0
)sh");
}

TEST_F(FwkTest, Summaries) {
    make("a.fwk", DataFile("Bed Day:1 Cost:2 A",
                           "Pond|03/01/2015|$1.50|x;\"Hedge|12/31/2015||x;Pond|01/01/2016|$2.25|x"));
    expect(R"sh(
$ fwk summary a.fwk --by bed --sum Cost --max Day -> Bed     Records  Sum of Cost  Greatest of Day
------  -------  -----------  ---------------
"Hedge        1                    12/31/2015
Pond          2        $3.75       01/01/2016
------  -------  -----------  ---------------
Total         3        $3.75       01/01/2016
$ fwk summary a.fwk --by Day:year --by Bed --mean Cost --json -> {"by": ["Day (year)", "Bed"], "figures": ["Mean of Cost"],
 "groups": [ //   {"group": ["2015", "\"Hedge"], "records": 1, "figures": [null]},
  {"group": ["2015", "Pond"], "records": 1, "figures": [1.5]},
  {"group": ["2016", "Pond"], "records": 1, "figures": [2.25]}], //  "total": {"records": 3, "figures": [1.88]}}
$ fwk summary a.fwk --by Cost:2 --csv --where Bed is pond
Cost (steps of 2),Records // $.00 to below $2.00,1 // $2.00 to below $4.00,1
$ fwk statistics a.fwk Cost --top 1 -> Figure            Value // ----------------  -----
Records               3 // Values                2 // Empty                 1 // Different values      2
Least             $1.50 // Greatest          $2.25 // Mean              $1.88 // Median            $1.88
Sum               $3.75 // Most frequent  Count // -------------  ----- // $1.50              1
$ fwk statistics a.fwk Day --json --top 1 -> {"column": "Day", "records": 3, "values": 3, "empty": 0, "different": 3,
 "least": "03/01/2015", //  "greatest": "01/01/2016", //  "mean": null, //  "median": "12/31/2015", //  "sum": null,
 "mostFrequent": [ //   {"value": "03/01/2015", "count": 1}]}
$1 fwk summary a.fwk --by Bed:year -> ! "year" is no step of the column "Bed" && $1 fwk summary a.fwk --by Day:week
! "week" is no step of the column "Day": year, quarter, month or day && $1 fwk summary a.fwk --by Bd -> ! no column "Bd"
$1 fwk summary a.fwk --by Bed --sum Day -> ! the column "Day" has no sum
$1 fwk statistics a.fwk Index -> ! no column "Index" && $2 fwk summary a.fwk -> ! --by is required
$2 fwk summary a.fwk --by Bed --by Day --by Cost -> ! --by: At Most 2 required but received 3
$2 fwk statistics a.fwk Cost --top -1 -> ! --top: Value -1 not in range 0 to 1000000
)sh");
}

} // namespace
