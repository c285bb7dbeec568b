#pragma once

#include "TestSupport.h"
#include "store/RecordStore.h"

#include <QDir>
#include <gtest/gtest.h>

namespace brevaro::test {

// The extra values a filled record carries (beyond what its bytes hold): a later field of
// the company; of a program a later field and a text Windows-1252 cannot hold.
inline QString companyPage(const QString& letter) {
    return QStringLiteral("https://in.example/") + letter;
}
inline QString programHeadline(const QString& name) {
    return name + QStringLiteral(" is out");
}
inline QString programChanges(const QString& name) {
    return QStringLiteral("Исправления ") + name;
}

// Company n is named by the n-th letter; its programs are "<letter>-1", "<letter>-2"...
inline void addCompany(RecordStore& store, int n, int programs) {
    const QString letter(QChar(u'A' + n - 1));
    CompanyRecord company;
    company.setNumber(CompanyField::CompanyID, n);
    company.setText(CompanyField::CompanyName, letter);
    company.setLaterValue(QStringLiteral("LinkedinPage"), companyPage(letter));
    ASSERT_TRUE(store.writeCompany(n, company));
    for (int p = 1; p <= programs; ++p) {
        ProgramRecord program;
        const QString name = letter + u'-' + QString::number(p);
        program.setNumber(ProgramField::CompanyID, n);
        program.setText(ProgramField::ProgramName, name);
        program.setLaterValue(QStringLiteral("Headline"), programHeadline(name));
        program.setText(ProgramField::ChangeInfo, programChanges(name));
        ASSERT_TRUE(store.writeProgram(n, p, program));
    }
}

// The files of the data folder by name, blank-separated.
inline QString dataFiles(const TempHome& t) {
    return QDir(t.file(QStringLiteral("data"))).entryList(QDir::Files, QDir::Name).join(u' ');
}

} // namespace brevaro::test
