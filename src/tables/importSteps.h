#pragma once

#include "app/longWork.h"
#include "core/translate.h"
#include "exchange/sheetCollector.h"

#include <utility>

namespace tables {

// The steps of one piece of work, each with its share of the one bar that the user sees.
class ImportSteps {
public:
    explicit ImportSteps(app::App& app) : work_(app, core::tr("Reading the table"), whole) {}

    // The next one, as long as this object lives. The bar stays short of its end, which closes it.
    exchange::Progress next(int percents) {
        const int from = std::exchange(begun_, begun_ + percents);
        return [this, from, percents](int percent) {
            work_.reached(from * hundred + percents * percent);
            return true; // giving up has been raised
        };
    }

private:
    static constexpr int hundred = 100, whole = hundred * hundred;
    app::LongWork work_;
    int begun_ = 0;
};

} // namespace tables
