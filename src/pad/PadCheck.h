#pragma once

#include "pad/PadWrittenValues.h"

#include <QString>
#include <vector>

namespace brevaro {

// One thing the PAD check found in a value of the document Create PAD would write.
struct PadFinding {
    // Error: the document would not be well-formed XML. Warning: a published field rule is
    // broken, or values disagree. Note: where PAD 1.15 and the current rules differ; nothing
    // for the author to fix.
    enum class Severity { Error, Warning, Note };

    Severity severity = Severity::Warning;
    QString element; // the PAD element, e.g. "Company_Name"; empty for the whole document
    QString label;   // the field's label as the window shows it, e.g. "Name", filled by
    QString place;   // withFieldLabels; its tab, and frame or language: "Company Info, Author"
    QString value;   // the offending value, cut short
    QString message; // what is wrong and how to fix it, in plain words
    RecordSide side = RecordSide::None;
    int field = -1;
    int entry = 0;
    QString extra; // or the extra field that holds the value
};

// Checks what Create PAD would write for the two records in a version (1.15 against the 3.11
// rules, 3.11 and 4.0 against their own); changes nothing. Errors come first, then warnings,
// then notes, each in the order of the document.
std::vector<PadFinding> checkPad(const CompanyRecord& company, const ProgramRecord& program,
                                 PadVersion version = PadVersion::V1_15);

// "error", "warning" or "note".
QString severityName(PadFinding::Severity severity);
bool hasErrors(const std::vector<PadFinding>& findings);

// What a written value still shows wrongly once escaped, one finding per kind in the order met:
// a reference XML does not know and a tag (warnings: both show as typed), a control character
// (an error: XML has no way to hold it).
std::vector<PadFinding> xmlTextProblems(const PadWrittenValue& value);
// The text an XML parser reads from a written value: references replaced by their
// characters, line breaks as LF.
QString xmlParsedText(const QString& written);
// The value cut to at most 60 characters around position at, line breaks shown as blanks.
QString excerpt(const QString& value, qsizetype at = 0);

} // namespace brevaro
