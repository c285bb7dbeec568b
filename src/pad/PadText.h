#pragma once

#include "pad/PadLaterLayout.h"
#include "pad/PadLayout.h"
#include "pad/PadVersion.h"
#include "records/CompanyRecord.h"
#include "records/ProgramRecord.h"

#include <QString>
#include <array>

namespace brevaro {

// Texts shared by the PAD document, the web info block and the verification report.
QString padStandardDescription();
QString createdByComment();   // "<!-- Created By Brevaro version: 1.0.0 -->"
QString availableAtComment(); // "<!-- Available for download at: <product site> -->"

// The item texts of the list whose flags are set (non-zero), joined with "," and no blank.
QString joinedFlagTexts(const ProgramRecord& program, ProgramField field, const QStringList& items);
// "Days", "Uses" or "Either/Or" for the highest of the first three expiry flags set, else empty.
QString expireBasedOnCaption(const ProgramRecord& program);

class PadLines;
// One block per active language, each with its six description elements.
void writeDescriptions(PadLines& d, int indent, const ProgramRecord& program, PadVersion version);
// A description as the document of version writes it: 1.15 what the record holds, the later
// versions the whole text.
// A value as the later versions write it: the whole text without trailing line breaks (the
// published patterns refuse them, and the 1.15 importer appends one to the licence texts).
QString laterText(QString value);
QString descriptionText(const ProgramRecord& p, ProgramField f, int language, PadVersion version);
// The six description fields of a language, in document order.
std::span<const ProgramField> descriptionFields();
// The list items that the flags of OSSupported or LanguageSupported stand for.
const QStringList& flagListItems(ProgramField field);
// The value of a fixed row, and the value a value or list row writes for the two records.
QString fixedValue(const PadRow& row);
QString padValue(const PadRow& row, const CompanyRecord& company, const ProgramRecord& program);

// The value a value, list or class row of a later version writes (empty for the others).
QString laterValue(const LaterPadRow& row, const CompanyRecord& company,
                   const ProgramRecord& program, PadVersion version);
// The seven expiry elements of a later version, in their order, as written.
struct LaterExpiryValue {
    const char* element;
    ProgramField field;
    QString value;
};
std::array<LaterExpiryValue, 7> laterExpiryValues(const ProgramRecord& program);

// The PAD 1.15 document of the two records; every line ends with CR LF.
QString CreatePADText(const CompanyRecord& company, const ProgramRecord& program);
// The document of the two records in a version: 1.15 as above; 3.11 and 4.0 in their published
// element order, with the operating systems and languages in their lists' tokens and the
// category class proposed from the 1.15 categories.
QString CreatePADText(const CompanyRecord& company, const ProgramRecord& program,
                      PadVersion version);
// The bytes of a PAD file holding document: Windows-1252 for 1.15, UTF-8 for the later
// versions, with the final line end every PAD file has.
QByteArray padFileBytes(const QString& document, PadVersion version);

} // namespace brevaro
