#pragma once

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
    const QString& advice() const { return m_advice; }

private:
    friend std::vector<PadFieldRule> parsePadFieldRules();
    QString m_advice;
};

// Every rule, in the order of the table.
const std::vector<PadFieldRule>& padFieldRules();
// The rule of an element (by its name, e.g. "Author_Email"), or nullptr when none is published.
const PadFieldRule* padFieldRule(QStringView element);

} // namespace brevaro
