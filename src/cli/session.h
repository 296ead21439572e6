#pragma once

#include "app/app.h"
#include "cli/command.h"
#include "core/runTimeError.h"
#include "file/fileState.h"
#include "file/writerLock.h"
#include "platform/headlessPlatform.h"

#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace cli {

// A command was refused or failed. The text is the line that says what and why.
class Failure : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
    Failure(const std::string& file, const std::string& reason) : std::runtime_error(file + ": " + reason) {}
};

// Tells what is wrong with rows that are stored all the same, a line each.
void tellRows(const std::string& file, const std::vector<std::string>& rows);

// One run of a command on one database: the program without its window.
class Session {
public:
    // The file as the user wrote it, so that messages speak of it in his words; and the seconds that he is
    // ready to wait for another writer of a database.
    explicit Session(std::string databaseFile, double wait = usualWait);
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    // Reads the database. Raises Failure with the reason when it cannot be opened.
    void open();
    // From here on to the end of the session nobody else writes the database, nor makes it where there is
    // none yet. Raises Failure when somebody else has it for longer than the time to wait.
    void reserve();
    // Both, for a command that is going to save what it has read.
    void openToWrite();
    // The reason in the user's words, for an error that reading the database ended in.
    std::string whyNotOpened(const core::RunTimeError& error) const;
    // The same for a file that could not be written.
    static std::string whyNotWritten(const std::string& target, const core::RunTimeError& error);
    // Runs a routine of the window. The error that would end the window is the failure of the command.
    void change(const std::function<void()>& routine) const;
    // The same for a routine that calculates. The window stops at the first record that fails, and its user
    // sees what is left; here all records are calculated, and those that fail are told and stay as they are.
    void changeAndCalculate(const std::function<void()>& routine) const;
    // Saves through the window's own routine. A failure leaves the file as it was and raises Failure.
    void save();
    // Raises Failure when the file is no longer what was read. Whoever writes it by other means than save()
    // asks first: not every program that writes a file takes the lock.
    void refuseIfChanged() const;
    // The file was written by this command itself, though not by save().
    void noteOwnWrite() { read_ = file::FileState::of(file); }
    void saveAs(const std::string& target);
    void clone(const std::string& target);
    // Saves the search results as a database of their own.
    void saveSearch(const std::string& target);

    // A file that is about to be made or overwritten.
    void lockTarget(const std::string& target);
    // Says on standard error what else there is to say of a save: that no version could be kept, for example.
    void tellNoted() const;

    // Raises Failure when a file that is to be written, by whatever name, is the database itself.
    void refuseAsOutput(const std::string& output) const;

    // A column of the database; raises Failure when there is none of that name. The hidden column is
    // no column to the user.
    core::Column& column(std::string_view name);
    // The columns of the database in the order of the table, or the named ones in the order told.
    std::vector<const core::Column*> columns(const std::vector<std::string>& names);
    // A record by its key; raises Failure when there is none. The Totals row is no record to the user.
    core::Item& record(const std::string& key);
    // An argument that stands for what is typed into a box of the window. Raises Failure for a line end,
    // which no such box takes and which would tear the file's lines.
    std::string typed(const std::string& argument) const;
    // The same for what stands in a list of the file, which a separator would tear: a column's name and
    // an expression.
    std::string typedInList(const std::string& argument) const;

    const std::string file;
    platform::HeadlessPlatform platform;
    app::App& app;

private:
    void lock(const std::string& database);
    void run(const std::string& target, const std::function<std::optional<core::RunTimeError>()>& save);

    double wait_;
    std::optional<file::WriterLock> lock_;
    std::optional<file::FileState> read_; // what the file was when it was read
};

} // namespace cli
