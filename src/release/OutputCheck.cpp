#include "release/OutputCheck.h"

#include <algorithm>

namespace brevaro {

void OutputCheck::error(const QString& field, const QString& message) {
    m_findings.push_back({OutputFinding::Severity::Error, m_output, field, message});
}

void OutputCheck::warning(const QString& field, const QString& message) {
    m_findings.push_back({OutputFinding::Severity::Warning, m_output, field, message});
}

void OutputCheck::field(const QString& name, const QString& value, const FieldLimits& limits,
                        const QString& source) {
    if (value.isEmpty()) {
        if (limits.required)
            error(name, QStringLiteral("is required: fill in %1").arg(source));
        return;
    }
    if (value.size() < limits.minLength)
        error(name, QStringLiteral("takes at least %1 characters; %2 has %3")
                        .arg(limits.minLength)
                        .arg(source)
                        .arg(value.size()));
    if (limits.maxLength > 0 && value.size() > limits.maxLength)
        error(name, QStringLiteral("takes at most %1 characters; %2 has %3: shorten it")
                        .arg(limits.maxLength)
                        .arg(source)
                        .arg(value.size()));
    if (limits.pattern) {
        const QRegularExpression re(
            QStringLiteral("\\A(?:%1)\\z").arg(QLatin1String(limits.pattern)));
        if (!re.match(value).hasMatch())
            error(name, QStringLiteral("\"%1\" from %2 is not %3")
                            .arg(value, source, QLatin1String(limits.patternHelp)));
    }
}

void OutputCheck::list(const QString& name, const QStringList& items, int maxItems,
                       const FieldLimits& itemLimits, const QString& source) {
    if (items.size() > maxItems)
        error(name, QStringLiteral("takes at most %1 entries; %2 gives %3: keep the %1 that "
                                   "matter most")
                        .arg(maxItems)
                        .arg(source)
                        .arg(items.size()));
    for (const QString& item : items)
        field(name, item, itemLimits, source);
}

bool hasErrors(const std::vector<OutputFinding>& findings) {
    return std::any_of(findings.begin(), findings.end(), [](const OutputFinding& f) {
        return f.severity == OutputFinding::Severity::Error;
    });
}

} // namespace brevaro
