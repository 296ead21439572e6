#include "formActs.h"
#include "layoutPage.h"

#include "../support/sheetWatch.h"

// A user with a real mouse and keyboard.
struct Hands : LayoutSession {
    explicit Hands(const QString& file) : LayoutSession(file) {
        app.mainFrm.bLayoutDblClick = true;
        if (!QTest::qWaitForWindowActive(&window)) qFatal("the window is not active");
    }
    bool shows(const std::string& number) { return gui::fromQt(field(1)->toPlainText()) == number; }
    using Session::clickRow;
    void clickRow(core::RecordsList& list, int row, bool bCtrl) {
        clickRow(row - 1, bCtrl ? Qt::ControlModifier : Qt::NoModifier, list.Name.c_str());
    }
    using Session::find;
    void find(const char* name, bool bAll) {
        platform.scripts[u"searchFrm"_s] = [=](QDialog& form) {
            if (*name != '\0') {
                chooseColumn(form, "List1", "Name");
                ::click(form, "Opt1_3");
                QTest::keyClick(typeIn(form, "SearchText_0", name), Qt::Key_Return);
                if (bAll) ::click(form, "allBtn");
            }
            QTest::keyClick(&form, Qt::Key_Escape);
        };
        command("mnuSearch");
        window.activateWindow(); // without a window manager nobody does it when a dialog closes
        QVERIFY(QTest::qWaitForWindowActive(&window));
    }
    void focusField(int index) { QTest::mouseClick(field(index)->viewport(), Qt::LeftButton, {}, {8, 8}); }
    void type(int index, const std::string& text) {
        focusField(index);
        QTest::keyClick(field(index), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(field(index), Qt::Key_Delete);
        QTest::keyClicks(field(index), gui::toQt(text));
    }
    using LayoutSession::navigate;
    void navigate(const std::string& key) { navigate(key.c_str()); }
    void slide(int value) { find<QSlider>("Slider1")->setValue(std::max(value, 1)); }
    void command(const char* key) { action(key)->trigger(); }
    void sort(core::RecordsList& list) { clickHeader("Name", list.Name.c_str()); }
    void view(int index) { ::click(find<QRadioButton>(index == 1 ? "viewOpt1" : "viewOpt0")); }
    void open(core::RecordsList& list) {
        QTest::keyClick(LayoutSession::list(list.Name.c_str()), Qt::Key_Return);
    }
};

// Every record keeps what belongs to it.
class SheetJourneys : public QObject {
    Q_OBJECT

    Folders folders_;

    // The name on the sheet, and those of the records.
    static QString names(Hands& run) {
        QStringList all{run.field(2)->toPlainText() + u':'};
        run.LV().forEach([&](const core::Item& item) { all << gui::toQt(item.cells[1].view()); });
        return all.join(u' ');
    }

private slots:
    void init() { Folders::forgetSettings(); }

    void anInvoiceKeepsItsOwnName() {
        for (const bool bSearch : {true, false}) {
            Hands run(folders_.database("invoices.fwk", numberedRecords(true)));
            run.clickRow(run.app.document.iLV, 3, false);
            run.showLayout();
            run.focusField(2);
            QCOMPARE(names(run), u"Zoe: Ann Bill Zoe Abe Bob ------"_s);
            run.showTab(app::reportTab);
            bSearch ? run.find("bill", false) : run.clickRow(run.app.document.iLV, 2, false);
            run.showLayout();
            QCOMPARE(names(run), u"Bill: Ann Bill Zoe Abe Bob ------"_s);
            run.type(2, "Billy");
            run.focusField(3); // a sum, which stores the sheet
            QCOMPARE(names(run), u"Billy: Ann Billy Zoe Abe Bob ------"_s);
        }
    }
    void aSearchFromThePageShowsWhatItFinds() {
        Hands run(folders_.database("names.fwk", numberedRecords(false)));
        run.showLayout();
        run.find("bi", false);
        run.navigate("Update");
        QCOMPARE(names(run), u"Bill: Ann Bill Zoe Abe Bob ------"_s);
        run.command("Search");
        // A new record has no other one to write over.
        run.navigate("New");
        run.type(2, "Eve");
        for (const char* key : {"Update", "Delete"}) run.navigate(key);
        QCOMPARE(run.platform.messages.size(), 2U);
        run.navigate("Add");
        QCOMPARE(names(run), u": Ann Bill Zoe Abe Bob Eve ------"_s);
        // Whatever is selected in the list, Delete takes the record that is shown.
        run.showTab(app::reportTab);
        run.clickRow(0);
        run.clickRow(2, Qt::ShiftModifier);
        run.showLayout();
        run.platform.answers = {platform::Answer::Yes};
        run.navigate("Delete");
        QCOMPARE(names(run), u"Abe: Ann Bill Abe Bob Eve ------"_s);
    }
    void randomEvents() {
        for (const bool invoices : {false, true}) {
            const QString file = folders_.database("events.fwk", numberedRecords(invoices));
            const std::string wrong = failureOf(500, Open, [&](const SheetEvents& events) {
                Hands run(file);
                return SheetUser(run).play(events);
            });
            QVERIFY2(wrong.empty(), wrong.c_str());
        }
    }
};

QTEST_MAIN(SheetJourneys)
#include "sheetEvents.moc"
