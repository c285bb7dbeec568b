#pragma once

#include <QString>

namespace brevaro {

// One counted word: the word as first met, its count and whether it is ticked.
struct KeywordEntry {
    QString word;
    int count = 0;
    bool ticked = false;

    // "001" to "999", then "1000" and on.
    QString countText() const;
};

} // namespace brevaro
