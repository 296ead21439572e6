#include "qtprint/hiddenApplication.h"

#include <QFile>

namespace qtprint {

HiddenApplication::HiddenApplication() {
    if (QCoreApplication::instance() != nullptr) return;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Qt would make one itself otherwise, and leave it behind.
    if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR"))
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtimeFolder_.emplace().path()));
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    application_ = std::make_unique<QGuiApplication>(argc_, argv_);
}

} // namespace qtprint
