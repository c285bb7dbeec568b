#include "store/AppHome.h"

#include "platform/FileHelpers.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace brevaro {

AppHome::AppHome(QString root)
    : m_root(QDir::cleanPath(QFileInfo(root).absoluteFilePath())) {}

AppHome AppHome::resolve(const QString& explicitHome, const QString& executableFolder) {
    if (!explicitHome.isEmpty())
        return AppHome(explicitHome);
    const QString env = qEnvironmentVariable("BREVARO_HOME");
    if (!env.isEmpty())
        return AppHome(env);
    if (!executableFolder.isEmpty() &&
        QFileInfo(executableFolder + QStringLiteral("/data")).isDir())
        return AppHome(executableFolder);
    // The user's data folder: $XDG_DATA_HOME, else ~/.local/share (on Linux).
    return AppHome(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
                   QStringLiteral("/brevaro"));
}

static QString join(const QString& folder, const QString& name) {
    return QDir::toNativeSeparators(folder + QLatin1Char('/') + name);
}

QString AppHome::dataFolder() const {
    return join(m_root, QStringLiteral("data"));
}
QString AppHome::padFolder() const {
    return join(m_root, QStringLiteral("pad"));
}
QString AppHome::shareFolder() const {
    return join(m_root, QStringLiteral("share"));
}
QString AppHome::companyFile() const {
    return join(dataFolder(), QStringLiteral("company.dta"));
}
QString AppHome::programFile(int companyId) const {
    return join(dataFolder(), QString::number(companyId) + QStringLiteral(".dta"));
}
QString AppHome::extrasFile(const QString& recordFile) {
    QString path = recordFile;
    if (path.endsWith(QLatin1String(".dta")))
        path.chop(4);
    return path + QStringLiteral(".extra.json");
}
QString AppHome::deletionIntentFile() const {
    return join(dataFolder(), QStringLiteral("deletion.intent"));
}
QString AppHome::saveIntentFile() const {
    return join(dataFolder(), QStringLiteral("save.intent"));
}
QString AppHome::verificationPage() const {
    return join(m_root, QStringLiteral("temp1.htm"));
}
QString AppHome::siteListFile() const {
    return join(m_root, QStringLiteral("swd.dta"));
}
QString AppHome::lockFile() const {
    return join(m_root, QStringLiteral("brevaro.lock"));
}

bool AppHome::createFolders() const {
    return ensureFolder(dataFolder()) && ensureFolder(padFolder()) && ensureFolder(shareFolder());
}

} // namespace brevaro
