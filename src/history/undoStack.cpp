#include "history/undoStack.h"

#include <algorithm>
#include <utility>

namespace history {

using core::Document;

namespace {

// Another view of an invoice database is on show, with its own columns, and nothing else differs: no step.
bool isOtherView(const Design& before, Design now) {
    if (before.bInvoiceView == now.bInvoiceView) return false;
    now.bInvoiceView = before.bInvoiceView;
    now.shownColumns = before.shownColumns;
    for (const std::size_t collection : Design::collectionsOfViews)
        now.collections.at(collection) = before.collections.at(collection);
    return now == before;
}

} // namespace

std::size_t Step::bytes() const {
    std::size_t all = sizeof *this + records.bytes();
    if (design) all += design->bytes();
    if (objects) all += objects->bytes();
    if (counters) all += counters->bytes();
    for (const Selection* selection : {&before, &after})
        all += selection->places.size() * sizeof(std::uint32_t);
    for (const file::KeptEntry& picture : pictures) all += picture.bytes ? picture.bytes->size() : 0;
    return all;
}

void UndoStack::start(const Document& document, bool isSaved) {
    stop();
    isStarted_ = true;
    design_ = std::make_shared<Design>(Design::of(document));
    objects_ = std::make_shared<Objects>(Objects::of(document));
    counters_ = Counters::of(document);
    records_.take(document.LV);
    noteSelection(document);
    if (isSaved) savedAt_ = 0;
}

void UndoStack::stop() {
    *this = {};
}

void UndoStack::notePicture(file::KeptEntry before) {
    if (isStarted_) pictures_.push_back(std::move(before));
}

void UndoStack::settle(const Document& document, bool bRecords, const Naming& name) {
    Step step = lookAgain(document, bRecords);
    step.pictures = std::exchange(pictures_, {});
    if (step.empty()) return;
    ++taken_;
    step.before = selection_;
    step.after = Selection::of(document.LV);
    step.name = name(step);
    step.size = step.bytes();
    if (!step.isSilent) {
        if (savedAt_ && *savedAt_ > loudSteps(undo_)) savedAt_.reset(); // it was among those given up here
        redo_.clear();
    }
    undo_.push_back(std::move(step));
    forgetOldest();
}

// What would make the document what it was when it was last looked at.
Step UndoStack::lookAgain(const Document& document, bool bRecords) {
    Step step;
    auto design = std::make_shared<Design>(Design::of(document));
    if (*design != *design_) {
        step.isSilent = isOtherView(*design_, *design);
        step.design = std::exchange(design_, std::move(design));
    }
    auto objects = std::make_shared<Objects>(Objects::of(document));
    if (!(*objects == *objects_)) step.objects = std::exchange(objects_, std::move(objects));
    Counters counters = Counters::of(document);
    if (counters != counters_) step.counters = std::exchange(counters_, std::move(counters));
    if (bRecords || step.design || step.counters) step.records = records_.lookAgain(document.LV);
    step.isSilent = step.isSilent && !step.objects && !step.counters && step.records.empty();
    return step;
}

void UndoStack::go(Document& document, std::vector<Step>& from, std::vector<Step>& to,
                   const SwapPictures& swap, bool bBack) {
    std::vector<file::KeptEntry> pictures; // first: the file may not take them
    const std::vector<file::KeptEntry>& others = from.back().pictures;
    if (!others.empty()) pictures = swap({others.rbegin(), others.rend()});
    Step step = std::move(from.back());
    from.pop_back();
    if (step.design) step.design->putInto(document);
    if (step.objects) step.objects->putInto(document);
    if (step.counters) step.counters->putInto(document);
    apply(step.records, document.LV);
    (bBack ? step.before : step.after).putInto(document.LV);
    Step back = lookAgain(document, true);
    back.pictures = std::move(pictures);
    back.name = std::move(step.name);
    back.isSilent = step.isSilent;
    back.before = std::move(step.before);
    back.after = std::move(step.after);
    back.size = back.bytes();
    to.push_back(std::move(back));
    ++taken_;
}

std::size_t UndoStack::loudSteps(const std::vector<Step>& steps) {
    return static_cast<std::size_t>(std::ranges::count(steps, false, &Step::isSilent));
}

const Step* UndoStack::next(const std::vector<Step>& steps) {
    for (auto step = steps.rbegin(); step != steps.rend(); ++step)
        if (!step->isSilent) return &*step;
    return nullptr;
}

void UndoStack::undo(Document& document, const SwapPictures& swap) {
    if (undone() == nullptr) return;
    for (bool bSilent = true; bSilent;) {
        bSilent = undo_.back().isSilent;
        go(document, undo_, redo_, swap, true);
    }
    while (undone() == nullptr && !undo_.empty()) go(document, undo_, redo_, swap, true);
}

void UndoStack::redo(Document& document, const SwapPictures& swap) {
    if (redone() == nullptr) return;
    for (bool bSilent = true; bSilent;) {
        bSilent = redo_.back().isSilent;
        go(document, redo_, undo_, swap, false);
    }
}

std::size_t UndoStack::bytes() const {
    std::size_t size = 0;
    for (const std::vector<Step>* steps : {&undo_, &redo_})
        for (const Step& step : *steps) size += step.size;
    return size;
}

// The latest step can always be undone, however large it is.
void UndoStack::forgetOldest() {
    std::size_t size = bytes();
    while (undo_.size() > 1 && (undo_.size() > mostSteps || size > mostBytes)) {
        size -= undo_.front().size;
        const bool bSilent = undo_.front().isSilent;
        undo_.erase(undo_.begin());
        if (savedAt_ && !bSilent) savedAt_ = *savedAt_ == 0 ? std::nullopt : std::optional(*savedAt_ - 1);
    }
}

} // namespace history
