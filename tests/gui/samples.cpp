#include "session.h"

#include <QAbstractButton>

// The page of a window without a database, and the samples on it.
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
        QCOMPARE(session.cell(0, "Title"), u"The Salt Road"_s);
        QCOMPARE(gui::toQt(session.app.document.currentFile),
                 folders_.path("home") + u"/Documents/Ferrowick/library.fwk"_s);
        QVERIFY(!button->isVisible());
        QVERIFY(session.platform.messages.empty());
    }

    void theTabKeyGoesThroughThemBehindNewAndOpen() {
        Session session;
        QStringList order;
        QWidget* widget = session.find<QWidget>("start_mnuNew");
        for (int i = 0; i < 40; ++i, widget = widget->nextInFocusChain())
            if (widget->isVisible() && qobject_cast<QAbstractButton*>(widget) != nullptr &&
                (widget->focusPolicy() & Qt::TabFocus) != 0)
                order << widget->objectName();
        const QStringList wanted = {u"start_mnuNew"_s,     u"start_mnuOpen"_s, u"sample_library"_s,
                                    u"sample_addresses"_s, u"sample_garden"_s, u"sample_inventory"_s,
                                    u"sample_invoices"_s};
        order.removeIf([](const QString& name) { return name.startsWith("start_mnuFile"_L1); });
        QCOMPARE(order.mid(0, wanted.size()), wanted);
    }

private:
    Folders folders_;
};

QTEST_MAIN(Samples)
#include "samples.moc"
