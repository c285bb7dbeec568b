#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <optional>

namespace brevaro {

// The record files one command changes, kept in data/save.intent while they are put in place:
//   save
//   write F     F.pending, fully written, replaces F
//   remove F    F goes
// F is "company.dta" or "N.dta", or its companion "company.extra.json" or "N.extra.json"; the paths
// are the store's to derive. Once the intent exists every new file is complete, so a crash is
// finished by the next start; before it, the next start drops the .pending files and nothing has
// changed.
struct SaveIntent {
    QStringList written;
    QStringList removed;

    static constexpr qint64 kMaxBytes = 16 * 1024 * 1024;
    static bool isRecordFileName(const QString& name);

    QByteArray toBytes() const;
    // Nothing, with the reason in *error, when a line or a name is not one this program writes.
    static std::optional<SaveIntent> parse(const QByteArray& bytes, QString* error);
};

} // namespace brevaro
