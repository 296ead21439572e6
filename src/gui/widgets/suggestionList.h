#pragma once

#include <QListWidget>
#include <QPointer>

#include <functional>

namespace gui {

// A box that values can be proposed for.
struct SuggestedBox {
    QWidget* box = nullptr;
    std::function<QString()> text; // that stands in it
    // Those for what stands in the box; asked when the user wants to see them.
    std::function<QStringList(bool asked)> values;
    std::function<void(const QString& value)> choose;
};

// The values under a box. They come up by themselves while a text is typed and take no keys then but Escape,
// which puts them away, and Ctrl+Space, which takes the first. Alt+Down brings them up too, or goes into
// them: from then on the arrows and Enter are theirs, as in any list that was opened so. The box keeps the
// keys throughout, and Tab always leaves it.
class SuggestionList : public QListWidget {
    Q_OBJECT

public:
    explicit SuggestionList(QWidget* window);

    void typed(const SuggestedBox& box);
    // True when the key has done its work here, or was one that only opens the list.
    bool keyPress(const SuggestedBox& box, const QKeyEvent& key);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    bool bring(const SuggestedBox& box, bool asked);
    void place();
    void moveTo(int row);
    bool moveBy(const QKeyEvent& key);
    void choose();

    SuggestedBox box_;
    QPointer<QWidget> shownFor_;
    bool entered_ = false;  // the arrows are the list's
    bool choosing_ = false; // what changes is no typing
};

} // namespace gui
