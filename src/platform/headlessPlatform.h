#pragma once

#include "drawing/printer.h"
#include "platform/localePaper.h"
#include "platform/platform.h"
#include "platform/settingsFile.h"
#include "platform/workFolder.h"

#include <ostream>

namespace platform {

// The machine of a program that has nobody to talk to. Messages become lines of a stream, questions
// are answered in advance, dialogs have no user who could choose anything else than what was set, and
// nothing is kept between two runs.
class HeadlessPlatform : public Platform {
public:
    // Messages go to the stream as "CAPTION: TEXT", a line each. It must outlive the platform.
    explicit HeadlessPlatform(std::ostream& messages) : messages_(messages) {}

    // The answer to every question; No as long as nobody says otherwise. Questions are not shown: who
    // started the program has answered them with its arguments.
    void setAnswersYes(bool yes) { answersYes_ = yes; }
    bool answersYes() const { return answersYes_; }
    // What the user would choose in a file dialog. Empty: he cancels.
    void setOpenName(std::string path) { openName_ = std::move(path); }
    void setSaveName(std::string path) { saveName_ = std::move(path); }
    // What the user would type into an input box. Empty: he cancels.
    void setInput(std::string text) { input_ = std::move(text); }
    // What is printed on; there is no printer as long as nobody gives one. It must outlive the platform.
    void setPrinter(drawing::Printer* printer) { printer_ = printer; }
    // Versions are kept, as the user's settings have it. These are read when they are first asked for.
    void keepVersions() { keepsVersions_ = true; }
    void setToday(std::chrono::year_month_day day) { today_ = day; }

    // Routines tell a failure by a message alone, and a refusal by a question answered No. Whoever
    // called them compares these counts to know how it ended.
    int exclamations() const { return exclamations_; }
    int refusedQuestions() const { return refusedQuestions_; }

    Answer msgBox(const std::string& text, Icon icon, const std::string& caption, Buttons buttons) override;
    std::string inputBox(const std::string&, const std::string&, const std::string&) override {
        return input_;
    }
    std::optional<std::string> showOpen(const FileDialog&) override { return chosen(openName_); }
    std::optional<std::string> showSave(const FileDialog&) override { return chosen(saveName_); }
    void showForm(std::string_view) override {}
    void setMousePointer(MousePointer) override {}
    void paintStatus() override {}
    void openLink(const std::string&) override {}
    void setClipboard(const ClipboardData&) override {}
    ClipboardData clipboard() override { return {}; }
    int localePaper() override { return platform::localePaper(); }
    std::string printerDeviceName() override { return printer().DeviceName(); }
    drawing::TextMetrics& textMetrics() override { return printer().textMetrics(); }
    std::unique_ptr<drawing::DrawTarget> openPrinter(const std::string& documentName) override {
        return printer().open(documentName);
    }
    std::optional<drawing::Extent> pictureExtent(const std::filesystem::path& picture) override;
    // A folder of this run's own, made when somebody first asks for it.
    std::filesystem::path workFolder() override { return folder_.path(); }
    std::filesystem::path tempFolder() override { return folder_.temp(); }
    void clearWorkFiles() override;
    bool keepsDataFile() const override { return false; }
    std::filesystem::path versionsFolder() override;
    std::string getSetting(const std::string& key, const std::string& byDefault) override;
    void saveSetting(const std::string&, const std::string&) override {}
    void flushSettings() override {}
    // In local time, unless a day has been set.
    std::chrono::year_month_day today() override;

private:
    static std::optional<std::string> chosen(const std::string& path);
    drawing::Printer& printer() const;

    std::ostream& messages_;
    WorkFolder folder_ = WorkFolder::scratch();
    std::string openName_, saveName_, input_;
    drawing::Printer* printer_ = nullptr;
    std::optional<std::chrono::year_month_day> today_;
    std::optional<SettingsFile> settings_;
    bool keepsVersions_ = false;
    bool answersYes_ = false;
    int exclamations_ = 0;
    int refusedQuestions_ = 0;
};

} // namespace platform
