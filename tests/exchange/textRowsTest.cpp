#include "exchange/textRows.h"
#include "table.h"

#include <gtest/gtest.h>

namespace {

// "1:a/b/;" for the first row with two cells.
std::string told(const exchange::TextRows& rows) {
    std::string all;
    for (const exchange::TextRow& row : rows) {
        all += std::to_string(row.number) + ":";
        for (const std::string& cell : row.cells) all += cell + "/";
        all += ";";
    }
    return all;
}

TEST(TextRows, OfTabs) {
    const char* const cases =
        "a\tb\n1\t2 -> 1:a/b/;2:1/2/;; a\t\r\n\t\n \t \r\nb\r -> 1:a//;4:b/;; \n\n -> ;  -> ; \ta\t -> "
        "1:/a//;; "
        "\"x\ty\"\t\"1\r\n2\"\"3\"\nz -> 1:x\ty/1\n2\"3/;2:z/;; \"\"\t\"\"\"\" -> 1:/\"/;; "
        "\"a\" b\t5\" bolt\t\"open\n2 -> 1:\"a\" b/5\" bolt/\"open/;2:2/;";
    for (const auto& c : table(cases)) EXPECT_EQ(told(exchange::readTabbedRows(c[0])), c[1]) << c[0];
    EXPECT_THROW(exchange::readTabbedRows(std::string(2'000'001, '\t')), exchange::TableError);
}

TEST(TextRows, OfAPage) {
    const char* const cases =
        "<p>x<table border=1><tr><th>a</th><th> b \n c </th></tr><!-- <td>no --><TR "
        "class=x><TD>1<td>2</table>"
        "<table><tr><td>no</table> -> 1:a/b c/;2:1/2/;; "
        "<table><tr><td>a</td>no<td>b</td>no</table> -> 1:a/b/;; "
        "<table><tr><td>&lt;&amp;&#65;&#x42;&nbsp;&none;&<td>a<br>b<p>c</p><script><td></script></table> -> "
        "1:<&AB &none;&/a\nbc/;; "
        "<table><tr><td colspan=\"2\" rowspan='2'>a<td>b<tr><td>c<tr><td>d</table> -> 1:a//b/;2://c/;3:d/;; "
        "<table><tr><td>a<table><tr><td>in</table>ner<td>5 < 6 -> 1:ainner/5 < 6/;; <td>no -> ; <table><tr "
        "-> ";
    for (const auto& c : table(cases)) EXPECT_EQ(told(exchange::readHtmlRows(c[0])), c[1]) << c[0];
    for (const auto& c :
         table("a\tb -> <table><td>c -> 1:a/b/;;  -> <table><td>c -> 1:c/;; a\tb\nc\td\te -> x -> "
               "1:a/b/;2:c/d/e/;; a\tb\nc\td -> <table><td>a<td>b<br>c<td>d -> 1:a/b\nc/d/;; "
               "a\tb\nc\td -> <table><td>a<tr><td>b -> 1:a/b/;2:c/d/;",
               3))
        EXPECT_EQ(told(exchange::readRowsOfEither(c[0], c[1])), c[2]) << c[0];
    for (const auto& c : table(" <HTML> -> 1; <meta x> -> 1; <b>a</b>\tb -> 0; a -> 0"))
        EXPECT_EQ(exchange::isHtml(c[0]), c[1] == "1") << c[0];
    EXPECT_TRUE(exchange::readHtmlRows(std::string(1'000'000, '<')).empty()); // and soon
}

} // namespace
