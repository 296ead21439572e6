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
                      nothing = "You did not enter either an address or a subject.",
                      mail = "mailto:a+b@c.d,e@f.g%3Fx%26y?Subject=50%25%20%26%20%22more%22%20%231%3F"
                             "&Body=1%3D1%0D%0A%5C2%0D%0A%0D%0A%C3%A9 " +
                             file;
    const char *const to = "a+b@c.d,e@f.g?x&y", *const subject = "50% & \"more\" #1?";
    using platform::MailStart;
    const struct {
        const char *to, *subject;
        MailStart start;
        std::string told, sent;
    } cases[] = {{to, " ", {}, nothing, ""},
                 {" ", subject, {}, nothing, ""},
                 {to, subject, MailStart::WithAttachment, "", mail},
                 {to, subject, MailStart::NoProgram, "Your mail program could not be started.", mail},
                 {to, subject, MailStart::WithoutAttachment,
                  "Please attach the database to the message yourself:\n" + file, mail}};
    form.Text3 = "1=1\r\n\\2\n\r\xC3\xA9";
    for (const auto& c : cases) {
        form.Text1 = c.to;
        form.Text2 = c.subject;
        program.platform.start = c.start;
        form.OKButton_Click();
        EXPECT_EQ(program.told(), c.told.empty() ? "" : "i Send File: " + c.told);
        EXPECT_EQ(std::exchange(program.platform.sent, ""), c.sent);
        EXPECT_FALSE(form.unloaded);
    }
    program.platform.tellFailure();
    EXPECT_EQ(program.told(), "i Send File: Your mail program could not be started.");
    std::filesystem::remove(file);
    form.OKButton_Click();
    EXPECT_EQ(program.told() + program.platform.sent,
              "i Send File: The database file could not be found:\n" + file);
}

TEST(MailFrm, TheMessageTakes500Characters) {
    const std::string full = std::string(499, 'x') + "\xC3\xA9", pasted = "ab" + full.substr(2);
    struct Typed {
        std::string text;
        std::size_t caret;
    };
    const std::pair<Typed, Typed> cases[] = {
        {{full, 500}, {full, 500}},
        {{"y" + full, 1}, {full, 0}},                             // typed in front
        {{full + "yy", 502}, {full, 500}},                        // and behind
        {{pasted + "cde", 503}, {pasted, 500}},                   // pasted, of which a part fits
        {{std::string(600, 'z'), 0}, {std::string(500, 'z'), 0}}, // put in without a caret
    };
    Program program;
    storage::mailFrm form(program.app);
    for (const auto& [typed, kept] : cases) {
        form.Text3_Change(typed.text, typed.caret);
        EXPECT_TRUE(form.Text3 == kept.text && form.Text3Caret == kept.caret) << typed.caret;
    }
}

} // namespace
