#pragma once

#include <QString>

namespace brevaro {

class EditingSession;

// The file name Create PAD proposes: from the PAD file's web address, else the program name.
QString proposedPadFileName(const QString& padUrl, const QString& programName);
// The web info file beside a PAD file: same folder, base name lower-cased, ".htm".
QString companionFileName(const QString& padPath);

// Writes the PAD document of the current records, and the web info block beside it, after
// making sure both records are saved. Answers the user when a file cannot be written.
void CreatePADFile(EditingSession& session);
// Writes both files at path without asking; false with a message when one cannot be written.
bool writePadFiles(EditingSession& session, const QString& path, QString* error);

} // namespace brevaro
