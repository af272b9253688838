#pragma once

/// One line of the time axis: where a month begins, or where the last one ends.
struct CVTickOffset
{
    /// The x of the line's middle in points, from x = 0 of what is drawn on. It lies on a half
    /// point, so that a line one point thick is sharp there.
    double offset = 0.0;
    /// Whether a year begins or ends here.
    bool isYear = false;

    friend bool operator==(const CVTickOffset&, const CVTickOffset&) = default;
};
