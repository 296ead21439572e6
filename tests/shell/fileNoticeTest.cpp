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

    // "theirs" is what others write, "ours" an unsaved record, "say N" presses a button, "late N" when the
    // file is back, and "keep N" lets hours go by. "open" and "save" answer a question by N, and a file
    // dialog. Then the notice with its buttons, what is told, what is open, "r" to read only, and whose
    // record is in "a".
    std::string play(const std::string& line) {
        std::istringstream words(line);
        std::string what, name, all = "$ " + line + "\n";
        int number = -1;
        words >> what >> number >> name;
        const auto notice = shell::fileNotice(app);
        platform.answers = {platform::Answer::Yes};
        platform.files = {path("in/" + name)};
        if (what == "open" || what == "save") platform.choices = {number};
        if (what == "open") app::setDocumentModified(app, false), storage::removeUnsavedWork(app), open(file);
        if (what == "save") storage::SaveFile(app, !name.empty(), false);
        if (what == "theirs" || what == "late")
            make("in/a", DataFile("Name", "They" + std::to_string(number)).text());
        if (what == "ours") app.document.LV.at(1).cells[0] = "We", app::setDocumentModified(app, true);
        if (what == "again") storage::writeOpenedAgain(app);
        if (what == "full") storage::unsavedWork(app).keepFailure = core::errors::diskFull;
        if (what == "sh")
            (void)!std::system(("cd " + path("in") + "; L='.~lock.a#'; " + line.substr(3)).c_str());
        for (int look = 0; what == "keep" && look < 2; ++look) {
            storage::tendUnsavedWork(app, storage::UnsavedWork::Clock::now() + std::chrono::hours(number));
            while (storage::unsavedWork(app).writer.isRunning()) ::usleep(1000);
        }
        if (what == "say" || what == "late") notice->answers.at(static_cast<unsigned>(number)).act(app);
        if (const auto shown = shell::fileNotice(app))
            all +=
                shown->text.substr(shown->text.size() - 23, 8) + std::to_string(shown->answers.size()) + "\n";
        std::string said = told();
        said.erase(std::min(said.find("\n\n"), said.size()));
        for (const auto text : core::split(said, '\n')) all += std::string(text.substr(0, 12)) + "\n";
        all += fs::path(app.document.currentFile).filename().string();
        if (!app.document.currentFile.empty()) all += (app.mainFrm.bReadOnly ? "r " : " ") + cell(1, "Name");
        if (fs::exists(file)) all += dataFileOf(file).find("\nWe|") != std::string::npos ? "/We" : "/They";
        return all + "\n";
    }
};

TEST_F(Notices, SayWhatHasBecomeOfTheFileUntilTheyAreAnswered) {
    platform.guards = fs::create_directory(platform.folder / "in");
    make("in/a", DataFile("Name", "One").text());
    expectTranscript(R"(
$ sh mkdir $L -> /They && $ open -> ? a cannot b // /They
$ sh rmdir $L; echo 'ann,else,1,now;' >$L -> /They && $ open -> ? a is open  // Whether it s // /They
$ open 1 no/b -> ? a is open  // Whether it s // /They
$ open 1 b -> ? a is open  // Whether it s // b One/They && $ ours -> b We/They
$ save -1 a -> - Overwrite  // ? a is open  // Whether it s // b We/They
$ save 0 a -> - Overwrite  // ? a is open  // Whether it s // a We/We && $ theirs 1 -> re is as2 // a We/They
$ open 0 -> ? a is open  // Whether it s // ar They1/They
$ save -1 a -> ? a is open  // Whether it s // ar They1/They && $ sh rm a -> een rena2 // ar They1
$ again -> ar They1/They && $ sh rm $L -> ar They1/They && $ save -1 a -> a They1/They && $ ours -> a We/They
$ sh touch ../recovery -> a We/They && $ keep 1 -> rash. Pl1 // a We/They && $ say 0 -> a We/They
$ sh rm ../recovery -> a We/They && $ keep 2 -> a We/They && $ full -> full. Pl1 // a We/They
$ save -> a We/We && $ theirs 1 -> re is as2 // a We/They && $ say 0 -> a They1/They
$ theirs 2 -> re is as2 // a They1/They && $ say 1 -> a They1/They && $ save -> ? a was chan // a They1/They
$ open -> a They2/They && $ ours -> a We/They && $ theirs 3 -> saved wo3 // a We/They
$ say 0 -> saved wo3 // ! There was  // ! It could n // Path/file ac // a We/They && $ say 1 -> a We/They
$ save -> a We/We && $ ours -> a We/We && $ theirs 5 -> saved wo3 // a We/They && $ say 2 -> a They5/They
$ open -> ? Restore Un // a They5/They && $ sh rm a -> een rena2 // a They5 && $ say 1 -> a They5
$ save -> ! There was  // a They5 && $ theirs 6 -> saved wo3 // a They5/They
$ open -> ? Restore Un // a They6/They && $ sh rm a -> een rena2 // a They6 && $ say 0 -> a They6/They
$ sh rm a -> een rena2 // a They6 && $ late 0 -> re is as2 // ? a was chan // a They6/They
$ sh mv ../in ../away -> een rena2 // a They6 && $ say 0 -> een rena2 // ! There was  // a They6
)",
                     std::bind_front(&Notices::play, this));
}

} // namespace
