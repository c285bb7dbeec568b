#include "submission/SiteCipher.h"

#include "platform/Win1252.h"

namespace brevaro {

QString siteListKey() {
    return QStringLiteral("qvxrlm");
}

QString DxXCrypted(const QString& enciphered, const QString& key, int mode) {
    const QByteArray k = toWin1252(key);
    if (mode != 0 || k.isEmpty() || enciphered.size() % 2 != 0)
        return QString();
    QByteArray plain;
    plain.reserve(enciphered.size() / 2);
    for (qsizetype i = 0; i < enciphered.size(); i += 2) {
        const QChar a = enciphered[i], b = enciphered[i + 1];
        auto digit = [](QChar c) {
            return (c >= u'0' && c <= u'9')   ? c.unicode() - u'0'
                   : (c >= u'A' && c <= u'F') ? c.unicode() - u'A' + 10
                                              : -1;
        };
        const int x = digit(a), y = digit(b);
        if (x < 0 || y < 0)
            return QString();
        plain +=
            static_cast<char>((x * 16 + y) ^ static_cast<unsigned char>(k[(i / 2) % k.size()]));
    }
    return fromWin1252(plain);
}

QString encipherField(const QString& plain, const QString& key) {
    const QByteArray k = toWin1252(key);
    const QByteArray bytes = toWin1252(plain);
    QString out;
    out.reserve(bytes.size() * 2);
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        const auto b = static_cast<unsigned char>(bytes[i] ^ k[i % k.size()]);
        out += QStringLiteral("%1").arg(b, 2, 16, QLatin1Char('0')).toUpper();
    }
    return out;
}

} // namespace brevaro
