#pragma once

#include "app/app.h"
#include "gui/frame/eventBoundary.h"
#include "shell/submenus.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QObject>
#include <QToolBar>

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace gui {

// The commands of the main window as Qt knows them: an action for each button and each menu item,
// with the command's key as its objectName.
class CommandActions : public QObject {
    Q_OBJECT

public:
    CommandActions(app::App& app, EventBoundary& events, QObject* parent = nullptr);

    QAction* action(std::string_view key) const;
    void fill(QMenu& menu, const std::vector<std::string_view>& keys);
    void addMenuBar(QMainWindow& window);
    void addToolbar(QMainWindow& window);

    void refresh();

private:
    QAction* add(std::string_view key);
    void addSubmenu(QMenu& menu, const shell::Submenu& submenu);
    void showRecentFile(QAction& action, int number, const std::string& path);

    app::App& app_;
    EventBoundary& events_;
    std::map<std::string, QAction*, std::less<>> actions_;
    std::map<std::string, QMenu*, std::less<>> menus_;
    QToolBar* toolbar_ = nullptr;
};

} // namespace gui
