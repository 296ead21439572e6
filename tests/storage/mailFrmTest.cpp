#include "storage/mailFrm.h"
#include "databases.h"

#include <gtest/gtest.h>

namespace {

class MailMachine : public ScriptedPlatform {
public:
    platform::MailStart sendMail(const platform::MailMessage& message,
                                 const std::function<void()>& failed) override {
        sent += platform::mailtoLink(message) + " " + message.attachment;
        tellFailure = failed;
        return start;
    }
    platform::MailStart start = platform::MailStart::WithAttachment;
    std::string sent;
    std::function<void()> tellFailure;
};

TEST(MailFrm, Sending) {
    ProgramOn<MailMachine> program("books.fwk");
    storage::mailFrm form(program.app);
    const std::string file = program.app.document.currentFile,
                      nothing = "i Send File: You did not enter either an address or a subject.",
                      notStarted = "i Send File: Your mail program could not be started.",
                      mail = "mailto:a+b@c.d,e@f.g%3Fx%26y?Subject=50%25%20%26%20%22more%22%20%231%3F"
                             "&Body=1%3D1%0D%0A%5C2%0D%0A%0D%0A%C3%A9 " +
                             file;
    using platform::MailStart;
    form.Text3 = "1=1\r\n\\2\n\r\xC3\xA9";
    const auto send = [&](const char* to, const char* subject, MailStart start) {
        form.Text1 = to;
        form.Text2 = subject;
        program.platform.start = start;
        form.OKButton_Click();
        return std::exchange(program.platform.sent, "") + program.told();
    };
    const char *const to = "a+b@c.d,e@f.g?x&y", *const subject = "50% & \"more\" #1?";
    EXPECT_EQ(send(to, " ", {}), nothing);
    EXPECT_EQ(send(" ", subject, {}), nothing);
    EXPECT_EQ(send(to, subject, MailStart::WithAttachment), mail);
    EXPECT_EQ(send(to, subject, MailStart::NoProgram), mail + notStarted);
    EXPECT_EQ(send(to, subject, MailStart::WithoutAttachment),
              mail + "i Send File: Please attach the database to the message yourself:\n" + file);
    program.platform.tellFailure();
    EXPECT_EQ(program.told(), notStarted);
    std::filesystem::remove(file);
    EXPECT_EQ(send(to, subject, {}), "i Send File: The database file could not be found:\n" + file);
    EXPECT_FALSE(form.unloaded);
}

TEST(MailFrm, TheMessageTakes500Characters) {
    Program program;
    storage::mailFrm form(program.app);
    const std::string full = std::string(499, 'x') + "\xC3\xA9", pasted = "ab" + full.substr(2);
    // What stands in the box and where the caret is, and what is left of it: typed in front, and behind,
    // pasted so that a part fits, and put in without a caret.
    using Box = std::pair<std::string, std::size_t>;
    const std::pair<Box, Box> cases[] = {{{full, 500}, {full, 500}},
                                         {{"y" + full, 1}, {full, 0}},
                                         {{full + "yy", 502}, {full, 500}},
                                         {{pasted + "cde", 503}, {pasted, 500}},
                                         {{std::string(600, 'z'), 0}, {std::string(500, 'z'), 0}}};
    for (const auto& [typed, kept] : cases) {
        form.Text3_Change(typed.first, typed.second);
        EXPECT_TRUE(Box(form.Text3, form.Text3Caret) == kept) << typed.second;
    }
}

} // namespace
