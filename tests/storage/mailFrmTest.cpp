#include "storage/mailFrm.h"
#include "databases.h"

#include <gtest/gtest.h>

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
    app::App app{machine};
    storage::mailFrm form{app};
};

TEST_F(MailFrm, sending) {
    const std::string file = app.document.currentFile = files.copyOf("books.fwk");
    const struct {
        const char *address, *subject, *told;
        platform::MailStart start;
    } cases[] = {
        {"a@b.c", " ", "You did not enter either an address or a subject.", {}},
        {"a@b.c", "Books", "", platform::MailStart::WithAttachment},
        {"a@b.c", "Books", "Your mail program could not be started.", platform::MailStart::NoProgram},
        {"a@b.c", "Books", "Please attach the database to the message yourself:\n",
         platform::MailStart::WithoutAttachment},
    };
    for (const auto& c : cases) {
        machine.messages.clear();
        form.Text1 = c.address;
        form.Text2 = c.subject;
        machine.start = c.start;
        form.OKButton_Click();
        EXPECT_EQ(machine.lastMessage().substr(0, std::string_view(c.told).size()), c.told);
        ASSERT_EQ(machine.messages.size(), *c.told == '\0' ? 0U : 1U);
        if (*c.told != '\0') {
            EXPECT_EQ(machine.messages[0].caption, "Send File");
            EXPECT_EQ(machine.messages[0].icon, platform::Icon::Information);
        }
        EXPECT_FALSE(form.unloaded);
    }
    ASSERT_EQ(machine.mails.size(), 3U);
    EXPECT_EQ(machine.mails[0].attachment, file);
    machine.messages.clear();
    machine.tellFailure();
    EXPECT_EQ(machine.lastMessage(), "Your mail program could not be started.");
    std::filesystem::remove(file);
    form.OKButton_Click();
    EXPECT_EQ(machine.lastMessage(), "The database file could not be found:\n" + file);
    EXPECT_EQ(machine.mails.size(), 3U);
}

TEST_F(MailFrm, theMessageTakes500Characters) {
    const std::string full = std::string(499, 'x') + "\xC3\xA9";
    form.Text3_Change(full, 500);
    EXPECT_EQ(form.Text3, full);
    const struct {
        std::string text;
        std::size_t caret;
        std::string kept;
        std::size_t caretKept;
    } cases[] = {
        {"y" + full, 1, full, 0},                                         // typed in front
        {full + "yy", 502, full, 500},                                    // and behind
        {"ab" + full.substr(2) + "cde", 503, "ab" + full.substr(2), 500}, // pasted, of which a part fits
        {std::string(600, 'z'), 0, std::string(500, 'z'), 0},             // put in without a caret
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
