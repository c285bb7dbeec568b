#include "release/ProductFacts.h"

#include "pad/PadTokens.h"
#include "platform/StringHelpers.h"
#include "release/ReleaseStep.h"

namespace brevaro {

namespace {

using PF = ProgramField;
using CF = CompanyField;

QStringList commaList(const QString& text) {
    QStringList items;
    for (const QString& item : text.split(u',', Qt::SkipEmptyParts))
        if (const QString t = item.trimmed(); !t.isEmpty() && !items.contains(t))
            items << t;
    return items;
}

} // namespace

QStringList paragraphs(const QString& text) {
    QStringList out;
    QStringList current;
    QString normal = text;
    normal.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
    for (const QString& line : normal.split(u'\n')) {
        if (line.trimmed().isEmpty()) {
            if (!current.isEmpty())
                out << current.join(u' ');
            current.clear();
        } else {
            current << line.trimmed();
        }
    }
    if (!current.isEmpty())
        out << current.join(u' ');
    return out;
}

ProductFacts productFacts(const CompanyRecord& c, const ProgramRecord& p) {
    ProductFacts f;
    f.identifier = p.laterValue(QStringLiteral("Application_Identifier")).trimmed();
    f.name = p.wholeText(static_cast<int>(PF::ProgramName));
    f.version = p.text(PF::ProgramVersion);
    f.releaseDate = QDate(p.text(PF::ReleaseYear).toInt(), p.text(PF::ReleaseMonth).toInt(),
                          p.text(PF::ReleaseDay).toInt());
    f.publisher = c.wholeText(static_cast<int>(CF::CompanyName));
    f.author =
        QStringList{c.text(CF::AuthorFirstName), c.text(CF::AuthorLastName)}.join(u' ').trimmed();
    f.publisherUrl = c.wholeText(static_cast<int>(CF::CompanyWebSiteURL));
    f.supportEmail = c.text(CF::SupportEmail);
    const QString programPage = p.wholeText(static_cast<int>(PF::ApplicationInfoURL));
    f.homepage = programPage.isEmpty() ? f.publisherUrl : programPage;
    f.orderUrl = p.wholeText(static_cast<int>(PF::ApplicationOrderURL));
    f.screenshotUrl = p.wholeText(static_cast<int>(PF::ApplicationScreenshotURL));
    f.padUrl = p.wholeText(static_cast<int>(PF::ApplicationXMLFileURL));
    f.summary = p.wholeText(static_cast<int>(PF::CharDesc45), 0);
    f.shortDescription = p.wholeText(static_cast<int>(PF::CharDesc80), 0);
    if (f.shortDescription.isEmpty())
        f.shortDescription = f.summary;
    for (PF field : {PF::CharDesc2000, PF::CharDesc450, PF::CharDesc250, PF::CharDesc80})
        if (f.description.isEmpty())
            f.description = p.wholeText(static_cast<int>(field), 0).trimmed();
    f.keywords = commaList(p.wholeText(static_cast<int>(PF::Keywords), 0));
    f.licence = p.laterValue(QStringLiteral("SPDX_License")).trimmed();
    f.programType = p.text(PF::ProgramType);
    f.changes = p.wholeText(static_cast<int>(PF::ChangeInfo));
    f.category = p.laterValue(QStringLiteral("Program_Category_Class"));
    if (f.category.isEmpty())
        f.category = proposedCategoryClass(p);
    f.systems = commaList(p.laterValue(QStringLiteral("Program_OS_Support")));
    if (f.systems.isEmpty())
        f.systems = laterOsTokens(p, PadVersion::V4_0);
    // The lists have no token for the current Windows versions; the author names them apart.
    const QStringList windows = commaList(p.laterValue(QStringLiteral("Windows_Versions")));
    if (const qsizetype other = f.systems.indexOf(QStringLiteral("WinOther"));
        other >= 0 && !windows.isEmpty()) {
        f.systems.removeAt(other);
        for (qsizetype i = 0; i < windows.size(); ++i)
            f.systems.insert(other + i, windows[i]);
    }
    f.price = p.text(PF::CostDollars);
    f.otherPrice = p.text(PF::CostOther);
    f.otherCurrency = p.text(PF::CostOtherCode).toUpper();
    for (int slot = 0; slot < kReleaseFiles; ++slot)
        if (const QString url = p.wholeText(downloadAddressField(slot)); !url.isEmpty())
            f.downloads << url;
    // Line breaks as the formats write them.
    f.description.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    f.changes.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    return f;
}

} // namespace brevaro
