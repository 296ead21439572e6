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

// What a column's codes were made of last stays with it, a piece is put where the text was marked, and texts
// that give no code are left out or lose the code that they had.
TEST(MakeCode, TheFormFollowsItsColumnAndLeavesOut) {
    Program program;
    const char* const used = "code-0000000000000001.gif"; // of a record without a text
    program.open(
        program.make("t.fwk",
                     DataFile("No:4 Name Pic:7 Photo:7", "1|Bolt||;2|Größe||mine.gif;3||code-00000000"
                                                         "00000001.gif|code-0000000000000001.gif")
                         .text(),
                     {used, "code-0000000000000002.gif", "mine.gif"}));
    const auto shown = [](const search::makeCodeFrm& form) {
        return form.List1.at(static_cast<std::size_t>(form.ListIndex)) + std::to_string(form.KindIndex) +
               form.Text1 + "@" + std::to_string(form.SelStart) + (form.OKButtonEnabled ? " OK " : " ") +
               form.Label1 + form.Label2 + (form.picture.empty() ? "" : " " + form.pictureText);
    };
    const auto use = [&](const char* column, const std::function<void(search::makeCodeFrm&)>& act) {
        program.platform.onForm = [&](std::string_view) {
            search::makeCodeFrm form(program.app);
            act(form);
        };
        search::makeCodeFor(program.app, column);
    };
    use("Photo", [&](search::makeCodeFrm& form) {
        form.Text1_Change("Größe {Name}");
        form.Insert_Click("No", 1, 3);
        EXPECT_EQ(shown(form), "Photo0G{No}e {Name}@5 OK Code of 1 G1e Bolt");
        form.Insert_Click("No", -1, -1);
        EXPECT_EQ(form.Text1 + std::to_string(form.SelStart), "{No}G{No}e {Name}4");
        form.Text1_Change(" ");
        EXPECT_EQ(shown(form), "Photo0 @-1 There is no text to make codes of");
        form.List2_Click(4); // Code 128, which has no umlauts
        form.Text1_Change("{Name}");
        form.Opt1_Click(search::allRecords);
        form.Check1_Click(true);
        form.OKButton_Click();
        EXPECT_FALSE(form.OKButtonEnabled);
        form.Check2_Click(true);
        form.OKButton_Click();
    });
    EXPECT_TRUE(codes::isCodeEntryName(program.cell(1, "Photo")));
    EXPECT_EQ(program.cell(2, "Photo") + program.cell(3, "Photo"), "mine.gif");
    use("", [&](search::makeCodeFrm& form) {
        EXPECT_EQ(shown(form), "Pic0{Name}@6 OK Code of 1 Bolt");
        form.Text1_Change("{No}");
        form.List1_Click(1);
        EXPECT_EQ(shown(form) + (form.bFollow ? "+" : ""), "Photo4{Name}@6 OK Code of 1 Bolt+");
    });
    search::dropUnusedCodes(program.app);
    file::Zip zip;
    zip.OpenArchive(program.path("t.fwk"));
    EXPECT_TRUE(zip.contains(used) && zip.contains("mine.gif"));
    EXPECT_FALSE(zip.contains("code-0000000000000002.gif"));
    program.run("Save");
    program.open(program.path("t.fwk")); // with its rule
    program.app.document.LV.at(1).subItem(2) = core::CellText("Bölt");
    app::setDocumentModified(program.app, true);
    EXPECT_EQ(program.cell(1, "Photo") + program.told().substr(0, 46),
              "! 1 record has no code in Photo now.  1: Code ");
    program.app.document.LV.setSelectedItem(&program.app.document.LV.at(3));
    use("Photo", [&](search::makeCodeFrm& form) {
        form.Opt1_Click(search::allRecords);
        EXPECT_EQ(form.Label2, "This record has no text, and gets no code");
    });
    search::renameInCodeRules(program.app, "Photo", "New");
    EXPECT_TRUE(search::codeRuleOf(program.app, "New") && !search::codeRuleOf(program.app, "Photo"));
    EXPECT_EQ(search::faultOf(program.app.document, {"Name", codes::Kind::QR, "{No}"}),
              "There is no column of pictures \"Name\"");
    for (const char* text : {"1\tean13\t{No}", "0\tqr\ta\tb", "0\tcode128\t"})
        EXPECT_EQ(search::ruleText(search::codeRuleFrom(text).value()), text);
    for (const char* text : {"", "1", "1\tqr", "1\tnone\tx", "\tqr"})
        EXPECT_FALSE(search::codeRuleFrom(text));
}
