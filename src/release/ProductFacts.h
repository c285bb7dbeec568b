#pragma once

#include "records/CompanyRecord.h"
#include "records/ProgramRecord.h"

#include <QDate>
#include <QStringList>

namespace brevaro {

// The facts of a product that every output of a release writes, read once from the two
// records (texts in English, the first language of the descriptions).
struct ProductFacts {
    QString identifier; // Application_Identifier
    QString name;
    QString version;
    QDate releaseDate;
    QString publisher;
    QString author;
    QString publisherUrl;
    QString supportEmail;
    QString homepage; // the program's page, else the company's site
    QString orderUrl;
    QString screenshotUrl;
    QString padUrl;
    QString summary;          // 45 characters
    QString shortDescription; // 80 characters, else the summary
    QString description;      // the longest description written
    QStringList keywords;
    QString licence; // SPDX identifier
    QString programType;
    QString changes;
    QString category; // the category class, Main::Sub
    QStringList systems;
    QString price;         // in US dollars
    QString otherPrice;    // in otherCurrency
    QString otherCurrency; // ISO 4217 code
    QStringList downloads; // the download addresses that are set, primary first
};

ProductFacts productFacts(const CompanyRecord& company, const ProgramRecord& program);

// Paragraphs of a description: blocks parted by blank lines, each with its lines joined.
QStringList paragraphs(const QString& text);

} // namespace brevaro
