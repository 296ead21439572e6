#include "platform/headlessPlatform.h"

#include <gtest/gtest.h>
#include <sstream>

using namespace std::chrono;
using platform::Answer;
using platform::Buttons;
using platform::HeadlessPlatform;
using platform::Icon;

namespace {

TEST(HeadlessPlatform, MessagesAreLinesAndQuestionsAreAnswered) {
    std::ostringstream messages;
    HeadlessPlatform machine(messages);
    EXPECT_EQ(machine.msgBox("one\r\ntwo\nthree\r", Icon::Information, "Title", Buttons::Ok), Answer::Ok);
    EXPECT_EQ(machine.msgBox("bad", Icon::Exclamation, "Title", Buttons::Ok), Answer::Ok);
    EXPECT_EQ(messages.str(), "Title: one two three \nTitle: bad\n");
    EXPECT_EQ(machine.exclamations(), 1);

    EXPECT_EQ(machine.msgBox("Really?", Icon::Exclamation, "Title", Buttons::YesNo), Answer::No);
    EXPECT_EQ(machine.refusedQuestions(), 1);
    machine.setAnswersYes(true);
    EXPECT_EQ(machine.msgBox("Really?", Icon::None, "Title", Buttons::YesNo), Answer::Yes);
    EXPECT_EQ(machine.refusedQuestions(), 1);
    EXPECT_EQ(machine.exclamations(), 1) << "a question is no failure";

    EXPECT_FALSE(machine.showSave({}).has_value());
    machine.setSaveName("a.fwk");
    EXPECT_EQ(machine.showSave({}), "a.fwk");
    EXPECT_FALSE(machine.showOpen({}).has_value());
}

TEST(HeadlessPlatform, TheWorkFolderIsMadeLateAndGoes) {
    std::ostringstream messages;
    std::filesystem::path folder;
    {
        HeadlessPlatform machine(messages);
        machine.clearWorkFiles();
        folder = machine.workFolder();
        EXPECT_TRUE(std::filesystem::is_directory(machine.tempFolder()));
        EXPECT_NE(HeadlessPlatform(messages).workFolder(), folder);
    }
    EXPECT_FALSE(std::filesystem::exists(folder));
}

TEST(HeadlessPlatform, KnowsTheDay) {
    std::ostringstream messages;
    HeadlessPlatform machine(messages);
    const auto day = sys_days(machine.today()) - floor<days>(system_clock::now());
    EXPECT_LE(abs(day), days(1)); // local time is at most a day off
    machine.setToday(year(2026) / 3 / 14);
    EXPECT_EQ(machine.today(), year(2026) / 3 / 14);
}

} // namespace
