#include "fwkProgram.h"

namespace {

using Exchange = FwkTest;

TEST_F(Exchange, RoundTripLosesNothing) {
    DataFile odd("A Qty:4 Sum:5 Paid:2");
    odd.names = "A:b|Qty|Sum|Pay,ed|";
    odd.rows = "  two\nlines \"q\" |0012|Undefined|abc|\r\n||||\r\n; "
               "\xC6|1e5|x|5|\r\n------|------|------|------|\r\n";
    make("odd.fwk", odd);
    for (const char* name : {"books.fwk", "invoices.fwk"}) copyOf(name, name);
    const char* again =
        "both() { for t in csv json; do fwk export $1.fwk -o $2.$t; done; }\n"
        "for n in odd books 'invoices --invoice'; do set $n; both $1 t; fwk import n.fwk t.csv $2;"
        "both n u; for t in csv json; do cmp t.$t u.$t; done; rm n.fwk [tu].*; done";
    EXPECT_EQ(run(again).out, "3\n42\n4\n");
    EXPECT_EQ(run("for s in " SAMPLES_DIR "/*.fwk; do o=; case $s in */invoices.fwk) o=--invoice;; esac;"
                  "fwk export $s -o t.csv; for k in tsv xlsx ods json sqlite; do fwk export $s -o t.$k;"
                  "fwk import n.fwk t.$k $o; fwk export n.fwk -o u.csv; cmp t.csv u.csv || echo $s $k;"
                  "rm n.fwk; done; done | sort | uniq -c | tr -s ' '; rm [tu].*")
                  .out,
              " 5 12\n 5 30\n 5 32\n 5 40\n 5 42\n")
        << "records of each sample, of five kinds of tables";
    expect(R"sh(
$ fwk export odd.fwk -o t.csv -> @ t.csv // +A:b:Text,Qty:Number,Sum:Calculation,"Pay,ed:Currency" // +"  two
+lines ""q"" ",0012,Undefined,abc // +,,, // +"; Æ",1e5,x,5 && $ fwk export odd.fwk -o t.JSON -> @ t.JSON
+{"style": "standard", // + "columns": [ // +  {"name": "A:b", "type": "Text"},
+  {"name": "Qty", "type": "Number"}, // +  {"name": "Sum", "type": "Calculation"},
+  {"name": "Pay,ed", "type": "Currency"}], // + "records": [
+  ["  two\u000alines \"q\" ", "0012", "Undefined", "abc"], // +  ["", "", "", ""],
+  ["; Æ", "1e5", "x", "5"]]}
)sh");
}

TEST_F(Exchange, PicturesGoAlong) {
    make("p.fwk", DataFile("Name Photo:7", "a|in.jpg;b|no.jpg;c|in.jpg"), {"in.jpg"});
    const auto ran =
        run("fwk export p.fwk -o t.csv --pictures; ls t_pictures; unzip -p p.fwk in.jpg | cmp - "
            "t_pictures/in.jpg; fwk export p.fwk -o - --format csv --pictures; fwk export " SAMPLES_DIR
            "/garden.fwk -o g.xlsx --pictures; unzip -l g.xlsx | grep -c media");
    EXPECT_EQ(ran.out, "in.jpg\n15\n");
    EXPECT_EQ(ran.err,
              "fwk: p.fwk: it has no picture \"no.jpg\"\nfwk: -: pictures need a file beside them\n");
    EXPECT_EQ(run("printf \"a';b'\\n1';2\\n\" | fwk import q.fwk - --quotes none; fwk export q.fwk -o - "
                  "--format csv")
                  .out,
              "1\na':Text,b':Number\n1',2\n");
}

TEST_F(Exchange, ATableMakesADatabaseOrIsAppended) {
    copyOf("books.fwk", "a.fwk");
    std::filesystem::create_symlink("/dev/stdin", path("t"));
    make("c.fwk",
         DataFile("No:4 Name Bought:1 Photo:7 Sum:5", "7|a|01/02/2003||14")
             .sections("Formulas=Sum,No * 2|;Optioned Cols=No|Bought|;Increments=No,7|;Totaled Cols=Sum|"),
         {"in.jpg"});
    expect(R"sh(
$ printf 'a b;Day;Pay;N\nx;1/2/2003;$5;1\n;;;\n' | fwk import new.fwk t -> 2 // @ new.fwk
+data.dat:Main Data File: // +[Column Names]a_b|Day|Pay|N| // +[Column Types]3|1|2|4|
+x|01/02/2003|$5.00|1| // +|||| // +=|=|=|=|
$ printf 'P:Picture,N:Number\nx.jpg,1\ny.jpg,2\nx.jpg,\n' | fwk import pictures.fwk t -> 3
! it has none of the images that are named (2) // @ pictures.fwk // +data.dat:Main Data File:
+[Column Names]P|N| // +[Column Types]7|4| // +x.jpg|1| // +y.jpg|2| // +x.jpg|| // +=|=|
$ printf 'name,Bought,Photo\n"Emma, again",3/4/2024, in.jpg \nIt,x,\n' | fwk import c.fwk t -> 2
-[Optioned Cols]No|Bought| // -[Increments]No,7| // +[Optioned Cols]No|Bought| // +[Increments]No,9|
~8|Emma, again|03/04/2024|in.jpg|16| // +9|It|x||18| // +=|=|=|=|34|
$ printf 'Name:Date,No:Text\nx, 5 \n' | fwk import c.fwk t -> 1 // ~[Increments]No,10| // ~5|x|TODAY||10|
+=|=|=|=|44| && $ printf 'Name,Photo\na|b,no.jpg\n' | fwk import c.fwk --yes t -> 1 // ~[Increments]No,11|
~11|a|b|TODAY|no.jpg|22| // +=|=|=|=|66| && $1 printf 'Title,Prise\nx,1\n' | fwk import a.fwk t
! no column "Prise" && $1 echo Index | fwk import a.fwk t -> ! no column "Index"
$1 echo Title,TITLE | fwk import a.fwk t -> ! t: the column "Title" stands in its header twice
$1 (echo Title; seq 32726) | fwk import a.fwk t -> ! it would have 32768 records, 32767 is the most
$1 printf 'Title\na|b\n' | fwk import a.fwk t
! t: line 2: the cell of "Title" holds a "|", which divides cells in the file; --yes stores it all the same
$1 printf 'Cover\nno.jpg\n' | fwk import a.fwk t
! t: line 2: the cell of "Cover" names an image "no.jpg" that the database has not; --yes stores it all the same
$1 echo Title | fwk import a.fwk --invoice t -> ! it is no invoice database
$1 seq -s, -f C%g 51 | fwk import n.fwk t -> ! t: it has 51 columns, a database has at most 50
$1 echo 'a b,A_B' | fwk import n.fwk t -> ! t: the column "A_B" stands in its header twice
$1 echo a,index | fwk import n.fwk t -> ! t: no column can have the name "index"
$1 echo 'a|b' | fwk import n.fwk t -> ! t: the column name "a|b" holds a "|"
$1 printf 'a\n"b\n' | fwk import n.fwk t -> ! t: line 2: a quote is opened and never closed
$1 echo a:Picture | fwk import n.fwk t --invoice -> ! an invoice database has no Picture columns
$1 echo a | fwk import no/n.fwk t -> ! Ferrowick: There was an ...
! could not be saved: its folder does not exist && $1 fwk import n.fwk none.csv
! none.csv: No such file or directory && $1 fwk import n.fwk . -> ! .: Is a directory
)sh");
}

TEST_F(Exchange, RowsOfStandardInputBecomeRecords) {
    make("a.fwk",
         DataFile("No:4 Name Price:2 Day:1 Sum:5", "7|a|$1.00|01/02/2003|$2.00")
             .sections("Formulas=Sum,Price * 2|;Totaled Cols=Sum|;Optioned Cols=No|;Increments=No,7|"));
    expect(R"sh(
$ printf 'name\tPRICE\tSum\n"x\ny"\t1,234.5\t1\n\nz\t\t\n' | fwk paste a.fwk -> 2 // ~[Increments]No,9| // ~8|x
+y|$1,234.50||$2,469.00| // +9|z|$.00||$.00| // +=|=|=|=|$2,469.00|
$ echo '<table><tr><td>Name<td>&lt;' | fwk paste --no-headings a.fwk --yes -> 1
! standard input: row 1, "No": "Name" is no number // +0|<|$.00||$.00|
$1 printf 'Name\tPrice\tDay\tPrise\nb|\tx\t1\t1\n' | fwk paste a.fwk -> ! standard input: no column "Prise"
! standard input: row 2, "Name": "b|" has a "|", which divides the cells of a database
! standard input: row 2, "Price": "x" is no number // ! standard input: row 2, "Day": "1" is no date
! nothing is stored; --yes leaves out what cannot be stored
$ printf 'Name;Day;Price\nb;31.12.2024;1.234,50\n' | fwk import a.fwk - --decimal , -> 1
~[Increments]No,10| // ~10|b|$1,234.50|12/31/2024|$2,469.00| // +=|=|=|=|$4,938.00|
$1 printf 'Name;Day;Nope\nb|;30.2.2024;1\n' | fwk import a.fwk - --separator ';' -> ! -: no column "Nope"
! -: row 2, "Name": "b|" has a "|", which divides the cells of a database
! -: row 2, "Day": "30.2.2024" is no date in this order
! -: nothing is stored; --yes leaves out what cannot be stored
$ printf '1,5;\344;03/04/2024\n2;b;05/06/2024\n' | fwk import new.fwk - --no-headings --dates dmy -> 2 // @ new.fwk
+data.dat:Main Data File: // +[Column Names]Column_1|Column_2|Column_3| // +[Column Types]4|3|1|
+1.5|ä|04/03/2024| // +2|b|06/05/2024| // +=|=|=|
$2 fwk import a.fwk - --dates dym -> ! --dates: dym not in {dmy,mdy,ymd}
$1 fwk paste a.fwk -> ! standard input: it has no rows
$2 fwk paste --headings --no-headings a.fwk -> ! --headings excludes --no-headings
$1 seq 32764 | fwk paste a.fwk -> ! it has room for 32762 more records, not 32764
)sh");
}

} // namespace
