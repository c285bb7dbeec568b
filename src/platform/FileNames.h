#pragma once

#include <QString>

namespace brevaro {

// The characters of the last path element before its first "."; empty without a ".".
QString GetFileBaseName(const QString& path, const QString& separator);
// The path before its last separator (without it); empty without one.
QString GetPathFolder(const QString& path, const QString& separator);
// The part after the last "."; the whole path when it has none.
QString GetFileExtension(const QString& path);

} // namespace brevaro

namespace brevaro {
// A company name as one folder level: "/" and NUL become "_", and so do "." and "..".
QString safeFolderName(const QString& name);
} // namespace brevaro
