#include "sheetFixture.h"

namespace {

struct Clipboard : Sheet {
    const std::string none = "i There are no objects of a layout on the clipboard.";

    // Pastes what is on the clipboard, or that text; what the page holds then, or what was told.
    std::string pasted() {
        app::setDocumentModified(app, false);
        const std::string before = lines();
        run("mnuPaste");
        const std::string message = told();
        EXPECT_TRUE(app.document.bModified == message.empty() && (message.empty() || lines() == before));
        return message.empty() ? lines() : message;
    }
    std::string pasted(const std::string& text) {
        platform.onClipboard = {text, "", ""};
        return pasted();
    }
};

TEST_F(Clipboard, EachObjectComesToAnotherPageAsItIs) {
    std::size_t number = 0;
    for (const std::string& line : std::vector<std::string>(
             {"F|Name|960|960|1500|300|True|False|False|Arial|12|255|",
              "L|One | two|960|1200|900|240|False|True|False|Arial|10|0|http://x|2|",
              "LN|600|3000|4800|75|16777215|", "VLN|3000|900|75|3000|16777215|",
              "B|1500|1500|3000|1200|255|3|", "P|Photo|4800|900|600|600|", "C|art.gif|3000|0|2175|1815|"})) {
        openSheet(line, true);
        it = {core::allFamilies[number++], 1};
        after("select");
        run("mnuCopy");
        EXPECT_EQ(platform.onClipboard.text, line + "\n");
        if (number % 2 == 0) platform.onClipboard.layout.clear(); // as another program gives it back
        openSheet({}, true);
        EXPECT_EQ(pasted(), line + "; ");
        EXPECT_TRUE(page.selectedObject == it && page.bShowSelected && state().ends_with("grip"));
        // Beside itself, but one box a column; in its own place once it is cut.
        EXPECT_EQ(pasted().starts_with("i Field already added"), line[0] == 'F' || line[0] == 'P');
        after("select");
        run("mnuCut");
        EXPECT_EQ(core::findObject(objects, it), nullptr);
        EXPECT_TRUE(pasted().starts_with(line));
    }
    openSheet("B|1500|1500|3000|1200|255|3|", true);
    after("pBox,1 select");
    run("mnuCopy");
    pasted();
    EXPECT_TRUE(pasted().ends_with(" B|1620|1620|3000|1200|255|3|; B|1740|1740|3000|1200|255|3|; "));
    EXPECT_TRUE(pasted("B|30000|-50|1000|500|0|1|").ends_with(" B|11240|0|1000|500|0|1|; "));
    openSheet("F|Qty|0|0|900|300;F|Qty|0|300|900|300", true);
    const std::string repeated = lines();
    after("layoutField,1 select");
    run("mnuCut");
    EXPECT_EQ(pasted(), repeated);
    EXPECT_TRUE(objects.layoutField[1].Enabled && !objects.layoutField[2].Enabled);
}

// A picture takes a name that is free, and no other picture's place; what is no picture takes none.
TEST_F(Clipboard, ClipArtBringsItsPicture) {
    platform.pictures["art.gif"] = platform.pictures["art-2.gif"] = {1500, 1500};
    const std::string art = "C|art.gif|3000|0|600|600|";
    openSheet(art, true);
    const std::string bytes = "\x01\xff drawn anew" + std::string(3, '\0');
    ScriptedPlatform::write(platform.tempFolder() / "art.gif", bytes);
    after("clipPic,1 select");
    run("mnuCopy");
    for (const char* copies : {"", "C|art-2.gif|3120|120|600|600|; "}) {
        openSheet(art, true); // the work folder is another one's then
        EXPECT_EQ(pasted(), art + "; C|art-2.gif|3120|120|600|600|; ") << copies;
        EXPECT_EQ(entry("art.gif") + entry("art-2.gif"), "bytes of art.gif" + bytes);
        EXPECT_EQ(objects.clipPic[2].clipImage.path, platform.tempFolder() / "art-2.gif");
    }
    EXPECT_TRUE(pasted().ends_with(" C|art-2.gif|3240|240|600|600|; ")) << "there is one already";
    const auto hostile = [&](const std::string& name, const std::string& digits) {
        return pasted("C|" + name + "|0|0|600|600|\nI|" + name + "|" + digits + "\n");
    };
    for (const char* name : {"data.dat", "../a.gif", "no.gif", "gif"})
        EXPECT_EQ(hostile(name, "QUJD"), "! The picture " + std::string(name) + " cannot be read.");
    EXPECT_EQ(hostile("art.gif", "Q!") + (fs::exists(platform.tempFolder() / "no.gif") ? "!" : ""), none);
    fs::remove(app.document.currentFile);
    EXPECT_TRUE(hostile("art.gif", "QUJD").starts_with("! The picture could not be added to the database: "));
}

TEST_F(Clipboard, WhatIsNoObjectIsRefused) {
    openSheet("B|0|0|900|900|0|1|", true);
    std::string many, label = "L|" + std::string(70'000, 'x') + "|0|0|9|9|False|False|False|Arial|10|0||0|";
    for (int i = 0; i < 1001; ++i) many += "B|0|0|9|9|0|1|\n";
    for (const std::string& text : std::vector<std::string>(
             {"", "a\tb\n", "F|Name|1|2", "B|0|0|-5|9|0|1|", "B|0|0|1e9|9|0|1|", "B|nan|0|9|9|0|1|",
              "B|0|0|9|9|0|1|\nx", many, label, std::string(std::size_t{65} << 20, '\n')}))
        EXPECT_EQ(pasted(text), none) << text.substr(0, 40);
    for (const auto& c :
         table("F|Nope|0|0|9|9 -> column \"Nope\"; F|Photo|0|0|9|9 -> column \"Photo\"; "
               "F|Index|0|0|9|9 -> column \"Index\"; P|Name|0|0|9|9| -> picture column \"Name\""))
        EXPECT_EQ(
            pasted("B|0|0|9|9|0|1|\n" + c[0] + (c[0][0] == 'F' ? "|False|False|False|Arial|10|0|" : "")),
            "i This database has no " + c[1] + ".");
    // A lock keeps what it locks, and nothing is meant that is not seen.
    after("pBox,1 click Lock");
    run("mnuCut");
    EXPECT_EQ(told(), "i This object is locked.  Press the Lock button to unlock it.");
    app.document.lockPassword = "x";
    for (const char* command : {"mnuCut", "mnuPaste"}) run(command);
    EXPECT_EQ(lines() + std::to_string(told().size() > 150), "B|0|0|900|900|0|1|; 1");
    app.document.lockPassword.clear();
    after("design");
    EXPECT_FALSE(shell::isCommandEnabled(app, "mnuCut"));
}

} // namespace
