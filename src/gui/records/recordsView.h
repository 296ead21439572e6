#pragma once

#include "app/app.h"
#include "gui/frame/eventBoundary.h"
#include "gui/records/frozenColumn.h"
#include "gui/records/recordsModel.h"
#include "shell/listCommands.h"

#include <QElapsedTimer>
#include <QMenu>
#include <QTimer>
#include <QTreeView>

#include <optional>
#include <vector>

namespace gui {

// One of the lists of the report tab. The selection stands in the items' Selected flags and in the
// list's SelectedItem, and the places and widths of the columns in the column table; the view puts
// there what the user does, and shows what stands there.
class RecordsView : public QTreeView {
    Q_OBJECT

public:
    RecordsView(app::App& app, core::RecordsList& list, EventBoundary& events, QWidget* parent = nullptr);

    void refresh(app::ListScroll scroll);
    // For whoever has no mouse to work the headers: a submenu of the columns, and the way to the headers.
    void addSortMenu(QMenu& menu);
    void keyboardSearch(const QString& search) override;
    QModelIndex indexAt(const QPoint& place) const override;
    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;

signals:
    // What can be done to the selected rows is asked for, at that place on the screen.
    void menuWanted(QPoint place);
    // The key that opens the filter was typed.
    void filterWanted();

protected:
    void updateGeometries() override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
    struct Rows {
        int first, last;
        bool operator==(const Rows&) const = default;
    };

    void followCtrl(bool isDown);
    void followZoom();
    void showColumns();
    void showSortArrow();
    void showSelection();
    std::vector<Rows> selectedInList() const;
    std::vector<Rows> selectedInView() const;
    void markSelected(const QItemSelection& rows, bool selected);

    void columnClicked(int section);
    void sortBy(int section, shell::Order order);
    void noteSort(int section, std::uint64_t before);
    void showHeaderMenu(const QHeaderView& heads, QPoint place);
    void addColumnActions(QMenu& menu, int section);
    void takeHeaderKeys();
    void showColumn(int section);
    void wantMenu(QPoint place);
    void wantMenuAtRow();
    void clickWithoutCtrl();
    bool isTyping() const; // the beginning of a row
    bool isSorted() const { return sort_ && sort_->arrangement == list_.arrangement(); }
    void columnMoved(int section, int newVisual);
    void columnResized(int section, int pixels);
    int pixels(float twips) const;
    std::vector<int> sectionOrder() const;

    app::App& app_;
    core::RecordsList& list_;
    EventBoundary& events_;
    RecordsModel* model_;
    RecordsHeader* header_;
    FrozenColumn* frozen_ = nullptr; // made when the list has its look
    int zoom_ = 100;                 // per cent, that is shown
    bool showing_ = false;           // the view follows the state, not the user
    bool pressed_ = false;           // the left button went down here
    int currentSection_ = 0;         // the column that was clicked last
    QString typed_;                  // the beginning of a row, letter by letter
    QElapsedTimer lastTyped_;
    QTimer resized_; // runs while a column is being sized

    // The last sort by a click, as long as the rows stand as it left them.
    struct Sort {
        int section;
        std::uint64_t arrangement;
    };
    std::optional<Sort> sort_;
};

} // namespace gui
