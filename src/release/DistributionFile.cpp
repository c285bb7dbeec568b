#include "release/DistributionFile.h"

#include "platform/FileNames.h"
#include "platform/StringHelpers.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <memory>
#include <openssl/evp.h>

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
    // OpenSSL's SHA-256 uses the processor's hashing instructions where it has them: ten times
    // the speed of Qt's, which an installer of a few hundred megabytes makes felt.
    const std::unique_ptr<EVP_MD_CTX, decltype(&EVP_MD_CTX_free)> hash(EVP_MD_CTX_new(),
                                                                       EVP_MD_CTX_free);
    if (!hash || EVP_DigestInit_ex(hash.get(), EVP_sha256(), nullptr) != 1) {
        *error = QStringLiteral("SHA-256 is not available");
        return false;
    }
    QByteArray block(1024 * 1024, Qt::Uninitialized);
    for (;;) {
        const qint64 n = file.read(block.data(), block.size());
        if (n < 0) {
            *error = QStringLiteral("%1 cannot be read: %2").arg(path, file.errorString());
            return false;
        }
        if (n == 0)
            break;
        EVP_DigestUpdate(hash.get(), block.constData(), static_cast<std::size_t>(n));
    }
    unsigned char digest[EVP_MAX_MD_SIZE];
    unsigned int length = 0;
    EVP_DigestFinal_ex(hash.get(), digest, &length);
    out->path = path;
    out->name = info.fileName();
    out->size = file.size();
    out->sha256 = QString::fromLatin1(
        QByteArray(reinterpret_cast<const char*>(digest), static_cast<int>(length)).toHex());
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
