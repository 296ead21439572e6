#pragma once

#include "entry/valueBoxes.h"
#include "gui/frame/eventBoundary.h"
#include "search/searchFrm.h"

#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>

#include <array>
#include <optional>

class QVBoxLayout;

namespace gui {

// The window of the search dialog.
class searchFrmView : public QDialog {
    Q_OBJECT

public:
    searchFrmView(app::App& app, EventBoundary& events, QWidget* parent = nullptr);

    void reject() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    static constexpr int groupCount = 3;
    static constexpr int optionCount = 5;

    QVBoxLayout* makeGroup(int group);
    QWidget* makeOptions(int group);
    QLineEdit* makeBox(int index);
    QWidget* makeButtons();
    std::optional<int> boxIndex(const QObject* watched) const;
    std::string columnOf(int index) { return form_.list(index / 2).Text(); }

    // Runs a handler, after that of a box that has just lost the focus, and shows what has become of it.
    void run(const std::function<void()>& handler);
    void settleLostFocus();
    void refresh();

    EventBoundary& events_;
    entry::ValueBoxes values_;
    search::searchFrm form_;
    std::array<QListWidget*, groupCount> lists_{};
    std::array<std::array<QRadioButton*, optionCount>, groupCount> options_{};
    std::array<QLineEdit*, 6> boxes_{};
    std::optional<int> lostFocus_;
    bool showing_ = false;
};

} // namespace gui
