#include "shell/program.h"
#include "storage/mailFrm.h"
#include "programTest.h"

namespace {

class MailFrm : public testing::Test {
protected:
    class Machine : public ScriptedPlatform {
    public:
        platform::MailStart sendMail(const platform::MailMessage& message,
                                     const std::function<void()>& failed) override {
            mails.push_back(message);
            tellFailure = failed;
            return start;
        }
        platform::MailStart start = platform::MailStart::WithAttachment;
        std::vector<platform::MailMessage> mails;
        std::function<void()> tellFailure;
    };

    Program files;
    Machine machine;
    shell::Program app{machine};
    storage::mailFrm form{app};
};

TEST_F(MailFrm, sending) {
    const std::string file = app.document.currentFile = files.copyOf("books.fwk");
    using platform::MailStart;
    const struct {
        const char *subject, *told;
        MailStart start;
    } cases[] = {{" ", "i Send File: You did not enter either an address or a subject.", {}},
                 {"Books", "", MailStart::WithAttachment},
                 {"Books", "i Send File: Your mail program could not be started.", MailStart::NoProgram},
                 {"Books", "i Send File: Please attach the database to the message yourself:\n",
                  MailStart::WithoutAttachment}};
    for (const auto& c : cases) {
        form.Text1 = "a@b.c";
        form.Text2 = c.subject;
        machine.start = c.start;
        form.OKButton_Click();
        const std::string told = toldBy(machine);
        EXPECT_TRUE(told.starts_with(c.told) && told.empty() == (*c.told == '\0')) << told;
        EXPECT_FALSE(form.unloaded);
    }
    ASSERT_EQ(machine.mails.size(), 3U);
    EXPECT_EQ(machine.mails[0].attachment, file);
    machine.tellFailure();
    EXPECT_EQ(machine.lastMessage(), "Your mail program could not be started.");
    std::filesystem::remove(file);
    form.OKButton_Click();
    EXPECT_EQ(machine.lastMessage(), "The database file could not be found:\n" + file);
    EXPECT_EQ(machine.mails.size(), 3U);
}

TEST_F(MailFrm, theMessageTakes500Characters) {
    const std::string full = std::string(499, 'x') + "\xC3\xA9", pasted = "ab" + full.substr(2);
    const struct {
        std::string text;
        std::size_t caret;
        std::string kept;
        std::size_t caretKept;
    } cases[] = {
        {full, 500, full, 500},
        {"y" + full, 1, full, 0},                             // typed in front
        {full + "yy", 502, full, 500},                        // and behind
        {pasted + "cde", 503, pasted, 500},                   // pasted, of which a part fits
        {std::string(600, 'z'), 0, std::string(500, 'z'), 0}, // put in without a caret
    };
    for (const auto& c : cases) {
        form.Text3_Change(c.text, c.caret);
        EXPECT_EQ(form.Text3, c.kept) << c.caret;
        EXPECT_EQ(form.Text3Caret, c.caretKept) << c.caret;
    }
}

TEST(MailtoLink, losesNoCharacter) {
    EXPECT_EQ(
        platform::mailtoLink({"a+b@c.d,e@f.g?x&y", "50% & \"more\" #1?", "1=1\r\n\\2\n\r\xC3\xA9", "/f"}),
        "mailto:a+b@c.d,e@f.g%3Fx%26y?Subject=50%25%20%26%20%22more%22%20%231%3F"
        "&Body=1%3D1%0D%0A%5C2%0D%0A%0D%0A%C3%A9");
}

} // namespace
