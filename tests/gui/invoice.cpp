#include "formActs.h"
#include "layoutPage.h"

#include <QProcess>

using platform::Answer;

// A user makes an invoice database, designs its page, types invoices and works with them.
class Invoice : public QObject {
    Q_OBJECT

private:
    Folders folders_;

    static QTextEdit* box(LayoutSession& run, const char* column, int row = 1) {
        int index = 0;
        run.objects.layoutField.forEach([&](const core::LayoutField& field) {
            if (field.Tag == column && row-- == 1) index = field.Index;
        });
        return run.field(index);
    }

    static void enter(LayoutSession& run, const char* column, int row = 1) {
        run.window.activateWindow(); // without a window manager nobody does it when a dialog closes
        QVERIFY(QTest::qWaitForWindowActive(&run.window));
        QTest::mouseClick(box(run, column, row)->viewport(), Qt::LeftButton, {}, {8, 8});
    }

    static void type(LayoutSession& run, const char* column, int row, const char* text) {
        enter(run, column, row);
        QTextEdit* field = box(run, column, row);
        QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(field, Qt::Key_Delete);
        QTest::keyClicks(field, QLatin1String(text));
    }

    // The texts of the boxes of a column, one below the other.
    static QStringList shown(LayoutSession& run, const char* column) {
        QStringList texts;
        run.objects.layoutField.forEach([&](const core::LayoutField& field) {
            if (field.Tag == column) texts << run.field(field.Index)->toPlainText();
        });
        return texts;
    }

    static void chooseView(LayoutSession& run, const char* option) {
        QTest::mouseClick(run.find<QRadioButton>(option), Qt::LeftButton, {}, {8, 8});
    }

    static void makeColumns(LayoutSession& run) {
        run.platform.scripts[u"databaseTypeFrm"_s] = [](QDialog& form) {
            click(form, "Option2");
            click(form, "OKButton");
        };
        run.platform.scripts[u"designFrm"_s] = [&](QDialog& form) {
            QVERIFY(!in<QRadioButton>(form, "typeOpt5")->isVisible()); // no pictures
            const std::pair<const char*, const char*> columns[] = {
                {"typeOpt3", "No"},   {"typeOpt0", "Day"},      {"typeOpt4", "Customer"},
                {"typeOpt4", "Item"}, {"typeOpt3", "Qty"},      {"typeOpt1", "Price"},
                {"typeOpt2", "Line"}, {"typeOpt2", "Subtotal"}, {"typeOpt2", "Tax"},
                {"typeOpt2", "Total"}};
            for (const auto& [kind, name] : columns) addColumn(form, kind, name);
            run.platform.answers = {Answer::Yes, Answer::Yes};
            doubleClickRow(form, "List1", "No");
            doubleClickRow(form, "List1", "Day");
            click(form, "doneBtn");
        };
        run.action("mnuNew")->trigger();
        QCOMPARE(run.panel(6), u"Database Style: Invoice"_s);
        QVERIFY(run.find<QRadioButton>("viewOpt1")->isChecked());
    }

    static void writeExpressions(LayoutSession& run) {
        run.platform.scripts[u"formulateFrm"_s] = [](QDialog& form) {
            const auto write = [&](const char* column, std::initializer_list<const char*> keys) {
                clickRow(form, "colList", column);
                for (const char* key : keys) // a key of the pad, or a column
                    form.findChild<QWidget*>(QLatin1String(key)) != nullptr
                        ? click(form, key)
                        : clickRow(form, "fieldList", key);
                click(form, "addCalcBtn");
            };
            write("Line", {"Qty", "operatorBtn2", "Price"});
            write("Subtotal", {"Line"});
            write("Tax", {"Subtotal", "operatorBtn2", "NumKey10", "NumKey0", "NumKey8"});
            write("Total", {"Subtotal", "operatorBtn0", "Tax"});
            click(form, "donebtn");
        };
        run.action("Formulas")->trigger();
        run.platform.scripts[u"TotalsFrm"_s] = [](QDialog& form) {
            auto* list = in<QTreeWidget>(form, "LV");
            for (const char* column : {"Qty", "Total"}) rowOf(list, column)->setCheckState(0, Qt::Checked);
            click(form, "OKButton");
        };
        run.action("mnuTotalColumns")->trigger();
    }

    static void designPage(LayoutSession& run) {
        run.pressDesign();
        QVERIFY(run.button("Rows")->isEnabled() && !run.button("Picture")->isEnabled());
        run.platform.scripts[u"repeatFrm"_s] = [](QDialog& form) {
            chooseColumn(form, "List1", "Tax");
            click(form, "Command1");
            for (const char* column : {"Item", "Qty", "Price", "Line"}) chooseColumn(form, "List1", column);
            QCOMPARE(in<QListWidget>(form, "List2")->count(), 4);
            QTest::keyClicks(in<QLineEdit>(form, "Text1"), u"3"_s);
            click(form, "OKButton");
        };
        run.click("Rows");
        QCOMPARE(run.objects.layoutField.count(), 12);
        for (const char* head : {"layoutField1", "layoutField2", "layoutField3", "layoutField4"})
            run.drag(head, {0, 160});
        const core::LayoutField* item = run.objects.layoutField.find(1);
        const core::LayoutField* below = run.objects.layoutField.find(9);
        QVERIFY(item->Top > 2400);
        QCOMPARE(below->Left, item->Left); // the block moved as a whole
        QCOMPARE(below->Top, item->Top + 2 * item->Height);
        const std::pair<const char*, QPoint> single[] = {{"No", {-60, 20}},       {"Day", {120, 20}},
                                                         {"Customer", {-60, 60}}, {"Subtotal", {300, 250}},
                                                         {"Tax", {300, 280}},     {"Total", {300, 310}}};
        int index = 13;
        for (const auto& [column, place] : single) {
            run.choose("Field", column);
            run.drag(qPrintable(u"layoutField%1"_s.arg(index++)), place);
        }
        run.platform.messages.clear();
        run.pressDesign();
        QCOMPARE(run.platform.messages.size(), 1U); // how to begin
        QVERIFY(!run.sheet()->isVisible());
    }

    static void search(LayoutSession& run, const char* column, const char* text) {
        run.platform.scripts[u"searchFrm"_s] = [=](QDialog& form) {
            chooseColumn(form, "List1", column);
            click(form, "Opt1_3");
            QTest::keyClick(typeIn(form, "SearchText_0", text), Qt::Key_Return);
            QTest::keyClick(&form, Qt::Key_Escape);
        };
        run.action("Search")->trigger();
    }

    void typeInvoices(LayoutSession& run) {
        QVERIFY(!run.action("layoutNavBar.Add")->isEnabled());
        run.navigate("New");
        QVERIFY(run.sheet()->isVisible());
        QCOMPARE(shown(run, "No"), QStringList{u"1"_s});
        QCOMPARE(shown(run, "Day").value(0).size(), 10);
        type(run, "Customer", 1, "Ann");
        type(run, "Item", 1, "Bolt");
        type(run, "Qty", 1, "2x"); // no digit
        type(run, "Price", 1, "150");
        type(run, "Item", 2, "Nut");
        type(run, "Qty", 2, "3");
        type(run, "Price", 2, "2.5");
        QCOMPARE(shown(run, "Total"), QStringList{u"$.00"_s}); // among the rows nothing is stored
        enter(run, "Line");
        QCOMPARE(shown(run, "Line"), (QStringList{u"$3.00"_s, u"$7.50"_s, u"$.00"_s}));
        QCOMPARE(shown(run, "Price"), (QStringList{u"$1.50"_s, u"$2.50"_s, QString()}));
        QCOMPARE(shown(run, "Subtotal"), QStringList{u"$10.50"_s});
        QCOMPARE(shown(run, "Tax"), QStringList{u"$.84"_s});
        QCOMPARE(shown(run, "Total"), QStringList{u"$11.34"_s});
        // Another row, and the sums follow at the next single box.
        type(run, "Item", 3, "Nail");
        type(run, "Qty", 3, "100");
        type(run, "Price", 3, "5");
        enter(run, "Customer");
        QCOMPARE(shown(run, "Total"), QStringList{u"$551.34"_s});
        QVERIFY(run.platform.messages.size() == 1U);

        run.navigate("New");
        QCOMPARE(shown(run, "Item"), (QStringList{QString(), QString(), QString()}));
        type(run, "Customer", 1, "Bo");
        type(run, "Item", 1, "Nut");
        type(run, "Qty", 1, "4");
        type(run, "Price", 1, "2.5");
        run.navigate("Update");
        QCOMPARE(shown(run, "Total"), QStringList{u"$10.80"_s});
        run.navigate("First");
        QCOMPARE(shown(run, "Customer"), QStringList{u"Ann"_s});
        run.navigate("Next");
        QCOMPARE(shown(run, "No"), QStringList{u"2"_s});
    }

    void printBothViews(LayoutSession& run) {
        chooseView(run, "viewOpt1");
        const QString invoices = printed(run);
        QVERIFY2(invoices.contains("$551.34"_L1) && !invoices.contains("Nail"_L1), qPrintable(invoices));
        chooseView(run, "viewOpt0");
        const QString items = printed(run);
        QVERIFY2(items.contains("Nail"_L1) && !items.contains("Subtotal"_L1), qPrintable(items));
        // Each view keeps its own columns.
        chooseView(run, "viewOpt1");
        QVERIFY(run.app.document.printedCols.contains("Total") &&
                !run.app.document.printedCols.contains("Qty"));
    }

    // What the report on paper says, with all columns.
    QString printed(LayoutSession& run) {
        run.platform.scripts[u"reportPageSetup"_s] = [](QDialog& form) {
            auto* columns = in<QTreeWidget>(form, "LV3");
            for (int row = 0; row < columns->topLevelItemCount(); ++row)
                columns->topLevelItem(row)->setCheckState(0, Qt::Checked);
            click(form, "Command1");
        };
        run.action("PageSetup")->trigger();
        const QString pdf = folders_.path("report.pdf");
        QFile::remove(pdf);
        run.platform.chosenFile = gui::fromQt(pdf);
        run.action("mnuPrint")->trigger();
        QProcess reader;
        reader.start(u"pdftotext"_s, {u"-layout"_s, pdf, u"-"_s});
        reader.waitForFinished();
        return QString::fromUtf8(reader.readAllStandardOutput()).simplified();
    }

private slots:
    void init() { Folders::forgetSettings(); }
    void fromNothingToADeletedInvoice() {
        const QString file = folders_.path("made.fwk");
        {
            LayoutSession run;
            run.platform.chosenFile = gui::fromQt(file);
            makeColumns(run);
            writeExpressions(run);
            designPage(run);
            if (QTest::currentTestFailed()) return;
            typeInvoices(run);
            if (QTest::currentTestFailed()) return;
            const QString day = shown(run, "Day").value(0);
            const auto rows = [&](std::initializer_list<const char*> texts) {
                QStringList all;
                for (const char* text : texts) all << QString::fromLatin1(text).replace(u'~', day);
                return all;
            };
            run.showTab(app::reportTab);
            QCOMPARE(run.texts("iLV"), rows({"1|~|Ann|$510.50|$40.84|$551.34", "2|~|Bo|$10.00|$.80|$10.80",
                                             "------|------|------|------|------|$562.14"}));
            chooseView(run, "viewOpt0");
            QVERIFY(!run.action("Delete")->isEnabled());
            QCOMPARE(run.texts("iLV"), rows({"~|Ann|Bolt|2|$1.50|$3.00", "~|Ann|Nut|3|$2.50|$7.50",
                                             "~|Ann|Nail|100|$5.00|$500.00", "~|Bo|Nut|4|$2.50|$10.00",
                                             "------|------|------|109|------|------"}));
            printBothViews(run);
            search(run, "Customer", "bo");
            QCOMPARE(run.texts("searchLV").size(), 2);
            chooseView(run, "viewOpt0");
            QVERIFY(run.list("iLV")->isVisible());
            search(run, "Item", "nut");
            QCOMPARE(run.texts("searchLV").size(), 3);

            const gui::RecordsView* results = run.list("searchLV");
            const QPoint second = results->visualRect(results->model()->index(1, 0)).center();
            QTest::mouseClick(results->viewport(), Qt::LeftButton, {}, second);
            QTest::mouseDClick(results->viewport(), Qt::LeftButton, {}, second);
            QCOMPARE(shown(run, "Customer"), QStringList{u"Bo"_s});
            type(run, "Qty", 1, "5");
            enter(run, "Total");
            QCOMPARE(shown(run, "Total"), QStringList{u"$13.50"_s});
            run.showTab(app::reportTab);
            QCOMPARE(run.texts("searchLV").mid(1, 1), rows({"~|Bo|Nut|5|$2.50|$12.50"}));
            run.action("Search")->trigger(); // up again
            QCOMPARE(run.texts("iLV").mid(3, 1), rows({"~|Bo|Nut|5|$2.50|$12.50"}));

            chooseView(run, "viewOpt1");
            run.clickRow(1, {}, "iLV");
            run.platform.answers = {Answer::Yes};
            run.action("Delete")->trigger();
            QCOMPARE(run.texts("iLV"),
                     rows({"1|~|Ann|$510.50|$40.84|$551.34", "------|------|------|------|------|$551.34"}));
            run.action("Save")->trigger();
            QCOMPARE(run.platform.messages.size(), 2U); // the question was the last
        }
        LayoutSession again(file);
        QCOMPARE(again.texts("iLV").size(), 2);
        chooseView(again, "viewOpt0");
        QCOMPARE(again.texts("iLV").size(), 4);
        again.showTab(app::layoutTab);
        QCOMPARE(shown(again, "Item"), (QStringList{u"Bolt"_s, u"Nut"_s, u"Nail"_s}));
        again.platform.answers = {Answer::Yes};
        again.navigate("Delete");
        QCOMPARE(again.LV().count(), 1);
    }

    void whatIsTypedUnderResultsReachesItsOwnInvoice() {
        LayoutSession run(folders_.sample("invoices.fwk"));
        const auto customers = [&] {
            QStringList names;
            run.LV().forEach([&](const core::Item& item) {
                names << gui::toQt(core::RecordsList::cell(item, run.LV().columns["Customer"]).view());
            });
            return names.join(u'|');
        };
        search(run, "Customer", "s");
        QCOMPARE(run.texts("searchLV").size(), 4);
        run.clickRow(0, {}, "searchLV");
        run.showTab(app::layoutTab);
        run.find<QSlider>("Slider1")->setValue(3);
        QCOMPARE(shown(run, "Customer"), QStringList{u"Jørgensen, Ltd."_s});
        type(run, "Customer", 1, "Third");
        enter(run, "Total");
        run.navigate("New");
        type(run, "Customer", 1, "Fifth");
        enter(run, "Total");
        QCOMPARE(customers(), u"Ærø Maskiner|Smith & Sons|Third|O'Neill|Fifth|------"_s);
        // What has been on the sheet before does not go with the invoice that is deleted.
        run.navigate("First");
        run.navigate("Next");
        run.platform.answers = {Answer::Yes};
        run.navigate("Delete");
        QCOMPARE(customers(), u"Ærø Maskiner|Third|O'Neill|Fifth|------"_s);
        QCOMPARE(shown(run, "Customer"), QStringList{u"Third"_s}); // the next one found
        // With the results out of sight, the list is worked on again.
        run.showTab(app::reportTab);
        chooseView(run, "viewOpt0");
        QCOMPARE(run.app.mainFrm.theListView, &run.LV());
        QCOMPARE(run.panel(1), u"4 records."_s);
    }

    void theListKeepsItsColumnsWhileInvoicesAreTyped() {
        LayoutSession run(folders_.sample("invoices.fwk"));
        QHeaderView* header = run.list("iLV")->header();
        header->resizeSection(run.section("Day", "iLV"), 200);
        header->moveSection(header->visualIndex(run.section("Total", "iLV")), 0);
        const QString total = run.texts("iLV").value(1).section(u'|', 0, 0);
        run.clickRow(1, {}, "iLV");
        run.showTab(app::layoutTab);
        QCOMPARE(shown(run, "Total"), QStringList{total});
        enter(run, "Total");
        run.showTab(app::reportTab);
        QCOMPARE(header->sectionSize(run.section("Day", "iLV")), 200);
        QCOMPARE(run.texts("iLV").value(1).section(u'|', 0, 0), total);
        run.showTab(app::layoutTab); // and it is still that invoice
        QCOMPARE(shown(run, "Total"), QStringList{total});
        run.showTab(app::reportTab);
        chooseView(run, "viewOpt0");
        QCOMPARE(header->sectionSize(run.section("Day", "iLV")), 200);
    }
};

QTEST_MAIN(Invoice)
#include "invoice.moc"
