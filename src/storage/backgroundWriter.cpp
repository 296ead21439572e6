#include "storage/backgroundWriter.h"

#include "core/runTimeError.h"
#include "core/translate.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <exception>
#include <initializer_list>
#include <sys/wait.h>
#include <unistd.h>

namespace storage {

namespace {

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool forks = false; // they keep threads and tables of their own, which a fork tears
#else
constexpr bool forks = true;
#endif

// A lock that another thread held at the moment of the fork is never given back in the child. None is known
// that the work would ask for, but a child that waits for ever would keep all later ones from being started.
constexpr unsigned longestSeconds = 120;

// The locks of the parent would be held as long as the child runs, though it had been killed meanwhile, and
// its window would stay on the screen.
void closeInherited() {
    constexpr unsigned first = STDERR_FILENO + 1, mostGuessed = 1024;
    if (::close_range(first, ~0U, 0) == 0) return;
    for (unsigned fd = first; fd < mostGuessed; ++fd) ::close(static_cast<int>(fd)); // an old kernel
}

[[noreturn]] void workAndLeave(const std::function<void()>& work) {
    closeInherited();
    for (const int number : {SIGTERM, SIGHUP, SIGINT, SIGALRM, SIGPIPE}) std::signal(number, SIG_DFL);
    ::alarm(longestSeconds);
    (void)!::nice(10);      // the window goes first
    core::setCatalogue({}); // the window's, and of no use here: a failure is told by its number
    int code = EXIT_SUCCESS;
    try {
        work();
    } catch (const core::RunTimeError& error) {
        code = error.number < 256 ? error.number : EXIT_FAILURE; // the parent is told, and tries again later
    } catch (const std::exception&) {
        code = EXIT_FAILURE;
    }
    ::_exit(code);
}

} // namespace

bool BackgroundWriter::start(const std::function<void()>& work) {
    if (!forks || child_ > 0) return false;
    const pid_t child = ::fork();
    if (child == 0) workAndLeave(work);
    if (child > 0) child_ = child;
    return child > 0;
}

bool BackgroundWriter::isRunning() {
    if (child_ <= 0) return false;
    int status = 0;
    const pid_t ended = ::waitpid(child_, &status, WNOHANG);
    if (ended == 0) return true;
    failure_ = ended == child_ && WIFEXITED(status) ? WEXITSTATUS(status) : EXIT_FAILURE;
    child_ = -1;
    return false;
}

void BackgroundWriter::stop() {
    if (child_ <= 0) return;
    ::kill(child_, SIGKILL);
    while (::waitpid(child_, nullptr, 0) < 0 && errno == EINTR) {
    }
    child_ = -1;
}

} // namespace storage
