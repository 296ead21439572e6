#pragma once

#include <functional>
#include <sys/types.h>

namespace storage {

// Writes something of the document without keeping the window waiting. The text of a large document takes a
// second to write, and a document cannot be read while it is changed. So the process is forked: the child has
// the document as it is at that moment, writes it and ends, and the parent pays for its page tables alone (1
// ms for 32,000 records of 25 columns). A copy of the document in memory would take longer than a key press
// may, and to write it in slices would need a document that says what of it was changed between them.
//
// The child is left with one thread, and what it may call follows from that: no Qt, no display, no buffered
// output; no file or lock of the parent's is open in it; its signals mean what they mean by default; it
// leaves by _exit, so that nothing of the parent's is removed.
class BackgroundWriter {
public:
    BackgroundWriter() = default;
    ~BackgroundWriter() { stop(); }
    BackgroundWriter(const BackgroundWriter&) = delete;
    BackgroundWriter& operator=(const BackgroundWriter&) = delete;

    // False when it could not be begun; the caller then does the work itself. The work raises when it fails.
    // Never two at once: ask isRunning() before.
    [[nodiscard]] bool start(const std::function<void()>& work);
    // Sees to a child that has ended; so this is to be asked now and then.
    [[nodiscard]] bool isRunning();
    // Why the last one has failed: the number of the run-time error, or 1; 0 when it has not.
    [[nodiscard]] int failure() const { return failure_; }
    // Ends it, if it runs, whatever it has written.
    void stop();

private:
    pid_t child_ = -1;
    int failure_ = 0;
};

} // namespace storage
