#include "calc/designFrm.h"
#include "cli/columnArgument.h"
#include "cli/command.h"
#include "cli/session.h"
#include "core/text.h"
#include "lock/designLock.h"
#include "storage/newDatabase.h"

#include <CLI/CLI.hpp>

namespace cli {

namespace {

using calc::designFrm;

struct ColumnOptions {
    std::string file, column, newName;
    std::vector<std::string> columns;
    double wait = usualWait;
    bool invoice = false, automatic = false, labels = false, yes = false;
};

// In the name box every blank that is typed becomes "_". A name of blanks alone counts as none.
void typeName(const Session& session, designFrm& form, const std::string& argument) {
    const std::string name = session.typedInList(argument);
    if (core::trim(name).empty())
        form.fieldTxt.clear();
    else
        form.fieldTxt_Change(name);
}

void addColumn(Session& session, designFrm& form, const ColumnArgument& column) {
    constexpr int picture = 5;
    if (column.typeOpt == picture && !form.pictureVisible)
        throw Failure(session.file, "an invoice database has no Picture columns");
    form.typeOpt_Click(column.typeOpt);
    typeName(session, form, column.name);
    const std::size_t before = form.List1.size();
    form.addBtn_Click();
    if (form.List1.size() == before)
        throw Failure(session.file, "the column \"" + column.name + "\" is not added");
}

void switchOn(Session& session, designFrm& form) {
    const designFrm::Row& row = form.List1.back();
    if (row.AutoDate == "NA" && row.AutoSerial == "NA")
        throw Failure(session.file, "only Date and Number columns have values of their own");
    session.platform.setAnswersYes(true);
    form.List1_DblClick(static_cast<int>(form.List1.size()) - 1);
}

// The archive is made elsewhere and takes its place as a copy of a finished database does, so that a
// file of that name stays until the new one is whole.
int makeDatabase(const ColumnOptions& options) {
    Session session(options.file, options.wait);
    session.platform.setAnswersYes(options.yes);
    app::App& app = session.app;
    app.document.bInvoiceStyle = options.invoice;
    session.change([&] {
        storage::createEmptyArchive(app, session.platform.workFolder() / "new.fwk");
        designFrm form(app);
        for (const std::string& column : options.columns) addColumn(session, form, ColumnArgument(column));
        form.doneBtn_Click();
        storage::finishNewDatabase(app);
    });
    session.saveAs(options.file);
    return done;
}

// A session in which Database Properties works on the columns, and which is saved when that is done.
int inProperties(const ColumnOptions& options, const std::function<void(Session&, designFrm&)>& work) {
    Session session(options.file, options.wait);
    session.openToWrite();
    if (lock::isDesignLocked(session.app)) throw Failure(session.file, "its design is locked");
    session.change([&] {
        designFrm form(session.app);
        work(session, form);
        form.doneBtn_Click();
    });
    session.save();
    return done;
}

// The list has all columns but the hidden first one, in the order of the table.
designFrm::Row& select(Session& session, designFrm& form, const std::string& column) {
    form.selectedRow = session.column(column).Index - 2;
    return form.List1.at(static_cast<std::size_t>(form.selectedRow));
}

int addColumn(const ColumnOptions& options) {
    return inProperties(options, [&](Session& session, designFrm& form) {
        addColumn(session, form, ColumnArgument(options.column));
        if (options.automatic) switchOn(session, form);
    });
}

int renameColumn(const ColumnOptions& options) {
    return inProperties(options, [&](Session& session, designFrm& form) {
        const designFrm::Row& row = select(session, form, options.column);
        const std::string oldName = row.Name;
        typeName(session, form, options.newName);
        session.platform.setAnswersYes(options.labels);
        form.changeBtn_Click();
        if (row.Name == oldName) throw Failure(session.file, "the column \"" + oldName + "\" keeps its name");
    });
}

int removeColumn(const ColumnOptions& options) {
    return inProperties(options, [&](Session& session, designFrm& form) {
        const std::string name = select(session, form, options.column).Name;
        session.platform.setAnswersYes(options.yes);
        const std::size_t before = form.List1.size();
        form.deleteBtn_Click();
        if (form.List1.size() == before)
            throw Failure(session.file,
                          "ALL data in the column \"" + name + "\" would be lost, --yes removes it");
    });
}

} // namespace

Run setUpNew(CLI::App& command) {
    const auto options = std::make_shared<ColumnOptions>();
    command.add_option("FILE", options->file, "The database to make")->required();
    expectColumns(*command.add_option("COLUMN", options->columns, "The columns, each with its type"));
    command.add_flag("--invoice", options->invoice, "An invoice database");
    addYesFlag(command, options->yes, "Overwrite a file of that name");
    addWaitOption(command, options->wait);
    return [options] { return makeDatabase(*options); };
}

Run setUpColumn(CLI::App& command) {
    const auto options = std::make_shared<ColumnOptions>();
    CLI::App* add = command.add_subcommand("add", "Adds a column");
    addWrittenFileArgument(*add, options->file, options->wait);
    expectColumns(*add->add_option("COLUMN", options->column, "The column with its type")->required());
    add->add_flag("--auto", options->automatic, "New records take today's date, or a serial number");

    CLI::App* rename = command.add_subcommand("rename", "Renames a column");
    addWrittenFileArgument(*rename, options->file, options->wait);
    rename->add_option("OLD", options->column, "The column")->required();
    rename->add_option("NEW", options->newName, "Its new name")->required();
    rename->add_flag("--labels", options->labels,
                     "Rename the labels of the layout that have the old name too");

    CLI::App* remove = command.add_subcommand("remove", "Removes a column and its data");
    addWrittenFileArgument(*remove, options->file, options->wait);
    remove->add_option("NAME", options->column, "The column")->required();
    addYesFlag(*remove, options->yes, "Remove it; without this nothing is done");

    command.require_subcommand(1);
    return [options, add, rename] {
        if (add->parsed()) return addColumn(*options);
        return rename->parsed() ? renameColumn(*options) : removeColumn(*options);
    };
}

} // namespace cli
