#pragma once

#include "store/AppHome.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

namespace brevaro::test {

// A fresh, empty home folder that disappears with the object.
class TempHome {
public:
    TempHome();
    const QString& path() const { return m_path; }
    AppHome home() const { return AppHome(m_path); }
    QString file(const QString& relative) const { return m_path + u'/' + relative; }

private:
    QTemporaryDir m_dir;
    QString m_path;
};

QByteArray readBytes(const QString& path);
void writeBytes(const QString& path, const QByteArray& bytes);

// The output of one command-line run.
struct CliResult {
    int status = 0;
    QByteArray out;
    QString err;
};

} // namespace brevaro::test

#include <ostream>
// Readable QString values in failure messages.
inline void PrintTo(const QString& s, std::ostream* os) {
    *os << '"' << s.toStdString() << '"';
}
