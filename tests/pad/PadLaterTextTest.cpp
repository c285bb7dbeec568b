#include "FullRecords.h"
#include "pad/PadFieldRules.h"
#include "pad/PadText.h"
#include "pad/PadTokens.h"
#include "records/ValueLists.h"

#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QXmlStreamReader>
#include <gtest/gtest.h>

using namespace brevaro;
using namespace Qt::StringLiterals;
using namespace brevaro::test;

namespace {

using PF = ProgramField;

// The paths of the elements that hold a value, in document order.
QStringList leafPaths(const QString& document, QString* error) {
    QXmlStreamReader reader(document);
    QStringList path, leaves;
    bool hadChild = false;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement()) {
            path << reader.name().toString();
            hadChild = false;
        } else if (reader.isEndElement()) {
            if (!hadChild)
                leaves << path.join(u'/');
            path.removeLast();
            hadChild = true;
        }
    }
    *error = reader.errorString();
    return leaves;
}

} // namespace

// The later documents hold the elements of their version's published table, in its order:
// every row but those only the closed registry could fill and the affiliate programmes; a
// 3.11 document holds none of 4.0's additions. The extension blocks 1.15 knows follow.
TEST(PadLaterText, DocumentsFollowThePublishedElementSet) {
    ProgramRecord program = fullProgram();
    for (int i = 1; i < ProgramRecord::kLanguages; ++i)
        program.setNumber(PF::DescriptionActive, 0, i); // the table names English only
    const QSet<QString> leftOut = {u"CERTIFIED"_s, u"CERTIFICATE_ID"_s, u"CERTIFICATE_LICENSE"_s,
                                   u"PublisherID"_s, u"AppID"_s};
    for (PadVersion version : {PadVersion::V3_11, PadVersion::V4_0}) {
        SCOPED_TRACE(padVersionText(version).toStdString());
        QString error;
        const QStringList written =
            leafPaths(CreatePADText(fullCompany(), program, version), &error);
        ASSERT_TRUE(error.isEmpty()) << error.toStdString();
        QStringList expected;
        for (const PadFieldRule& rule : padFieldRules(version))
            if (!leftOut.contains(rule.element) && !rule.element.startsWith(u"Affiliates_"_s))
                expected << rule.path;
        // Beyond the table: only the extension blocks 1.15 knows.
        QStringList published;
        for (const QString& path : written) {
            if (expected.contains(path))
                published << path;
            else
                EXPECT_TRUE(
                    path.contains(QRegularExpression(u"^XML_DIZ_INFO/(ASP|ESC|MSN|TPA)/"_s)))
                    << path.toStdString();
        }
        // The same elements, in the table's order within each parent (the table lists the
        // video links of Application_URLs after the download addresses).
        auto byParent = [](const QStringList& paths) {
            QMap<QString, QStringList> children;
            for (const QString& path : paths)
                children[path.section(u'/', 0, -2)] << path.section(u'/', -1);
            QString text;
            for (auto it = children.cbegin(); it != children.cend(); ++it)
                text += it.key() + u": "_s + it.value().join(u' ') + u'\n';
            return text.toStdString();
        };
        EXPECT_EQ(byParent(published), byParent(expected));
        EXPECT_GT(written.size(), published.size());
    }
}

// The values Brevaro chooses from the published lists match their patterns: every 1.15 system
// has a token in both lists, the languages are the lists' names, the proposed class is one of
// the 155.
TEST(PadLaterText, MappedValuesAreFromThePublishedLists) {
    ASSERT_EQ(osMappings().size(), static_cast<std::size_t>(operatingSystemList().size()));
    for (std::size_t i = 0; i < osMappings().size(); ++i) {
        const OsMapping& m = osMappings()[i];
        EXPECT_EQ(QLatin1String(m.from),
                  operatingSystemList()[static_cast<qsizetype>(i)].trimmed());
        for (PadVersion v : {PadVersion::V3_11, PadVersion::V4_0})
            EXPECT_TRUE(laterOperatingSystems(v).contains(QLatin1String(m.to))) << m.from;
    }
    const ProgramRecord program = fullProgram();
    for (PadVersion v : {PadVersion::V3_11, PadVersion::V4_0}) {
        const QString systems = laterOsTokens(program, v).join(u',');
        EXPECT_TRUE(padFieldRule(u"Program_OS_Support", v)->accepts(systems))
            << systems.toStdString();
        const QString languages = laterLanguageTokens(program).join(u',');
        EXPECT_TRUE(padFieldRule(u"Program_Language", v)->accepts(languages));
    }
    EXPECT_EQ(laterOsTokens(program, PadVersion::V4_0).count(u"WinOther"_s), 1);
    // What the writer derives rather than copies, for an expiry by date and by count.
    for (int basis : {3, 0}) {
        ProgramRecord p = program;
        for (int i = 0; i < 4; ++i)
            p.setNumber(PF::ExpireBasedOn, i == basis ? 1 : 0, i);
        p.setText(PF::ExpireCount, u"30");
        QXmlStreamReader reader(CreatePADText(fullCompany(), p, PadVersion::V4_0));
        const QStringList derived = {u"MASTER_PAD_VERSION"_s, u"Has_Expire_Info"_s,
                                     u"Expire_Based_On"_s,    u"Expire_Count"_s,
                                     u"Program_OS_Support"_s, u"Program_Language"_s};
        int seen = 0;
        while (!reader.atEnd()) {
            if (reader.readNext() != QXmlStreamReader::StartElement ||
                !derived.contains(reader.name()))
                continue;
            const QString name = reader.name().toString();
            const QString value = reader.readElementText();
            EXPECT_TRUE(padFieldRule(name, PadVersion::V4_0)->accepts(value))
                << name.toStdString() << ": " << value.toStdString();
            ++seen;
        }
        EXPECT_EQ(seen, derived.size());
    }
    EXPECT_EQ(categoryClasses().size(), 155);
    EXPECT_EQ(laterLanguages().size(), 139);
}

TEST(PadLaterText, CategoryClassIsProposedFromThe115Categories) {
    struct Case {
        const char16_t* categories;
        const char16_t* specific;
        const char16_t* proposed;
    };
    const Case cases[] = {
        {u"Audio & Multimedia::Speech", u"", u"Audio & Multimedia::Speech"}, // already a class
        {u"Jukebox, CD Players", u"Audio", u"Audio & Multimedia::CD Players"},
        {u"cd players", u"", u"Audio & Multimedia::CD Players"},    // any case
        {u"Card", u"Utilities", u"Games & Entertainment::Card"},    // the only class naming it
        {u"Other", u"Games", u"Games & Entertainment::Other"},      // the specific's class
        {u"Gadgets", u"Developement Tools", u"Development::Other"}, // no sub: its Other
        {u"Gadgets", u"", u""},                                     // nothing points anywhere
    };
    for (const Case& c : cases) {
        ProgramRecord p;
        p.setText(PF::CategoryClass, QStringView(c.categories));
        p.setText(PF::SpecificCategory, QStringView(c.specific));
        const QString proposed = proposedCategoryClass(p);
        EXPECT_EQ(proposed, QStringView(c.proposed))
            << QString::fromUtf16(c.categories).toStdString();
        EXPECT_TRUE(proposed.isEmpty() || categoryClasses().contains(proposed));
    }
}
