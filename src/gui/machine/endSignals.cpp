#include "gui/machine/endSignals.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace gui {

namespace {

constexpr int numbers[] = {SIGTERM, SIGHUP, SIGINT};

int writeEnd = -1; // for the handler, which is given nothing but the number

void tell(int number) {
    const int error = errno;
    const auto byte = static_cast<unsigned char>(number);
    (void)!::write(writeEnd, &byte, 1);
    errno = error;
}

} // namespace

EndSignals::EndSignals(std::function<void(int)> end, QObject* parent)
    : QObject(parent), end_(std::move(end)) {
    int ends[2] = {-1, -1};
    if (::pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0) return; // they end the program as they would anyway
    writeEnd = ends[1];
    notifier_ = new QSocketNotifier(ends[0], QSocketNotifier::Read, this);
    connect(notifier_, &QSocketNotifier::activated, this, [this, from = ends[0]] {
        unsigned char number = 0;
        if (::read(from, &number, 1) == 1) end_(number);
    });
    struct sigaction action {};
    action.sa_handler = tell;
    action.sa_flags = SA_RESTART;
    for (const int number : numbers) {
        struct sigaction before {};
        // nohup and the like have them ignored.
        if (::sigaction(number, nullptr, &before) == 0 && before.sa_handler == SIG_IGN) continue;
        ::sigaction(number, &action, nullptr);
    }
}

EndSignals::~EndSignals() {
    if (notifier_ == nullptr) return;
    for (const int number : numbers) std::signal(number, SIG_DFL);
    ::close(static_cast<int>(notifier_->socket()));
    ::close(std::exchange(writeEnd, -1));
}

} // namespace gui

#include "moc_endSignals.cpp"
