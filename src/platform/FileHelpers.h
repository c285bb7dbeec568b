#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QFileDevice>
#include <QString>
#include <vector>

#include "platform/LargePageAllocator.h"

namespace brevaro {

// Bytes in a block that big pages are offered for.
using ByteBlock = std::vector<char, LargePageAllocator<char>>;

// True when a file or folder exists at path.
bool pathExists(const QString& path);
// Replaces destination with a copy of source; false when source cannot be read.
bool copyFile(const QString& source, const QString& destination);
// Size in bytes, or -1 when there is no such file.
qint64 fileSize(const QString& path);
// Last modification time, invalid when there is no such file.
QDateTime fileTimeStamp(const QString& path);
// Makes sure the folder exists; false when it cannot be created.
bool ensureFolder(const QString& path);

// Reads a regular file of at most maxBytes; false with a plain, one-line reason (a folder, a
// device or pipe, a file too large, unreadable) in *error.
bool readRegularFile(const QString& path, qint64 maxBytes, QByteArray* out, QString* error);
// The same into memory of its own, for files of many megabytes.
bool readRegularFile(const QString& path, qint64 maxBytes, ByteBlock* out, QString* error);
// Replaces the file with bytes through a temporary file renamed into place; false with a
// plain, one-line reason ("the disk is full", ...) in *error.
bool writeFileAtomically(const QString& path, const QByteArray& bytes, QString* error);
// One file of writeFilesAtomically, and the reason it could not be written.
struct FileToWrite {
    QString path;
    const QByteArray* bytes = nullptr;
    QString error;
};
// Replaces each file as writeFileAtomically does, quicker than one after the other; false when
// any could not be written (the others are written all the same).
bool writeFilesAtomically(std::vector<FileToWrite>& files);
// Renames from over to, replacing it in one step; false when that cannot be done.
bool replaceFile(const QString& from, const QString& to);
// The reason a write to file failed, in plain words.
QString plainWriteError(const QFileDevice& file, qint64 bytesWanted);

} // namespace brevaro
