#pragma once

#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <vector>

namespace brevaro {

// One thing a check found in an output: an error makes the release fail (a store or package
// manager refuses the file), a warning is worth fixing.
struct OutputFinding {
    enum class Severity { Error, Warning };
    Severity severity = Severity::Warning;
    QString output;  // the file it is about, e.g. "metainfo"
    QString field;   // the field or element, e.g. "ShortDescription"
    QString message; // what is wrong and how to fix it
};

// The published limits of one field of an output.
struct FieldLimits {
    int minLength = 0; // 0: may be left out
    int maxLength = 0; // 0: no limit
    const char* pattern = nullptr;
    const char* patternHelp = nullptr; // the rule the pattern enforces, in words
    bool required = false;
};

// Collects findings for one output.
class OutputCheck {
public:
    explicit OutputCheck(QString output)
        : m_output(std::move(output)) {}

    void error(const QString& field, const QString& message);
    void warning(const QString& field, const QString& message);
    // Checks value against limits; what comes from which record field is named by source.
    void field(const QString& field, const QString& value, const FieldLimits& limits,
               const QString& source);
    // A list: at most maxItems, each item within itemLimits.
    void list(const QString& field, const QStringList& items, int maxItems,
              const FieldLimits& itemLimits, const QString& source);

    std::vector<OutputFinding> take() { return std::move(m_findings); }

private:
    QString m_output;
    std::vector<OutputFinding> m_findings;
};

bool hasErrors(const std::vector<OutputFinding>& findings);

} // namespace brevaro
