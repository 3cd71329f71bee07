#pragma once

#include <algorithm>
#include <cstdio>
#include <vector>

/// The middle one of \a figures, which must not be empty.
inline double median(std::vector<double> figures)
{
    const auto middle = figures.begin() + std::ptrdiff_t(figures.size() / 2);
    std::nth_element(figures.begin(), middle, figures.end());
    return *middle;
}

/// Prints a measured figure beside its limit and returns whether it keeps it.
inline bool report(const char *what, double figure, double limit, const char *unit)
{
    const bool kept = figure <= limit;
    std::printf("%-42s %8.2f %-2s limit %.2f  %s\n", what, figure, unit, limit, kept ? "kept" : "EXCEEDED");
    return kept;
}
