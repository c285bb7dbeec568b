#pragma once

#include <QString>

namespace brevaro {

// A file an author publishes: its name, size and SHA-256 (lower-case hexadecimal).
struct DistributionFile {
    QString path;
    QString name;
    qint64 size = 0;
    QString sha256;
};

// Why path cannot be a distribution file (there is none, it is a folder, it cannot be read),
// or nothing: what can be told without reading it.
QString distributionFileProblem(const QString& path);

// Reads path through once for its size and hash; false with a plain reason when it is not a
// readable regular file.
bool readDistributionFile(const QString& path, DistributionFile* out, QString* error);

// The SHA-256 of bytes, lower-case hexadecimal.
QString sha256Hex(const QByteArray& bytes);

// What File Info fills in from a distribution file: the file names (the first six characters
// of its name, the version's first two digits, its extension) and its size in bytes, KB and
// MB, rounded half away from zero with a "." whatever the locale.
struct FileInfoValues {
    QString versioned;
    QString previous;
    QString generic;
    QString longName;
    QString bytes;
    QString kilobytes;
    QString megabytes;
};
FileInfoValues fileInfoValues(const QString& fileName, qint64 length, const QString& version);

} // namespace brevaro
