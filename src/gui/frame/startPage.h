#pragma once

#include "app/app.h"
#include "gui/frame/commandActions.h"
#include "gui/frame/eventBoundary.h"
#include "shell/start/samples.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>

#include <array>

namespace gui {

// What the report tab shows as long as no database is open: how to begin. It scrolls, so that it does not
// tell how small the window may be.
class StartPage : public QScrollArea {
    Q_OBJECT

public:
    StartPage(app::App& app, EventBoundary& events, CommandActions& actions, QWidget* parent = nullptr);

    void refresh();
    // Takes the keys when somebody goes to the page with them.
    QWidget* keyHolder() const { return new_; }

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QPushButton* addButton(const char* key, const QString& text);
    QPushButton* addTemplates();
    QWidget* makeSamples();
    QPushButton* makeSampleButton(const shell::Sample& sample);
    void placeSamples();

    static constexpr std::array<const char*, 3> recentKeys = {"mnuFile1", "mnuFile2", "mnuFile3"};

    app::App& app_;
    EventBoundary& events_;
    CommandActions& actions_;
    QPushButton* new_;
    QPushButton* template_;
    QPushButton* open_;
    QLabel* recentTitle_;
    std::array<QPushButton*, recentKeys.size()> recent_{};
    QGridLayout* samples_ = nullptr; // none where the program came without samples
    QList<QPushButton*> sampleButtons_;
    int samplesInRow_ = 0;
};

} // namespace gui
