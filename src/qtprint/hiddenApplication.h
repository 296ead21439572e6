#pragma once

#include <QGuiApplication>
#include <QTemporaryDir>

#include <memory>
#include <optional>

namespace qtprint {

// Where there is no runtime folder Qt makes one itself, and leaves it behind; this one goes. To be made ahead
// of the application object.
class RuntimeFolder {
public:
    RuntimeFolder();

private:
    std::optional<QTemporaryDir> folder_;
};

// Qt measures and draws texts for an application object only; this one shows nothing. Where there is one
// already, that serves.
class HiddenApplication {
public:
    HiddenApplication();

private:
    char name_[4] = "fwk";
    char* argv_[2] = {name_, nullptr};
    int argc_ = 1;
    std::optional<RuntimeFolder> runtimeFolder_;
    std::unique_ptr<QGuiApplication> application_;
};

} // namespace qtprint
