#include "session.h"

// The tests of one file, which stand in the first argument: they share the settings and the windows of a
// process with no others. Behind it come the arguments of Qt's tests.
int main(int argc, char* argv[]) {
    const auto test = guiTests().find(argc > 1 ? argv[1] : "");
    if (test == guiTests().end()) {
        qCritical("usage: test_gui NAME [ARGUMENT...], with one of:");
        for (const auto& [name, make] : guiTests()) qCritical("  %s", name.c_str());
        return 2;
    }
    const QApplication application(argc, argv);
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi); // on every machine
    return QTest::qExec(test->second().get(), argc - 1, argv + 1);
}

#include "moc_session.cpp"
