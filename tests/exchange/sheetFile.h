#pragma once

#include "exchange/sheet.h"
#include "file/archive/zip.h"
#include "folderFixture.h"

#include <sqlite3.h>

// Tables of other programs, made by hand as these would write them, or as nobody should.
struct SheetFile : FolderTest {
    fs::path path(const std::string& name) const { return folder / name; }
    exchange::Sheet read(const std::string& name, std::size_t sheet = 0) const {
        return exchange::readSheet(path(name), *exchange::formatOf(name), sheet);
    }
    // "a.xlsx" of "part name|text" parts.
    void zip(const std::string& name,
             std::initializer_list<std::pair<const char*, std::string>> parts) const {
        file::Zip zip;
        zip.CreateArchive(path(name));
        for (const auto& [part, text] : parts) zip.addPart(part, text);
        zip.CloseArchive();
    }
    void xlsx(const std::string& name, const std::string& sheet, const std::string& book = {},
              const std::string& strings = {}) const {
        const auto relation = [](const char* id, const char* type, const char* target) {
            return std::string("<Relationship Id='") + id + "' Type='http://x/" + type + "' Target='" +
                   target + "'/>";
        };
        zip(name,
            {{"_rels/.rels", "<R>" + relation("a", "officeDocument", "xl/workbook.xml") + "</R>"},
             {"xl/_rels/workbook.xml.rels",
              "<R>" + relation("r1", "worksheet", "/xl/s.xml") + relation("r2", "worksheet", "s.xml") +
                  relation("r3", "styles", "styles.xml") + relation("r4", "sharedStrings", "t.xml") + "</R>"},
             {"xl/workbook.xml",
              "<x:workbook>" + book +
                  "<x:sheets><x:sheet name='H' state='hidden' r:id='r1'/><x:sheet name='A&amp;B' "
                  "r:id='r2'/></x:sheets></x:workbook>"},
             {"xl/styles.xml",
              "<s><numFmts><numFmt numFmtId='170' formatCode='[$-409]d\\ mmm yyyy;@'/><numFmt numFmtId='171' "
              "formatCode='&quot;day&quot; #,##0.00'/><numFmt numFmtId='172' "
              "formatCode='[h]:mm'/><numFmt numFmtId='173' formatCode='#,##0.00 "
              "[$\xE2\x82\xAC-407]'/></numFmts><cellXfs><xf numFmtId='0'/><xf numFmtId='14'/><xf "
              "numFmtId='22'/><xf numFmtId='170'/><xf numFmtId='171'/><xf numFmtId='172'/><xf "
              "numFmtId='173'/><xf numFmtId='47'/><xf numFmtId='48'/></cellXfs></s>"},
             {"xl/t.xml", "<sst>" + strings + "</sst>"},
             {"xl/s.xml", "<?xml version='1.0'?><!-- <row> --><x:worksheet>" + sheet + "</x:worksheet>"}});
    }
    void ods(const std::string& name, const std::string& tables) const {
        zip(name, {{"content.xml", "<d><office:spreadsheet>" + tables + "</office:spreadsheet></d>"}});
    }
    void sqlite(const std::string& name, const char* commands) const {
        sqlite3* database = nullptr;
        ASSERT_EQ(sqlite3_open(path(name).c_str(), &database), SQLITE_OK);
        EXPECT_EQ(sqlite3_exec(database, commands, nullptr, nullptr, nullptr), SQLITE_OK)
            << sqlite3_errmsg(database);
        sqlite3_close(database);
    }
};
