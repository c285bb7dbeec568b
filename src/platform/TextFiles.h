#pragma once

#include "platform/Prompts.h"

#include <QString>

namespace brevaro {

// The text's lines, each followed by CR LF whatever line end it had (CR LF, LF or a lone CR).
QString linesWithCrLf(QStringView all);
// Reads a text file's lines, each followed by CR LF whatever line end it had (CR LF, LF or
// a lone CR); Windows-1252. Empty for a missing file.
QString readTextLines(const QString& path);
// Writes text followed by CR LF in Windows-1252; false when the file cannot be written.
bool writeTextWithLineEnd(const QString& path, const QString& text);

// The user picks a text file; its lines, or the empty text when cancelled.
QString ReadTextFileDialog(Prompts& prompts, const QString& initialFolder);
// The user picks where to save text; nothing happens for a text of blanks only.
void WriteTextFileDialog(Prompts& prompts, const QString& initialFolder, const QString& text);

} // namespace brevaro
