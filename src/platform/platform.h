#pragma once

#include "core/translate.h"
#include "drawing/drawTarget.h"
#include "platform/mailMessage.h"

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

enum class Icon { None, Information, Exclamation, Question, Critical };
enum class Buttons { Ok, YesNo, YesNoDefaultNo }; // the last for what may do harm: Enter answers No
enum class Answer { Ok, Yes, No, Cancel };
enum class MousePointer { Default = 0, Hourglass = 11 };

struct FileDialog {
    std::string title;
    std::string fileName; // proposed
    std::string filter;   // "Database (*.fwk)|*.fwk|All Files (*.*)|*.*"
};

// Where the settings stand in their file.
constexpr std::string_view settingsSection = "StartUp";

// The filter of every dialog that asks for a database; shown by core::tr().
constexpr std::string_view databaseFilter = core::marked("Database (*.fwk)|*.fwk|All Files (*.*)|*.*");

// A paper of the printer by its own name; the code is what PaperSize takes.
struct PaperName {
    std::string name;
    int code = 0;
    // Upright, of a paper that is known by no code but that of custom sizes; empty for all others.
    drawing::Extent size = {};
};

// What the print dialog was left with.
struct PrintChoice {
    int PaperSize = 1;
    int Orientation = 1;
};

struct FontChoice {
    std::string FontName;
    float FontSize = 0; // points
    bool FontBold = false, FontItalic = false, FontUnderline = false, FontStrikethru = false;
    std::int32_t ForeColor = 0; // 0x00BBGGRR
};

// What is on the clipboard, in each form that there is: UTF-8, empty where it is not in that form.
struct ClipboardData {
    std::string text; // a table has tabs between its cells
    std::string html;
    std::string layout; // objects of a page
};

// What became of a message that was given to the user's mail program.
enum class MailStart { NoProgram, WithoutAttachment, WithAttachment };

// What stands between the logic and the machine. The window and the command-line tool each have an
// implementation; tests have a scripted one.
class Platform {
public:
    virtual ~Platform() = default;

    // --- questions and messages ---
    virtual Answer msgBox(const std::string& text, Icon icon, const std::string& caption,
                          Buttons buttons = Buttons::Ok) = 0;
    // A question with buttons of its own, and Cancel behind them. Answers the place of the one that was
    // pressed; -1 when the user waved the question away, or nobody is there to ask. Enter presses the first
    // one, or Cancel where there is no choice but whether to go on.
    virtual int choose(const std::string& text, const std::string& caption,
                       const std::vector<std::string>& buttons) {
        (void)text, (void)caption, (void)buttons;
        return -1;
    }
    // Cancel answers with the empty text.
    virtual std::string inputBox(const std::string& prompt, const std::string& title,
                                 const std::string& proposed) = 0;
    // Nothing when the user cancelled.
    virtual std::optional<std::string> showOpen(const FileDialog& dialog) = 0;
    virtual std::optional<std::string> showSave(const FileDialog& dialog) = 0;
    // Asks for a file that need not exist.
    virtual std::optional<std::string> showNew(const FileDialog& dialog) { return showSave(dialog); }
    // Nothing when the user cancelled.
    virtual std::optional<FontChoice> showFont(const FontChoice&) { return std::nullopt; }
    // Shows the form with that name as a modal dialog ("disclaimFrm", "entryFrm", ...).
    virtual void showForm(std::string_view name) = 0;

    // --- the screen ---
    virtual void setMousePointer(MousePointer pointer) = 0;
    // Paints the status bar at once, for commands that keep the window busy.
    virtual void paintStatus() = 0;
    // How far a command that may take long has come; at the total it is over. Once it has taken a second, the
    // user sees it and can give it up: False from then on.
    virtual bool tellProgress(const std::string& what, int done, int total) {
        (void)what, (void)done, (void)total;
        return true;
    }
    // Opens a file or an address with the user's default program.
    virtual void openLink(const std::string& target) = 0;
    // Opens the user's mail program with the message, and does not wait for it. A program that turns out
    // to be of no use soon after calls the function, from the event loop.
    virtual MailStart sendMail(const MailMessage&, const std::function<void()>&) {
        return MailStart::NoProgram;
    }

    // --- the clipboard ---
    // Takes the place of all that was there.
    virtual void setClipboard(const ClipboardData& data) = 0;
    virtual ClipboardData clipboard() = 0;

    // --- the printer ---
    // Raises when there is no printer at all. The window always has one: its own "Print to PDF".
    virtual std::string printerDeviceName() { return "Print to PDF"; }
    // A paper of the printer, upright; nothing for a code that it does not know.
    virtual std::optional<drawing::Extent> paperExtent(int code);
    // In the printer's own order; these are those of the built-in printer.
    virtual std::vector<PaperName> printerPapers();
    // The code of the paper that is usual where the user lives, for a new database. Letter where nobody asks.
    virtual int localePaper() { return 1; }
    // Chooses printer, copies and paper for what is printed next. Nothing when the user cancelled.
    virtual std::optional<PrintChoice> showPrinterDialog(const PrintChoice&) { return std::nullopt; }
    // The printer, for the jobs of one command. nullptr when the user was asked for a file and cancelled.
    virtual std::unique_ptr<drawing::DrawTarget> openPrinter(const std::string& documentName);
    // Raises when there is nothing that could measure texts, as when there is no printer.
    virtual drawing::TextMetrics& textMetrics();

    // --- pictures ---
    // The natural size of a JPEG or GIF file; nothing for a file that is absent, damaged, or so large
    // that it could not be shown in reasonable memory.
    virtual std::optional<drawing::Extent> pictureExtent(const std::filesystem::path&) {
        return std::nullopt;
    }
    // Whether that is what keeps it from being shown.
    virtual bool isPictureTooLarge(const std::filesystem::path&) { return false; }
    // Writes the picture of the clipboard into a bitmap file. False when the clipboard holds a text or
    // an address, or no picture.
    virtual bool saveClipboardPicture(const std::filesystem::path&) { return false; }
    // Raises when it cannot be done. Quality from 0 to 100.
    virtual void convertToJpeg(const std::filesystem::path& bitmap, const std::filesystem::path& jpeg,
                               int quality);

    // --- the work folder, App.Path ---
    virtual std::filesystem::path workFolder() = 0;
    virtual std::filesystem::path tempFolder() = 0;
    // Where the versions of databases are kept; empty where none are.
    virtual std::filesystem::path versionsFolder() { return {}; }
    virtual void clearWorkFiles() = 0; // the images in Temp, and data.dat
    // False for a front end that keeps no unpacked text beside the program.
    virtual bool keepsDataFile() const = 0;

    // --- the user's files ---
    // Where unsaved work is kept for the next start, a folder of this user's alone; empty where none is kept.
    virtual std::filesystem::path stateFolder() { return {}; }
    // True for a front end that keeps a file open between two commands: it takes the file's lock as long, and
    // asks before it writes over what others have made of it.
    virtual bool guardsFiles() const { return false; }

    // --- settings, of one section ---
    virtual std::string getSetting(const std::string& key, const std::string& byDefault) = 0;
    virtual void saveSetting(const std::string& key, const std::string& value) = 0;
    virtual void flushSettings() = 0;

    // --- the clock ---
    virtual std::chrono::year_month_day today() = 0;
};

} // namespace platform
