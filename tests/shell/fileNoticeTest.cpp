#include "shell/fileNotice.h"
#include "databases.h"
#include "storage/recoveryCopies.h"
#include "storage/saveFile.h"
#include "transcript.h"

namespace {

struct NoticeMachine : ScriptedPlatform {
    fs::path stateFolder() override { return folder; }
};

struct Notices : testing::Test, ProgramOn<NoticeMachine> {
    const std::string file = path("in/a.fwk");
    storage::UnsavedWork& work = storage::unsavedWork(app);

    // "theirs" is what somebody else writes, "ours" a record that is not saved, "say N" presses that button
    // and "late N" does so when the file is back; "keep N" lets so many hours go by. All else are the shell's
    // acts. Behind it the end of the notice and its buttons, what is told and asked, and our record beside
    // the file's.
    std::string play(const std::string& line) {
        const std::string what = line.substr(0, line.find(' '));
        const auto number = static_cast<unsigned>(line.back() - '0');
        const auto notice = shell::fileNotice(app);
        if (what == "open") app::setDocumentModified(app, false), storage::removeUnsavedWork(app), open(file);
        if (what == "theirs" || what == "late")
            make("in/a.fwk", DataFile("Name", "They" + line.substr(line.size() - 1)).text());
        if (what == "ours") app.document.LV.at(1).cells[0] = "We", app::setDocumentModified(app, true);
        if (what == "save") storage::SaveFile(app, false, false);
        if (what == "full") work.keepFailure = core::errors::diskFull;
        if (what == "rm" || what == "mv" || what == "touch")
            (void)!std::system(("cd " + platform.folder.string() + " && " + line).c_str());
        for (int look = 0; what == "keep" && look < 2; ++look) {
            storage::tendUnsavedWork(app, storage::UnsavedWork::Clock::now() + std::chrono::hours(number));
            while (work.writer.isRunning()) ::usleep(1000);
        }
        if (what == "say" || what == "late") notice->answers.at(number).act(app);
        std::string all = "$ " + line + "\n";
        if (const auto shown = shell::fileNotice(app))
            all += shown->text.substr(shown->text.size() - 24) + std::to_string(shown->answers.size()) + "\n";
        all += told().substr(0, 22) + "\n" + dialogs().substr(0, 7) + "\n" + cell(1, "Name") + "/";
        if (fs::exists(file)) all += dataFileOf(file).find("\nWe|") != std::string::npos ? "We" : "They";
        return all + "\n";
    }
};

TEST_F(Notices, SayWhatHasBecomeOfTheFileUntilTheyAreAnswered) {
    platform.guards = true;
    fs::create_directory(platform.folder / "in");
    make("in/a.fwk", DataFile("Name", "One").text());
    expectTranscript(R"(
$ open -> One/They && $ ours -> We/They && $ touch recovery -> We/They
$ keep 1 -> crash. Please save soon.1 // We/They && $ say 0 -> We/They && $ rm recovery -> We/They
$ keep 2 -> We/They && $ full ->  full. Please save soon.1 // We/They && $ save -> We/We
$ theirs 1 -> ere is as it was opened.2 // We/They && $ say 0 -> They1/They
$ theirs 2 -> ere is as it was opened.2 // They1/They && $ say 1 -> They1/They
$ save -> ? a.fwk was changed by // They1/They && $ open -> They2/They && $ ours -> We/They
$ theirs 3 -> nsaved work is based on.3 // We/They
$ say 0 -> nsaved work is based on.3 // Save As // We/They && $ say 1 -> We/They && $ save -> We/We
$ theirs 4 -> ere is as it was opened.2 // We/They && $ ours -> nsaved work is based on.3 // We/They
$ say 2 -> They4/They && $ open -> ? Restore Unsaved Work // They4/They
$ rm in/a.fwk -> been renamed or deleted.2 // They4/ && $ say 1 -> They4/
$ save -> ! There was an error w // They4/ && $ theirs 5 -> nsaved work is based on.3 // They4/They
$ open -> ? Restore Unsaved Work // They5/They && $ rm in/a.fwk -> been renamed or deleted.2 // They5/
$ say 0 -> They5/They && $ rm in/a.fwk -> been renamed or deleted.2 // They5/
$ late 0 -> ere is as it was opened.2 // ? a.fwk was changed by // They5/They
$ open -> ? Restore Unsaved Work // They0/They && $ mv in away -> been renamed or deleted.2 // They0/
$ say 0 -> been renamed or deleted.2 // ! There was an error w // They0/
)",
                     std::bind_front(&Notices::play, this));
}

} // namespace
