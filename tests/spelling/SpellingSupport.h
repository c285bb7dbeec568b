#pragma once

#include "TestSupport.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <gtest/gtest.h>

namespace brevaro::test {

// A folder of dictionaries holding the system's English one (from hunspell-en-us, which
// ./dev installs) and no other, so that every other language is "not installed" here.
class EnglishOnly {
public:
    EnglishOnly() {
        for (const char* ext : {".aff", ".dic"}) {
            const QString from = QStringLiteral("/usr/share/hunspell/en_US") + QLatin1String(ext);
            EXPECT_TRUE(QFileInfo::exists(from)) << "install hunspell-en-us";
            QFile::link(from, m_dir.filePath(QStringLiteral("en_US") + QLatin1String(ext)));
        }
    }
    QString path() const { return m_dir.path(); }

private:
    QTemporaryDir m_dir;
};

} // namespace brevaro::test
