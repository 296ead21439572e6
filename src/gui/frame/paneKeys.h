#pragma once

#include <QMainWindow>
#include <QPointer>
#include <QTabWidget>
#include <QToolBar>

#include <functional>
#include <vector>

namespace gui {

// The main window by the keyboard alone. F6 goes on to its next part and Shift+F6 back: the toolbar, the
// notice about the open file, the tabs, the bar of the page, its rulers, the page, the docks.
// Ctrl+PageUp and Ctrl+PageDown turn the tabs. In a bar the arrows go from button to button and Down opens a
// button's menu; Space presses a button, Enter presses it and goes back to where the keys were, and so does
// Escape without pressing.
class PaneKeys : public QObject {
    Q_OBJECT

public:
    // keyHolder is what takes the keys in the page that is shown.
    PaneKeys(QMainWindow& window, QTabWidget& tabs, std::function<QWidget*()> keyHolder);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Pane {
        const QWidget* whole;
        QWidget* entry; // what takes the keys
    };
    std::vector<Pane> panes() const;
    void step(int direction);
    void turnTab(int direction);
    void moveInBar(QToolBar& bar, const QWidget* from, int direction);
    void press(QWidget& button, bool opensMenu);
    void goBack();

    QMainWindow& window_;
    QTabWidget& tabs_;
    std::function<QWidget*()> keyHolder_;
    QPointer<QWidget> before_; // had the keys in the page
};

} // namespace gui
