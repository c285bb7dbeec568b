#include "TestSupport.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace brevaro::test {

// The home is one level inside a private folder, so that a test can check that nothing was
// written beside it.
TempHome::TempHome()
    : m_path(m_dir.path() + QStringLiteral("/home")) {
    AppHome(m_path).createFolders();
}

QByteArray readBytes(const QString& path) {
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

void writeBytes(const QString& path, const QByteArray& bytes) {
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile f(path);
    if (f.open(QIODevice::WriteOnly))
        f.write(bytes);
}

} // namespace brevaro::test
