#pragma once

#include "app/app.h"
#include "core/objectRef.h"
#include "entry/valueBoxes.h"
#include "gui/frame/eventBoundary.h"
#include "gui/layout/sheetPaper.h"
#include "gui/widgets/suggestionList.h"

#include <QWidget>

#include <map>
#include <vector>

namespace gui {

class TextBox;
class SheetShape;

// The widgets of the layout objects: one for each, made, moved, stacked and removed as the document says.
class SheetObjects : public QObject {
    Q_OBJECT

public:
    SheetObjects(app::App& app, EventBoundary& events, SheetPaper& paper);

    void refresh(qreal pixelsPerTwip, int zoom);

    // The object that a widget belongs to, and the other way round.
    core::ObjectRef objectOf(const QObject* widget) const;
    QWidget* widgetOf(core::ObjectRef object) const;
    // The one that Tab begins with.
    QWidget* firstField() const;
    // From the top left on, without those that the mouse does not reach.
    std::vector<core::ObjectRef> inReadingOrder() const;

signals:
    void created(QWidget* widget);

private:
    struct Order {
        bool operator()(core::ObjectRef a, core::ObjectRef b) const {
            return a.family != b.family ? a.family < b.family : a.Index < b.Index;
        }
    };
    using Placed = std::pair<int, core::ObjectRef>; // stacking order

    template <typename Object>
    void showFamily(core::Family family, const core::ControlArray<Object>& objects,
                    std::vector<Placed>& placed);
    QWidget* make(core::ObjectRef ref);
    TextBox* makeField(core::ObjectRef ref);
    std::string valueOf(int index, const std::string& typed);
    SuggestedBox suggestedBox(TextBox& box, int index);
    TextBox* makeLabel(core::ObjectRef ref);
    void place(QWidget& widget, const core::LayoutObject& object) const;
    void showObject(QWidget& widget, const core::LayoutField& field);
    void showObject(QWidget& widget, const core::Label& label);
    void showObject(QWidget& widget, const core::LineObject& line);
    void showObject(QWidget& widget, const core::BoxObject& box);
    void showObject(QWidget& widget, const core::ImgHolder& holder);
    void showObject(QWidget& widget, const core::ClipPic& clip);
    core::ObjectFont zoomed(core::ObjectFont font) const;
    void putBehindFields(QWidget& picture);
    void removeGone(const std::vector<Placed>& placed);
    void stack(std::vector<Placed> placed);

    app::App& app_;
    EventBoundary& events_;
    SheetPaper& paper_;
    entry::ValueBoxes values_;
    SuggestionList* suggestions_;
    int zoom_ = 100; // per cent; it is in pixelsPerTwip_ already
    qreal pixelsPerTwip_ = 1;
    std::map<core::ObjectRef, QWidget*, Order> widgets_;
    std::map<const QObject*, core::ObjectRef> refs_;
    std::vector<core::ObjectRef> stacked_;
};

} // namespace gui
