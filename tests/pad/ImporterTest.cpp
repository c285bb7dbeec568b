#include "FullRecords.h"
#include "SessionFixture.h"
#include "pad/PadImporter.h"
#include "pad/PadText.h"
#include "platform/Win1252.h"
#include "records/ValueLists.h"

#include <QDir>

using namespace brevaro;
using namespace Qt::StringLiterals;
using namespace brevaro::test;

namespace {

class ImporterTest : public SessionTest {
protected:
    QString padFile(const QString& name, const QByteArray& bytes) {
        const QString path = home.file(name);
        writeBytes(path, bytes);
        return path;
    }
    bool import(const QString& path) { return session->pad().importPadFile(path); }
    QByteArray minimal(const QByteArray& body) {
        return "<?xml version=\"1.0\"?>\r\n<XML_DIZ_INFO>\r\n" + body + "\r\n</XML_DIZ_INFO>\r\n";
    }
};

} // namespace

TEST_F(ImporterTest, WhatThisProgramWroteComesBackWhole) {
    const CompanyRecord company = fullCompany();
    const ProgramRecord program = fullProgram();
    const QString doc = CreatePADText(company, program);
    ASSERT_TRUE(import(padFile(u"full.xml"_s, toWin1252(QString(doc + u"\r\n"_s)))));
    EXPECT_TRUE(prompts.asked.isEmpty());
    EXPECT_EQ(store.companyNames(), QStringList{u"CompanyName"_s});
    CompanyRecord c;
    ProgramRecord p;
    store.readCompany(1, c);
    store.readProgram(1, 1, p);
    EXPECT_EQ(c.bytes(), company.bytes());
    // Every field is back; the licence texts each gained one CR LF, and ExpireCount is not
    // written with a date-based expiry.
    ProgramRecord expected = program;
    for (auto f : {ProgramField::DistributionPermissions, ProgramField::EULA})
        expected.setText(f, QString(program.text(f) + u"\r\n"_s));
    expected.setText(ProgramField::ExpireCount, u"");
    for (int kind = 0; kind < 3; ++kind)
        expected.setNumber(ProgramField::ExpireBasedOn, 0, kind);
    expected.setNumber(ProgramField::OSSupported, 0, 26);
    for (int f = 0; f < static_cast<int>(programLayout().fields.size()); ++f) {
        const RecordField& s = programLayout().fields[static_cast<std::size_t>(f)];
        for (int i = 0; i < s.count; ++i)
            if (s.isText())
                EXPECT_EQ(p.text(f, i), expected.text(f, i)) << s.name << i;
            else
                EXPECT_EQ(p.number(f, i), expected.number(f, i)) << s.name << i;
    }
    // Writing again gives the same document, but for the added line ends.
    QString again = doc;
    again.replace(u"DistributionPermissions</Distribution"_s,
                  u"DistributionPermissions\r\n</Distribution"_s);
    again.replace(u"&lt;more></EULA>"_s, u"&lt;more>\r\n</EULA>"_s);
    EXPECT_EQ(CreatePADText(c, p), again);
    // The window shows what was imported, clean.
    EXPECT_EQ(text(u"cboProgramName"), u"ProgramName"_s);
    EXPECT_FALSE(session->state().CompanyDirty || session->state().ProgramDirty);
}

TEST_F(ImporterTest, RealFilesFromOtherTools) {
    const QDir samples(QStringLiteral(BREVARO_SAMPLES));
    ASSERT_EQ(samples.entryList({u"*.xml"_s}).size(), 4);
    for (const QString& name : samples.entryList({u"*.xml"_s}, QDir::Files, QDir::Name))
        EXPECT_TRUE(import(samples.filePath(name))) << name.toStdString();
    EXPECT_EQ(store.companyNames(), (QStringList{u"Denis Stankovski"_s, u"Yaniv Kalsky"_s,
                                                 u"Mark Russell"_s, u"DoxBox"_s}));
    ProgramRecord p;
    store.readProgram(3, 1, p); // the file without a company name, under its author's name
    EXPECT_EQ(p.text(ProgramField::ProgramName), u"UPS"_s);
    EXPECT_EQ(p.text(ProgramField::ReleaseYear), u"2002"_s);
    store.readProgram(4, 1, p); // ISO-8859-1, tabs, many unknown systems and languages
    EXPECT_EQ(p.text(ProgramField::ReleaseMonth), u"8"_s);
    EXPECT_EQ(p.number(ProgramField::OSSupported, 5), -1); // WinNT 4.x
    EXPECT_EQ(p.number(ProgramField::OSSupported, 10), 0); // Linux is not in the file
    // References are read as their characters.
    EXPECT_TRUE(p.text(ProgramField::CharDesc250).contains(u"\"virtual disks\""_s));
    EXPECT_EQ(p.number(ProgramField::DescriptionActive, 3), 0); // the German block is empty
    store.readProgram(1, 1, p); // UTF-8 with Cyrillic: what Windows-1252 cannot hold becomes "?"
    EXPECT_EQ(p.text(ProgramField::ProgramVersion).left(3), u"2.7"_s);
    // ... in the record; the whole text, cut neither in length nor in letters, is kept beside it.
    const QString change = p.wholeText(int(ProgramField::ChangeInfo));
    EXPECT_EQ(change.size(), 531);
    EXPECT_TRUE(change.contains(u"иmproved"_s));
    EXPECT_TRUE(p.text(ProgramField::ChangeInfo).contains(u"?mproved"_s));
    EXPECT_EQ(p.laterValue(u"Program_OS_Support"_s),
              u"Win7 x32,Win7 x64,WinVista,WinVista x64,WinXP"_s);
    store.readProgram(4, 1, p); // version 1.00 with the later language names
    EXPECT_EQ(p.laterValue(u"Program_Language"_s).split(u',').size(), 31);
}

// What a 1.15 record cannot keep is named, element by element; a file that fits names nothing.
TEST_F(ImporterTest, WhatA115RecordCannotKeepIsReported) {
    const QDir samples(QStringLiteral(BREVARO_SAMPLES));
    const std::pair<const char*, QStringList> expected[] = {
        {"dnGrep__dnGrep__pad.xml",
         {u"Program_OS_Support: 4 of 7 have no place in the PAD 1.15 list and are kept for PAD "
          u"3.11 and 4.0 only: Win7 x32, Win7 x64, WinVista, WinVista x64"_s,
          u"Program_OS_Support: 2 of 7 have no place in the PAD 1.15 list nor in the later ones "
          u"and were left out: Win8 x32, Win8 x64"_s,
          u"Program_Change_Info: 1 character(s) that Windows-1252 cannot hold are \"?\" in PAD "
          u"1.15 files; PAD 3.11 and 4.0 files hold the whole text"_s,
          u"Program_Change_Info: 531 characters, of which a PAD 1.15 file holds the first 128"_s,
          u"Program_Category_Class: not in the published list of PAD 4.0, so left out of the "
          u"later versions: File System"_s}},
        {"kalsky__FastWrite__pad.xml", {}},
        {"sth__ups__PAD.xml",
         {u"Program_OS_Support: 2 of 3 have no place in the PAD 1.15 list and were left out: "
          u"Solaris, FreeBSD"_s,
          u"Filename_Generic: 15 characters, of which a PAD 1.15 file holds the first 10 "
          u"(\"ar.gz\" is left out there); the whole text is kept with the program"_s,
          u"Distribution_Permissions: 732 characters"_s}},
        {"t-d-k__LibreCrypt__PAD.xml",
         {u"Program_Language: 22 of 31 have no place in the PAD 1.15 list and are kept"_s,
          u"Program_OS_Support: 1 of 17 have no place in the PAD 1.15 list and are kept for PAD "
          u"3.11 and 4.0 only: Windows 8"_s,
          u"Program_OS_Support: 13 of 17 have no place in the PAD 1.15 list nor in the later"_s,
          u"Keywords (English): 138 characters, of which a PAD 1.15 file holds the first 128"_s}}};
    for (const auto& [name, lines] : expected) {
        SCOPED_TRACE(name);
        ASSERT_TRUE(import(samples.filePath(QLatin1String(name))));
        const QStringList& notKept = session->pad().notKeptByImport();
        ASSERT_EQ(notKept.size(), lines.size()) << notKept.join(u'\n').toStdString();
        for (qsizetype i = 0; i < lines.size(); ++i)
            EXPECT_TRUE(notKept[i].startsWith(lines[i])) << notKept[i].toStdString();
    }
    // What was written by Brevaro itself comes back whole, and says so by saying nothing.
    const QString doc = CreatePADText(fullCompany(), fullProgram()) + u"\r\n"_s;
    ASSERT_TRUE(import(padFile(u"full.xml"_s, toWin1252(doc))));
    EXPECT_TRUE(session->pad().notKeptByImport().isEmpty())
        << session->pad().notKeptByImport().join(u'\n').toStdString();
}

// A 4.0 file Brevaro wrote comes back with every system whose token names a 1.15 system; the
// catch-all tokens are named as not kept.
TEST_F(ImporterTest, LaterSystemTokensMarkTheir115Systems) {
    ProgramRecord program = fullProgram();
    const QStringList& systems = operatingSystemList();
    for (int i = 0; i < systems.size(); ++i) {
        const QString name = systems[i].trimmed();
        const bool marked = name == u"Windows2000"_s || name == u"Open VMS"_s ||
                            name == u"Palm OS 2.0"_s || name == u"Win95"_s;
        program.setNumber(ProgramField::OSSupported, marked ? 1 : 0, i);
    }
    const QString doc = CreatePADText(fullCompany(), program, PadVersion::V4_0);
    ASSERT_TRUE(doc.contains(u"<Program_OS_Support>OpenVMS,Palm,Win2000,WinOther</"_s));
    ASSERT_TRUE(import(padFile(u"v40.xml"_s, padFileBytes(doc, PadVersion::V4_0))));
    ProgramRecord p;
    store.readProgram(1, 1, p);
    QStringList marked;
    for (int i = 0; i < systems.size(); ++i)
        if (p.number(ProgramField::OSSupported, i) != 0)
            marked << systems[i].trimmed();
    EXPECT_EQ(marked, (QStringList{u"Windows2000"_s, u"Palm OS 3.2"_s, u"Open VMS"_s}));
    EXPECT_TRUE(session->pad().notKeptByImport().contains(
        u"Program_OS_Support: 1 of 4 have no place in the PAD 1.15 list and are kept for PAD 3.11 "
        "and 4.0 only: WinOther"_s))
        << session->pad().notKeptByImport().join(u'\n').toStdString();
    // The press release's keywords, after the descriptions, are not a language's.
    QString withPress = doc;
    withPress.replace(u"  <Keywords />\r\n  <Headline />"_s,
                      u"  <Keywords>press words</Keywords>\r\n  <Headline />"_s);
    ASSERT_NE(withPress, doc);
    ASSERT_TRUE(import(padFile(u"press.xml"_s, padFileBytes(withPress, PadVersion::V4_0))));
    store.readProgram(1, 2, p);
    for (int language = 0; language < ProgramRecord::kLanguages; ++language)
        EXPECT_NE(p.text(ProgramField::Keywords, language), u"press words"_s) << language;
}

TEST_F(ImporterTest, RefusedFilesChangeNothing) {
    for (const QByteArray& bytes :
         {QByteArray("hello <?xml"), QByteArray("\xEF\xBB\xBF<?xml version=\"1.0\"?>"),
          QByteArray(), QByteArray("\x00\x01\x02<?xml", 8)}) {
        prompts.messages.clear();
        EXPECT_FALSE(import(padFile(u"bad.xml"_s, bytes)));
        ASSERT_EQ(prompts.messages.size(), 1);
        EXPECT_EQ(prompts.messages[0],
                  u"Invalid PAD XML File|Invalid PAD XML File\r\nMust start with: <?xml"_s);
    }
    EXPECT_EQ(prompts.beeps, 4);
    EXPECT_FALSE(QFile::exists(home.file(u"data/company.dta"_s)));
    EXPECT_FALSE(session->state().ImportInProgress);
    // Upper case is fine.
    EXPECT_TRUE(import(
        padFile(u"upper.xml"_s, "  <?XML version=\"1.0\"?><Company_Name>Upper</Company_Name>")));
    EXPECT_EQ(store.companyNames(), QStringList{u"Upper"_s});
}

TEST_F(ImporterTest, BrokenTextEndsTheScanCleanly) {
    QByteArray binary("<?xml ");
    for (int i = 0; i < 4096; ++i)
        binary += static_cast<char>((i * 7919) & 0xFF);
    const QByteArray cases[] = {
        minimal("<Company_Name>Trunc</Company_Name><Program_Name>Cut</"
                "Program_Name><Program_Version>1.0</Prog"),
        binary,
        "<?xml" + QByteArray(50000, '<'),
        "<?xml" + QByteArray(20000, '>') + QByteArray(20000, '<'),
    };
    for (const QByteArray& bytes : cases)
        EXPECT_TRUE(import(padFile(u"broken.xml"_s, bytes)));
    EXPECT_EQ(store.companyNames().front(), u"Trunc"_s);
    EXPECT_EQ(store.programNames(1), QStringList{u"Cut"_s});
}

TEST_F(ImporterTest, TagRules) {
    addCompany(u"Acme"_s);
    type(u"txtAddress1", u"kept"_s);
    type(u"txtAddress2", u"emptied"_s);
    command(ControlAction::SaveCompany);
    const QString path =
        padFile(u"rules.xml"_s,
                minimal("<Company_Name>Acme</Company_Name>\r\n"
                        "<Address_1 />\r\n<Address_2></Address_2>\r\n<City_Town "
                        "attr=\"x\">ignored</City_Town>\r\n"
                        "<Program_Name>Widget</Program_Name>\r\n"
                        "<Program_OS_Support>OS/2 Warp "
                        "4</Program_OS_Support>\r\n<Program_Language>english</Program_Language>\r\n"
                        "<Has_Expire_Info>y</Has_Expire_Info><ASP_Member>y</ASP_Member>\r\n"
                        "<Expire_Based_On>Uses</Expire_Based_On>\r\n"
                        "<EULA>one</EULA><EULA>two</EULA>\r\n"
                        "<Keywords>before any language</Keywords>\r\n"
                        "<Program_Descriptions><French><Char_Desc_45>fr</Char_Desc_45></French></"
                        "Program_Descriptions>\r\n"
                        "<Char_Desc_80>a <b>bold</b> word</Char_Desc_80>"));
    ASSERT_TRUE(import(path));
    ASSERT_TRUE(import(path)); // a second import makes a second program of the same name
    EXPECT_EQ(store.companyNames(), QStringList{u"Acme"_s});
    EXPECT_EQ(store.programNames(1), (QStringList{u"Widget"_s, u"Widget"_s}));
    CompanyRecord c;
    store.readCompany(1, c);
    // The empty form keeps the shown company's value; nothing between the tags empties it.
    EXPECT_EQ(c.text(CompanyField::Address1), u"kept"_s);
    EXPECT_EQ(c.text(CompanyField::Address2), QString());
    ProgramRecord p;
    store.readProgram(1, 2, p);
    for (int i = 0; i < 26; ++i) // "OS/2 Warp 4" also holds "OS/2" and "OS/2 Warp"
        EXPECT_EQ(p.number(ProgramField::OSSupported, i), i >= 13 && i <= 15 ? -1 : 0) << i;
    EXPECT_EQ(p.number(ProgramField::LanguageSupported, 0), 0); // case counts
    EXPECT_EQ(p.number(ProgramField::HasExpireInfo), 0);
    EXPECT_EQ(p.number(ProgramField::ASPMember), 1);
    EXPECT_EQ(p.number(ProgramField::ExpireBasedOn, 1), -1);
    EXPECT_EQ(p.text(ProgramField::EULA), u"one\r\ntwo\r\n"_s);
    EXPECT_EQ(p.text(ProgramField::Keywords, 0), u"before any language"_s);
    EXPECT_EQ(p.text(ProgramField::CharDesc45, 2), u"fr"_s);
    EXPECT_EQ(p.number(ProgramField::DescriptionActive, 2), 1);
    // After the French block the language stays French; "<b>bold" is scanned as a tag.
    EXPECT_EQ(p.text(ProgramField::CharDesc80, 2), QString());
    EXPECT_EQ(text(u"cboProgramName"), u"Widget"_s);
    EXPECT_EQ(session->state().CurrentProgramNo, 2);
}

// A file of company elements only makes a company and no program; a name differing only in
// case is another company.
TEST_F(ImporterTest, CompanyElementsAloneMakeNoProgram) {
    addCompany(u"Acme"_s);
    ASSERT_TRUE(
        import(padFile(u"a.xml"_s, minimal("<Company_Info><Company_Name>ACME</Company_Name>"
                                           "<City_Town>Leeds</City_Town></Company_Info>"))));
    EXPECT_EQ(store.companyNames(), (QStringList{u"Acme"_s, u"ACME"_s}));
    EXPECT_EQ(store.programCount(1) + store.programCount(2), 0);
    CompanyRecord c;
    store.readCompany(2, c);
    EXPECT_EQ(c.text(CompanyField::CityTown), u"Leeds"_s);
}

TEST_F(ImporterTest, ImportCommandAsksForTheFile) {
    prompts.files.push_back(std::nullopt);
    command(ControlAction::ImportPAD);
    ASSERT_EQ(prompts.dialogs.size(), 1);
    EXPECT_EQ(prompts.dialogs[0].filter, u"PAD File(s) (*.xml)|*.xml"_s);
    EXPECT_EQ(prompts.dialogs[0].initialFolder, home.home().padFolder());
    prompts.files.push_back(padFile(u"m.xml"_s, minimal("<Company_Name>Menu</Company_Name>")));
    command(ControlAction::ImportPAD);
    EXPECT_EQ(store.companyNames(), QStringList{u"Menu"_s});
    EXPECT_TRUE(prompts.messages.isEmpty()); // everything was kept
    // What the record cannot keep is shown once the import is saved.
    prompts.files.push_back(padFile(
        u"long.xml"_s, minimal("<Company_Name>Menu</Company_Name><Program_Name>Long</Program_Name>"
                               "<Program_OS_Support>Linux,Haiku</Program_OS_Support>")));
    command(ControlAction::ImportPAD);
    ASSERT_EQ(prompts.messages.size(), 1);
    EXPECT_TRUE(prompts.messages[0].contains(
        u"long.xml was imported, but a PAD 1.15 record cannot keep all of it:\n\n- "
        "Program_OS_Support: 1 of 2 have no place in the PAD 1.15 list and were left out: Haiku"_s))
        << prompts.messages[0].toStdString();
}

// Element and language names are matched with their letter case: a lower-case tag is not the
// element, a lower-case language block does not switch the language.
TEST_F(ImporterTest, TagsAndLanguagesMatchTheirCase) {
    ASSERT_TRUE(import(padFile(
        u"case.xml"_s,
        minimal("<Company_Name>Right</Company_Name><company_name>Wrong</company_name>\r\n"
                "<Program_Name>Widget</Program_Name><program_version>9</program_version>\r\n"
                "<french><Keywords>still english</Keywords></french>\r\n"
                "<Spanish><Char_Desc_45>spanish</Char_Desc_45></Spanish>"))));
    EXPECT_EQ(store.companyNames(), QStringList{u"Right"_s});
    ProgramRecord p;
    store.readProgram(1, 1, p);
    EXPECT_EQ(p.text(ProgramField::ProgramVersion), QString());
    EXPECT_EQ(p.text(ProgramField::Keywords, 0), u"still english"_s);
    EXPECT_EQ(p.text(ProgramField::Keywords, 2), QString());
    EXPECT_EQ(p.text(ProgramField::CharDesc45, 1), u"spanish"_s);
    EXPECT_EQ(p.number(ProgramField::DescriptionActive, 1), 1);
    EXPECT_EQ(p.number(ProgramField::DescriptionActive, 2), 0);
}
