#include "calc/designFrm.h"
#include "databases.h"
#include "search/codes/codeRules.h"
#include "search/codes/makeCodeFrm.h"
#include "shell/undo.h"

#include <gtest/gtest.h>

namespace {

const DataFile stock("Name No Pic:7", "Bolt|4006381333931|;Nut|12x|;Saw|96385074|mine.gif");

std::string pictures(const Program& program) {
    file::Zip Zip;
    Zip.OpenArchive(program.app.document.currentFile);
    std::string told;
    program.app.document.LV.forEach([&](const core::Item& record) {
        const std::string name = record.subItem(3).str();
        if (!record.isTotals()) told += name.empty() ? "-" : Zip.contains(name) ? "+" : "?";
    });
    return told + " " + std::to_string(Zip.FileCount() - 1);
}

void inForm(Program& program, const char* kind, const char* text,
            const std::function<void(search::makeCodeFrm&)>& act) {
    program.platform.onForm = [&](std::string_view) {
        search::makeCodeFrm form(program.app);
        form.List2_Click(static_cast<int>(std::ranges::find(form.List2, kind) - form.List2.begin()));
        form.Text1_Change(text);
        form.Opt1_Click(search::allRecords);
        act(form);
    };
    shell::beforeEvent(program.app);
    program.run("mnuMakeCode");
    shell::afterEvent(program.app);
}

} // namespace

TEST(MakeCode, AllOrNoneUndoneAndMadeAnew) {
    Program program(stock);
    inForm(program, "EAN-13", "{No}", [&](search::makeCodeFrm& form) {
        form.OKButton_Click();
        EXPECT_EQ(form.List3.size(), 2U);
        EXPECT_EQ(form.List3[0].Row + form.List3[0].Reason, "2EAN-13 of 12x: \"x\" at place 3 is no digit");
        EXPECT_EQ(pictures(program), "--? 0");
        form.Text1_Change("{Nme}");
        EXPECT_EQ(form.Label2, "There is no column \"Nme\"");
    });
    inForm(program, "QR", "{Name}, {No}", [&](search::makeCodeFrm& form) {
        program.platform.givesUpAt = 1;
        form.Check1_Click(true);
        form.OKButton_Click();
        EXPECT_EQ(pictures(program) + (form.unloaded ? "!" : ""), "--? 0"); // given up
        program.platform.givesUpAt = 1000;
        form.OKButton_Click();
    });
    EXPECT_EQ(pictures(program), "+++ 3");
    // Nut has another text, and so another code; both are in the file, since the step can be undone.
    const std::string before = program.app.document.LV.at(2).subItem(3).str();
    program.app.document.LV.at(2).subItem(1) = core::CellText("Nuts");
    app::setDocumentModified(program.app, true);
    EXPECT_NE(program.app.document.LV.at(2).subItem(3).str(), before);
    shell::afterEvent(program.app);
    EXPECT_EQ(pictures(program), "+++ 4");
    program.run("mnuUndo");
    EXPECT_EQ(program.app.document.LV.at(2).subItem(3).str(), before);
    program.run("mnuUndo");
    EXPECT_EQ(pictures(program), "--? 0");
    shell::afterEvent(program.app);
    program.run("mnuRedo");
    EXPECT_EQ(pictures(program), "+++ 3");
    EXPECT_EQ(program.told(), "");
    // The rule follows a column that gets another name.
    program.platform.answers = {platform::Answer::Yes};
    calc::designFrm form(program.app);
    form.selectedRow = 1;
    form.fieldTxt = "Title";
    form.changeBtn_Click();
    form.doneBtn_Click();
    program.app.document.LV.at(2).subItem(1) = core::CellText("Nuts");
    app::setDocumentModified(program.app, true);
    EXPECT_NE(program.app.document.LV.at(2).subItem(3).str(), before);
    EXPECT_EQ(search::codeRuleOf(program.app, "Pic")->source, "{Name}, {Title}");
}
