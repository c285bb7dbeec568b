#include "platform/FileHelpers.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace brevaro {

bool pathExists(const QString& path) {
    return !path.isEmpty() && QFileInfo::exists(path);
}

bool copyFile(const QString& source, const QString& destination) {
    if (!QFileInfo(source).isFile())
        return false;
    if (QFileInfo::exists(destination))
        QFile::remove(destination);
    return QFile::copy(source, destination);
}

qint64 fileSize(const QString& path) {
    const QFileInfo info(path);
    return info.isFile() ? info.size() : -1;
}

QDateTime fileTimeStamp(const QString& path) {
    const QFileInfo info(path);
    return info.exists() ? info.lastModified() : QDateTime();
}

bool ensureFolder(const QString& path) {
    return QDir().mkpath(path);
}

} // namespace brevaro
