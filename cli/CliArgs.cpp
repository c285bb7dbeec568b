#include "CliArgs.h"

namespace brevaro::cli {

CliArgs::CliArgs(const QStringList& words, const QSet<QString>& valueOptions,
                 const QSet<QString>& flags) {
    for (qsizetype i = 0; i < words.size(); ++i) {
        const QString& w = words[i];
        if (valueOptions.contains(w)) {
            if (i + 1 >= words.size())
                throw CliError{1, QStringLiteral("%1 needs a value").arg(w)};
            m_values.insert(w, words[++i]);
            m_repeated[w] << words[i];
        } else if (flags.contains(w)) {
            m_flags.insert(w);
        } else if (w.startsWith(u'-') && w.size() > 1 && !w.at(1).isDigit()) {
            throw CliError{1, QStringLiteral("unknown option %1").arg(w)};
        } else {
            m_positional << w;
        }
    }
}

QString CliArgs::required(const QString& option) const {
    if (!m_values.contains(option))
        throw CliError{1, QStringLiteral("%1 is required").arg(option)};
    return m_values.value(option);
}

} // namespace brevaro::cli
