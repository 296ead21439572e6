#include "gui/frame/commandActions.h"

#include "app/appearance.h"
#include "core/translate.h"
#include "gui/widgets/icon.h"
#include "gui/widgets/measures.h"
#include "gui/widgets/qtText.h"
#include "shell/commands.h"
#include "shell/listCommands.h"
#include "shell/start/recentFiles.h"

#include <QActionGroup>
#include <QFontMetrics>
#include <QMenuBar>
#include <QToolButton>

#include <array>

namespace gui {

namespace {

struct Shortcut {
    std::string_view key;    // the command that has it
    std::string_view button; // the button that does the same, whose tip names it
    QKeySequence keys;
};

const std::vector<Shortcut>& shortcuts() {
    static const std::vector<Shortcut> all = {
        {"mnuNew", "New", QKeySequence(Qt::CTRL | Qt::Key_N)},
        {"mnuOpen", "Open", QKeySequence(Qt::CTRL | Qt::Key_O)},
        {"mnuSave", "Save", QKeySequence(Qt::CTRL | Qt::Key_S)},
        {"mnuSaveAs", "", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S)},
        {"mnuPrint", "Print", QKeySequence(Qt::CTRL | Qt::Key_P)},
        {"mnuCut", "", QKeySequence(Qt::CTRL | Qt::Key_X)},
        {"mnuCopy", "", QKeySequence(Qt::CTRL | Qt::Key_C)},
        {"mnuCopyHeadings", "", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C)},
        {"mnuPaste", "", QKeySequence(Qt::CTRL | Qt::Key_V)},
        {"mnuNewRecord", "", QKeySequence(Qt::Key_Insert)},
        {"mnuDuplicate", "", QKeySequence(Qt::CTRL | Qt::Key_D)},
        {"mnuReplace", "", QKeySequence(Qt::CTRL | Qt::Key_H)},
        {"mnuSearch", "Search", QKeySequence(Qt::CTRL | Qt::Key_F)},
        {"mnuSummary", "", QKeySequence(Qt::CTRL | Qt::Key_M)},
        {"mnuFilter", "", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_F)},
        {"Design", "Design", QKeySequence(Qt::CTRL | Qt::Key_L)},
        {"mnuExit", "", QKeySequence(Qt::CTRL | Qt::Key_Q)},
        {"mnuUndo", "", QKeySequence(Qt::CTRL | Qt::Key_Z)},
        {"mnuRedo", "", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z)},
        {"mnuZoomIn", "", QKeySequence(QKeySequence::ZoomIn)},
        {"mnuZoomOut", "", QKeySequence(QKeySequence::ZoomOut)},
        {"mnuZoomNormal", "", QKeySequence(Qt::CTRL | Qt::Key_0)},
        {"mnuContents", "Help", QKeySequence(Qt::Key_F1)},
        {"Delete", "Delete", QKeySequence(Qt::Key_Delete)},
    };
    return all;
}

QKeySequence shortcutOfButton(std::string_view key) {
    for (const Shortcut& shortcut : shortcuts())
        if (shortcut.button == key) return shortcut.keys;
    return {};
}

constexpr std::array<std::string_view, 3> recentKeys = {"mnuFile1", "mnuFile2", "mnuFile3"};
constexpr std::array<std::string_view, 2> namedKeys = {"mnuUndo", "mnuRedo"}; // by what they would do
constexpr std::string_view separator = "-";

Qt::ToolButtonStyle buttonStyle(app::ToolbarTexts texts) {
    if (texts == app::ToolbarTexts::Beside) return Qt::ToolButtonTextBesideIcon;
    return texts == app::ToolbarTexts::Under ? Qt::ToolButtonTextUnderIcon : Qt::ToolButtonIconOnly;
}

} // namespace

CommandActions::CommandActions(app::App& app, EventBoundary& events, QObject* parent)
    : QObject(parent), app_(app), events_(events) {
    const auto addAll = [this](const auto& keys) {
        for (const std::string_view key : keys)
            if (key != separator && !actions_.contains(key) && shell::findSubmenu(key) == nullptr) add(key);
    };
    for (const shell::Menu& menu : shell::menuBar()) addAll(menu.items);
    for (const shell::Submenu& submenu : shell::submenus()) addAll(submenu.items);
    addAll(shell::toolbarKeys());
    for (const std::string_view button : shell::toolbarKeys()) addAll(shell::buttonMenuKeys(button));
    addAll(shell::contextMenuKeys(app.document.LV, app.document));
    for (const Shortcut& shortcut : shortcuts()) action(shortcut.key)->setShortcut(shortcut.keys);
    // The plus of many keyboards is the upper half of a key.
    action("mnuZoomIn")
        ->setShortcuts({QKeySequence(Qt::CTRL | Qt::Key_Plus), QKeySequence(Qt::CTRL | Qt::Key_Equal)});
    // Desktops differ, and hands know either.
    action("mnuRedo")->setShortcuts(
        {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), QKeySequence(Qt::CTRL | Qt::Key_Y)});
    // Of the list alone: where a text is typed the key has another meaning.
    action("mnuNewRecord")->setShortcutContext(Qt::WidgetShortcut);
}

QAction* CommandActions::add(std::string_view key) {
    const shell::Command& command = shell::command(key);
    auto* action = new QAction(familyIcon(toQt(command.icon)), toQt(core::tr(command.caption)), this);
    action->setObjectName(toQt(key));
    action->setCheckable(command.checkable);
    // Only the Exit of the menu ends the program; Qt would else guess from the captions.
    action->setMenuRole(QAction::NoRole);
    if (!command.tip.empty()) {
        const QString keys = shortcutOfButton(key).toString(QKeySequence::NativeText);
        const QString tip = toQt(core::tr(command.tip));
        action->setToolTip(keys.isEmpty() ? tip : QStringLiteral("%1 (%2)").arg(tip, keys));
    }
    connect(action, &QAction::triggered, this,
            [this, name = std::string(key)] { events_.run([&] { shell::runCommand(app_, name); }); });
    actions_.emplace(key, action);
    return action;
}

QAction* CommandActions::action(std::string_view key) const {
    return actions_.find(key)->second;
}

void CommandActions::fill(QMenu& menu, const std::vector<std::string_view>& keys) {
    for (const std::string_view key : keys) {
        if (key == separator)
            menu.addSeparator();
        else if (const shell::Submenu* submenu = shell::findSubmenu(key))
            addSubmenu(menu, *submenu);
        else
            menu.addAction(action(key));
    }
}

void CommandActions::addSubmenu(QMenu& menu, const shell::Submenu& submenu) {
    const shell::Command& opening = shell::command(submenu.key);
    QMenu* shown = menu.addMenu(familyIcon(toQt(opening.icon)), toQt(core::tr(opening.caption)));
    shown->setObjectName(toQt(submenu.key));
    fill(*shown, submenu.items);
    menus_.emplace(submenu.key, shown);
    if (submenu.isChoice) {
        auto* group = new QActionGroup(shown);
        for (QAction* each : shown->actions()) group->addAction(each);
    }
    if (submenu.beforeShow != nullptr)
        connect(shown, &QMenu::aboutToShow, this,
                [this, before = submenu.beforeShow] { events_.run([&] { before(app_); }); });
}

void CommandActions::addMenuBar(QMainWindow& window) {
    window.menuBar()->setAccessibleName(tr("Menus"));
    for (const shell::Menu& menu : shell::menuBar()) {
        QMenu* shown = window.menuBar()->addMenu(toQt(core::tr(menu.caption)));
        shown->setObjectName(toQt(menu.key));
        fill(*shown, menu.items);
        menus_.emplace(menu.key, shown);
    }
}

void CommandActions::addToolbar(QMainWindow& window) {
    QToolBar* bar = window.addToolBar(tr("Toolbar"));
    toolbar_ = bar;
    bar->setObjectName(QStringLiteral("Toolbar"));
    bar->setIconSize({toolbarIconSize, toolbarIconSize});
    bar->setMovable(false);
    // There is no other way to bring it back.
    bar->toggleViewAction()->setVisible(false);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    for (const std::string_view key : shell::toolbarKeys()) {
        if (key == separator) {
            bar->addSeparator();
            continue;
        }
        bar->addAction(action(key));
        auto* button = qobject_cast<QToolButton*>(bar->widgetForAction(action(key)));
        const auto entries = shell::buttonMenuKeys(key);
        if (entries.empty()) continue;
        auto* menu = new QMenu(bar);
        menu->setObjectName(toQt(key) + QStringLiteral("Menu"));
        fill(*menu, {entries.begin(), entries.end()});
        button->setMenu(menu);
        button->setPopupMode(QToolButton::MenuButtonPopup);
    }
}

void CommandActions::showRecentFile(QAction& action, int number, const std::string& path) {
    if (action.data().isValid() && action.data().toString() == toQt(path)) return; // asked after every event
    constexpr int longestPath = 60; // characters of the menu's font
    const QFontMetrics metrics(action.font());
    const QString shown =
        metrics.elidedText(toQt(path), Qt::ElideMiddle, longestPath * metrics.averageCharWidth());
    const QString marked = number < 10 ? QStringLiteral("&%1").arg(number) : QStringLiteral("1&0");
    action.setText(QStringLiteral("%1  %2").arg(marked, withoutMnemonics(shown)));
    action.setToolTip(toQt(path));
    action.setData(toQt(path));
    action.setVisible(!path.empty());
}

void CommandActions::refresh() {
    int number = 0;
    for (const std::string_view key : recentKeys)
        showRecentFile(*action(key), ++number, app_.mainFrm.control(key).Caption);
    for (std::size_t place = 0; place < shell::RecentFiles::most; ++place) {
        const std::string_view key = shell::recentItem(place);
        showRecentFile(*action(key), static_cast<int>(place) + 1, app_.mainFrm.control(key).Caption);
    }
    for (const std::string_view key : namedKeys)
        if (const std::string& caption = app_.mainFrm.control(key).Caption; !caption.empty())
            action(key)->setText(toQt(caption));
    for (const auto& [key, action] : actions_) {
        action->setEnabled(shell::isCommandEnabled(app_, key));
        if (action->isCheckable()) action->setChecked(app_.mainFrm.control(key).Value);
    }
    if (toolbar_ != nullptr) toolbar_->setToolButtonStyle(buttonStyle(app::appearance(app_).toolbarTexts));
    for (const auto& [key, menu] : menus_) menu->menuAction()->setEnabled(app_.mainFrm.control(key).Enabled);
}

} // namespace gui

#include "moc_commandActions.cpp"
