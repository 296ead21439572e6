#include "formActs.h"
#include "layoutPage.h"

#include "../support/sheetWatch.h"
#include "entry/navBar.h"
#include "shell/listEvents.h"

using platform::Answer;

// A user goes to and fro between the pages, searches and types, and every record keeps what belongs to it.
class SheetJourneys : public QObject {
    Q_OBJECT

private:
    enum Kind {
        Tab,
        Row,
        Find,
        Leave,
        Focus,
        Type,
        Navigate,
        Slide,
        Duplicate,
        Sort,
        View,
        Remove,
        Open,
        kinds
    };

    Folders folders_;

    static void find(LayoutSession& run, const char* text, bool bAll = false) {
        run.platform.scripts[u"searchFrm"_s] = [=](QDialog& form) {
            chooseColumn(form, "List1", "Name");
            click(form, "Opt1_3");
            QTest::keyClick(typeIn(form, "SearchText_0", text), Qt::Key_Return);
            if (bAll) click(form, "allBtn");
            QTest::keyClick(&form, Qt::Key_Escape);
        };
        run.action("mnuSearch")->trigger();
        run.window.activateWindow(); // without a window manager nobody does it when a dialog closes
        QVERIFY(QTest::qWaitForWindowActive(&run.window));
    }
    static void type(LayoutSession& run, int index, const char* text) {
        QTest::mouseClick(run.field(index)->viewport(), Qt::LeftButton, {}, {8, 8});
        QTest::keyClick(run.field(index), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(run.field(index), Qt::Key_Delete);
        QTest::keyClicks(run.field(index), QLatin1String(text));
    }
    static QString names(LayoutSession& run) {
        QStringList all;
        run.LV().forEach([&](const core::Item& item) { all << gui::toQt(item.cells[1].view()); });
        return all.join(u' ');
    }
    // The list on the report page; nullptr on another page.
    static core::RecordsList* listOnView(LayoutSession& run) {
        return run.app.mainFrm.SSTab1 == app::reportTab ? &shell::visibleList(run.app) : nullptr;
    }

    static void act(LayoutSession& run, const SheetWatch& watch, const SheetEvent& event,
                    const std::string& key) {
        const int which = static_cast<int>(event.which);
        core::RecordsList* list = listOnView(run);
        const char* listName = list == nullptr ? "" : list->Name.c_str();
        const Qt::KeyboardModifiers ctrl = event.how % 2 ? Qt::ControlModifier : Qt::NoModifier;
        const bool isFull = run.LV().count() > 12;
        switch (event.what) {
        case Tab:
            return run.showTab(which % 3);
        case Row:
            if (list != nullptr) run.clickRow(which % list->count(), ctrl, listName);
            return;
        case Find:
            return find(run, std::array{"a", "b", "zoe", "no such"}.at(event.which % 4), event.how % 8 == 0);
        case Leave:
            if (run.action("Search")->isChecked()) run.action("Search")->trigger();
            return;
        case Focus:
            if (watch.isPageInFront())
                QTest::mouseClick(run.field(1 + which % 4)->viewport(), Qt::LeftButton, {}, {8, 8});
            return;
        case Type:
            if (watch.isPageInFront()) type(run, 2, std::array{"Ann", "Bill", "Abel"}.at(event.which % 3));
            return;
        case Navigate:
            if (!key.empty()) run.navigate(key.c_str());
            return;
        case Slide:
            if (watch.isPageInFront()) run.find<QSlider>("Slider1")->setValue(1 + which % 8);
            return;
        case Duplicate:
            run.platform.inputs = {"1"};
            if (!isFull) run.action("mnuDuplicate")->trigger();
            return;
        case Sort:
            if (list != nullptr) run.clickHeader("Name", listName);
            return;
        case View:
            if (list != nullptr && run.app.document.bInvoiceStyle)
                click(run.find<QRadioButton>(which % 2 ? "viewOpt1" : "viewOpt0"));
            return;
        case Remove:
            if (run.LV().count() > 4) run.action("Delete")->trigger();
            return;
        case Open:
            if (list != nullptr) QTest::keyClick(run.list(listName), Qt::Key_Return);
            return;
        default:
            return;
        }
    }

    std::string play(const QString& file, const SheetEvents& events) {
        LayoutSession run(file);
        if (!QTest::qWaitForWindowActive(&run.window)) return "the window is not active";
        run.app.mainFrm.bLayoutDblClick = true;
        SheetWatch watch(run.app);
        for (const SheetEvent& event : events) {
            const bool answer = event.how % 4 != 0;
            run.platform.answers = {answer ? Answer::Yes : Answer::No};
            std::string key;
            if (event.what == Navigate && watch.isPageInFront()) {
                key = entry::navButtons()[event.which % entry::navButtons().size()].key;
                if (run.LV().count() > 12 && (key == "New" || key == "Add")) key.clear();
            }
            watch.before();
            act(run, watch, event, key);
            std::string wrong = watch.after(key == "Update", key == "Delete" && answer,
                                            event.what == Remove && listOnView(run) != nullptr);
            if (watch.isPageInFront() && run.field(1)->toPlainText() != gui::toQt(watch.onSheet("No")))
                wrong += "the window shows another sheet; ";
            if (!wrong.empty()) return wrong;
            watch.number();
        }
        return {};
    }

private slots:
    void init() { Folders::forgetSettings(); }
    void anInvoiceKeepsItsOwnName();
    void aSearchFromThePageShowsWhatItFinds();
    void randomEvents_data();
    void randomEvents();
};

void SheetJourneys::anInvoiceKeepsItsOwnName() {
    for (const bool bSearch : {true, false}) {
        LayoutSession run(folders_.database("invoices.fwk", numberedRecords(true)));
        QVERIFY(QTest::qWaitForWindowActive(&run.window));
        run.clickRow(2, {}, "iLV");
        run.showLayout();
        QTest::mouseClick(run.field(2)->viewport(), Qt::LeftButton, {}, {8, 8});
        QCOMPARE(run.field(2)->toPlainText(), u"Zoe"_s);
        run.showTab(app::reportTab);
        if (bSearch)
            find(run, "bill");
        else
            run.clickRow(1, {}, "iLV");
        run.showLayout();
        QCOMPARE(run.field(2)->toPlainText(), u"Bill"_s);
        type(run, 2, "Billy");
        QTest::mouseClick(run.field(3)->viewport(), Qt::LeftButton, {},
                          {8, 8}); // a sum, which stores the sheet
        QCOMPARE(names(run), u"Ann Billy Zoe Abe Bob ------"_s);
    }
}

void SheetJourneys::aSearchFromThePageShowsWhatItFinds() {
    LayoutSession run(folders_.database("names.fwk", numberedRecords(false)));
    QVERIFY(QTest::qWaitForWindowActive(&run.window));
    run.showLayout();
    QCOMPARE(run.field(2)->toPlainText(), u"Ann"_s);
    find(run, "bi");
    QCOMPARE(run.field(2)->toPlainText(), u"Bill"_s);
    run.navigate("Update");
    QCOMPARE(names(run), u"Ann Bill Zoe Abe Bob ------"_s);
    run.action("Search")->trigger();
    find(run, "zoe");
    run.action("Search")->trigger();
    const QString shown = run.field(2)->toPlainText();
    QCOMPARE(shown, gui::toQt(run.LV().selectedItem()->cells[1].view()));
    // A new record has no other one to write over.
    run.navigate("New");
    type(run, 2, "Eve");
    for (const char* key : {"Update", "Delete"}) run.navigate(key);
    QCOMPARE(run.platform.messages.size(), 2U);
    QCOMPARE(names(run), u"Ann Bill Zoe Abe Bob ------"_s);
    run.navigate("Add");
    QCOMPARE(names(run), u"Ann Bill Zoe Abe Bob Eve ------"_s);
    // Whatever is selected in the list, Delete takes the record that is shown.
    run.showTab(app::reportTab);
    run.clickRow(0);
    run.clickRow(2, Qt::ShiftModifier);
    run.showLayout();
    QCOMPARE(run.field(2)->toPlainText(), u"Zoe"_s);
    run.platform.answers = {Answer::Yes};
    run.navigate("Delete");
    QCOMPARE(names(run), u"Ann Bill Abe Bob Eve ------"_s);
}

void SheetJourneys::randomEvents_data() {
    QTest::addColumn<bool>("invoices");
    QTest::newRow("standard") << false;
    QTest::newRow("invoices") << true;
}

void SheetJourneys::randomEvents() {
    QFETCH(bool, invoices);
    const QString file = folders_.database("events.fwk", numberedRecords(invoices));
    const std::string wrong = failureOf(1, eventCount(1000) / 2, kinds,
                                        [&](const SheetEvents& events) { return play(file, events); });
    QVERIFY2(wrong.empty(), wrong.c_str());
}

QTEST_MAIN(SheetJourneys)
#include "sheetEvents.moc"
