#pragma once

#include "app/app.h"
#include "gui/frame/eventBoundary.h"

#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QTimer>
#include <QToolButton>

namespace gui {

// The bar over the records that narrows them to what is typed (see search/filterMode.h). What is typed faster
// than the list can follow is taken in one go.
class FilterBar : public QFrame {
    Q_OBJECT

public:
    FilterBar(app::App& app, EventBoundary& events, QWidget* parent = nullptr);

    void refresh();
    bool hasKeys() const;

signals:
    // The keys go to the records.
    void listWanted();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void setRow();
    void makeMenu();
    void addKept();
    void take();
    void takeNow();
    void escape();
    void close();
    void showColumns();
    void showState();
    void underline(qsizetype from, qsizetype size);

    app::App& app_;
    EventBoundary& events_;
    QLineEdit* text_;
    QComboBox* columns_;
    QLabel *count_, *warning_, *reason_;
    QToolButton *kept_, *close_;
    QMenu* menu_;
    QTimer typed_;
    bool showing_ = false;
};

} // namespace gui
