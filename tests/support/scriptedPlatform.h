#pragma once

#include "platform/platform.h"

#include <deque>
#include <fstream>
#include <functional>
#include <limits>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include <stdlib.h> // NOLINT(modernize-deprecated-headers): mkdtemp

namespace fs = std::filesystem;

inline std::string readBytes(const fs::path& file) {
    std::ostringstream bytes;
    bytes << std::ifstream(file, std::ios::binary).rdbuf();
    return bytes.str();
}
inline void writeBytes(const fs::path& file, std::string_view bytes) {
    std::ofstream(file, std::ios::binary) << bytes;
}

// A folder for the test's own files; removed at the end.
struct TestFolder {
    std::string pattern = (fs::temp_directory_path() / "ferrowick-test-XXXXXX").string();
    fs::path folder = mkdtemp(pattern.data());

    TestFolder() = default;
    TestFolder(TestFolder&&) = delete;
    ~TestFolder() {
        std::error_code ignored;
        fs::remove_all(folder, ignored);
    }
};

// A machine that answers from a script and remembers what it was asked.
struct ScriptedPlatform : platform::Platform, TestFolder {
    using Text = const std::string&;
    using Dialog = const platform::FileDialog&;
    static constexpr auto read = readBytes;
    static constexpr auto write = writeBytes;

    // What the script says. An empty queue answers No, or cancels.
    std::deque<platform::Answer> answers;
    std::deque<int> choices; // of questions with buttons of their own; waved away when empty
    bool guards = false;     // files; see platform::Platform
    std::deque<std::string> inputs, files;
    std::deque<platform::FontChoice> fonts;
    std::function<void(std::string_view)> onForm = [](auto) {};
    std::function<void()> onPaint = [] {};
    std::map<std::string, drawing::Extent> pictures; // by file name; any other file is no picture
    std::string tooLarge;                            // the name of a picture that is
    std::string clipboardPicture; // the bytes of the clipboard's bitmap; empty for a text, or nothing

    platform::ClipboardData onClipboard;
    int givesUpAt = std::numeric_limits<int>::max(); // how far a long command comes

    // What was asked. A message has a mark for its icon ("-" none, "i", "!", "?", "x") ahead, and the caption
    // when that is not the program's name.
    std::vector<std::string> messages, forms, links, proposed;
    std::vector<platform::FileDialog> dialogs;
    std::vector<platform::FontChoice> shownFonts;
    int paints = 0;
    std::map<std::string, std::string> settings;
    std::chrono::year_month_day day{std::chrono::year(2026) / 3 / 14};

    ScriptedPlatform() { fs::create_directories(ScriptedPlatform::tempFolder()); }

    platform::Answer msgBox(Text text, platform::Icon icon, Text caption,
                            platform::Buttons buttons) override {
        const char mark = "-i!?x"[static_cast<int>(icon)];
        messages.push_back(mark + (caption == "Ferrowick" ? " " : " " + caption + ": ") + text +
                           (buttons == platform::Buttons::YesNoDefaultNo ? " No" : ""));
        return buttons == platform::Buttons::Ok ? platform::Answer::Ok : take(answers, platform::Answer::No);
    }
    int choose(Text text, Text caption, const std::vector<std::string>&) override {
        msgBox(text, platform::Icon::Question, caption, platform::Buttons::Ok);
        return take(choices, -1);
    }
    std::string inputBox(Text prompt, Text title, Text text) override {
        msgBox(prompt, platform::Icon::None, title, platform::Buttons::Ok);
        proposed.push_back(text);
        return take(inputs, std::string());
    }
    std::optional<std::string> showOpen(Dialog dialog) override {
        dialogs.push_back(dialog);
        return take(files, std::optional<std::string>());
    }
    std::optional<std::string> showSave(Dialog dialog) override { return showOpen(dialog); }
    void showForm(std::string_view name) override {
        forms.emplace_back(name);
        if (onForm) onForm(name);
    }
    std::optional<platform::FontChoice> showFont(const platform::FontChoice& present) override {
        shownFonts.push_back(present);
        return take(fonts, std::optional<platform::FontChoice>());
    }
    std::optional<drawing::Extent> pictureExtent(const fs::path& path) override {
        const auto found = pictures.find(path.filename());
        return found != pictures.end() && fs::exists(path) ? std::optional(found->second) : std::nullopt;
    }
    bool isPictureTooLarge(const fs::path& path) override { return path.filename() == tooLarge; }
    bool saveClipboardPicture(const fs::path& path) override {
        const int width = clipboardPicture == "damaged" ? 0 : 3000;
        return !clipboardPicture.empty() && !pictureFile(path, {width, 1500}, clipboardPicture).empty();
    }
    void setClipboard(const platform::ClipboardData& data) override { onClipboard = data; }
    platform::ClipboardData clipboard() override { return onClipboard; }
    void convertToJpeg(const fs::path& bitmap, const fs::path& jpeg, int quality) override {
        pictureFile(jpeg, {3000, 1500}, "quality " + std::to_string(quality) + " of " + read(bitmap));
    }
    void setMousePointer(platform::MousePointer) override {}
    void paintStatus() override {
        ++paints;
        onPaint();
    }
    bool tellProgress(Text, int done, int) override { return done < givesUpAt; }
    void openLink(Text target) override { links.push_back(target); }
    fs::path workFolder() override { return folder / "work"; }
    fs::path tempFolder() override { return folder / "work" / "Temp"; }
    void clearWorkFiles() override {
        for (const auto& entry : fs::directory_iterator(tempFolder())) fs::remove(entry);
        fs::remove(workFolder() / "data.dat");
    }
    bool keepsDataFile() const override { return true; }
    bool guardsFiles() const override { return guards; }
    std::string getSetting(Text key, Text byDefault) override {
        return settings.contains(key) ? settings[key] : byDefault;
    }
    void saveSetting(Text key, Text value) override { settings[key] = value; }
    void flushSettings() override {}
    std::chrono::year_month_day today() override { return day; }

    // A file of that size in twips, to be chosen.
    std::string pictureFile(const fs::path& name, drawing::Extent extent,
                            std::string_view bytes = "picture") {
        pictures[name.filename()] = extent;
        write(folder / name, bytes);
        return folder / name;
    }

private:
    template <typename Value, typename Answer>
    static Answer take(std::deque<Value>& queue, Answer answer) {
        if (queue.empty()) return answer;
        answer = queue.front();
        queue.pop_front();
        return answer;
    }
};
