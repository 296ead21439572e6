#pragma once

#include "app/app.h"
#include "gui/frame/eventBoundary.h"

#include <QFileSystemWatcher>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QTimer>

namespace gui {

// A bar over the tabs that says what somebody else has done to the open file (see shell/fileNotice.h). It
// watches the file and its folder, since a file that is replaced is lost to a watch of its own, and looks
// when things have been quiet for a moment. It stays until it is answered and takes no keys by itself.
class NoticeBar : public QFrame {
    Q_OBJECT

public:
    NoticeBar(app::App& app, EventBoundary& events, QWidget* parent = nullptr);

    void refresh();
    QWidget* firstButton() const;

protected:
    void changeEvent(QEvent* event) override;

private:
    void watch();
    void look();
    void takeColours();

    app::App& app_;
    EventBoundary& events_;
    QFileSystemWatcher watcher_;
    QTimer quiet_;
    QString file_;
    QStringList shown_; // the text and the captions
    QLabel *picture_, *text_;
    QHBoxLayout* buttons_;
    bool colouring_ = false;
};

} // namespace gui
