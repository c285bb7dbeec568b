#pragma once

#include "pad/PadVersion.h"
#include "records/ProgramRecord.h"

#include <QStringList>
#include <span>

namespace brevaro {

// The published value lists of PAD 3.11 and 4.0 (built in from src/pad/lists), and how the
// values of a 1.15 record map onto them.

// Program_Category_Class: the 155 "Main::Sub" values, the same in both versions.
const QStringList& categoryClasses();
// Program_Language: the 139 language names, the same in both versions.
const QStringList& laterLanguages();
// Program_OS_Support: 33 tokens in 3.11, 38 in 4.0.
const QStringList& laterOperatingSystems(PadVersion version);

// How a 1.15 operating system is written in the later lists: its token, and whether the token
// says the same thing (false where only a catch-all such as "WinOther" or "Other" is left).
struct OsMapping {
    const char* from;
    const char* to;
    bool exact;
};
// The mapping of every 1.15 operating system, in the 1.15 list's order.
std::span<const OsMapping> osMappings();

// The 1.15 system a later token stands for exactly ("Win2000" is "Windows2000"; "Palm" the
// latest Palm OS); empty for a catch-all such as "WinOther" and for tokens 1.15 has no system
// for.
QString systemOf115(const QString& laterToken);

// The later tokens of the systems a record marks, each once, in the later list's order.
QStringList laterOsTokens(const ProgramRecord& program, PadVersion version);
// The later names of the languages a record marks, in the later list's order.
QStringList laterLanguageTokens(const ProgramRecord& program);
// The category class for a record: its categories text when that already is a published
// "Main::Sub" value, else the first published sub-category that one of the text's categories
// names (preferring the main class of the specific category), else the main class's "Other".
// Empty when nothing points to one.
QString proposedCategoryClass(const ProgramRecord& program);

} // namespace brevaro
