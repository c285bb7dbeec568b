#pragma once

#include "TestSupport.h"
#include "store/RecordStore.h"

#include <QDir>
#include <gtest/gtest.h>

namespace brevaro::test {

// Company n is named by the n-th letter; its programs are "<letter>-1", "<letter>-2"...
inline void addCompany(RecordStore& store, int n, int programs) {
    const QString letter(QChar(u'A' + n - 1));
    CompanyRecord company;
    company.setNumber(CompanyField::CompanyID, n);
    company.setText(CompanyField::CompanyName, letter);
    ASSERT_TRUE(store.writeCompany(n, company));
    for (int p = 1; p <= programs; ++p) {
        ProgramRecord program;
        program.setNumber(ProgramField::CompanyID, n);
        program.setText(ProgramField::ProgramName, QString(letter + u'-' + QString::number(p)));
        ASSERT_TRUE(store.writeProgram(n, p, program));
    }
}

// The files of the data folder by name, blank-separated.
inline QString dataFiles(const TempHome& t) {
    return QDir(t.file(QStringLiteral("data"))).entryList(QDir::Files, QDir::Name).join(u' ');
}

} // namespace brevaro::test
