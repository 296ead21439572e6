#include "gui/layout/sheetObjects.h"
#include "layout/layoutPage.h"

#include "entry/fieldEvents.h"
#include "gui/layout/sheetShape.h"
#include "gui/widgets/qtText.h"
#include "gui/widgets/textBox.h"
#include "layout/labels.h"
#include "layout/sheet.h"
#include "search/suggestions.h"

#include <QTimer>

#include <algorithm>
#include <cmath>

namespace gui {

using core::Family;
using core::ObjectRef;

SheetObjects::SheetObjects(app::App& app, EventBoundary& events, SheetPaper& paper)
    : QObject(&paper), app_(app), events_(events), paper_(paper), values_(app),
      suggestions_(new SuggestionList(paper.parentWidget())) {}

ObjectRef SheetObjects::objectOf(const QObject* widget) const {
    const auto found = refs_.find(widget);
    return found == refs_.end() ? ObjectRef{} : found->second;
}

QWidget* SheetObjects::widgetOf(ObjectRef object) const {
    const auto found = widgets_.find(object);
    return found == widgets_.end() ? nullptr : found->second;
}

QWidget* SheetObjects::firstField() const {
    for (const auto& [ref, widget] : widgets_)
        if (ref.family == Family::layoutField && widget->isVisible()) return widget;
    return nullptr;
}

std::vector<ObjectRef> SheetObjects::inReadingOrder() const {
    std::vector<ObjectRef> order;
    for (const auto& [ref, widget] : widgets_) {
        const core::LayoutField* field =
            ref.family == Family::layoutField ? app_.document.layout.layoutField.find(ref.Index) : nullptr;
        if (widget->isVisible() && (field == nullptr || field->Enabled)) order.push_back(ref);
    }
    std::ranges::stable_sort(order, {}, [this](ObjectRef ref) {
        const QPoint place = widgetOf(ref)->pos();
        return std::pair(place.y(), place.x());
    });
    return order;
}

void SheetObjects::refresh(qreal pixelsPerTwip, int zoom) {
    zoom_ = zoom;
    pixelsPerTwip_ = pixelsPerTwip;
    const core::LayoutObjects& layout = app_.document.layout;
    std::vector<Placed> placed;
    placed.reserve(static_cast<std::size_t>(layout.count()));
    showFamily(Family::layoutField, layout.layoutField, placed);
    showFamily(Family::tLabel, layout.tLabel, placed);
    showFamily(Family::pbLine, layout.pbLine, placed);
    showFamily(Family::vLine, layout.vLine, placed);
    showFamily(Family::pBox, layout.pBox, placed);
    showFamily(Family::imgHolder, layout.imgHolder, placed);
    showFamily(Family::clipPic, layout.clipPic, placed);
    removeGone(placed);
    stack(std::move(placed));
}

template <typename Object>
void SheetObjects::showFamily(Family family, const core::ControlArray<Object>& objects,
                              std::vector<Placed>& placed) {
    objects.forEach([&](const Object& object) {
        const ObjectRef ref{family, object.Index};
        QWidget* widget = widgetOf(ref);
        if (widget == nullptr) widget = make(ref);
        place(*widget, object);
        showObject(*widget, object);
        placed.emplace_back(object.zOrder, ref);
    });
}

void SheetObjects::place(QWidget& widget, const core::LayoutObject& object) const {
    constexpr float furthest = 1'000'000; // twips; what a damaged file says beyond it is nowhere on a sheet
    const auto pixels = [&](float twips) {
        return static_cast<int>(std::lround(std::clamp(twips, -furthest, furthest) * pixelsPerTwip_));
    };
    const int left = pixels(object.Left);
    const int top = pixels(object.Top);
    widget.setGeometry(left, top, std::max(pixels(object.Left + object.Width) - left, 0),
                       std::max(pixels(object.Top + object.Height) - top, 0));
    widget.setVisible(object.Visible);
}

QWidget* SheetObjects::make(ObjectRef ref) {
    QWidget* widget = ref.family == Family::layoutField ? makeField(ref)
                      : ref.family == Family::tLabel    ? static_cast<QWidget*>(makeLabel(ref))
                                                        : new SheetShape(ref.family, &paper_);
    widget->setObjectName(toQt(core::nameOf(ref.family)) + QString::number(ref.Index));
    widgets_.emplace(ref, widget);
    refs_.emplace(widget, ref);
    if (auto* box = qobject_cast<TextBox*>(widget)) refs_.emplace(box->viewport(), ref);
    stacked_.clear();
    emit created(widget);
    return widget;
}

TextBox* SheetObjects::makeField(ObjectRef ref) {
    auto* box = new TextBox(&paper_);
    const int index = ref.Index;
    box->keyDown = [this](int code) { entry::layoutField_KeyDown(app_, code); };
    box->keyPress = [this, index](char32_t character) {
        bool passes = true;
        events_.run([&] { passes = entry::layoutField_KeyPress(app_, index, values_.key(character)); });
        return passes;
    };
    box->changed = [this, box, index](const QString& text) {
        int caret = -1;
        const qsizetype typed = text.size(); // of the box itself, which shows another text then
        events_.run([&] { caret = entry::layoutField_Change(app_, index, valueOf(index, fromQt(text))); });
        const auto shown = static_cast<int>(box->toPlainText().size());
        if (values_.isInUse() && shown != typed) caret = shown; // behind the separator of a date
        if (caret >= 0) box->setCaret(caret);
        suggestions_->typed(suggestedBox(*box, index));
    };
    box->takesKey = [this, box, index](const QKeyEvent& key) {
        return suggestions_->keyPress(suggestedBox(*box, index), key);
    };
    box->gotFocus = [this, index] { events_.run([&] { entry::layoutField_GotFocus(app_, index); }); };
    box->lostFocus = [this, index] {
        values_.left();
        events_.run([&] { entry::layoutField_LostFocus(app_, index); });
    };
    return box;
}

std::string SheetObjects::valueOf(int index, const std::string& typed) {
    const core::LayoutField* field = app_.document.layout.layoutField.find(index);
    return field == nullptr ? typed : values_.typed(index, field->Tag, typed);
}

SuggestedBox SheetObjects::suggestedBox(TextBox& box, int index) {
    const auto values = [this, &box, index](bool asked) {
        const core::LayoutField* field = app_.document.layout.layoutField.find(index);
        if (field == nullptr || box.isReadOnly() || layout::isDesignMode(app_)) return QStringList();
        QStringList all = toQt(search::suggestions(app_, field->Tag, field->Text,
                                                   asked ? search::Asked::ForList : search::Asked::Typing));
        // What could not be typed cannot be chosen.
        all.removeIf([&](const QString& value) {
            const std::u32string characters = value.toStdU32String();
            return std::ranges::any_of(characters, [&](char32_t character) {
                return character == entry::enterKey || !entry::layoutField_KeyPress(app_, index, character);
            });
        });
        for (QString& value : all) value = toQt(entry::shownValue(app_, field->Tag, fromQt(value)));
        return all;
    };
    return {&box, [&box] { return box.toPlainText(); }, values,
            [&box](const QString& value) { box.typeInstead(value); }};
}

TextBox* SheetObjects::makeLabel(ObjectRef ref) {
    auto* box = new TextBox(&paper_);
    const int index = ref.Index;
    box->keyPress = [this, index](char32_t character) {
        bool passes = true;
        events_.run([&] { passes = layout::tLabel_KeyPress(app_, static_cast<int>(character)); });
        Q_UNUSED(index)
        return passes;
    };
    box->changed = [this, index](const QString& text) {
        events_.run([&] { layout::tLabel_Change(app_.document, index, fromQt(text)); });
    };
    box->lostFocus = [this, index] { events_.run([&] { layout::tLabel_LostFocus(app_, index); }); };
    return box;
}

core::ObjectFont SheetObjects::zoomed(core::ObjectFont font) const {
    font.FontSize *= static_cast<float>(zoom_) / 100;
    return font;
}

void SheetObjects::showObject(QWidget& widget, const core::LayoutField& field) {
    const bool designing = layout::isDesignMode(app_);
    auto& box = static_cast<TextBox&>(widget);
    box.show({toQt(values_.shown(field.Index, field.Tag, field.Text)), zoomed(field), field.ForeColor,
              field.BackColor, field.align, true, field.Locked});
    box.setFocusPolicy(designing ? Qt::NoFocus : Qt::StrongFocus);
    box.viewport()->setCursor(designing ? Qt::ArrowCursor : Qt::IBeamCursor);
    box.setTextInteractionFlags(designing ? Qt::NoTextInteraction : Qt::TextEditorInteraction);
    box.setAccessibleName(toQt(field.Tag));
}

void SheetObjects::showObject(QWidget& widget, const core::Label& label) {
    auto& box = static_cast<TextBox&>(widget);
    box.show({toQt(label.Text), zoomed(label), label.ForeColor, label.BackColor, label.align, false,
              label.Locked});
    box.setFocusPolicy(label.Locked ? Qt::NoFocus : Qt::ClickFocus);
    box.setTextInteractionFlags(label.Locked ? Qt::NoTextInteraction : Qt::TextEditorInteraction);
    const bool isLink = !layout::isDesignMode(app_) && !label.Tag.empty();
    box.viewport()->setCursor(isLink         ? Qt::PointingHandCursor
                              : label.Locked ? Qt::ArrowCursor
                                             : Qt::IBeamCursor);
    box.setToolTip(isLink ? toQt(label.Tag) : QString());
}

void SheetObjects::showObject(QWidget& widget, const core::LineObject& line) {
    SheetShape::Look look;
    look.foreColor = line.ForeColor;
    look.backColor = line.BackColor;
    look.drawWidth = line.DrawWidth;
    look.zoom = zoom_;
    look.width = line.Width;
    look.height = line.Height;
    static_cast<SheetShape&>(widget).show(look, pixelsPerTwip_);
}

void SheetObjects::showObject(QWidget& widget, const core::BoxObject& box) {
    const layout::LayoutPage& page = layout::layoutPage(app_);
    SheetShape::Look look;
    look.foreColor = box.ForeColor;
    look.drawWidth = box.DrawWidth;
    look.zoom = zoom_;
    look.width = box.Width;
    look.height = box.Height;
    look.outline = page.drag != layout::LayoutPage::Drag::Resize || !(page.dragged == objectOf(&widget));
    static_cast<SheetShape&>(widget).show(look, pixelsPerTwip_);
}

void SheetObjects::showObject(QWidget& widget, const core::ImgHolder& holder) {
    SheetShape::Look look;
    look.backColor = holder.BackColor;
    look.frame = true;
    look.image = holder.viewImage;
    const bool designing = layout::isDesignMode(app_);
    if (designing) look.hint = toQt(holder.Tag);
    static_cast<SheetShape&>(widget).show(look, pixelsPerTwip_);
    widget.setToolTip(designing                    ? QString()
                      : holder.ToolTipText.empty() ? tr("Double-click to choose a picture")
                                                   : toQt(holder.ToolTipText));
    const bool comesIntoReach = !designing && widget.focusPolicy() == Qt::NoFocus;
    widget.setFocusPolicy(designing ? Qt::NoFocus : Qt::TabFocus); // Enter chooses the picture
    if (comesIntoReach) putBehindFields(widget);
    widget.setAccessibleName(toQt(holder.Tag));
}

// Tab goes from box to box, and to the pictures behind the last one.
void SheetObjects::putBehindFields(QWidget& picture) {
    QWidget* last = nullptr;
    for (const auto& [ref, widget] : widgets_) {
        if (widget == &picture) break;
        if (ref.family == Family::layoutField || ref.family == Family::imgHolder) last = widget;
    }
    if (last != nullptr) QWidget::setTabOrder(last, &picture);
}

void SheetObjects::showObject(QWidget& widget, const core::ClipPic& clip) {
    SheetShape::Look look;
    look.frame = clip.BorderStyle == 1;
    look.image = clip.clipImage;
    if (layout::isDesignMode(app_)) look.hint = tr("Double-click to choose clip art");
    static_cast<SheetShape&>(widget).show(look, pixelsPerTwip_);
}

void SheetObjects::removeGone(const std::vector<Placed>& placed) {
    if (placed.size() == widgets_.size()) return;
    for (auto widget = widgets_.begin(); widget != widgets_.end();) {
        if (findObject(app_.document.layout, widget->first) != nullptr) {
            ++widget;
            continue;
        }
        QWidget* gone = widget->second;
        if (auto* box = qobject_cast<TextBox*>(gone)) {
            box->lostFocus = nullptr;
            refs_.erase(box->viewport());
        }
        refs_.erase(gone);
        if (gone->hasFocus()) paper_.setFocus(); // the keys stay with the sheet
        gone->hide();
        gone->deleteLater(); // one of its own events may be under way
        widget = widgets_.erase(widget);
    }
    stacked_.clear();
}

void SheetObjects::stack(std::vector<Placed> placed) {
    std::ranges::stable_sort(placed, {}, &Placed::first);
    std::vector<ObjectRef> order;
    order.reserve(placed.size());
    for (const Placed& each : placed) order.push_back(each.second);
    if (order == stacked_) return;
    for (const ObjectRef& ref : order) widgets_.at(ref)->raise();
    stacked_ = std::move(order);
}

} // namespace gui

#include "moc_sheetObjects.cpp"
