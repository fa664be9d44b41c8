#pragma once

#include <algorithm>
#include <vector>

/// The middle of the times, of which there is at least one.
inline double medianOf(std::vector<double> times) {
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}
