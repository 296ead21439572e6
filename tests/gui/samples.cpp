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
        QCOMPARE(session.cell(0, "Title"), QStringLiteral("The Salt Road"));
        QCOMPARE(gui::toQt(session.app.document.currentFile),
                 folders_.path("home") + QStringLiteral("/Documents/Ferrowick/library.fwk"));
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
        const QStringList wanted = {QStringLiteral("start_mnuNew"),   QStringLiteral("start_mnuOpen"),
                                    QStringLiteral("sample_library"), QStringLiteral("sample_addresses"),
                                    QStringLiteral("sample_garden"),  QStringLiteral("sample_inventory"),
                                    QStringLiteral("sample_invoices")};
        order.removeIf([](const QString& name) { return name.startsWith(QLatin1String("start_mnuFile")); });
        QCOMPARE(order.mid(0, wanted.size()), wanted);
    }

private:
    Folders folders_;
};

QTEST_MAIN(Samples)
#include "samples.moc"
