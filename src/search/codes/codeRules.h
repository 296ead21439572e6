#pragma once

#include "search/codes/makeCodes.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <unordered_map>

namespace search {

// How the codes of a column of pictures were made last, kept beside the settings for the file; and where the
// user wants it, they are made anew when the texts that they are made of change.
struct CodeRule {
    codes::Kind kind = codes::Kind::QR;
    std::string source;
    bool isFollowed = false;
};

// As it is kept, and read again; nothing for what cannot be read.
std::string ruleText(const CodeRule& rule);
std::optional<CodeRule> codeRuleFrom(std::string_view text);

std::optional<CodeRule> codeRuleOf(const app::App& app, const std::string& column);
// False when it holds for this run alone, since it is too long to be kept.
bool setCodeRule(app::App& app, const std::string& column, const CodeRule& rule);

// Another file is open: its own rules are read. The file is stored under another name: they are kept for that
// too.
void readCodeRules(app::App& app);
// In the settings no sooner than in the file.
void renameInCodeRules(app::App& app, const std::string& from, const std::string& to);
void followStoredCodeRules(app::App& app);
// Records may have changed: those with another text than before get another code, where they have none of the
// user's own pictures. A text that gives no code takes the code away and is told.
void followRecordsForCodes(app::App& app);

// While it lives, records get the codes that they are given.
class CodesAsTheyAre {
public:
    explicit CodesAsTheyAre(app::App& app);
    ~CodesAsTheyAre();
    CodesAsTheyAre(const CodesAsTheyAre&) = delete;
    CodesAsTheyAre& operator=(const CodesAsTheyAre&) = delete;

private:
    app::App& app_;
    bool before_;
};

} // namespace search
