#include "platform/FileHelpers.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStorageInfo>
#include <fcntl.h>
#include <filesystem>
#include <memory>

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

namespace {

void appendBytes(QByteArray* out, const char* data, qsizetype n) {
    out->append(data, n);
}

void appendBytes(ByteBlock* out, const char* data, qsizetype n) {
    out->insert(out->end(), data, data + n);
}

template <typename Bytes>
bool readRegularFileInto(const QString& path, qint64 maxBytes, Bytes* out, QString* error) {
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
        out->clear();
        *error = QStringLiteral("%1 is larger than %2 MB").arg(shown).arg(maxBytes / (1024 * 1024));
        return false;
    };
    const qint64 expected = info.size();
    if (expected > maxBytes)
        return tooLarge();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = QStringLiteral("%1 cannot be read").arg(shown);
        return false;
    }
    // The size found is read straight into place; the file may have grown or shrunk since,
    // so what follows is read in small pieces, never past the limit.
    out->resize(expected);
    qint64 have = 0;
    while (have < expected) {
        const qint64 n = file.read(out->data() + have, expected - have);
        if (n <= 0)
            break;
        have += n;
    }
    out->resize(have);
    char piece[64 * 1024];
    while (have == expected) {
        const qint64 n = file.read(piece, sizeof piece);
        if (n <= 0)
            break;
        if (qint64(out->size()) + n > maxBytes)
            return tooLarge();
        appendBytes(out, piece, n);
    }
    return true;
}

} // namespace

bool readRegularFile(const QString& path, qint64 maxBytes, QByteArray* out, QString* error) {
    return readRegularFileInto(path, maxBytes, out, error);
}

bool readRegularFile(const QString& path, qint64 maxBytes, ByteBlock* out, QString* error) {
    return readRegularFileInto(path, maxBytes, out, error);
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
    std::vector<FileToWrite> one{{path, &bytes, {}}};
    if (writeFilesAtomically(one))
        return true;
    *error = one.front().error;
    return false;
}

bool writeFilesAtomically(std::vector<FileToWrite>& files) {
    // Every file is handed to the disk before the first wait for one: the waits then overlap
    // instead of following each other.
    std::vector<std::unique_ptr<QSaveFile>> pending;
    for (FileToWrite& f : files) {
        auto out = std::make_unique<QSaveFile>(f.path);
        if (!out->open(QIODevice::WriteOnly) || out->write(*f.bytes) != f.bytes->size() ||
            !out->flush()) {
            f.error = plainWriteError(*out, f.bytes->size());
            out.reset();
        } else {
            ::sync_file_range(out->handle(), 0, 0, SYNC_FILE_RANGE_WRITE);
        }
        pending.push_back(std::move(out));
    }
    bool ok = true;
    for (std::size_t i = 0; i < files.size(); ++i) {
        if (pending[i] && !pending[i]->commit())
            files[i].error = plainWriteError(*pending[i], files[i].bytes->size());
        ok = ok && files[i].error.isEmpty();
    }
    return ok;
}

} // namespace brevaro
