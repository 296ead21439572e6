#include "lock/designLock.h"
#include "core/text.h"
#include "databases.h"
#include "file/dataReader.h"
#include "file/dataWriter.h"
#include "storage/saveFile.h"
#include "table.h"

#include <gtest/gtest.h>

#include <random>

namespace {

using platform::Answer;
using namespace std::string_literals;

struct DesignLock : testing::Test, Program {
    DesignLock() : Program("books.fwk") {}

    // What the command says last, after its questions.
    std::string click(std::deque<std::string> inputs, Answer answer = Answer::Yes) {
        app::setDocumentModified(app, false);
        platform.answers = {answer};
        platform.inputs = std::move(inputs);
        lock::mnuDatabaseLock_Click(app);
        const std::string all = told();
        return all.substr(all.rfind('\n') + 1);
    }
    std::string scrambled(std::string_view password) {
        lockPassword = password;
        lock::scrambleLockPassword(app.document);
        return lockPassword;
    }
    std::string& lockPassword = app.document.lockPassword;
};

TEST_F(DesignLock, Scrambling) {
    const std::pair<std::string, std::string> cases[] = {
        {"", ""},
        {"winter", "\0\0\0\0\0\0"s},
        {"0123456789abc", "GX\\GQGER\\^\x04\x15\n"},  // the twelfth takes the first letter again
        {"\xC3\xA9\xE2\x82\xAC", "\xC5\xBE\xC3\xA9"}, // of the codes E9 and 80 come 9E and E9
        {"\xC4\xB2\xC4\xB2", "\xC5\x85\xC5\x9B"},     // beyond one byte
    };
    for (const auto& [plain, expected] : cases) EXPECT_EQ(scrambled(plain), expected) << plain;
    // Whatever the character, the way back leads to it.
    for (char32_t c = 0; c < 0x2200; ++c) {
        std::string text;
        for (int i = 0; i < 11; ++i) core::appendCodePoint(text, c);
        const std::string stored = scrambled(text);
        EXPECT_EQ(core::length(stored), 11U) << static_cast<unsigned>(c);
        EXPECT_EQ(scrambled(stored), text) << static_cast<unsigned>(c);
    }
}

// Passwords of the characters that make line ends and brackets, among records that need either encoding.
TEST_F(DesignLock, ALockedFileIsReadBack) {
    std::mt19937 random(7);
    for (int round = 0; round < 600; ++round) {
        std::string password = "\xC3\xA9";
        for (auto more = random() % 40; more > 0; --more)
            password += "zdcyht|~fkgj2=5,)/.;:w "[random() % 23];
        app.document.LV.at(1).cells[1] = round % 2 == 0 ? "plain" : "\xCE\xA9";
        lockPassword.clear();
        click({password});
        core::Document again;
        file::readDataFile(file::encodeDataFile(file::writeDataFile(app.document, false)), again);
        ASSERT_EQ(again.lockPassword + cells(again.LV), lockPassword + cells()) << password;
    }
    for (const char* stored :
         {"\r[Begin Data    ]", "x\r\n[Begin Data    ]"}) { // a section's line of its own
        const std::string password = scrambled(stored);
        lockPassword.clear();
        EXPECT_EQ(click({password}), "i This password cannot be stored.  Please choose another one.");
    }
    EXPECT_TRUE(lockPassword.empty() && !app.document.bModified);
}

TEST_F(DesignLock, Locking) {
    // What is answered, what is typed, what is told last, and what is stored. The last one has a page in
    // design.
    for (const auto& c :
         table("No -> sec -> - Lock Database: This f -> ; Cancel -> sec -> - Lock Database: This f -> ; "
               "Yes ->  -> - Lock Database: Enter  -> ; Yes ->    -> - Lock Database: Enter  ->   ; "
               "Yes -> sec -> i Database Locked. -> \x04\x0C\x0D; "
               "Design -> sec -> - Please return layout  -> ",
               4)) {
        lockPassword.clear();
        app.mainFrm.control("Design").Value = c[0] == "Design";
        const Answer answer = c[0] == "No" ? Answer::No : c[0] == "Cancel" ? Answer::Cancel : Answer::Yes;
        EXPECT_EQ(click({c[1]}, answer).substr(0, 23), c[2]);
        EXPECT_EQ(lockPassword, c[3]);
        EXPECT_EQ(app.document.bModified, c[3].size() == 3);
    }
}

TEST_F(DesignLock, UnlockingAfterASave) {
    EXPECT_FALSE(lock::isDesignLocked(app));
    click({"Rose and more"});
    EXPECT_TRUE(lock::isDesignLocked(app));
    EXPECT_TRUE(told().starts_with("i The database structure and layout have been locked."));
    storage::SaveFile(app, false, false);
    app.mainFrm.control("Design").Value = true;
    open(path("books.fwk"));
    EXPECT_FALSE(app.mainFrm.control("Design").Value) << "pressed for the database before";
    const std::string stored = lockPassword;
    for (const std::string& wrong : {""s, "rose and more"s, "Rose and more "s, stored}) {
        EXPECT_EQ(click({wrong}), "i Incorrect Password.");
        EXPECT_EQ(lockPassword, stored);
        EXPECT_TRUE(app.document.bModified) << "a failed attempt too";
    }
    EXPECT_EQ(click({"Rose and more"}), "- Unlock Database: Enter password to unlock database.");
    EXPECT_EQ(lockPassword, "");
    EXPECT_TRUE(app.document.bModified);
}

} // namespace
