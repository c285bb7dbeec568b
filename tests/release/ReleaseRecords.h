#pragma once

#include "records/CompanyRecord.h"
#include "records/ProgramRecord.h"
#include "release/DistributionFile.h"

#include <QDir>
#include <QFile>

namespace brevaro::test {

using CF = CompanyField;
using PF = ProgramField;

// A product as an author who publishes everywhere keeps it: every fact the outputs write,
// with text that XML, JSON and YAML must escape.
inline CompanyRecord releaseCompany() {
    CompanyRecord c;
    c.setNumber(CF::CompanyID, 1);
    c.setText(CF::CompanyName, u"Northwind & Sons");
    c.setText(CF::CompanyWebSiteURL, u"https://www.northwind.example");
    c.setText(CF::AuthorFirstName, u"Ada");
    c.setText(CF::AuthorLastName, u"Marsh");
    c.setText(CF::SupportEmail, u"help@northwind.example");
    return c;
}

inline ProgramRecord releaseProgram() {
    ProgramRecord p;
    p.setNumber(PF::CompanyID, 1);
    p.setText(PF::ProgramName, u"Harbour Notes");
    p.setText(PF::ProgramVersion, u"2.4.1");
    p.setText(PF::ReleaseMonth, u"11");
    p.setText(PF::ReleaseDay, u"02");
    p.setText(PF::ReleaseYear, u"2026");
    p.setText(PF::ProgramType, u"Shareware");
    p.setText(PF::CostDollars, u"19.95");
    p.setText(PF::CostOtherCode, u"EUR");
    p.setText(PF::CostOther, u"18.50");
    p.setText(PF::ChangeInfo, u"Sync between machines; \"faster\" search.");
    p.setText(PF::CharDesc45, u"Notes that follow you from port to port", 0);
    p.setText(PF::CharDesc80, u"An outliner for notes & journals that syncs between machines", 0);
    p.setText(PF::CharDesc2000,
              u"Harbour Notes keeps notes, journals and lists in one outline <b>.\r\n\r\n"
              u"Everything is searchable as you type, caf\u00e9 included.",
              0);
    p.setText(PF::Keywords, u"notes, outliner,journal, Sync Tool", 0);
    p.setText(PF::ApplicationInfoURL, u"https://www.northwind.example/notes");
    p.setText(PF::ApplicationScreenshotURL, u"https://www.northwind.example/notes/shot.png");
    p.setText(PF::ApplicationXMLFileURL, u"https://www.northwind.example/notes/harbour.xml");
    p.setText(PF::PrimaryDownloadURL, u"https://dl.northwind.example/2.4.1/hnotes.exe");
    p.setLaterValue(QStringLiteral("Application_Identifier"),
                    QStringLiteral("example.northwind.HarbourNotes"));
    p.setLaterValue(QStringLiteral("SPDX_License"), QStringLiteral("LicenseRef-proprietary"));
    p.setLaterValue(QStringLiteral("Program_OS_Support"), QStringLiteral("WinOther,Linux"));
    p.setLaterValue(QStringLiteral("Windows_Versions"), QStringLiteral("Windows 10,Windows 11"));
    p.setLaterValue(QStringLiteral("Program_Category_Class"),
                    QStringLiteral("Business::Databases & Tools"));
    p.setLaterValue(QStringLiteral("Download_URL_Pattern"),
                    QStringLiteral("https://dl.northwind.example/{version}/{file}"));
    p.setLaterValue(QStringLiteral("Installer_Type"), QStringLiteral("inno"));
    p.setLaterValue(QStringLiteral("Installer_Architectures"), QStringLiteral("x64,arm64"));
    return p;
}

// Names only: what an author has on the first day.
inline CompanyRecord minimalCompany() {
    CompanyRecord c;
    c.setNumber(CF::CompanyID, 1);
    c.setText(CF::CompanyName, u"Tiny");
    return c;
}

inline ProgramRecord minimalProgram() {
    ProgramRecord p;
    p.setNumber(PF::CompanyID, 1);
    p.setText(PF::ProgramName, u"Tool");
    p.setText(PF::ProgramVersion, u"1.0");
    return p;
}

// Writes bytes into folder/name and reads the file back as a release reads it.
inline DistributionFile distributionFile(const QString& folder, const QString& name,
                                         const QByteArray& bytes) {
    const QString path = QDir(folder).filePath(name);
    QFile f(path);
    f.open(QIODevice::WriteOnly);
    f.write(bytes);
    f.close();
    DistributionFile d;
    QString error;
    readDistributionFile(path, &d, &error);
    return d;
}

} // namespace brevaro::test
