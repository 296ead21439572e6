#include "lock/designLock.h"
#include "core/encoding.h"
#include "core/text.h"
#include "databases.h"
#include "file/dataReader.h"
#include "file/dataWriter.h"
#include "storage/saveFile.h"

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
        lock::scrambleLockPassword(app);
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
    const std::string letters = "zdcyht|~fkgj2=5,)/.;:w \xE9\x80";
    std::mt19937 random(7);
    for (int round = 0; round < 600; ++round) {
        std::string password;
        for (auto length = random() % 40 + 1; length > 0; --length)
            password += letters[random() % letters.size()];
        password = core::fromWindows1252(password);
        if (core::trim(password).empty()) continue;
        app.document.LV.at(1).cells[1] = round % 2 == 0 ? "plain" : "\xCE\xA9";
        lockPassword.clear();
        click({password});
        core::Document again;
        file::readDataFile(file::encodeDataFile(file::writeDataFile(app.document, false)), again);
        ASSERT_EQ(again.lockPassword, lockPassword) << password;
        ASSERT_EQ(again.LV.count(), app.document.LV.count()) << password;
    }
    for (const char* stored :
         {"\r[Begin Data    ]", "x\r\n[Begin Data    ]"}) { // a section's line of its own
        const std::string password = scrambled(stored);
        lockPassword.clear();
        EXPECT_EQ(click({password}), "i This password cannot be stored.  Please choose another one.");
    }
    EXPECT_EQ(lockPassword, "");
    EXPECT_FALSE(app.document.bModified);
}

TEST_F(DesignLock, Locking) {
    const auto question =
        "- Lock Database: This feature will prevent any changes to be made to either the database "
        "properties or the layout.  You will need to provide a password to lock or unlock your "
        "file.  Are you sure you want to do this?"s;
    const auto pressed =
        "- Please return layout to browse view instead of design.  The design button is currently "
        "pressed."s;
    const auto prompt = "- Lock Database: Enter password to lock file."s;
    const struct {
        Answer answer;
        bool design;
        std::string input, told, stored;
    } cases[] = {{Answer::No, false, "secret", question, ""},
                 {Answer::Cancel, false, "secret", question, ""},
                 {Answer::Yes, true, "secret", pressed, ""},
                 {Answer::Yes, false, "", prompt, ""},
                 {Answer::Yes, false, "  ", prompt, "  "},
                 {Answer::Yes, false, "secret", "i Database Locked.", "\x04\x0C\x0D\x06\0\x06"s}};
    for (const auto& c : cases) {
        lockPassword.clear();
        app.mainFrm.control("Design").Value = c.design;
        EXPECT_EQ(click({c.input}, c.answer), c.told);
        EXPECT_EQ(lockPassword, c.stored);
        EXPECT_EQ(app.document.bModified, lockPassword.size() > 2);
    }
    EXPECT_TRUE(lock::isDesignLocked(app));
    EXPECT_EQ(told(),
              "i The database structure and layout have been locked.  Use the Options menu to unlock.");
}

TEST_F(DesignLock, UnlockingAfterASave) {
    EXPECT_FALSE(lock::isDesignLocked(app));
    click({"Rose and more"});
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
