#include "gui/dialogs/entryFrmButtons.h"

#include <QObject>

namespace gui {

const std::vector<EntryFrmButton>& entryFrmButtons() {
    static const std::vector<EntryFrmButton> all = {
        {QT_TR_NOOP("Save"), QT_TR_NOOP("Quick Save"), "save", QKeySequence(Qt::CTRL | Qt::Key_S)},
        {},
        {QT_TR_NOOP("New"), QT_TR_NOOP("New Record"), "recordNew", QKeySequence(Qt::CTRL | Qt::Key_N)},
        {QT_TR_NOOP("Add"), QT_TR_NOOP("Add Record"), "recordAdd", QKeySequence(Qt::CTRL | Qt::Key_Return)},
        {QT_TR_NOOP("Delete"), QT_TR_NOOP("Delete Selected Record."), "recordDelete",
         QKeySequence(Qt::CTRL | Qt::Key_D)},
        {QT_TR_NOOP("Update"), QT_TR_NOOP("Update Record"), "recordUpdate",
         QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Return)},
        {},
        {QT_TR_NOOP("First"), QT_TR_NOOP("First Record"), "first", QKeySequence(Qt::CTRL | Qt::Key_PageUp)},
        {QT_TR_NOOP("Back"), QT_TR_NOOP("Previous Record"), "back", QKeySequence(Qt::Key_PageUp)},
        {QT_TR_NOOP("Next"), QT_TR_NOOP("Next Record"), "next", QKeySequence(Qt::Key_PageDown)},
        {QT_TR_NOOP("Last"), QT_TR_NOOP("Last Record"), "last", QKeySequence(Qt::CTRL | Qt::Key_PageDown)},
    };
    return all;
}

} // namespace gui
