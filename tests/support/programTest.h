#pragma once

#include "databases.h"

#include <gtest/gtest.h>

// Name, comment and bytes of every entry of an archive, in their order; those of data.dat on request.
inline std::vector<std::string> entriesOf(const std::string& archive, bool withData) {
    std::vector<std::string> entries;
    file::Zip Zip;
    Zip.OpenArchive(archive);
    for (int i = 0; i < Zip.FileCount(); ++i) {
        const std::string name = Zip.FileNameAt(i);
        const bool isLeftOut = name == "data.dat" && !withData;
        entries.push_back(name + ":" + Zip.commentAt(i) + ":" +
                          (isLeftOut ? "" : *Zip.readEntry(name, 1 << 20)));
    }
    return entries;
}

class ProgramTest : public testing::Test {
protected:
    Program program;
    app::App& app = program.app;
    core::Document& document = app.document;
    app::MainFrm& mainFrm = app.mainFrm;
    ScriptedPlatform& platform = program.platform;

    std::string told() { return program.told(); }
    std::string dialogs() { return program.dialogs(); }
    // A database made of that data is opened.
    void openData(const DataFile& data) { program.open(program.make("rows.fwk", data.text())); }
    // Books, with a change that is not saved yet.
    std::string openChanged() {
        const std::string file = program.openCopyOf("books.fwk");
        document.LV.at(1).cells[1] = "changed";
        app::setDocumentModified(app, true);
        return file;
    }
    static bool holdsChange(const std::string& archive) {
        return Program::dataFileOf(archive).find("|changed|") != std::string::npos;
    }
    static std::string bytesOf(const std::filesystem::path& file) { return ScriptedPlatform::read(file); }
};
