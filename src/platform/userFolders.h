#pragma once

#include <filesystem>

namespace platform {

// The program's folder under one of the user's base folders: the one that the environment variable
// names, or else the one below the home folder. Empty when the user has neither.
std::filesystem::path userFolder(const char* variable, const char* belowHome);

// Where the versions of all databases are; empty when the user has no home.
std::filesystem::path versionsFolder();

// Makes the folder and those above it that are missing, for this user alone (0700). False when it is
// not there afterwards.
bool makePrivateFolder(const std::filesystem::path& folder);

} // namespace platform
