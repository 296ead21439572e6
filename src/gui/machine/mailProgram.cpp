#include "gui/machine/mailProgram.h"

#include "gui/widgets/qtText.h"

#include <QDeadlineTimer>
#include <QProcess>
#include <QSet>
#include <QStandardPaths>

#include <unistd.h>

namespace gui {

namespace {

// A mail program can be the process itself, and then ends when the user is done with it; only what ends
// before he can have seen it has failed.
constexpr int failsWithinMs = 20000;
constexpr int startsWithinMs = 3000;

// These go on when the window is closed: a QProcess that is destroyed would kill them.
QSet<QProcess*>& running() {
    static auto* const all = new QSet<QProcess*>;
    return *all;
}

// xdg-email is a script, and its shell may take a backslash, or a text like "-n", for a command. It is given
// the link instead of such a text.
bool passesAsItStands(const std::string& text) {
    return text.find('\\') == std::string::npos && !text.starts_with('-');
}

QStringList argumentsFor(const platform::MailMessage& message) {
    QStringList arguments{QStringLiteral("--utf8")};
    // Several addresses would be taken for one with a comma in it.
    const bool plain = message.address.find('@') != std::string::npos &&
                       message.address.find(',') == std::string::npos && passesAsItStands(message.address) &&
                       passesAsItStands(message.subject) && passesAsItStands(message.body);
    if (plain) {
        arguments << QStringLiteral("--subject") << toQt(message.subject);
        // An empty text counts as a missing one.
        if (!message.body.empty()) arguments << QStringLiteral("--body") << toQt(message.body);
    }
    arguments << QStringLiteral("--attach") << toQt(message.attachment);
    arguments << toQt(plain ? message.address : platform::mailtoLink(message));
    return arguments;
}

} // namespace

bool startMailProgram(const platform::MailMessage& message, QObject* owner, std::function<void()> failed) {
    const QString program = QStandardPaths::findExecutable(QStringLiteral("xdg-email"));
    if (program.isEmpty() || !passesAsItStands(message.attachment)) return false;
    auto* mail = new QProcess;
    for (const auto channel : {&QProcess::setStandardOutputFile, &QProcess::setStandardErrorFile})
        (mail->*channel)(QProcess::nullDevice(), QIODevice::Truncate);
    mail->setStandardInputFile(QProcess::nullDevice());
    // What is typed into the terminal of the window is not meant for the mail program.
    mail->setChildProcessModifier([] { ::setsid(); });
    mail->start(program, argumentsFor(message));
    if (!mail->waitForStarted(startsWithinMs)) {
        delete mail;
        return false;
    }
    running().insert(mail);
    const QDeadlineTimer soon(failsWithinMs);
    QObject::connect(mail, &QProcess::finished, owner,
                     [soon, failed = std::move(failed)](int code, QProcess::ExitStatus status) {
                         if ((code != 0 || status == QProcess::CrashExit) && !soon.hasExpired()) failed();
                     });
    QObject::connect(mail, &QProcess::finished, mail, [mail] {
        running().remove(mail);
        mail->deleteLater();
    });
    return true;
}

} // namespace gui
