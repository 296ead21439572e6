#include "cli/command.h"
#include "cli/session.h"
#include "core/encoding.h"
#include "core/text.h"
#include "lock/designLock.h"

#include <CLI/CLI.hpp>
#include <array>
#include <csignal>
#include <iostream>
#include <termios.h>
#include <unistd.h>

namespace cli {

namespace {

struct LockOptions {
    std::string file;
    double wait = usualWait;
    bool yes = false;
};

termios shownTyping{};
std::array<void (*)(int), NSIG> endedBefore{}; // what a signal did before

// Whoever breaks off at the prompt wants a terminal that shows again what he types.
extern "C" void showTypingAndEnd(int signal) {
    ::tcsetattr(STDIN_FILENO, TCSANOW, &shownTyping);
    ::signal(signal, endedBefore[static_cast<std::size_t>(signal)]); // NOLINT: a handler raises nothing
    ::raise(signal);
}

// Keeps what is typed from being shown, where somebody types.
class HiddenTyping {
public:
    HiddenTyping()
        : isTerminal_(::isatty(STDIN_FILENO) == 1 && ::tcgetattr(STDIN_FILENO, &shownTyping) == 0) {
        if (!isTerminal_) return;
        std::cerr << "Password: ";
        for (const int ending : endings)
            endedBefore.at(static_cast<std::size_t>(ending)) = ::signal(ending, showTypingAndEnd);
        termios hidden = shownTyping;
        hidden.c_lflag &= ~static_cast<tcflag_t>(ECHO);
        ::tcsetattr(STDIN_FILENO, TCSAFLUSH, &hidden);
    }
    ~HiddenTyping() {
        if (!isTerminal_) return;
        ::tcsetattr(STDIN_FILENO, TCSAFLUSH, &shownTyping);
        for (const int ending : endings) ::signal(ending, endedBefore.at(static_cast<std::size_t>(ending)));
        std::cerr << '\n';
    }
    HiddenTyping(const HiddenTyping&) = delete;
    HiddenTyping& operator=(const HiddenTyping&) = delete;

private:
    static constexpr int endings[] = {SIGINT, SIGTERM, SIGHUP, SIGQUIT};
    bool isTerminal_;
};

// The first line of standard input.
std::string readPassword(const std::string& file) {
    std::string password;
    {
        const HiddenTyping hidden;
        std::getline(std::cin, password);
    }
    if (password.ends_with('\r')) password.pop_back();
    // The window would take blanks for a password that nobody can type again.
    if (core::trim(password).empty()) throw Failure(file, "there is no password on standard input");
    if (core::sanitizeUtf8(password) != password) throw Failure(file, "the password is not UTF-8");
    return password;
}

// Locks an open design and opens a locked one.
int turn(const LockOptions& options, bool toLocked) {
    Session session(options.file, options.wait);
    session.openToWrite();
    const std::string& lockPassword = session.app.document.lockPassword;
    const auto isLocked = [&] { return !lockPassword.empty(); };
    if (isLocked() == toLocked)
        throw Failure(session.file, toLocked ? "its design is locked already" : "its design is not locked");
    session.platform.setInput(readPassword(session.file));
    session.platform.setAnswersYes(true); // who calls the command has answered what it would ask
    session.change([&] { lock::mnuDatabaseLock_Click(session.app); });
    if (isLocked() != toLocked)
        throw Failure(session.file, toLocked ? "its design is not locked" : "its design stays locked");
    session.save();
    return done;
}

Run setUpTurn(CLI::App& command, bool toLocked) {
    const auto options = std::make_shared<LockOptions>();
    addWrittenFileArgument(command, options->file, options->wait);
    addYesFlag(command, options->yes, "Not needed: the command asks no question");
    command.footer("The password is the first line of standard input.");
    return [options, toLocked] { return turn(*options, toLocked); };
}

} // namespace

Run setUpLock(CLI::App& command) {
    return setUpTurn(command, true);
}

Run setUpUnlock(CLI::App& command) {
    return setUpTurn(command, false);
}

} // namespace cli
