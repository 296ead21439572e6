#include "core/text.h"
#include "folderWatch.h"
#include "shell/listEvents.h"
#include "storage/cleanDatabase.h"
#include "storage/databaseTypeFrm.h"
#include "storage/newDatabase.h"
#include "storage/recovery.h"
#include "storage/saveFile.h"
#include "storage/saveSearch.h"
#include "transcript.h"

#include <sys/resource.h>

namespace {

namespace fs = std::filesystem;

class Machine : public ScriptedPlatform {
public:
    void setMousePointer(platform::MousePointer pointer) override {
        pointers += pointer == platform::MousePointer::Hourglass ? "busy " : "ready\n";
    }
    fs::path workFolder() override {
        if (error != 0) core::raise(error);
        return ScriptedPlatform::workFolder();
    }
    std::string pointers;
    int error = 0; // of whoever writes into the work folder
};

// Acts on databases in a folder. Behind each stand what the user was told, the file dialogs, the forms, what
// has changed in the window and the document, and what has changed in the folder, see folderWatch.h.
class Journey : public testing::Test, protected ProgramOn<Machine> {
protected:
    Journey() {
        fs::create_directory(folder);
        platform.onForm = [this](std::string_view name) {
            log += "form " + std::string(name) + "\n" + changed();
            if (name == "databaseTypeFrm") {
                storage::databaseTypeFrm form(app);
                form.Option2 = style == "invoice";
                form.Option1 = !form.Option2;
                style == "cancel" ? form.CancelButton_Click() : form.OKButton_Click();
                log += form.unloaded ? "" : "the form stays\n";
            } else
                document.LV.columns.add("Qty", "Qty").setTypeFromFile("4");
        };
    }
    void database(const std::string& name, const DataFile& data,
                  std::initializer_list<const char*> images = {}) {
        make("db/" + name, data.text(), images);
    }
    void expect(const char* script) {
        FolderWatch watch(folder);
        state_ = state();
        expectTranscript(script, [&](const std::string& line) {
            std::istringstream words(line);
            std::string verb, name;
            style.clear();
            words >> verb >> name;
            std::getline(words >> std::ws, style);
            act(verb, name);
            std::string all = "$ " + line + "\n", rest = std::exchange(log, "");
            std::istringstream messages(plain(told()));
            for (std::string message; std::getline(messages, message);) all += message.substr(0, 22) + "\n";
            all += plain(rest + std::exchange(platform.pointers, "") + changed() + watch.changes(current()));
            return all;
        });
    }
    // Without the places of the folders, and what stands in front of others in the panels.
    std::string plain(std::string text) const {
        const std::string outer = platform.folder.string() + "/";
        for (const std::string& known :
             {outer + "db/", outer, std::string("Document "), std::string("Database Style: ")})
            text = core::replaceAll(text, known, "");
        return text;
    }
    std::string current() const { return fs::path(document.currentFile).filename().string(); }

    core::Document& document = app.document;
    app::MainFrm& mainFrm = app.mainFrm;
    const fs::path folder = platform.folder / "db";

private:
    void act(const std::string& verb, const std::string& name) {
        const std::string file = folder / name;
        platform.files.clear();
        if (!name.empty() && name != "-") platform.files = {file};
        if (verb == "open") open(file);
        if (verb == "choose") storage::OpenFile(app, false);
        if (verb == "save") storage::SaveFile(app, false, false);
        if (verb == "save-as") storage::SaveFile(app, true, false);
        if (verb == "clone") storage::SaveFile(app, false, true);
        if (verb == "save-results") storage::saveSearchResults(app);
        if (verb == "new" || verb == "new-at-start") storage::newDatabase(app, verb != "new");
        if (verb == "clean") run("mnuCleanDatabase");
        if (verb == "recover") log += storage::keepRecoveryCopy(app).value_or("no copy") + "\n";
        if (verb == "answer")
            platform.answers = {name == "yes" ? platform::Answer::Yes : platform::Answer::Cancel};
        if (verb == "type") {
            document.LV.at(1).cells[0] = name;
            app::setDocumentModified(app, true);
        }
        if (verb == "search") { // is on, and the page in front
            document.searchLV.Visible = mainFrm.control("Search").Value = true;
            mainFrm.theListView = &document.searchLV;
            mainFrm.SSTab1 = app::layoutTab;
            mainFrm.iPrintMode = app::printMultipleLayouts;
            mainFrm.iFieldFocus = 3;
        }
        if (verb == "error") platform.error = std::stoi(name);
        const std::string line = "cd " + folder.string() + "; " + name + " " + style;
        if (verb == "shell" && std::system(line.c_str()) != 0) log += "failed\n";
        // A limit on the size of files stands for a full disk.
        if (verb == "save-within") {
            struct rlimit whole {};
            ::getrlimit(RLIMIT_FSIZE, &whole);
            const struct rlimit narrow { std::stoul(name), whole.rlim_max };
            ::setrlimit(RLIMIT_FSIZE, &narrow);
            storage::SaveFile(app, false, false);
            ::setrlimit(RLIMIT_FSIZE, &whole);
        }
    }
    std::map<std::string, std::string> state() {
        const auto on = [](bool is) { return std::string(is ? "yes/" : "no/"); };
        const auto number = [](auto value) { return std::to_string(value) + "/"; };
        std::string images, recent, aligned, dialog;
        for (const auto& entry : fs::directory_iterator(platform.tempFolder()))
            images += "/" + entry.path().filename().string();
        for (const char* key : {"mnuFile1", "mnuFile2", "mnuFile3"})
            recent += mainFrm.control(key).Caption + ";";
        document.layout.layoutField.forEach([&](const core::LayoutField& field) {
            aligned += field.align == core::Alignment::Right ? "R" : "L";
        });
        const std::string kept = ScriptedPlatform::read(platform.folder / "work/data.dat");
        const std::size_t begin = kept.find("[Begin Data"),
                          first = begin < kept.size() ? begin + 18 : kept.size();
        std::error_code none;
        const std::string size = std::to_string(fs::file_size(document.currentFile, none)),
                          caption = "Ferrowick - " + document.currentFile, told = panel(app::fileSizePanel);
        for (const platform::FileDialog& each : platform.dialogs)
            dialog = each.title + "/" + each.fileName + (each.filter == platform::databaseFilter ? "" : "?");
        const core::RecordsList& LV = document.LV;
        return {
            {"count", panel(app::recordsPanel) + std::to_string(mainFrm.Slider1.Max)},
            {"dialog", dialog},
            {"document", on(document.bModified) + panel(app::documentPanel) + "/" +
                             kept.substr(first, kept.find('|', first) - first)},
            {"file", document.currentFile + (mainFrm.Caption == caption ? "" : " as " + mainFrm.Caption) +
                         (told == "Filesize: " + size + " bytes." ? "" : " of '" + told.substr(0, 9) + "'")},
            {"layout", aligned + images},
            {"print",
             text(document.printedCols) + number(mainFrm.iPrintMode) + document.reportData.reportTitle},
            {"recent", recent},
            {"records", number(LV.columns.count()) + number(LV.count()) + number(document.iLastKey) +
                            (LV.selectedItem() ? LV.selectedItem()->Key.str() : "") + "/" +
                            cells(document.LV3)},
            {"sheet", number(mainFrm.iFieldFocus) + on(mainFrm.control("Search").Value)},
            {"tab", number(mainFrm.SSTab1) + on(mainFrm.SSTab1Enabled) + on(mainFrm.control("Save").Enabled)},
            {"view", on(&shell::visibleList(app.document) == &LV) +
                         number(document.iLV.Visible ? document.iLV.count() : -1) + number(mainFrm.viewOpt) +
                         on(document.bInvoiceView) + panel(app::stylePanel)}};
    }
    std::string changed() {
        std::string all;
        const std::map<std::string, std::string> before = std::exchange(state_, state());
        for (const auto& [name, value] : state_)
            if (value != before.at(name)) all += name + ": " + (value.empty() ? "-" : value) + "\n";
        return all;
    }

    std::map<std::string, std::string> state_;
    std::string log, style;
};

DataFile shop() {
    return DataFile("Name Qty:4 Price:2 Photo:7", "Bolt|12|$1.50|a.jpg;Nut|7|$.25|")
        .objects(
            "F|Name|1|2|3|4;F|Price|1|2|3|4;F|Gone|1|2|3|4;C|logo.jpg|1|2|3|4|;C|../x|1|2|3|4|;C||1|2|3|4|")
        .sections("Totaled Cols=Qty|;Printed Cols=Name|;Report Data=1|1|1|1|1|1|Stock|True|");
}

DataFile invoices(bool items) {
    return DataFile("Name Qty:4 Price:2", "Bolt|12@7@|$1.50;Nut|7@@|$.25")
        .objects("F|Qty|1|2|3|4;F|Qty|1|9|3|4")
        .sections("DatabaseStyle=True;PrnInvoiceCols=Name|Price|;PrnItemCols=Qty|")
        .section("InvoiceView", items ? "True" : "False");
}

TEST_F(Journey, Opening) {
    DataFile twice, bare;
    database("a.fwk", shop(), {"a.jpg", "logo.jpg", "x"});
    database("items.fwk", invoices(true));
    database("inv.fwk", invoices(false));
    database("one.fwk", DataFile("Name", "a"));
    bare.rows.clear();
    database("bare.fwk", bare);
    database("twice.fwk", twice.section("Totaled Cols", "Qty|Qty|"));
    ScriptedPlatform::write(folder / "text.fwk", "no archive");
    fs::create_directory(folder / "folder");
    mainFrm.bCtrlDown = true; // of the shortcut
    expect(R"sh(
$ choose -> dialog: Open Database/ // file:  as Ferrowick of '' // tab: 0/no/no/ && $ recover -> no copy
$ choose a.fwk -> busy ready // count: 2 records.2 // document: no/Opened/Bolt // file: a.fwk
layout: LRL/logo.jpg // print: Name|1/Stock // recent: a.fwk;;; // records: 5/3/2/i1/12|;$1.50|;
tab: 0/yes/yes/ // view: yes/-1/1/no/Standard && $ choose && $ choose gone.fwk -> i File does not exist!
file:  as Ferrowick - a.fwk of 'Filesize:' && $ open folder -> i Previously opened fi && $ open items.fwk
file: items.fwk // layout: RR // print: Qty|1/Stock // records: 4/3/2/i1/7|; // view: no/4/0/yes/Invoice
$ choose inv.fwk -> file: inv.fwk // print: Name|Price|1/Stock // recent: inv.fwk;a.fwk;;
records: 4/3/2/i1/$.25|; // view: no/3/1/no/Invoice && $ choose inv.fwk -> recent: inv.fwk;inv.fwk;a.fwk;
$ choose one.fwk -> document: no/Opened/a // file: one.fwk // layout: - // print: 1/Stock
recent: one.fwk;inv.fwk;inv.fwk; // records: 2/2/1/i1/ // view: yes/-1/1/no/Standard && $ search
print: 3/Stock // sheet: 3/yes/ // tab: 1/yes/yes/ // view: no/-1/1/no/Standard && $ open bare.fwk
document: no/Opened/ // file: bare.fwk // print: 1/Stock // records: 4/1/0/Totals/|;|; // sheet: 0/no/
tab: 0/yes/yes/ // view: yes/-1/1/no/Standard && $ choose twice.fwk -> document: no/Opened/Bolt
file:  as Ferrowick of 'Filesize:' // records: 1/0/0//|;|; // tab: 0/no/no/ && $ choose text.fwk
document: no/Opened/
)sh");
}

TEST_F(Journey, Saving) {
    database("a.fwk", shop(), {"a.jpg", "logo.jpg", "old.jpg"});
    database("taken.fwk", shop(), {"unused.jpg"});
    file::Zip Zip;
    Zip.CreateArchive(folder / "images.fwk");
    Zip.addBuffer("old.jpg", "x", "");
    Zip.addBuffer("data.dat", DataFile().text(), "");
    Zip.CloseArchive();
    open(folder / "a.fwk");
    expect(R"sh(
$ save -> busy ready // document: no/Saved/Bolt // -[Totaled Cols  ]Qty| // +[Totaled Cols  ]Qty|
$ type One -> document: yes/Modified/Bolt && $ save -> document: no/Saved/One // ~One|12|$1.50|a.jpg|
$ type Two -> document: yes/Modified/One && $ save-as -> dialog: Save As.../Untitled.fwk
$ save-as taken.fwk -> - Overwrite Existing F && $ answer cancel && $ save-as taken.fwk
- Overwrite Existing F && $ clone -> dialog: Clone current file to.../Clone1.fwk // document: yes/Modified/
$ clone taken.fwk -> - Overwrite Existing F && $ clone clone.fwk -> @ clone.fwk // -a.jpg::bytes of a.jpg
-logo.jpg::bytes of logo.jpg // -old.jpg::bytes of old.jpg // -One|12|$1.50|a.jpg| // -Nut|7|$.25||
-------|------|------|------| && $ answer yes && $ save-as taken.fwk -> - Overwrite Existing F
dialog: Save As.../Untitled.fwk // document: no/Saved/Two // file: taken.fwk // ~a.jpg::bytes of a.jpg
+logo.jpg::bytes of logo.jpg // +old.jpg::bytes of old.jpg // -[Totaled Cols  ]Qty| // ~[Totaled Cols  ]Qty|
+Two|12|$1.50|a.jpg| && $ type Ж -> document: yes/Modified/Two && $ save-as taken.fwk -> document: no/Saved/Ж
~Ж|12|$1.50|a.jpg| && $ clean -> busy ready // -old.jpg::bytes of old.jpg && $ clean -> busy ready
$ save-results -> dialog: Save As.../Untitled Search Results.fwk && $ save-results taken.fwk
i You cannot save your && $ save-results clone.fwk -> - Overwrite Existing F && $ answer yes
$ save-results clone.fwk -> - Overwrite Existing F // document: no/Saved/ && $ open images.fwk
document: no/Opened/Bolt // file: images.fwk // layout: - // print: 1/Stock // records: 4/3/2/i1/12|;$1.50|;
$ clean -> busy ready // -old.jpg::x
)sh");
}

TEST_F(Journey, FailedSaves) {
    database("a.fwk", DataFile("Name Photo:7", "Bolt|a.jpg"), {"a.jpg", "b.jpg", "c.jpg"});
    database("taken.fwk", DataFile("X", "y"));
    open(folder / "a.fwk");
    fs::permissions(folder / "taken.fwk", fs::perms(0444));
    expect(R"sh(
$ type One -> document: yes/Modified/Bolt && $ error 71 && $ save-as b.fwk -> !   Please insert your
dialog: Save As.../Untitled.fwk && $ save-as a.fwk -> ! There was an error w && $ save-results b.fwk
!   Please insert your // dialog: Save As.../Untitled Search Results.fwk && $ error 0 && $ save-within 0
! There was an error w // document: yes/Modified/ && $ save-within 600 -> ! There was an error w
document: no/Saved/One && $ type Two -> document: yes/Modified/One && $ answer yes && $ save-as taken.fwk
- Overwrite Existing F // ! There was an error w // dialog: Save As.../Untitled.fwk // document: no/Saved/Two
$ clone no/b.fwk -> ! There was an error w // dialog: Clone current file to.../Clone1.fwk
document: no/Saved/ && $ shell mv a.fwk away.fwk -> file: a.fwk of 'Filesize:' // @ a.fwk gone // @ away.fwk
$ save -> ! There was an error w // document: no/Saved/Two && $ save-as b.fwk -> ! There was an error w
dialog: Save As.../Untitled.fwk && $ clean -> busy ready && $ recover -> work/Recovered/a (recovered 1).fwk
$ recover -> work/Recovered/a (recovered 2).fwk && $ shell mv ../*/Recovered/a*2* a.fwk -> @ a.fwk
+data.dat:Main Data File: // +[Column Names  ]Name|Photo| // +[Column Types  ]3|7| // +Two|a.jpg|
+------|------| && $ shell mv away.fwk a.fwk -> file: a.fwk // @ away.fwk gone // +a.jpg::bytes of a.jpg
+b.jpg::bytes of b.jpg // +c.jpg::bytes of c.jpg // ~Bolt|a.jpg| && $ type Three -> document: yes/Modified/Two
$ recover -> work/Recovered/a (recovered 2).fwk && $ shell mv ../*/Recovered/a*2* b.fwk -> @ b.fwk
~Three|a.jpg| && $ open gone.fwk -> i Previously opened fi // file:  as Ferrowick - a.fwk of 'Filesize:'
$ save -> ! There was an error w // document: no/Saved/Three && $ recover
work/Recovered/Untitled (recovered 1).fwk
)sh");
}

TEST_F(Journey, NewDatabases) {
    database("a.fwk", shop(), {"a.jpg"});
    database("taken.fwk", DataFile("X", "y"));
    database("inv.fwk", invoices(true));
    open(folder / "a.fwk");
    expect(R"sh(
$ new - invoice -> form databaseTypeFrm // dialog: Specify Name For New Database/ && $ search
print: Name|3/Stock // sheet: 3/yes/ // tab: 1/yes/yes/ // view: no/-1/1/no/Standard
$ new b.fwk cancel -> form databaseTypeFrm && $ type One -> document: yes/Modified/Bolt && $ new b.fwk
- Save current file a. // form databaseTypeFrm // form designFrm // document: yes//Bolt // file: b.fwk of ''
print: 1/Stock // records: 1/0/2//12|;$1.50|; // sheet: 0/no/ // tab: 0/yes/yes/ // view: yes/-1/1/no/Standard
layout: - // print: 1/ // records: 2/1/0//|; // @ b.fwk && $ open b.fwk -> document: yes//
file:  as Ferrowick of '' // records: 1/0/0//|; // tab: 0/no/no/ && $ new c.fwk invoice
form databaseTypeFrm // form designFrm // file: c.fwk of '' // view: no/0/1/no/Standard // records: 2/1/0//
tab: 0/yes/yes/ // view: no/1/1/no/Invoice // @ c.fwk && $ save -> document: no/Saved/------ // file: c.fwk
+data.dat:Main Data File: // +[Column Names  ]Qty| // +[Column Types  ]4| // +[DatabaseStyle ]True // +------|
$ open inv.fwk -> document: no/Opened/Bolt // file: inv.fwk // layout: RR // print: Qty|1/
records: 4/3/2/i1/7|; // view: no/4/0/yes/Invoice && $ new taken.fwk -> x Overwrite Existing F
form databaseTypeFrm // print: 1/ // records: 1/0/2//7|; // view: yes/-1/0/yes/Invoice && $ open a.fwk
file: a.fwk // layout: LRL // print: Name|1/Stock // records: 5/3/2/i1/12|;$1.50|;
view: yes/-1/0/yes/Standard && $ type One -> document: yes/Modified/Bolt && $ answer yes
$ new-at-start taken.fwk -> - Save current file a. // x Overwrite Existing F // form databaseTypeFrm
document: no/Saved/One // file: a.fwk as Ferrowick // print: 1/Stock // records: 1/0/2//12|;$1.50|;
tab: 0/no/no/ // -[Totaled Cols  ]Qty| // ~[Totaled Cols  ]Qty| // +[InvoiceView   ]True
+One|12|$1.50|a.jpg| && $ open a.fwk -> document: no/Opened/One // file: a.fwk // print: Name|1/Stock
records: 5/3/2/i1/12|;$1.50|; // tab: 0/yes/yes/ && $ type Two -> document: yes/Modified/One
$ answer cancel && $ new no/b.fwk -> - Save current file a. // form databaseTypeFrm // document: no/Saved/Two
file: no/b.fwk of 'Filesize:' // print: 1/Stock // records: 1/0/2//12|;$1.50|; // @ a.fwk
~Two|12|$1.50|a.jpg| && $ save -> ! There was an error w // document: no/Saved/ && $ recover
work/Recovered/b (recovered 1).fwk
)sh");
}

} // namespace
