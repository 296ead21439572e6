#include "session.h"

#include "gui/entryFrmView.h"
#include "platform/zip.h"

#include <QLabel>
#include <QTimer>

// Records typed into the Entry Form.
class Entry : public QObject {
    Q_OBJECT

private:
    Folders folders_;

    QString makeDatabase(const char* name, const QByteArray& dataFile) const {
        QFile::remove(folders_.path(name));
        platform::Zip zip;
        zip.CreateArchive(gui::fromQt(folders_.path(name)));
        zip.addBuffer("data.dat", dataFile.toStdString(), "Main Data File");
        zip.CloseArchive();
        return folders_.path(name);
    }
    // Opens the form as the program does, and lets the test work in it until it is closed.
    static void inForm(Session& run, const std::function<void(gui::entryFrmView&)>& act) {
        bool done = false;
        QTimer::singleShot(0, &run.window, [&] {
            auto* form = qobject_cast<gui::entryFrmView*>(QApplication::activeModalWidget());
            if (form != nullptr) form->activateWindow();
            const auto hasFocus = [&] { return form->isAncestorOf(QApplication::focusWidget()); };
            if (form != nullptr && QTest::qWaitFor(hasFocus)) {
                act(*form);
                done = true;
            }
            if (form != nullptr) form->close();
        });
        run.window.events().run([&] { run.platform.QtPlatform::showForm("entryFrm"); });
        QVERIFY(done);
    }
    // As a hand on the keyboard does: whatever has the focus gets it.
    static void type(const QString& text) { QTest::keyClicks(QApplication::focusWidget(), text); }
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    static QString focused() { return QApplication::focusWidget()->objectName(); }
    static QLineEdit* box(gui::entryFrmView& form, int index) {
        return form.findChild<QLineEdit*>(QStringLiteral("FieldBox%1").arg(index));
    }

private slots:
    void init() { Folders::forgetSettings(); }
    void aDoubleClickAsksForTheForm();
    void twentyRecordsByKeyboardAlone();
    void keysAndFocus();
    void theToolbarAndTheFindBox();
    void rowsAreAsHighAsTextBoxes();
    void thePaneScrollsAndGrows();
};

void Entry::aDoubleClickAsksForTheForm() {
    Session run(folders_.sample("books.fwk"));
    QTest::mouseDClick(run.list()->viewport(), Qt::LeftButton, {},
                       run.list()->visualRect(run.list()->model()->index(2, 1)).center());
    QCOMPARE(run.platform.forms, QStringList{QStringLiteral("entryFrm")});
    QCOMPARE(run.LV().indexOf(*run.LV().selectedItem()), 3);
}

void Entry::twentyRecordsByKeyboardAlone() {
    const QString file = makeDatabase(
        "till.fwk", "[LayoutStart]\r\n[LayoutEnd]\r\n[Layout Options]4|6|1|1|1|1|1|1|0.15|\r\n"
                    "[Column Names  ]No|Day|Article|Price|Qty|Sum|\r\n[Column Types  ]4|1|3|2|4|5|\r\n"
                    "[Column Widths ]900|1440|2400|1440|900|1440|\r\n[Column Spots  ]1|2|3|4|5|6|7|\r\n"
                    "[Formulas      ]Sum,Price * Qty|\r\n[Totaled Cols  ]Price|Qty|Sum|\r\n"
                    "[Optioned Cols ]No|Day|\r\n[Increments    ]No,100|\r\n[Begin Data    ]\r\n"
                    "------|------|------|------|------|------|\r\n");
    const QString today = QDate::currentDate().toString(QStringLiteral("MM/dd/yyyy"));
    const auto cents = [](int record) { return 1234 + 101 * record; };
    {
        Session run(file);
        inForm(run, [&](gui::entryFrmView& form) {
            QCOMPARE(focused(), QStringLiteral("FieldBox0"));
            for (int record = 0; record < 20; ++record) {
                press(Qt::Key_N, Qt::ControlModifier);
                QCOMPARE(box(form, 0)->text(), QString::number(101 + record));
                QCOMPARE(box(form, 1)->text(), today);
                press(Qt::Key_Return);
                press(Qt::Key_Down);
                type(QStringLiteral("Article %1, small").arg(record));
                press(Qt::Key_Enter);
                type(QString::number(cents(record)));
                press(Qt::Key_Return);
                QCOMPARE(box(form, 3)->text().right(3),
                         QString::number(cents(record)).right(2).prepend(u'.'));
                type(QString::number(record % 4 + 1));
                press(Qt::Key_Return);
                QCOMPARE(run.LV().count(), record + 2);
                QCOMPARE(focused(), QStringLiteral("FieldBox0"));
            }
            QCOMPARE(run.panel(1), QStringLiteral("20 records."));
            QCOMPARE(run.panel(5), QStringLiteral("Document Modified"));
            press(Qt::Key_S, Qt::ControlModifier);
            QCOMPARE(run.panel(5), QStringLiteral("Document Saved"));
            press(Qt::Key_Escape);
        });
        QVERIFY(run.platform.messages.empty());
        QCOMPARE(run.rows(), 21);
        QVERIFY(run.LV().MultiSelect);
    }
    Session again(file);
    QCOMPARE(again.rows(), 21);
    const auto money = [](int amount) {
        return QStringLiteral("$%1.%2").arg(amount / 100).arg(amount % 100, 2, 10, QLatin1Char('0'));
    };
    int prices = 0, pieces = 0, sums = 0;
    for (int record = 0; record < 20; ++record) {
        const int quantity = record % 4 + 1;
        prices += cents(record);
        pieces += quantity;
        sums += cents(record) * quantity;
        QCOMPARE(again.cell(record, "No"), QString::number(101 + record));
        QCOMPARE(again.cell(record, "Day"), today);
        QCOMPARE(again.cell(record, "Article"), QStringLiteral("Article %1, small").arg(record));
        QCOMPARE(again.cell(record, "Price"), money(cents(record)));
        QCOMPARE(again.cell(record, "Qty"), QString::number(quantity));
        QCOMPARE(again.cell(record, "Sum"), money(cents(record) * quantity));
    }
    QCOMPARE(again.cell(20, "Price"), money(prices));
    QCOMPARE(again.cell(20, "Qty"), money(pieces * 100)); // behind a Currency column it is money too
    QCOMPARE(again.cell(20, "Sum").remove(QLatin1Char(',')), money(sums));
    QCOMPARE(again.app.document.SerialsLV.at(1).subItem(1).str(), std::string("120"));
}

void Entry::keysAndFocus() {
    Session run(folders_.sample("books.fwk"));
    inForm(run, [&](gui::entryFrmView& form) {
        // The boxes stand as the columns do: No, Title, Author, Price, Bought, Copies, Notes.
        QCOMPARE(box(form, 1)->text(), QStringLiteral("The Odyssey"));
        QCOMPARE(box(form, 1)->cursorPosition(), 0);
        press(Qt::Key_Down);
        QCOMPARE(box(form, 1)->selectedText(), QStringLiteral("The Odyssey")); // typing takes its place
        press(Qt::Key_Up);
        press(Qt::Key_Up);
        QCOMPARE(focused(), QStringLiteral("FieldBox0"));
        for (int tab = 0; tab < 4; ++tab) press(Qt::Key_Tab);
        QCOMPARE(focused(), QStringLiteral("FieldBox4"));
        type(QStringLiteral("1231"));
        QCOMPARE(box(form, 4)->text(), QStringLiteral("12/31/"));
        QCOMPARE(box(form, 4)->cursorPosition(), 6);
        press(Qt::Key_Backspace);
        QCOMPARE(box(form, 4)->text(), QStringLiteral("12/31"));
        type(QStringLiteral("/2020"));
        QCOMPARE(box(form, 4)->text(), QStringLiteral("12/31/2020"));

        // A price is completed when its box is left, and what is no number is told once.
        auto* price = box(form, 3);
        QCOMPARE(price->accessibleName(), QStringLiteral("Price"));
        price->setFocus();
        price->selectAll();
        type(QStringLiteral("lots"));
        QVERIFY(run.platform.messages.empty());
        press(Qt::Key_Return);
        QCOMPARE(run.platform.messages.size(), 1U);
        QCOMPARE(run.platform.messages[0].caption, QStringLiteral("Verify Data"));
        QCOMPARE(focused(), QStringLiteral("FieldBox4"));
        QCOMPARE(price->text(), QStringLiteral("lots"));

        // A box that is to hold something new is emptied by what is there already.
        auto* check = form.findChild<QCheckBox*>(QStringLiteral("prevChk1"));
        QTest::mouseClick(check, Qt::LeftButton, {}, QPoint(8, check->height() / 2));
        QVERIFY(check->isChecked());
        QTest::mouseClick(box(form, 1), Qt::LeftButton);
        box(form, 1)->selectAll();
        type(QStringLiteral("EMMA"));
        press(Qt::Key_Return);
        QCOMPARE(focused(), QStringLiteral("FieldBox1"));
        QCOMPARE(box(form, 1)->text(), QString());
        QVERIFY(!run.app.document.bModified);
    });
    QCOMPARE(run.cell(0, "Title"), QStringLiteral("The Odyssey")); // typing alone changes nothing
}

void Entry::theToolbarAndTheFindBox() {
    Session run(folders_.sample("books.fwk"));
    inForm(run, [&](gui::entryFrmView& form) {
        const auto click = [&](const char* key) { form.findChild<QAction*>(QLatin1String(key))->trigger(); };
        const auto title = [&] { return box(form, 1)->text(); };
        press(Qt::Key_PageDown);
        QCOMPARE(title(), QStringLiteral("Les Misérables"));
        QCOMPARE(run.selectedRows(), QList<int>{1}); // the list behind goes along
        click("Last");
        const QString last = title();
        click("Next");
        QCOMPARE(title(), last);
        click("First");
        QCOMPARE(title(), QStringLiteral("The Odyssey"));

        press(Qt::Key_F, Qt::ControlModifier);
        QCOMPARE(focused(), QStringLiteral("srchTxt"));
        type(QStringLiteral("jane AUSTEN"));
        press(Qt::Key_Return);
        QCOMPARE(title(), QStringLiteral("Pride and Prejudice"));
        QTest::mouseClick(form.findChild<QPushButton*>(QStringLiteral("againBtn")), Qt::LeftButton);
        QCOMPARE(title(), QStringLiteral("Emma"));

        box(form, 1)->setFocus();
        box(form, 1)->selectAll();
        type(QStringLiteral("Emma, again"));
        press(Qt::Key_Return, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(run.cell(8, "Title"), QStringLiteral("Emma, again"));
        press(Qt::Key_Return, Qt::ControlModifier);
        QCOMPARE(run.rows(), 44);
        QCOMPARE(run.cell(42, "Title"), QStringLiteral("Emma, again"));
        QCOMPARE(title(), QString());
        QCOMPARE(focused(), QStringLiteral("FieldBox0"));
        run.platform.answers = {platform::Answer::Yes};
        press(Qt::Key_D, Qt::ControlModifier);
        QCOMPARE(run.rows(), 43);
        QCOMPARE(title(), last);
    });
}

void Entry::rowsAreAsHighAsTextBoxes() {
    Session run(folders_.sample("books.fwk"));
    inForm(run, [&](gui::entryFrmView& form) {
        const int natural = box(form, 0)->sizeHint().height();
        const auto* label = form.findChild<QLabel*>(QStringLiteral("editlbl2"));
        QVERIFY(std::abs(box(form, 2)->height() - natural) <= 1);
        QVERIFY(label->height() >= label->fontMetrics().ascent());
        QVERIFY(label->geometry().bottom() < box(form, 2)->y());
        QVERIFY(box(form, 1)->geometry().bottom() < label->y());
        QVERIFY(box(form, 1)->x() < box(form, 0)->x()); // a little left of the first row
        const auto* check = form.findChild<QCheckBox*>(QStringLiteral("prevChk2"));
        QVERIFY(check->sizeHint().width() <= check->width());
        QVERIFY(!form.findChild<QScrollBar*>(QStringLiteral("VScroll1"))->isVisible());
    });
}

void Entry::thePaneScrollsAndGrows() {
    QByteArray names, types, widths, spots = "1|", cells;
    for (int column = 0; column < 30; ++column) {
        names += "Column" + QByteArray::number(column) + "|";
        types += "3|";
        widths += "1440|";
        spots += QByteArray::number(column + 2) + "|";
        cells += "------|";
    }
    Session run(makeDatabase(
        "wide.fwk", "[LayoutStart]\r\n[LayoutEnd]\r\n[Layout Options]4|6|1|1|1|1|1|1|0.15|\r\n"
                    "[Column Names  ]" +
                        names + "\r\n[Column Types  ]" + types + "\r\n[Column Widths ]" + widths +
                        "\r\n[Column Spots  ]" + spots + "\r\n[Begin Data    ]\r\n" + cells + "\r\n"));
    inForm(run, [&](gui::entryFrmView& form) {
        auto* viewport = form.findChild<QWidget*>(QStringLiteral("Picture1"));
        auto* bar = form.findChild<QScrollBar*>(QStringLiteral("VScroll1"));
        QVERIFY(bar->isVisible());
        const auto isShown = [&](QWidget* control) {
            return viewport->rect().contains(QRect(control->mapTo(viewport, QPoint()), control->size()));
        };
        for (int field = 0; field < 29; ++field) {
            QVERIFY2(isShown(QApplication::focusWidget()), qPrintable(focused()));
            press(field % 2 == 0 ? Qt::Key_Down : Qt::Key_Return);
        }
        QCOMPARE(focused(), QStringLiteral("FieldBox29"));
        for (int field = 29; field > 0; --field) press(Qt::Key_Up);
        QVERIFY(isShown(box(form, 0)));
        for (int field = 0; field < 29; ++field) press(Qt::Key_Tab);
        QVERIFY(isShown(box(form, 29)));
        press(Qt::Key_Tab); // to the check box of the first row
        QVERIFY(isShown(form.findChild<QCheckBox*>(QStringLiteral("prevChk0"))));
        QTest::mouseClick(bar, Qt::LeftButton, {},
                          QPoint(bar->width() / 2, bar->height() - bar->width() - 4));
        QCOMPARE(bar->value(), 500);

        const int width = box(form, 5)->width();
        form.resize(form.width() + 100, form.height());
        QTRY_VERIFY(std::abs(box(form, 5)->width() - width - 100) <= 1);
    });
}

QTEST_MAIN(Entry)
#include "entry.moc"
