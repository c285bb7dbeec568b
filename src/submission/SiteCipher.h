#pragma once

#include <QString>

namespace brevaro {

// The key of the download-site list.
QString siteListKey();

// Deciphers one field of the site list: upper-case hexadecimal, two digits a byte, each
// byte XOR the key's byte (i mod key length); plain bytes are Windows-1252. Anything that
// is not such hexadecimal deciphers to the empty text. The last argument is kept for the
// call's shape and must be 0.
QString DxXCrypted(const QString& enciphered, const QString& key, int mode = 0);
// The maker's side: the enciphered form of a plain field.
QString encipherField(const QString& plain, const QString& key);

} // namespace brevaro
