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
        pointers += pointer == platform::MousePointer::Hourglass ? "hourglass," : "arrow;";
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
            for (const platform::FileDialog& dialog : std::exchange(platform.dialogs, {}))
                all += dialog.title + "/" + dialog.fileName +
                       (dialog.filter == platform::databaseFilter ? "\n" : "?\n");
            std::istringstream messages(plain(told()));
            for (std::string message; std::getline(messages, message);) all += message.substr(0, 40) + "\n";
            all += plain(rest + changed() + watch.changes(current()));
            return all;
        });
    }
    // Without the places of the folders.
    std::string plain(std::string text) const {
        for (const std::string& path : {folder.string() + "/", platform.folder.string() + "/"})
            for (std::size_t at = 0; (at = text.find(path)) != std::string::npos;)
                text.erase(at, path.size());
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
        const auto number = [](auto value) { return std::to_string(value); };
        std::string images, recent, aligned;
        for (const auto& entry : fs::directory_iterator(platform.tempFolder()))
            images += entry.path().filename().string() + ";";
        for (const char* key : {"mnuFile1", "mnuFile2", "mnuFile3"})
            recent += mainFrm.control(key).Caption + ";";
        document.layout.layoutField.forEach([&](const core::LayoutField& field) {
            aligned += field.align == core::Alignment::Right ? "R" : "L";
        });
        document.layout.clipPic.forEach([&](const core::ClipPic& clip) {
            aligned +=
                clip.clipImage.path.empty() ? " -" : " " + fs::path(clip.clipImage.path).filename().string();
        });
        const std::string kept = ScriptedPlatform::read(platform.folder / "work/data.dat");
        const std::size_t first = std::min(kept.find("[Begin Data") + 18, kept.size());
        std::error_code none;
        const std::string size = "Filesize: " + number(fs::file_size(document.currentFile, none)) + " bytes.";
        const core::RecordsList& shown = shell::visibleList(app);
        return {{"caption",
                 mainFrm.Caption == "Ferrowick - " + document.currentFile ? "the file" : mainFrm.Caption},
                {"columns", number(document.LV.columns.count())},
                {"current row", document.LV.selectedItem() ? document.LV.selectedItem()->Key.str() : ""},
                {"document", on(document.bModified) + panel(app::documentPanel)},
                {"field", number(mainFrm.iFieldFocus)},
                {"file", document.currentFile},
                {"images", images},
                {"invoices", document.iLV.Visible ? number(document.iLV.count()) : "hidden"},
                {"items", on(document.bInvoiceView) + number(mainFrm.viewOpt)},
                {"kept", kept.substr(first, kept.find('|', first) - first)},
                {"last key", number(document.iLastKey)},
                {"layout", aligned},
                {"pointer", std::exchange(platform.pointers, "")},
                {"printed", text(document.printedCols)},
                {"printing", number(mainFrm.iPrintMode)},
                {"recent", recent},
                {"records", panel(app::recordsPanel) + number(mainFrm.Slider1.Max)},
                {"rows", number(document.LV.count())},
                {"save", mainFrm.control("Save").Enabled ? "on" : "off"},
                {"search", mainFrm.control("Search").Value ? "on" : "off"},
                {"shown", &shown == &document.iLV  ? "invoices"
                          : &shown == &document.LV ? "records"
                                                   : "results"},
                {"size",
                 panel(app::fileSizePanel) == size ? "of the file" : panel(app::fileSizePanel).substr(0, 9)},
                {"style", panel(app::stylePanel)},
                {"sums", cells(document.LV3)},
                {"tab", number(mainFrm.SSTab1) + (mainFrm.SSTab1Enabled ? "" : " off")},
                {"title", document.reportData.reportTitle}};
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
            "F|Name|1|2|3|4;F|Price|1|2|3|4;F|Gone|1|2|3|4;C|logo.gif|1|2|3|4|;C|../x|1|2|3|4|;C||1|2|3|4|")
        .sections("Totaled Cols=Qty|;Printed Cols=Name|;Report Data=1|1|1|1|1|1|Stock|True|");
}

DataFile invoices(bool items) {
    return DataFile("Name Qty:4 Price:2", "Bolt|12@7@|$1.50;Nut|7@@|$.25")
        .objects("F|Qty|1|2|3|4;F|Qty|1|9|3|4")
        .sections("DatabaseStyle=True;PrnInvoiceCols=Name|Price|;PrnItemCols=Qty|")
        .section("InvoiceView", items ? "True" : "False");
}

TEST_F(Journey, Opening) {
    DataFile twice, widths, one("Name", "a"), bare;
    database("a.fwk", shop(), {"a.jpg", "logo.gif", "x"});
    database("items.fwk", invoices(true));
    database("inv.fwk", invoices(false));
    database("one.fwk", one);
    bare.rows.clear();
    database("bare.fwk", bare);
    database("twice.fwk", twice.section("Totaled Cols", "Qty|Qty|"));
    widths.spots = "1|2|3|4|5|6|";
    database("spots.fwk", widths);
    ScriptedPlatform::write(folder / "text.fwk", "no archive");
    fs::create_directory(folder / "folder");
    mainFrm.bCtrlDown = true; // of the shortcut
    expect(R"sh(
$ choose -> Open Database/ // caption: Ferrowick // save: off // tab: 0 off && $ choose a.fwk
Open Database/ // caption: the file // columns: 5 // current row: i1 // document: no/Document Opened
file: a.fwk // images: logo.gif; // kept: Bolt // last key: 2 // layout: LRL - - -
pointer: hourglass,arrow; // printed: Name| // recent: a.fwk;;; // records: 2 records.2 // rows: 3 // save: on
size: of the file // style: Database Style: Standard // sums: 12|;$1.50|; // tab: 0 // title: Stock
$ choose -> Open Database/ // pointer: - && $ type changed -> document: yes/Document Modified && $ choose
Open Database/ && $ choose gone.fwk -> Open Database/ // i File does not exist! // caption: Ferrowick - a.fwk
file: - // size: Filesize: && $ open a.fwk -> caption: the file // document: yes/Document Opened
file: a.fwk // pointer: hourglass,arrow; // size: of the file && $ open folder
i Previously opened file could not be fo // caption: Ferrowick - a.fwk // file: - // pointer: -
size: Filesize: && $ open a.fwk -> caption: the file // file: a.fwk // pointer: hourglass,arrow;
size: of the file && $ open items.fwk -> columns: 4 // file: items.fwk // images: - // invoices: 4
items: yes/0 // layout: RR // pointer: - // printed: Qty| // shown: invoices // style: Database Style: Invoice
sums: 7|; && $ choose inv.fwk -> Open Database/ // file: inv.fwk // invoices: 3 // items: no/1
printed: Name|Price| // recent: inv.fwk;a.fwk;; // sums: $.25|; && $ choose inv.fwk -> Open Database/
recent: inv.fwk;inv.fwk;a.fwk; && $ choose one.fwk -> Open Database/ // columns: 2 // file: one.fwk
invoices: hidden // kept: a // last key: 1 // layout: - // printed: - // recent: one.fwk;inv.fwk;inv.fwk;
rows: 2 // shown: records // style: Database Style: Standard // sums: - && $ open bare.fwk -> columns: 4
current row: Totals // file: bare.fwk // kept: - // last key: 0 // rows: 1 // sums: |;|; && $ choose twice.fwk
Open Database/ // caption: Ferrowick // columns: 1 // current row: - // file: - // kept: Bolt // rows: 0
save: off // size: Filesize: // tab: 0 off && $ choose spots.fwk -> Open Database/ // columns: 4
last key: 2 // rows: 3 && $ choose text.fwk -> Open Database/ // columns: 1 // kept: - // rows: 0
$ open a.fwk -> caption: the file // columns: 5 // current row: i1 // file: a.fwk // images: logo.gif;
kept: Bolt // layout: LRL - - - // pointer: hourglass,arrow; // printed: Name| // rows: 3 // save: on
size: of the file // sums: 12|;$1.50|; // tab: 0
)sh");
    document.searchLV.Visible = mainFrm.control("Search").Value = true;
    mainFrm.theListView = &document.searchLV;
    mainFrm.SSTab1 = app::layoutTab;
    mainFrm.iPrintMode = app::printMultipleLayouts;
    mainFrm.iFieldFocus = 3;
    document.lockPassword = "x";
    expect(R"sh(
$ open bare.fwk -> columns: 4 // current row: Totals // field: 0 // file: bare.fwk // images: - // kept: -
last key: 0 // layout: - // printed: - // printing: 1 // rows: 1 // search: off // shown: records
sums: |;|; // tab: 0
)sh");
}

TEST_F(Journey, Saving) {
    database("a.fwk", shop(), {"a.jpg", "logo.gif", "old.jpg", "old.gif"});
    database("taken.fwk", shop(), {"unused.jpg"});
    open(folder / "a.fwk");
    run("Save");
    expect(R"sh(
$ save -> pointer: - && $ type One -> document: yes/Document Modified && $ save -> document: no/Document Saved
kept: One // ~One|12|$1.50|a.jpg| && $ type Two -> document: yes/Document Modified && $ save-as
Save As.../Untitled.fwk && $ save-as taken.fwk -> Save As.../Untitled.fwk // - Overwrite Existing File?
$ answer cancel && $ save-as taken.fwk -> Save As.../Untitled.fwk // - Overwrite Existing File? && $ clone
Clone current file to.../Clone1.fwk // kept: - && $ clone taken.fwk -> Clone current file to.../Clone1.fwk
- Overwrite Existing File? && $ clone clone.fwk -> Clone current file to.../Clone1.fwk // @ clone.fwk
-a.jpg::bytes of a.jpg // -logo.gif::bytes of logo.gif // -old.jpg::bytes of old.jpg
-old.gif::bytes of old.gif // -One|12|$1.50|a.jpg| // -Nut|7|$.25|| // -------|------|------|------|
$ answer yes && $ save-as taken.fwk -> Save As.../Untitled.fwk // - Overwrite Existing File?
document: no/Document Saved // file: taken.fwk // kept: Two // ~a.jpg::bytes of a.jpg
+logo.gif::bytes of logo.gif // +old.jpg::bytes of old.jpg // +old.gif::bytes of old.gif
-[Totaled Cols  ]Qty| // ~[Totaled Cols  ]Qty| // +Two|12|$1.50|a.jpg|
$ type Ж -> document: yes/Document Modified && $ save-as taken.fwk
Save As.../Untitled.fwk // document: no/Document Saved // kept: Ж // ~Ж|12|$1.50|a.jpg| && $ type One
document: yes/Document Modified && $ save -> document: no/Document Saved // kept: One // ~One|12|$1.50|a.jpg|
$ clean -> pointer: hourglass,arrow; // -old.jpg::bytes of old.jpg && $ clean && $ save-results
Save As.../Untitled Search Results.fwk // pointer: - && $ save-results taken.fwk
Save As.../Untitled Search Results.fwk // i You cannot save your search results to && $ save-results clone.fwk
Save As.../Untitled Search Results.fwk // - Overwrite Existing File? && $ answer yes
$ save-results clone.fwk -> Save As.../Untitled Search Results.fwk // - Overwrite Existing File? // kept: -
)sh");
}

TEST_F(Journey, FailedSaves) {
    database("a.fwk", shop(), {"a.jpg"});
    database("taken.fwk", DataFile("X", "y"));
    open(folder / "a.fwk");
    fs::permissions(folder / "taken.fwk", fs::perms(0444));
    expect(R"sh(
$ type One -> document: yes/Document Modified && $ error 71 && $ save-as b.fwk -> Save As.../Untitled.fwk
!   Please insert your working source di && $ save-as a.fwk -> Save As.../Untitled.fwk
! There was an error writing to the file && $ save -> ! There was an error writing to the file
$ clone b.fwk -> ! There was an error writing to the file && $ save-results b.fwk
Save As.../Untitled Search Results.fwk // !   Please insert your working source di && $ error 75
$ save-as b.fwk -> Save As.../Untitled.fwk // ! There was an error writing to the file && $ error 0
$ save-within 0 -> ! There was an error writing to the file // kept: - && $ save-within 100
! There was an error writing to the file // kept: Name && $ save-within 500
! There was an error writing to the file && $ type Two && $ answer yes
$ save-as taken.fwk -> Save As.../Untitled.fwk
- Overwrite Existing File? // ! There was an error writing to the file // document: no/Document Saved
kept: Two && $ save-as no/b.fwk -> Save As.../Untitled.fwk // ! There was an error writing to the file
$ clone no/b.fwk -> Clone current file to.../Clone1.fwk // ! There was an error writing to the file // kept: -
$ shell chmod 444 a.fwk && $ save -> ! There was an error writing to the file // kept: Two
$ shell mv a.fwk away.fwk -> size: Filesize: // @ a.fwk gone // @ away.fwk && $ save
! There was an error writing to the file && $ save-as b.fwk -> Save As.../Untitled.fwk
! There was an error writing to the file && $ clean -> pointer: hourglass,arrow; && $ recover
work/Recovered/a (recovered 1).fwk // pointer: - && $ shell echo text > a.fwk -> @ a.fwk // +text && $ clean
pointer: hourglass,arrow; && $ recover -> work/Recovered/a (recovered 2).fwk // pointer: -
$ shell mv ../*/Recovered/a*2* a.fwk -> ~data.dat:Main Data File:
+F|Name|1|2|3|4|False|False|False|Arial|10|0| // +F|Price|1|2|3|4|False|False|False|Arial|10|0|
+F|Gone|1|2|3|4|False|False|False|Arial|10|0| // +C|logo.gif|1|2|3|4| // +C|../x|1|2|3|4| // +C||1|2|3|4|
+[Column Names  ]Name|Qty|Price|Photo| // +[Column Types  ]3|4|2|7| // +[Printed Cols  ]Name|
+[Report Data   ]1|1|1|1|1|1|Stock|True| // +[Totaled Cols  ]Qty| // +Two|12|$1.50|a.jpg| // +Nut|7|$.25||
+------|------|------|------| && $ shell mv away.fwk a.fwk -> size: of the file // @ away.fwk gone
+a.jpg::bytes of a.jpg // +[Totaled Cols  ]Qty| // ~Bolt|12|$1.50|a.jpg| // -Two|12|$1.50|a.jpg|
$ type Three -> document: yes/Document Modified && $ recover -> work/Recovered/a (recovered 2).fwk
$ shell mv ../*/Recovered/a*2* b.fwk -> @ b.fwk // -[Totaled Cols  ]Qty| // ~[Totaled Cols  ]Qty|
+Three|12|$1.50|a.jpg| && $ open gone.fwk -> i Previously opened file could not be fo
caption: Ferrowick - a.fwk // file: - // size: Filesize: && $ save -> ! There was an error writing to the file
document: no/Document Saved // kept: Three && $ recover -> work/Recovered/Untitled (recovered 1).fwk
)sh");
}

TEST_F(Journey, NewDatabases) {
    database("a.fwk", shop(), {"a.jpg"});
    database("taken.fwk", DataFile("X", "y"));
    database("inv.fwk", invoices(true));
    open(folder / "a.fwk");
    mainFrm.SSTab1 = app::layoutTab;
    mainFrm.iFieldFocus = 4;
    expect(R"sh(
$ new b.fwk cancel -> form databaseTypeFrm && $ new - invoice -> Specify Name For New Database/
form databaseTypeFrm && $ type One -> document: yes/Document Modified && $ new b.fwk
Specify Name For New Database/ // - Save current file a.fwk? // form databaseTypeFrm // form designFrm
columns: 1 // current row: - // document: yes/ // field: 0 // file: b.fwk // printed: - // rows: 0 // size: -
tab: 0 // columns: 2 // last key: 0 // layout: - // rows: 1 // sums: |; // title: - // @ b.fwk && $ open b.fwk
caption: Ferrowick // columns: 1 // file: - // kept: - // rows: 0 // save: off // tab: 0 off
$ new c.fwk invoice -> Specify Name For New Database/ // form databaseTypeFrm // form designFrm
caption: the file // file: c.fwk // invoices: 0 // shown: invoices // columns: 2 // invoices: 1 // rows: 1
save: on // style: Database Style: Invoice // sums: - // tab: 0 // @ c.fwk && $ save
document: no/Document Saved // kept: ------ // size: of the file // +data.dat:Main Data File:
+[Column Names  ]Qty| // +[Column Types  ]4| // +[DatabaseStyle ]True // +------| && $ open inv.fwk
columns: 4 // current row: i1 // document: no/Document Opened // file: inv.fwk // invoices: 4 // items: yes/0
kept: Bolt // last key: 2 // layout: RR // printed: Qty| // rows: 3 // sums: 7|; && $ new taken.fwk
Specify Name For New Database/ // x Overwrite Existing File? // form databaseTypeFrm // columns: 1
current row: - // invoices: hidden // printed: - // rows: 0 // shown: records && $ open a.fwk -> columns: 5
current row: i1 // file: a.fwk // layout: LRL - - - // printed: Name| // rows: 3
style: Database Style: Standard // sums: 12|;$1.50|; // title: Stock && $ type One
document: yes/Document Modified && $ answer yes && $ new-at-start taken.fwk -> Specify Name For New Database/
- Save current file a.fwk? // x Overwrite Existing File? // form databaseTypeFrm // caption: Ferrowick
columns: 1 // current row: - // document: no/Document Saved // kept: One // printed: - // rows: 0 // save: off
tab: 0 off // -[Totaled Cols  ]Qty| // ~[Totaled Cols  ]Qty| // +[InvoiceView   ]True // +One|12|$1.50|a.jpg|
$ open a.fwk -> caption: the file // columns: 5 // current row: i1 // document: no/Document Opened
printed: Name| // rows: 3 // save: on // tab: 0 && $ type Two -> document: yes/Document Modified
$ answer cancel && $ new no/b.fwk -> Specify Name For New Database/ // - Save current file a.fwk?
form databaseTypeFrm // columns: 1 // current row: - // document: no/Document Saved // file: no/b.fwk
kept: Two // printed: - // rows: 0 // size: Filesize: // @ a.fwk // ~Two|12|$1.50|a.jpg| && $ save
! There was an error writing to the file // kept: - && $ recover -> work/Recovered/b (recovered 1).fwk
)sh");
}

} // namespace
