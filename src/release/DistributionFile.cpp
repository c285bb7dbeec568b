#include "release/DistributionFile.h"

#include "platform/FileNames.h"
#include "platform/StringHelpers.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
// The direct SHA-256 functions are marked as no longer advised; see readDistributionFile.
#define OPENSSL_SUPPRESS_DEPRECATED
#include <openssl/sha.h>

namespace brevaro {

QString distributionFileProblem(const QString& path) {
    const QFileInfo info(path);
    if (!info.exists())
        return QStringLiteral("there is no file %1").arg(path);
    if (!info.isFile())
        return QStringLiteral("%1 is not a regular file").arg(path);
    if (!info.isReadable())
        return QStringLiteral("%1 cannot be read: permission denied").arg(path);
    return {};
}

bool readDistributionFile(const QString& path, DistributionFile* out, QString* error) {
    if (const QString problem = distributionFileProblem(path); !problem.isEmpty()) {
        *error = problem;
        return false;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = QStringLiteral("%1 cannot be read: %2").arg(path, file.errorString());
        return false;
    }
    // OpenSSL's SHA-256 uses the processor's hashing instructions where it has them: ten times
    // the speed of Qt's, which an installer of a few hundred megabytes makes felt. Its direct
    // functions, kept through OpenSSL 3 though no longer advised, need no set-up; the advised
    // route reads the library's configuration and loads its providers first, a millisecond
    // more than hashing a file of a megabyte.
    SHA256_CTX hash;
    SHA256_Init(&hash);
    // A block that stays in the processor's cache between the read and the hash.
    QByteArray block(128 * 1024, Qt::Uninitialized);
    for (;;) {
        const qint64 n = file.read(block.data(), block.size());
        if (n < 0) {
            *error = QStringLiteral("%1 cannot be read: %2").arg(path, file.errorString());
            return false;
        }
        if (n == 0)
            break;
        SHA256_Update(&hash, block.constData(), static_cast<std::size_t>(n));
    }
    unsigned char digest[SHA256_DIGEST_LENGTH];
    SHA256_Final(digest, &hash);
    out->path = path;
    out->name = QFileInfo(path).fileName();
    out->size = file.size();
    out->sha256 = QString::fromLatin1(
        QByteArray(reinterpret_cast<const char*>(digest), SHA256_DIGEST_LENGTH).toHex());
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
