#include "platform/headlessPlatform.h"

#include "core/runTimeError.h"
#include "platform/userFolders.h"

#include <ctime>

namespace platform {

namespace {

// A line is what scripts read, so a message is never more than one.
std::string onOneLine(std::string_view text) {
    std::string line;
    line.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') continue;
        line.push_back(text[i] == '\r' || text[i] == '\n' ? ' ' : text[i]);
    }
    return line;
}

} // namespace

Answer HeadlessPlatform::msgBox(const std::string& text, Icon icon, const std::string& caption,
                                Buttons buttons) {
    if (buttons != Buttons::Ok) {
        if (answersYes_) return Answer::Yes;
        ++refusedQuestions_;
        return Answer::No;
    }
    if (icon == Icon::Exclamation) ++exclamations_;
    messages_ << onOneLine(caption + ": " + text) << std::endl;
    return Answer::Ok;
}

std::optional<std::string> HeadlessPlatform::chosen(const std::string& path) {
    if (path.empty()) return std::nullopt;
    return path;
}

drawing::Printer& HeadlessPlatform::printer() const {
    if (printer_ == nullptr) core::raise(core::errors::deviceIO, "there is no printer");
    return *printer_;
}

std::optional<drawing::Extent> HeadlessPlatform::pictureExtent(const std::filesystem::path& picture) {
    return printer_ == nullptr ? std::nullopt : printer_->pictureExtent(picture);
}

std::filesystem::path HeadlessPlatform::versionsFolder() {
    return keepsVersions_ ? platform::versionsFolder() : std::filesystem::path();
}

std::string HeadlessPlatform::getSetting(const std::string& key, const std::string& byDefault) {
    if (!keepsVersions_) return byDefault;
    if (!settings_) settings_.emplace();
    return settings_->GetSetting(settingsSection, key, byDefault);
}

void HeadlessPlatform::clearWorkFiles() {
    folder_.clearTemp();
    folder_.removeDataFile();
}

std::chrono::year_month_day HeadlessPlatform::today() {
    if (today_) return *today_;
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    ::localtime_r(&now, &local);
    return std::chrono::year(local.tm_year + 1900) / (local.tm_mon + 1) / local.tm_mday;
}

} // namespace platform
