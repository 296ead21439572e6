#pragma once

#include <QGuiApplication>
#include <QTemporaryDir>

#include <memory>
#include <optional>

namespace qtprint {

// Qt measures and draws texts for an application object only; this one shows nothing. Where there is one
// already, that serves.
class HiddenApplication {
public:
    HiddenApplication();

private:
    char name_[4] = "fwk";
    char* argv_[2] = {name_, nullptr};
    int argc_ = 1;
    std::optional<QTemporaryDir> runtimeFolder_;
    std::unique_ptr<QGuiApplication> application_;
};

} // namespace qtprint
