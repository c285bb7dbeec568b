#pragma once

#include <QString>
#include <QStringView>

namespace brevaro {

// A value as every PAD writer puts it between its element's tags: each "&" that does not begin
// a reference XML knows becomes "&amp;", each "<" "&lt;", and the ">" of "]]>" "&gt;". A value
// that is already well-formed (plain text, or references such as "&amp;" and "&#169;") comes
// back unchanged, so files that were well-formed keep their exact bytes.
QString wellFormedXmlText(const QString& value);

// A value read from between the tags of a PAD file: the references XML knows ("&amp;",
// "&quot;", "&#169;" ...) replaced by their characters; anything else, line breaks included,
// as it stands.
QString decodedXmlText(QStringView value);

} // namespace brevaro
