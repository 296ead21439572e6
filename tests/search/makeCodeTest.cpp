#include "calc/designFrm.h"
#include "databases.h"
#include "search/codes/codeRules.h"
#include "search/codes/makeCodeFrm.h"
#include "search/filter/filterMode.h"
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

TEST(MakeCode, ResultsShowWhatWasMade) {
    Program program(stock);
    search::setFilter(program.app, "Nut", {});
    inForm(program, "QR", "{Name}", [&](search::makeCodeFrm& form) {
        form.OKButton_Click();
        const std::string made = program.app.document.LV.at(2).subItem(3).str();
        EXPECT_EQ(program.app.document.searchLV.at(1).subItem(3).str(), made);
        EXPECT_FALSE(made.empty());
    });
}

// Texts that give no code are left out or lose the one that they had, but no picture of the user's own.
TEST(MakeCode, TheFormFollowsItsColumnAndLeavesOut) {
    Program program(
        DataFile("No:4 Name Pic:7 Photo:7", "1|Bolt||;2|Größe||mine.gif;3|||code-0000000000000001.gif"));
    const auto use = [&](const char* column, const std::function<void(search::makeCodeFrm&)>& act) {
        program.platform.onForm = [&](std::string_view) {
            search::makeCodeFrm form(program.app);
            form.Opt1_Click(search::allRecords);
            act(form);
        };
        search::makeCodeFor(program.app, column);
    };
    const auto shown = [](const search::makeCodeFrm& form) {
        return std::to_string(form.ListIndex) + std::to_string(form.KindIndex) + form.Text1 +
               std::to_string(form.SelStart) + (form.bFollow ? "+" : "") + form.Label2 + form.pictureText;
    };
    use("Photo", [&](search::makeCodeFrm& form) {
        form.Text1_Change("Größe {Name}");
        form.Insert_Click("No", 1, 3);
        EXPECT_EQ(shown(form), "10G{No}e {Name}5G1e Bolt");
        form.List2_Click(4); // Code 128, which has no umlauts
        form.Text1_Change("{Name}");
        form.Check1_Click(true);
        for (const bool bLeaveOut : {false, true}) {
            form.Check2_Click(bLeaveOut);
            form.OKButton_Click();
            EXPECT_EQ(form.OKButtonEnabled, bLeaveOut);
        }
    });
    EXPECT_TRUE(codes::isCodeEntryName(program.cell(1, "Photo")));
    EXPECT_EQ(program.cell(2, "Photo") + program.cell(3, "Photo"), "mine.gif");
    use("", [&](search::makeCodeFrm& form) {
        form.Text1_Change("{No}");
        form.List1_Click(1);
        EXPECT_EQ(shown(form), "14{Name}6+Bolt");
    });
    search::readCodeRules(program.app); // as they are kept
    program.app.document.LV.at(1).subItem(2) = core::CellText("Bölt");
    app::setDocumentModified(program.app, true);
    EXPECT_EQ(program.cell(1, "Photo") + program.told().substr(0, 46),
              "! 1 record has no code in Photo now.  1: Code ");
    search::renameInCodeRules(program.app, "Photo", "New");
    EXPECT_EQ(search::codeRuleOf(program.app, "New")->source, "{Name}");
    for (const char* text : {"", "1\tqr", "1\tnone\tx", "\tqr"}) EXPECT_FALSE(search::codeRuleFrom(text));
}
