#pragma once

#include "app/app.h"

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace print {

// Records of a report that stand together under a heading.
struct ReportGroup {
    std::string name; // "2015-04"
    std::vector<int> rows;
};

// Sums of the totaled columns of a list, as its rows come.
class RunningSums {
public:
    virtual ~RunningSums() = default;
    virtual void add(const core::Item& row) = 0;
    // As the Totals row shows it; empty for a column that is not totaled.
    virtual std::string sumOf(const core::Column& column) const = 0;
};

// How records are counted. This room prints and counts nothing; who counts stands above it and is handed in
// when the program is put together. Without it a report has neither groups nor sums.
struct ReportFigures {
    std::function<bool(std::string_view step, core::ColumnType type)> isStep;
    // The rows in groups, in the groups' order; the rows of each as they came.
    std::function<std::vector<ReportGroup>(app::App& app, const core::RecordsList& list,
                                           const core::Column& column, std::string_view step,
                                           const std::vector<int>& rows)>
        group;
    std::function<std::unique_ptr<RunningSums>(const core::Document& document, const core::RecordsList& list)>
        sums;
};

inline ReportFigures& reportFigures(app::App& app) {
    return app.rooms.of<ReportFigures>();
}

} // namespace print
