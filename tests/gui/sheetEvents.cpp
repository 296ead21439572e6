#include "session.h"

#include "../support/sheetWatch.h"

// A user with a real mouse and keyboard.
struct Hands : Session {
    explicit Hands(const QString& file) : Session(file) { app.mainFrm.bLayoutDblClick = true; }
    bool shows(const std::string& number) { return gui::fromQt(field(1)->toPlainText()) == number; }
    void showTab(int tab) { act(u"tab %1"_s.arg(tab)); }
    void clickRow(core::RecordsList& list, int row, bool bCtrl) {
        act((bCtrl ? u"Ctrl+click %1 #%2"_s : u"click %1 #%2"_s).arg(gui::toQt(list.Name)).arg(row - 1));
    }
    void find(const char* name, bool bAll) {
        const QString search = u"click List1 Name; click Opt1_3; fill SearchText_0 %1; press Return;"_s;
        const QString acts = *name == '\0' ? QString() : search.arg(QLatin1String(name));
        ahead(acts + (bAll ? u"click allBtn; press Escape"_s : u"press Escape"_s));
        act(u"click mnuSearch"_s);
    }
    void focusField(int index) { act(u"click f%1"_s.arg(index)); }
    void type(int index, const std::string& text) { act(u"fill f%1 "_s.arg(index) + gui::toQt(text)); }
    void navigate(const std::string& key) { act(u"nav "_s + gui::toQt(key)); }
    void slide(int value) { act(u"slide Slider1 %1"_s.arg(std::max(value, 1))); }
    void command(const char* key) { act(u"click "_s + QLatin1String(key)); }
    void sort(core::RecordsList& list) { act(u"click "_s + gui::toQt(list.Name) + u".Name"_s); }
    void view(int index) { act(u"click viewOpt%1"_s.arg(index)); }
    void open(core::RecordsList& list) { QTest::keyClick(Session::list(list.Name.c_str()), Qt::Key_Return); }
};

// Every record keeps what belongs to it.
class SheetJourneys : public GuiTest {
    Q_OBJECT

private slots:
    void randomEvents() {
        for (const bool invoices : {false, true}) {
            const QString file = database("events.fwk", numberedRecords(invoices));
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
