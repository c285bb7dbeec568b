#pragma once

#include <QString>

namespace brevaro {

// The folder that holds the program's data: data/, pad/, share/, temp1.htm and swd.dta.
class AppHome {
public:
    explicit AppHome(QString root);

    // --home if given, else $BREVARO_HOME, else the executable's folder when a data folder
    // stands beside it, else the user's data folder.
    static AppHome resolve(const QString& explicitHome, const QString& executableFolder);

    const QString& root() const { return m_root; }
    QString dataFolder() const;
    QString padFolder() const;
    QString shareFolder() const;
    QString companyFile() const;
    QString programFile(int companyId) const;
    // The companion of a record file: the values its records cannot hold.
    static QString extrasFile(const QString& recordFile);
    QString deletionIntentFile() const;
    QString saveIntentFile() const;
    QString verificationPage() const;
    QString siteListFile() const;
    QString lockFile() const;

    // Creates data, pad and share when missing; false when one cannot be created.
    bool createFolders() const;

private:
    QString m_root;
};

} // namespace brevaro
