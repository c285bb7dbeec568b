#include "release/DistributionFile.h"

#include "platform/FileNames.h"
#include "platform/StringHelpers.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>

namespace brevaro {

bool readDistributionFile(const QString& path, DistributionFile* out, QString* error) {
    const QFileInfo info(path);
    if (!info.exists()) {
        *error = QStringLiteral("there is no file %1").arg(path);
        return false;
    }
    if (!info.isFile()) {
        *error = QStringLiteral("%1 is not a regular file").arg(path);
        return false;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = QStringLiteral("%1 cannot be read: %2").arg(path, file.errorString());
        return false;
    }
    QCryptographicHash hash(QCryptographicHash::Sha256);
    if (!hash.addData(&file)) {
        *error = QStringLiteral("%1 cannot be read: %2").arg(path, file.errorString());
        return false;
    }
    out->path = path;
    out->name = info.fileName();
    out->size = file.size();
    out->sha256 = QString::fromLatin1(hash.result().toHex());
    return true;
}

QString sha256Hex(const QByteArray& bytes) {
    return QString::fromLatin1(QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex());
}

FileInfoValues fileInfoValues(const QString& fileName, qint64 length, const QString& version) {
    const QString base = GetFileBaseName(fileName, QStringLiteral("\\"));
    const QString extension = GetFileExtension(fileName);
    const QString name6 = base.left(6);
    const QString ver2 = removeAll(version, u".").left(2);
    const qint64 hundredths = (200 * length + 1048576) / 2097152;
    return {name6 + ver2 + u'.' + extension,
            name6 + ver2 + u'.' + extension,
            name6 + u'.' + extension,
            fileName,
            QString::number(length),
            QString::number((2 * length + 1024) / 2048),
            QStringLiteral("%1.%2")
                .arg(hundredths / 100)
                .arg(hundredths % 100, 2, 10, QLatin1Char('0'))};
}

} // namespace brevaro
