#include "gui/dialogs/entryFrmButtons.h"

#include <QObject>

namespace gui {

const std::vector<EntryFrmButton>& entryFrmButtons() {
    static const std::vector<EntryFrmButton> all = {
        {"Save", QT_TR_NOOP("Quick Save"), "save", QKeySequence(Qt::CTRL | Qt::Key_S)},
        {},
        {"New", QT_TR_NOOP("New Record"), "recordNew", QKeySequence(Qt::CTRL | Qt::Key_N)},
        {"Add", QT_TR_NOOP("Add Record"), "recordAdd", QKeySequence(Qt::CTRL | Qt::Key_Return)},
        {"Delete", QT_TR_NOOP("Delete Selected Record."), "recordDelete", QKeySequence(Qt::CTRL | Qt::Key_D)},
        {"Update", QT_TR_NOOP("Update Record"), "recordUpdate",
         QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Return)},
        {},
        {"First", QT_TR_NOOP("First Record"), "first", QKeySequence(Qt::CTRL | Qt::Key_PageUp)},
        {"Back", QT_TR_NOOP("Previous Record"), "back", QKeySequence(Qt::Key_PageUp)},
        {"Next", QT_TR_NOOP("Next Record"), "next", QKeySequence(Qt::Key_PageDown)},
        {"Last", QT_TR_NOOP("Last Record"), "last", QKeySequence(Qt::CTRL | Qt::Key_PageDown)},
    };
    return all;
}

} // namespace gui
