#pragma once

#include "file/fileHandle.h"

#include <filesystem>

namespace platform {

// The folder that a running program keeps its work files in: the unpacked `data.dat`, and `Temp` for
// unpacked images. It belongs to this one instance as long as it runs: a second instance that is
// given the same base folder takes `instance-2` inside it, and so on. Folders are made private (0700).
class WorkFolder {
public:
    // The user's data folder for the program; empty when the user has no home.
    static std::filesystem::path defaultDataFolder();

    // Falls back to a private folder under the system's folder for temporary files, removed at the
    // end, when none can be made in base. Raises pathAccess when that fails too.
    explicit WorkFolder(const std::filesystem::path& base = defaultDataFolder());
    // A private folder that is made when somebody first asks for it, and removed at the end; so a
    // program that only reads leaves no trace.
    static WorkFolder scratch();

    ~WorkFolder();
    WorkFolder(WorkFolder&& other) noexcept;
    WorkFolder& operator=(WorkFolder&&) = delete;
    WorkFolder(const WorkFolder&) = delete;
    WorkFolder& operator=(const WorkFolder&) = delete;

    const std::filesystem::path& path();
    std::filesystem::path temp();
    // Removes the files in Temp, and only them: links are removed, not followed, subfolders stay.
    // What cannot be removed stays too.
    void clearTemp();
    void removeDataFile();

private:
    struct Lazy {};
    explicit WorkFolder(Lazy) {}

    enum class Taking { Done, Busy, Unusable };
    Taking takeInstance(const std::filesystem::path& candidate);
    void takePrivateFolder();

    std::filesystem::path folder; // empty until it is made
    file::FileHandle lock;
    bool removedAtEnd = false;
};

} // namespace platform
