#include "platform/FileHelpers.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStorageInfo>
#include <filesystem>

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

bool readRegularFile(const QString& path, qint64 maxBytes, QByteArray* out, QString* error) {
    const QFileInfo info(path);
    const QString shown = QDir::toNativeSeparators(path);
    if (!info.exists()) {
        *error = QStringLiteral("there is no file %1").arg(shown);
        return false;
    }
    if (info.isDir()) {
        *error = QStringLiteral("%1 is a folder, not a file").arg(shown);
        return false;
    }
    // Pipes and devices may never end; only regular files are read.
    if (!info.isFile()) {
        *error = QStringLiteral("%1 is not a regular file").arg(shown);
        return false;
    }
    const auto tooLarge = [&] {
        *error = QStringLiteral("%1 is larger than %2 MB").arg(shown).arg(maxBytes / (1024 * 1024));
        return false;
    };
    if (info.size() > maxBytes)
        return tooLarge();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = QStringLiteral("%1 cannot be read").arg(shown);
        return false;
    }
    // Read in pieces (a read of maxBytes would claim that much memory at once); the file may
    // grow while it is read.
    out->clear();
    out->reserve(info.size());
    while (out->size() <= maxBytes) {
        const QByteArray piece = file.read(std::min<qint64>(1 << 20, maxBytes + 1 - out->size()));
        if (piece.isEmpty())
            break;
        *out += piece;
    }
    if (out->size() > maxBytes) {
        out->clear();
        return tooLarge();
    }
    return true;
}

QString plainWriteError(const QFileDevice& file, qint64 bytesWanted) {
    const QString folder = QFileInfo(file.fileName()).absolutePath();
    const QStorageInfo storage(folder);
    if (file.error() == QFileDevice::ResourceError ||
        (storage.isValid() && storage.bytesAvailable() >= 0 &&
         storage.bytesAvailable() < bytesWanted + 4096))
        return QStringLiteral("the disk is full");
    if (storage.isValid() && storage.isReadOnly())
        return QStringLiteral("the disk cannot be written");
    const QFileInfo info(folder);
    if (!info.isDir())
        return QStringLiteral("the folder %1 does not exist").arg(QDir::toNativeSeparators(folder));
    if (!info.isWritable())
        return QStringLiteral("the folder %1 cannot be written")
            .arg(QDir::toNativeSeparators(folder));
    const QString reason = file.errorString();
    if (reason.isEmpty() || reason == QLatin1String("Unknown error"))
        return QStringLiteral("%1 could not be written")
            .arg(QDir::toNativeSeparators(file.fileName()));
    return reason;
}

bool replaceFile(const QString& from, const QString& to) {
    std::error_code error;
    std::filesystem::rename(from.toStdU16String(), to.toStdU16String(), error);
    return !error;
}

bool writeFileAtomically(const QString& path, const QByteArray& bytes, QString* error) {
    QSaveFile out(path);
    if (!out.open(QIODevice::WriteOnly) || out.write(bytes) != bytes.size() || !out.commit()) {
        *error = plainWriteError(out, bytes.size());
        return false;
    }
    return true;
}

} // namespace brevaro
