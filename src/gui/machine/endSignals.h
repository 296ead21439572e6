#pragma once

#include <QSocketNotifier>

#include <functional>

namespace gui {

// The signals by which the system or the user's shell ends a program: SIGTERM, SIGHUP, SIGINT. A handler of
// theirs may do next to nothing, so it writes the number into a pipe, and the event loop reads it, in a
// dialog's loop too.
class EndSignals : public QObject {
    Q_OBJECT

public:
    explicit EndSignals(std::function<void(int number)> end, QObject* parent = nullptr);
    ~EndSignals() override;

private:
    std::function<void(int)> end_;
    QSocketNotifier* notifier_ = nullptr;
};

} // namespace gui
