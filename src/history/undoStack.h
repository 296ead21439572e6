#pragma once

#include "file/keptEntry.h"
#include "history/documentParts.h"
#include "history/recordChange.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace history {

// One step, as what has to be put back. Parts that it did not change are empty.
struct Step {
    std::string name; // "Delete Record"
    std::shared_ptr<const Design> design;
    std::shared_ptr<const Objects> objects;
    std::optional<Counters> counters;
    RecordChange records;
    std::vector<file::KeptEntry> pictures; // the latest last
    Selection before, after;               // of the records
    bool isSilent = false;                 // another view was chosen; goes with the step before or behind it
    std::size_t size = 0;                  // bytes(), once the step is whole

    bool empty() const { return !design && !objects && !counters && records.empty() && pictures.empty(); }
    std::size_t bytes() const; // of memory, about
};

// The steps that led to the document as it is, and those that were undone. No command tells what it does: the
// document is compared with how it was, and what differs is the step.
class UndoStack {
public:
    static constexpr std::size_t mostSteps = 1000;
    static constexpr std::size_t mostBytes = std::size_t{64} << 20;

    // Forgets all steps. What the document holds is what the file holds, or not.
    void start(const core::Document& document, bool isSaved);
    // Forgets all of it, with the copy of the records.
    void stop();
    bool isStarted() const { return isStarted_; }

    // Before a command: what is selected.
    void noteSelection(const core::Document& document) { selection_ = Selection::of(document.LV); }
    // After one: a picture of the file is another one; `before` is the one that there was.
    void notePicture(file::KeptEntry before);
    // After one: what differs becomes a step. The records are compared only where they may have changed.
    using Naming = std::function<std::string(const Step&)>;
    void settle(const core::Document& document, bool bRecords, const Naming& name);

    const Step* undone() const { return next(undo_); } // what undo would undo; nullptr when there is nothing
    const Step* redone() const { return next(redo_); }
    // Makes the document what it was before the step, or after it. `swap` puts pictures into the file, one
    // after the other, and answers those that they replace, in the same order.
    using SwapPictures = std::function<std::vector<file::KeptEntry>(const std::vector<file::KeptEntry>&)>;
    void undo(core::Document& document, const SwapPictures& swap);
    void redo(core::Document& document, const SwapPictures& swap);

    void markSaved() { savedAt_ = loudSteps(undo_); }
    // The document is as it was when it was saved.
    bool isSaved() const { return savedAt_ == loudSteps(undo_); }

    std::uint64_t taken() const { return taken_; } // raised by every step that is made, undone or redone
    // As they were when they were last looked at.
    const Design& design() const { return *design_; }
    const Objects& objects() const { return *objects_; }
    std::shared_ptr<const Design> designPart() const { return design_; }
    std::shared_ptr<const Objects> objectsPart() const { return objects_; }
    int records() const { return records_.count(); }
    std::size_t bytes() const; // of all steps, about

private:
    static const Step* next(const std::vector<Step>& steps);
    static std::size_t loudSteps(const std::vector<Step>& steps);
    Step lookAgain(const core::Document& document, bool bRecords);
    void go(core::Document& document, std::vector<Step>& from, std::vector<Step>& to,
            const SwapPictures& swap, bool bBack);
    void forgetOldest();

    bool isStarted_ = false;
    std::uint64_t taken_ = 0;
    std::vector<Step> undo_, redo_;
    std::optional<std::size_t> savedAt_;
    std::shared_ptr<const Design> design_;
    std::shared_ptr<const Objects> objects_;
    Counters counters_;
    RecordCopy records_;
    std::vector<file::KeptEntry> pictures_;
    Selection selection_;
};

} // namespace history
