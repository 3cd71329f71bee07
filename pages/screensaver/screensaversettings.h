#pragma once

// Minutes in the form, seconds in the file: 90 s shows as 1 and is saved as 60.

/// Stored seconds as the minutes shown; a started minute does not count.
constexpr int minutesFromSeconds(int seconds)
{
    return seconds / 60;
}

constexpr int secondsFromMinutes(int minutes)
{
    return minutes * 60;
}
