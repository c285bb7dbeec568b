#pragma once

#include <QString>
#include <QStringList>
#include <functional>

namespace brevaro {

class PadImportTarget;
class Prompts;

// A PAD file's text as the importer reads it: decoded in the encoding its XML declaration
// names (UTF-8, ISO-8859-1, Windows-1252; Windows-1252 when none), every line followed by
// CR LF, leading and trailing blanks removed.
QString readPadFileText(const QString& path);

// Walks the tags of a PAD text the way the importer does (it is not an XML parser): calls
// visit for every value element with its opening tag, its value and the description language
// in force (-1 once the descriptions block has closed). Linear in the size of the text.
void scanPadTags(
    QStringView text,
    const std::function<void(QStringView tag, QStringView value, int language)>& visit);

// Reads the text into the target's fields, creating or finding the company and creating the
// program. False, after telling the user, when the text is not a PAD file. What the 1.15
// record cannot keep (characters, lengths, list items) is added to *notKept, one plain line
// each; blocks it has no place for (affiliates, a site's own sections) are left out silently.
bool ReadPADFile(PadImportTarget& target, Prompts& prompts, const QString& text,
                 QStringList* notKept = nullptr);

} // namespace brevaro
