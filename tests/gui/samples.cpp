#include "session.h"

#include <QAbstractButton>

class Samples : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        qputenv("HOME", QFile::encodeName(folders_.path("home")));
        Folders::forgetSettings();
    }

    // With the keys alone, as somebody does who starts the program for the first time.
    void aSampleOpensAsACopyOfTheUsersOwn() {
        Session session;
        auto* button = session.find<QAbstractButton>("sample_library");
        button->setFocus();
        QTest::keyClick(button, Qt::Key_Space);
        QCOMPARE(session.cell(0, "Title"), QStringLiteral("The Salt Road"));
        QCOMPARE(gui::toQt(session.app.document.currentFile),
                 folders_.path("home") + QStringLiteral("/Documents/Ferrowick/library.fwk"));
        QCOMPARE(session.window.windowTitle().contains(QStringLiteral("library")), true);
        QCOMPARE(button->isVisible(), false);
        QVERIFY(session.platform.messages.empty());
    }

    void theSamplesComeBehindTheOtherWaysToBegin() {
        Session session;
        std::vector<QString> order;
        QWidget* widget = session.find<QWidget>("start_mnuNew");
        for (int i = 0; i < 40 && order.size() < 7; ++i, widget = widget->nextInFocusChain())
            if (widget->objectName().startsWith(QLatin1String("sample_")) ||
                (widget->objectName().startsWith(QLatin1String("start_")) && widget->isVisible()))
                order.push_back(widget->objectName());
        const std::vector<QString> wanted = {"start_mnuNew"_qs,    "start_mnuOpen"_qs,    "start_mnuFile1"_qs,
                                             "sample_library"_qs,  "sample_addresses"_qs, "sample_garden"_qs,
                                             "sample_inventory"_qs};
        QCOMPARE(order, wanted);
    }

private:
    Folders folders_;
};

QTEST_MAIN(Samples)
#include "samples.moc"
