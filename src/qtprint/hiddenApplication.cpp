#include "qtprint/hiddenApplication.h"

#include <QFile>

namespace qtprint {

RuntimeFolder::RuntimeFolder() {
    if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR"))
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(folder_.emplace().path()));
}

HiddenApplication::HiddenApplication() {
    if (QCoreApplication::instance() != nullptr) return;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    runtimeFolder_.emplace();
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    application_ = std::make_unique<QGuiApplication>(argc_, argv_);
}

} // namespace qtprint
