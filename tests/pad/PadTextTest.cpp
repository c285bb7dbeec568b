#include "pad/PadText.h"
#include "TestSupport.h"
#include "pad/PadXmlText.h"
#include "pad/VerificationReport.h"
#include "pad/WebInfo.h"
#include "records/ValueLists.h"

#include <QRegularExpression>
#include <QXmlStreamReader>
#include <gtest/gtest.h>

using namespace brevaro;
using namespace Qt::StringLiterals;

namespace {

using PF = ProgramField;

QStringList lines(const QString& doc) {
    QStringList l = doc.split(u"\r\n"_s);
    EXPECT_EQ(l.takeLast(), QString()) << "the last line ends with CR LF too";
    return l;
}

ProgramRecord emptyProgram() {
    ProgramRecord p;
    p.setNumber(PF::DescriptionActive, 0, 0);
    return p;
}

} // namespace

// Empty records: every value element in the empty form; in full only the fixed version lines,
// the Y/N flags and the empty descriptions block; no association block.
TEST(PadText, EmptyRecordsGiveTheEmptyForms) {
    const QString doc = CreatePADText(CompanyRecord(), emptyProgram());
    static const QRegularExpression full(u"<(\\w+)>([^<]*)</\\1>"_s);
    QStringList written;
    for (auto it = full.globalMatch(doc); it.hasNext();) {
        const auto m = it.next();
        written << m.captured(1) + u'=' + m.captured(2);
    }
    EXPECT_EQ(written.mid(2).join(u' '), u"Has_Expire_Info=N Includes_JAVA_VM=N "
                                         u"Includes_VB_Runtime=N Includes_DirectX=N "
                                         u"Program_Descriptions=\r\n"_s);
    EXPECT_TRUE(doc.contains(u"<Has_Expire_Info>N</Has_Expire_Info>\r\n  "
                             "<Expire_Count />\r\n  <Expire_Based_On />\r\n"_s));
    EXPECT_TRUE(doc.endsWith(u"</Permissions>\r\n\r\n\r\n\r\n\r\n\r\n</XML_DIZ_INFO>\r\n"_s));
}

TEST(PadText, ValuesFlagsAndLanguages) {
    CompanyRecord c;
    c.setText(CompanyField::CompanyName, u"  A&B <Tools>  ");
    ProgramRecord p;
    p.setText(PF::ProgramName, u"   ");
    for (int i : {1, 2, 6, 26})
        p.setNumber(PF::OSSupported, -1, i);
    p.setNumber(PF::LanguageSupported, -1, 0);
    p.setNumber(PF::LanguageSupported, 7, 3); // any non-zero value counts
    p.setNumber(PF::DescriptionActive, 2, 0); // only exactly 1 counts
    p.setNumber(PF::DescriptionActive, 1, 8);
    p.setText(PF::Keywords, u"ru words", 8);
    p.setText(PF::CharDesc2000, u"line one\r\nline two", 8);
    p.setNumber(PF::IncludesDirectX, -1);
    const QStringList l = lines(CreatePADText(c, p));
    for (const QString& line :
         {u" <Company_Name>A&amp;B &lt;Tools></Company_Name>"_s, u" <Program_Name />"_s,
          u" <Program_OS_Support>Win95,Win98,WinXP</Program_OS_Support>"_s,
          u" <Program_Language>English,German</Program_Language>"_s,
          u" <Includes_DirectX>Y</Includes_DirectX>"_s})
        EXPECT_TRUE(l.contains(line)) << line.toStdString();
    const qsizetype start = l.indexOf(u"<Program_Descriptions>"_s);
    EXPECT_EQ(l.mid(start, 12).join(u'|'),
              u"<Program_Descriptions>| <Russian>|  <Keywords>ru words</Keywords>|"
              u"  <Char_Desc_45 />|  <Char_Desc_80 />|  <Char_Desc_250 />|  <Char_Desc_450 />|"
              u"  <Char_Desc_2000>line one|line two</Char_Desc_2000>| </Russian>|"
              u"</Program_Descriptions>|"_s);
}

// A value is written well-formed: what XML would refuse is escaped, what it takes is written as
// it stands. Imported again and written again, a reader reads the same text.
TEST(PadText, ValuesAreWrittenWellFormed) {
    const std::pair<QString, QString> cases[] = {
        {u"faster drawing & new port list"_s, u"faster drawing &amp; new port list"_s},
        {u"a description with <beta> in it"_s, u"a description with &lt;beta> in it"_s},
        {u"a]]>b ]]]> c > d"_s, u"a]]&gt;b ]]]&gt; c > d"_s},
        {u"&nbsp; &#0; &#xD800; &; & amp;"_s,
         u"&amp;nbsp; &amp;#0; &amp;#xD800; &amp;; &amp; amp;"_s},
        {u"Smith &amp; Sons &#169; &#xA9; &quot;x&quot; &lt;&gt;&apos;"_s,
         u"Smith &amp; Sons &#169; &#xA9; &quot;x&quot; &lt;&gt;&apos;"_s},
        {u"plain text, line one\r\nline two"_s, u"plain text, line one\r\nline two"_s},
        {u"the text &amp;lt;b&amp;gt; and &amp;amp;"_s,
         u"the text &amp;lt;b&amp;gt; and &amp;amp;"_s}};
    auto readerSees = [](const QString& written) {
        QXmlStreamReader reader(u"<a>"_s + written + u"</a>"_s);
        reader.readNextStartElement();
        const QString text = reader.readElementText();
        EXPECT_FALSE(reader.hasError()) << written.toStdString();
        return text;
    };
    for (const auto& [typed, written] : cases) {
        EXPECT_EQ(wellFormedXmlText(typed), written);
        EXPECT_EQ(readerSees(wellFormedXmlText(decodedXmlText(written))), readerSees(written))
            << written.toStdString();
        if (!typed.contains(u"&amp;"_s)) {
            EXPECT_EQ(decodedXmlText(written), typed);
        }
    }
}

TEST(PadText, ExpiryVariants) {
    auto expiry = [](const ProgramRecord& p) {
        const QStringList l = lines(CreatePADText(CompanyRecord(), p));
        const qsizetype a = l.indexOf(u" <Expire_Info>"_s);
        const qsizetype b = l.indexOf(u" </Expire_Info>"_s);
        return l.mid(a + 1, b - a - 1).join(u'|');
    };
    ProgramRecord p;
    p.setNumber(PF::HasExpireInfo, 1);
    p.setText(PF::ExpireCount, u"30");
    p.setNumber(PF::ExpireBasedOn, -1, 0);
    p.setNumber(PF::ExpireBasedOn, -1, 1); // the highest index wins
    p.setText(PF::ExpireMonth, u"05");
    EXPECT_EQ(expiry(p),
              u"  <Has_Expire_Info>Y</Has_Expire_Info>|  <Expire_Count>30</Expire_Count>|"
              "  <Expire_Based_On>Uses</Expire_Based_On>|  <Expire_Other_Info />"_s);
    p.setNumber(PF::ExpireBasedOn, -1, 3);
    p.setText(PF::ExpireYear, u"2009");
    EXPECT_EQ(
        expiry(p),
        u"  <Has_Expire_Info>Y</Has_Expire_Info>|  <Expire_Based_On>Date</Expire_Based_On>|"
        "  <Expire_Month>05</Expire_Month>|  <Expire_Day />|  <Expire_Year>2009</Expire_Year>|"
        "  <Expire_Other_Info />"_s);
    p.setText(PF::ExpireMonth, u"");
    EXPECT_EQ(expiry(p),
              u"  <Has_Expire_Info>Y</Has_Expire_Info>|  <Expire_Month />|  <Expire_Day />|"
              "  <Expire_Year>2009</Expire_Year>|  <Expire_Other_Info />"_s);
}

TEST(PadText, AssociationBlocksUseTheFullForm) {
    ProgramRecord p;
    p.setNumber(PF::ASPActivated, 1);
    p.setNumber(PF::ESCActivated, -1); // only exactly 1 activates
    p.setNumber(PF::TPAActivated, 1);
    p.setNumber(PF::TPAMember, 1);
    p.setText(PF::TrialLicenseType, u"Trialware");
    const QStringList l = lines(CreatePADText(CompanyRecord(), p));
    const qsizetype end = l.indexOf(u"</Permissions>"_s);
    EXPECT_EQ(l.mid(end + 1).join(u'|'),
              u"|<ASP>| <ASP_FORM>Y</ASP_FORM>| <ASP_Member>N</ASP_Member>|"
              u" <ASP_Member_Number></ASP_Member_Number>|</ASP>||||<TPA>| <TPA_FORM>Y</TPA_FORM>|"
              u" <TPA_Member>Y</TPA_Member>| <TPA_Member_ID></TPA_Member_ID>|"
              u" <Trial_License_Type>Trialware</Trial_License_Type>|</TPA>||</XML_DIZ_INFO>"_s);
}

// Every Y/N row of the document and the report: a check box flag that is not 0 writes Y
// (-1 included); inside an extension block only exactly 1 is a Y.
TEST(PadText, EveryYesNoRowReadsItsOwnFlag) {
    for (const PadRow& row : padRows()) {
        if (row.kind != PadRowKind::YesNo && row.kind != PadRowKind::MemberYesNo &&
            row.kind != PadRowKind::Expiry)
            continue;
        const char* element = fieldOf(row).padElement;
        for (int value : {-1, 1, 2}) {
            ProgramRecord p = emptyProgram();
            for (PF block :
                 {PF::ASPActivated, PF::ESCActivated, PF::MSNActivated, PF::TPAActivated})
                p.setNumber(block, 1);
            p.setNumber(static_cast<PF>(row.field), value);
            const bool yes = row.kind == PadRowKind::MemberYesNo ? value == 1 : value != 0;
            const QString line = u'<' + QLatin1String(element) + u'>' + (yes ? u'Y' : u'N') +
                                 u"</"_s + QLatin1String(element) + u'>';
            EXPECT_TRUE(lines(CreatePADText(CompanyRecord(), p)).filter(line).size() == 1)
                << element << " = " << value;
            const QString reportLine = QLatin1String(fieldOf(row).reportCaption) +
                                       u": </b><FONT color=\"#000099\"><b>"_s +
                                       (yes ? u"YES"_s : u"NO"_s);
            EXPECT_TRUE(CreateVerificationReport(CompanyRecord(), p).contains(reportLine))
                << element << " = " << value;
        }
    }
}

// The web info block links the ASP membership only for a member flag of exactly 1.
TEST(WebInfo, OnlyAMemberFlagOfOneShowsTheMembership) {
    for (int value : {-1, 0, 1, 2}) {
        ProgramRecord p = emptyProgram();
        p.setNumber(PF::ASPMember, value);
        p.setText(PF::ASPMemberNumber, u"4711");
        const QString block = CreateWebInfo(CompanyRecord(), p, u"http://asp.test"_s);
        EXPECT_EQ(block.contains(u"ASP&nbsp;Member"_s), value == 1) << value;
        EXPECT_EQ(block.contains(u": 4711"_s), value == 1) << value;
    }
}
