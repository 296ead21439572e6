#include "lock/designLock.h"

#include "core/encoding.h"
#include "core/sectionMarker.h"
#include "core/text.h"
#include "core/translate.h"

namespace lock {

using app::App;
using platform::Icon;

namespace {

constexpr std::string_view key = "wintersedge";
constexpr const char* lockCaption = core::marked("Lock Database");

// In the code of one byte that the file is written in. A character beyond it is exclusive-ored by its own
// code point, unless that led among the characters of one byte, from where there would be no way back.
void appendScrambled(std::string& out, std::string_view character, char with) {
    if (std::optional<std::string> byte = core::toWindows1252(character)) {
        byte->front() = static_cast<char>(byte->front() ^ with);
        out += core::fromWindows1252(*byte);
        return;
    }
    std::size_t start = 0;
    std::string other;
    core::appendCodePoint(other, core::nextCodePoint(character, start) ^ static_cast<unsigned char>(with));
    out += core::toWindows1252(other) ? character : other;
}

// A scrambled password can hold line ends. When it is read, only a line that looks like a section's ends it.
bool wouldBeReadBack(std::string_view stored) {
    for (std::size_t end = stored.find('\r'); end != std::string_view::npos; end = stored.find('\r')) {
        stored.remove_prefix(end + 1);
        if (stored.starts_with('\n')) stored.remove_prefix(1);
        if (core::beginsWithMarker(stored.substr(0, stored.find('\r')))) return false;
    }
    return true;
}

void lockDesign(App& app) {
    const platform::Answer answer =
        app.platform.msgBox(core::tr("This feature will prevent any changes to be made to either the "
                                     "database properties or the layout.  "
                                     "You will need to provide a password to lock or unlock your file.  Are "
                                     "you sure you want to do this?"),
                            Icon::None, core::tr(lockCaption), platform::Buttons::YesNo);
    if (answer != platform::Answer::Yes) return;
    if (app.mainFrm.control("Design").Value) {
        app.platform.msgBox(
            core::tr("Please return layout to browse view instead of design.  The design button is "
                     "currently pressed."),
            Icon::None, app::title);
        return;
    }
    std::string& lockPassword = app.document.lockPassword;
    lockPassword = app.platform.inputBox(core::tr("Enter password to lock file."), core::tr(lockCaption), "");
    // Blanks stay as they are and lock the design, without a word. It is wanted so.
    if (core::trim(lockPassword).empty()) return;
    scrambleLockPassword(app.document);
    if (!wouldBeReadBack(lockPassword)) {
        lockPassword.clear();
        app::inform(app, core::tr("This password cannot be stored.  Please choose another one."));
        return;
    }
    app::inform(app, core::tr("Database Locked."));
    app::setDocumentModified(app, true);
}

void unlockDesign(App& app) {
    const std::string answer = app.platform.inputBox(core::tr("Enter password to unlock database."),
                                                     core::tr("Unlock Database"), "");
    scrambleLockPassword(app.document);
    if (app.document.lockPassword != answer) {
        app::inform(app, core::tr("Incorrect Password."));
        scrambleLockPassword(app.document);
    } else {
        app.document.lockPassword.clear();
    }
    // A failed attempt counts as a change too. It is wanted so.
    app::setDocumentModified(app, true);
}

} // namespace

void scrambleLockPassword(core::Document& document) {
    const std::string plain = std::move(document.lockPassword);
    std::string scrambled;
    scrambled.reserve(plain.size());
    std::size_t position = 0;
    for (std::size_t at = 0; at < plain.size(); ++position) {
        const std::size_t from = at;
        core::nextCodePoint(plain, at);
        appendScrambled(scrambled, std::string_view(plain).substr(from, at - from),
                        key[position % key.size()]);
    }
    document.lockPassword = std::move(scrambled);
}

void mnuDatabaseLock_Click(App& app) {
    if (app.document.lockPassword.empty())
        lockDesign(app);
    else
        unlockDesign(app);
}

bool isDesignLocked(App& app) {
    if (app.document.lockPassword.empty()) return false;
    app::inform(
        app,
        core::tr("The database structure and layout have been locked.  Use the Options menu to unlock."));
    return true;
}

} // namespace lock
