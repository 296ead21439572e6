#include "shell/fileNotice.h"
#include "core/text.h"
#include "databases.h"
#include "storage/openedFile.h"
#include "storage/recoveryCopies.h"
#include "storage/saveFile.h"
#include "transcript.h"

namespace {

struct NoticeMachine : ScriptedPlatform {
    fs::path stateFolder() override { return folder; }
};

struct Notices : testing::Test, ProgramOn<NoticeMachine> {
    const std::string file = path("in/a");
    storage::UnsavedWork& work = storage::unsavedWork(app);

    // "theirs" is what somebody else writes, "ours" a record that is not saved, "say N" presses that button,
    // and "late N" when the file is back; "keep N" lets so many hours go by. "open" and "save" answer a
    // question by N, and a file dialog. Behind it the end of the notice and its buttons, what is told, and
    // what is open, "r" to read only: its record and whose is in the file "a".
    std::string play(const std::string& line) {
        std::istringstream words(line);
        std::string what, name, all = "$ " + line + "\n";
        int number = -1;
        words >> what >> number >> name;
        const auto notice = shell::fileNotice(app);
        platform.answers = {platform::Answer::Yes};
        if (what == "open" || what == "save")
            platform.choices = {number}, platform.files = {path("in/" + name)};
        if (what == "open") app::setDocumentModified(app, false), storage::removeUnsavedWork(app), open(file);
        if (what == "save") storage::SaveFile(app, !name.empty(), false);
        if (what == "theirs" || what == "late")
            make("in/a", DataFile("Name", "They" + std::to_string(number)).text());
        if (what == "ours") app.document.LV.at(1).cells[0] = "We", app::setDocumentModified(app, true);
        if (what == "again") storage::writeOpenedAgain(app);
        if (what == "full") work.keepFailure = core::errors::diskFull;
        if (what == "sh")
            (void)!std::system(("cd " + path("in") + "; L='.~lock.a#'; " + line.substr(3)).c_str());
        for (int look = 0; what == "keep" && look < 2; ++look) {
            storage::tendUnsavedWork(app, storage::UnsavedWork::Clock::now() + std::chrono::hours(number));
            while (work.writer.isRunning()) ::usleep(1000);
        }
        if (what == "say" || what == "late") notice->answers.at(static_cast<unsigned>(number)).act(app);
        if (const auto shown = shell::fileNotice(app))
            all += shown->text.substr(shown->text.size() - 23) + std::to_string(shown->answers.size()) + "\n";
        std::string said = told();
        said.erase(std::min(said.find("\nFile: "), said.size()));
        for (const auto text : core::split(said, '\n')) all += std::string(text.substr(0, 22)) + "\n";
        all += fs::path(app.document.currentFile).filename().string();
        if (!app.document.currentFile.empty()) all += (app.mainFrm.bReadOnly ? "r " : " ") + cell(1, "Name");
        if (fs::exists(file)) all += dataFileOf(file).find("\nWe|") != std::string::npos ? "/We" : "/They";
        return all + "\n";
    }
};

TEST_F(Notices, SayWhatHasBecomeOfTheFileUntilTheyAreAnswered) {
    platform.guards = true;
    fs::create_directory(platform.folder / "in");
    make("in/a", DataFile("Name", "One").text());
    expectTranscript(R"(
$ sh mkdir $L -> /They && $ open -> ? a cannot be locked:  // What is saved here cou // /They
$ sh rmdir $L; echo 'ann,else,1,now;' >$L -> /They
$ open -> ? a is open elsewhere, // Whether it still is ca // What is saved here cou // /They
$ open 1 no/b -> ? a is open elsewhere, // Whether it still is ca // What is saved here cou // ! /tmp/ferrowick-test- // /They
$ open 1 b -> ? a is open elsewhere, // Whether it still is ca // What is saved here cou // b One/They
$ ours -> b We/They
$ save -1 a -> - Overwrite Existing F // ? a is open elsewhere, // Whether it still is ca // b We/They
$ save 0 a -> - Overwrite Existing F // ? a is open elsewhere, // Whether it still is ca // a We/We
$ theirs 1 -> re is as it was opened.2 // a We/They
$ open 0 -> ? a is open elsewhere, // Whether it still is ca // What is saved here cou // ar They1/They
$ save -1 a -> ? a is open elsewhere, // Whether it still is ca // ar They1/They
$ sh rm a -> een renamed or deleted.2 // ar They1 && $ again -> ar They1/They && $ sh rm $L -> ar They1/They
$ save -1 a -> a They1/They && $ ours -> a We/They && $ sh touch ../recovery -> a We/They
$ keep 1 -> rash. Please save soon.1 // a We/They && $ say 0 -> a We/They
$ sh rm ../recovery -> a We/They && $ keep 2 -> a We/They && $ full -> full. Please save soon.1 // a We/They
$ save -> a We/We && $ theirs 1 -> re is as it was opened.2 // a We/They && $ say 0 -> a They1/They
$ theirs 2 -> re is as it was opened.2 // a They1/They && $ say 1 -> a They1/They
$ save -> ? a was changed by som // To overwrite it loses  // a They1/They && $ open -> a They2/They
$ ours -> a We/They && $ theirs 3 -> saved work is based on.3 // a We/They
$ say 0 -> saved work is based on.3 // ! There was an error w // ! It could not be writ // Path/file access error // a We/They
$ say 1 -> a We/They && $ save -> a We/We && $ theirs 5 -> re is as it was opened.2 // a We/They
$ ours -> saved work is based on.3 // a We/They && $ say 2 -> a They5/They
$ open -> ? Restore Unsaved Work // a They5/They && $ sh rm a -> een renamed or deleted.2 // a They5
$ say 1 -> a They5 && $ save -> ! There was an error w // a They5
$ theirs 6 -> saved work is based on.3 // a They5/They && $ open -> ? Restore Unsaved Work // a They6/They
$ sh rm a -> een renamed or deleted.2 // a They6 && $ say 0 -> a They6/They
$ sh rm a -> een renamed or deleted.2 // a They6
$ late 0 -> re is as it was opened.2 // ? a was changed by som // To overwrite it loses  // a They6/They
$ open -> ? Restore Unsaved Work // a They0/They
$ sh mv ../in ../away -> een renamed or deleted.2 // a They0
$ say 0 -> een renamed or deleted.2 // ! There was an error w // a They0
)",
                     std::bind_front(&Notices::play, this));
}

} // namespace
