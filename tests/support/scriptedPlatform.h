#pragma once

#include "platform/platform.h"

#include <deque>
#include <fstream>
#include <functional>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include <stdlib.h> // NOLINT(modernize-deprecated-headers): mkdtemp

// A machine that answers from a script and remembers what it was asked.
class ScriptedPlatform : public platform::Platform {
public:
    struct Message {
        std::string text;
        platform::Icon icon;
        std::string caption;
    };

    ScriptedPlatform() {
        std::string pattern = (std::filesystem::temp_directory_path() / "ferrowick-test-XXXXXX").string();
        folder = mkdtemp(pattern.data());
        std::filesystem::create_directories(folder / "work" / "Temp");
    }
    ~ScriptedPlatform() override {
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }
    ScriptedPlatform(const ScriptedPlatform&) = delete;
    ScriptedPlatform& operator=(const ScriptedPlatform&) = delete;

    // What the script says. An empty queue answers No, or cancels.
    std::deque<platform::Answer> answers;
    std::deque<int> choices; // of questions with buttons of their own; waved away when empty
    bool guards = false;     // files; see platform::Platform
    std::deque<std::string> inputs;
    std::deque<std::string> files;
    std::function<void(std::string_view)> onForm;
    std::deque<platform::FontChoice> fonts;
    std::map<std::string, drawing::Extent> pictures; // by file name; any other file is no picture
    std::string tooLarge;                            // the name of a picture that is
    std::string clipboardPicture; // the bytes of the clipboard's bitmap; empty for a text, or nothing

    // What was asked.
    std::vector<Message> messages;
    std::vector<std::string> forms;
    std::vector<std::string> links;
    std::vector<platform::FileDialog> dialogs;
    std::vector<platform::FontChoice> shownFonts;
    std::vector<std::string> proposed; // by input boxes
    int paints = 0;
    std::function<void()> onPaint;
    std::map<std::string, std::string> settings;
    std::filesystem::path folder; // for the test's own files; removed at the end
    std::chrono::year_month_day day{std::chrono::year(2026) / 3 / 14};

    std::string lastMessage() const { return messages.empty() ? std::string() : messages.back().text; }

    platform::Answer msgBox(const std::string& text, platform::Icon icon, const std::string& caption,
                            platform::Buttons buttons) override {
        messages.push_back({text, icon, caption});
        if (buttons == platform::Buttons::Ok) return platform::Answer::Ok;
        return take(answers).value_or(platform::Answer::No);
    }
    int choose(const std::string& text, const std::string& caption,
               const std::vector<std::string>&) override {
        messages.push_back({text, platform::Icon::Question, caption});
        return take(choices).value_or(-1);
    }
    std::string inputBox(const std::string& prompt, const std::string& title,
                         const std::string& text) override {
        messages.push_back({prompt, platform::Icon::None, title});
        proposed.push_back(text);
        return take(inputs).value_or("");
    }
    std::optional<std::string> showOpen(const platform::FileDialog& dialog) override {
        return answer(dialog);
    }
    std::optional<std::string> showSave(const platform::FileDialog& dialog) override {
        return answer(dialog);
    }
    void showForm(std::string_view name) override {
        forms.emplace_back(name);
        if (onForm) onForm(name);
    }
    std::optional<platform::FontChoice> showFont(const platform::FontChoice& present) override {
        shownFonts.push_back(present);
        return take(fonts);
    }
    std::optional<drawing::Extent> pictureExtent(const std::filesystem::path& path) override {
        const auto found = pictures.find(path.filename().string());
        if (found == pictures.end() || !std::filesystem::exists(path)) return std::nullopt;
        return found->second;
    }
    bool isPictureTooLarge(const std::filesystem::path& path) override { return path.filename() == tooLarge; }
    bool saveClipboardPicture(const std::filesystem::path& path) override {
        if (clipboardPicture.empty()) return false;
        write(path, clipboardPicture);
        pictures[path.filename().string()] = {clipboardPicture == "damaged" ? 0 : 3000, 1500};
        return true;
    }
    void convertToJpeg(const std::filesystem::path& bitmap, const std::filesystem::path& jpeg,
                       int quality) override {
        const std::string bytes = read(bitmap);
        write(jpeg, "quality " + std::to_string(quality) + " of " + bytes);
        pictures[jpeg.filename().string()] = {3000, 1500};
    }
    void setMousePointer(platform::MousePointer) override {}
    void paintStatus() override {
        ++paints;
        if (onPaint) onPaint();
    }
    void openLink(const std::string& target) override { links.push_back(target); }
    std::filesystem::path workFolder() override { return folder / "work"; }
    std::filesystem::path tempFolder() override { return folder / "work" / "Temp"; }
    void clearWorkFiles() override {
        for (const auto& entry : std::filesystem::directory_iterator(tempFolder()))
            std::filesystem::remove(entry);
        std::filesystem::remove(workFolder() / "data.dat");
    }
    bool keepsDataFile() const override { return true; }
    bool guardsFiles() const override { return guards; }
    std::string getSetting(const std::string& key, const std::string& byDefault) override {
        const auto found = settings.find(key);
        return found == settings.end() ? byDefault : found->second;
    }
    void saveSetting(const std::string& key, const std::string& value) override { settings[key] = value; }
    void flushSettings() override {}
    std::chrono::year_month_day today() override { return day; }

    static std::string read(const std::filesystem::path& path) {
        std::ostringstream bytes;
        bytes << std::ifstream(path, std::ios::binary).rdbuf();
        return bytes.str();
    }
    static void write(const std::filesystem::path& path, std::string_view bytes) {
        std::ofstream(path, std::ios::binary) << bytes;
    }
    // A file of that size in twips, to be chosen.
    std::string pictureFile(const std::string& name, drawing::Extent extent,
                            std::string_view bytes = "picture") {
        pictures[name] = extent;
        write(folder / name, bytes);
        return (folder / name).string();
    }

private:
    template <typename Value>
    static std::optional<Value> take(std::deque<Value>& queue) {
        if (queue.empty()) return std::nullopt;
        Value value = queue.front();
        queue.pop_front();
        return value;
    }
    std::optional<std::string> answer(const platform::FileDialog& dialog) {
        dialogs.push_back(dialog);
        return take(files);
    }
};

// What a machine told its user since the last look, a line for each message: a mark for the icon ("-" none,
// "i", "!",
// "?", "x"), the caption when it is not the program's name, and the text.
inline std::string toldBy(ScriptedPlatform& machine) {
    std::string all;
    for (const ScriptedPlatform::Message& message : std::exchange(machine.messages, {}))
        all += (all.empty() ? "" : "\n") + std::string(1, "-i!?x"[static_cast<int>(message.icon)]) + " " +
               (message.caption == "Ferrowick" ? "" : message.caption + ": ") + message.text;
    return all;
}
