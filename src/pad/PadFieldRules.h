#pragma once

#include "pad/PadVersion.h"

#include <QRegularExpression>
#include <QString>
#include <vector>

namespace brevaro {

// One row of the published PAD field rules (src/pad/PadFieldRules.tsv, built in): the element,
// its path in a current (3.11) file, the pattern, its meaning in the standard's words, and
// whether the element must not be empty.
struct PadFieldRule {
    QString element;
    QString path;
    QString pattern; // as published
    QRegularExpression regex;
    QString meaning;
    bool required = false;

    // True when value satisfies the pattern. "\Z" keeps its published (PHP) sense: the end of
    // the text, or just before one final line break.
    bool accepts(const QString& value) const;
    // The meaning said to an author: "should be an e-mail address (name@domain.tld)", ...
    // Phrased when asked: only the rules a file breaks need it.
    QString advice() const;
};

// Every rule of a version, in the order of its table: 4.0 has its own; 1.15 files are checked
// against 3.11's, the current rules when 1.15 was last read by directories.
const std::vector<PadFieldRule>& padFieldRules(PadVersion version = PadVersion::V3_11);
// The rule of an element (by its name, e.g. "Author_Email"), or nullptr when none is published.
// Where an element appears twice (Keywords of the descriptions and of the press release), the
// first.
const PadFieldRule* padFieldRule(QStringView element, PadVersion version = PadVersion::V3_11);

} // namespace brevaro
