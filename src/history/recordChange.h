#pragma once

#include "core/recordsList.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace history {

struct Record {
    core::CellText Key;
    std::vector<core::CellText> cells;
};

// How the records become what they were, and no more than what differs. All places count from 0.
struct RecordChange {
    // The cells from `at` on of the record in that place become others: `gone` of them go, and the next
    // `come` of `cells` take their place.
    struct Splice {
        std::uint32_t place = 0;
        std::uint16_t at = 0, gone = 0, come = 0;
    };

    std::vector<std::uint32_t> takenOut; // places, upwards, before anything has moved
    // The records from `orderFrom` on in another order: which of those that stay comes next.
    std::uint32_t orderFrom = 0;
    std::vector<std::uint32_t> order;
    std::vector<std::pair<std::uint32_t, Record>> putIn; // with their places at the end, upwards
    std::vector<Splice> splices;                         // with their places at the end
    std::vector<core::CellText> cells;

    bool empty() const { return takenOut.empty() && order.empty() && putIn.empty() && splices.empty(); }
    std::size_t bytes() const; // of memory, about
};

void apply(const RecordChange& change, core::RecordsList& list);

// The records as they were when they were last looked at. It is a copy, since a command changes records
// wherever it likes and tells nobody which.
class RecordCopy {
public:
    void take(const core::RecordsList& list);
    // Looks again, and says how the list would become what it was.
    RecordChange lookAgain(const core::RecordsList& list);
    int count() const { return static_cast<int>(records_.size()); }

private:
    std::vector<Record> records_;
};

} // namespace history
