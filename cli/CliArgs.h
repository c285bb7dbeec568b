#pragma once

#include <QMap>
#include <QSet>
#include <QStringList>

namespace brevaro::cli {

// An error that ends the command: status 1 for usage, 2 for bad input.
struct CliError {
    int status;
    QString message;
};

// The words after the command name: options with a value, flags and positional words.
class CliArgs {
public:
    CliArgs(const QStringList& words, const QSet<QString>& valueOptions,
            const QSet<QString>& flags);

    bool has(const QString& option) const {
        return m_values.contains(option) || m_flags.contains(option);
    }
    QString value(const QString& option) const { return m_values.value(option); }
    // Every value of an option given more than once, in the order given.
    QStringList values(const QString& option) const { return m_repeated.value(option); }
    const QStringList& positional() const { return m_positional; }
    // The option's value; a usage error when it is missing.
    QString required(const QString& option) const;

private:
    QMap<QString, QString> m_values;
    QMap<QString, QStringList> m_repeated;
    QSet<QString> m_flags;
    QStringList m_positional;
};

} // namespace brevaro::cli
