#pragma once

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <sstream>

// A journey as a transcript: acts, each behind "$ ", and behind each what comes of it. They are played again,
// and what `play` tells of each, with the act itself, must be the transcript:
//
//     $ add Bolt 12
//     records 1
//     $ add Nut -> records 2 // modified      the same with " -> " and " // " for the ends of lines
//     $1 add -> ! no cells && $1 add x        and " && " in front of an act that shares a line
//
// A code may stand behind the "$", which is told, and no part of the act. Blank lines do not count, nor do
// those that begin with "#".
inline void expectTranscript(std::string_view script,
                             const std::function<std::string(const std::string&)>& play) {
    std::string text(script), wanted, all, told;
    for (const std::string mark : {" -> ", " // ", " && $"})
        for (std::size_t at = text.find(mark); at != std::string::npos; at = text.find(mark, at))
            text.replace(at, mark.size(), mark == " && $" ? "\n$" : "\n");
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        if (line.empty() || line.starts_with('#')) continue;
        wanted += line + "\n";
        if (const std::size_t end = line.find_first_not_of("0123456789", 1);
            line[0] == '$' && line[end] == ' ')
            all += play(line.substr(end + 1));
    }
    std::ranges::unique_copy(all, std::back_inserter(told),
                             [](char a, char b) { return a == '\n' && b == a; });
    EXPECT_EQ(told, wanted);
}
