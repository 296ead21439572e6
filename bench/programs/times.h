#pragma once

#include <QCoreApplication>

#include <algorithm>
#include <ctime>
#include <functional>
#include <iostream>
#include <vector>

// Processor time, so that other programs count little; the median, so that a single delay does not.
inline bool isWithin(const char* what, int count, double milliseconds, const std::function<void(int)>& act) {
    std::vector<double> times;
    for (int i = 0; i < count; ++i) {
        const std::clock_t start = std::clock();
        act(i);
        QCoreApplication::processEvents();
        times.push_back(1000.0 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
    }
    std::ranges::sort(times);
    const double median = times[times.size() / 2];
    const bool within = median < milliseconds;
    std::cout << what << ": " << median << " ms, at most " << milliseconds
              << (within ? " PASS\n" : " FAIL\n");
    return within;
}
