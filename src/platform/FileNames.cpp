#include "platform/FileNames.h"

namespace brevaro {

QString GetFileBaseName(const QString& path, const QString& separator) {
    const qsizetype slash = separator.isEmpty() ? -1 : path.lastIndexOf(separator);
    const QString name = slash < 0 ? path : path.mid(slash + separator.size());
    const qsizetype dot = name.indexOf(u'.');
    return dot < 0 ? QString() : name.left(dot);
}

QString GetPathFolder(const QString& path, const QString& separator) {
    const qsizetype slash = separator.isEmpty() ? -1 : path.lastIndexOf(separator);
    return slash < 0 ? QString() : path.left(slash);
}

QString GetFileExtension(const QString& path) {
    const qsizetype dot = path.lastIndexOf(u'.');
    return dot < 0 ? path : path.mid(dot + 1);
}

} // namespace brevaro

namespace brevaro {
QString safeFolderName(const QString& name) {
    QString safe = name;
    safe.replace(u'/', u'_').replace(QChar(u'\0'), u'_').replace(u'\\', u'_');
    if (safe == QLatin1String(".") || safe == QLatin1String(".."))
        safe = QString(safe.size(), u'_');
    return safe;
}
} // namespace brevaro
