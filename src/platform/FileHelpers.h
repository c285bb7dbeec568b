#pragma once

#include <QDateTime>
#include <QString>

namespace brevaro {

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

} // namespace brevaro
