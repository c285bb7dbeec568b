#include "submission/SubmissionSession.h"
#include "FullRecords.h"
#include "ScriptedPrompts.h"
#include "TestSupport.h"
#include "pad/CreatePad.h"
#include "submission/CreatedPadFile.h"
#include "submission/KnownFields.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

using namespace brevaro;
using namespace Qt::StringLiterals;
using namespace brevaro::test;

namespace {

// Points the maker's server at an address no test ever reaches, for the default site.
class MakerServer {
public:
    MakerServer()
        : m_old(qgetenv("BREVARO_SERVER")) {
        qputenv("BREVARO_SERVER", "http://127.0.0.1:9/");
    }
    ~MakerServer() { qputenv("BREVARO_SERVER", m_old); }

private:
    QByteArray m_old;
};

} // namespace

TEST(SubmissionSession, DefaultSiteCaptionAndChosenSite) {
    MakerServer server;
    const CompanyRecord company = fullCompany();
    const ProgramRecord program = fullProgram();
    ScriptedPrompts prompts;
    SubmissionSession s(company, program, prompts);
    auto site = [](const SubmissionSession& x) {
        return QStringList{x.SiteName, x.SiteURL, x.txtURL, x.caption}.join(u'|');
    };
    s.load();
    EXPECT_EQ(site(s), u"Quorin|http://127.0.0.1:9/unsignedpadfile.php|"
                       u"http://127.0.0.1:9/unsignedpadfile.php|Software Submission - [Quorin]"_s);
    EXPECT_FALSE(s.controlsEnabled) << "disabled until the first page has loaded";
    s.setSite(u"  Big Downloads "_s, u" http://big.example/add "_s);
    EXPECT_EQ(site(s), u"Big Downloads|http://big.example/add|http://big.example/add|"
                       u"Software Submission - [Big Downloads]"_s);
    s.setSite(u"   "_s, u"http://x.example/"_s);
    EXPECT_EQ(s.caption, u"Software Submission - [Unknown]"_s);

    // A site set before loading is kept.
    SubmissionSession chosen(company, program, prompts);
    chosen.SiteURL = u"http://chosen.example/"_s;
    chosen.SiteName = u"Chosen"_s;
    chosen.load();
    EXPECT_EQ(site(chosen), u"Chosen|http://chosen.example/|http://chosen.example/|"
                            u"Software Submission - [Chosen]"_s);
}

TEST(SubmissionSession, ProductPanelAndCopyButtons) {
    const CompanyRecord company = fullCompany();
    ProgramRecord program = fullProgram();
    program.setText(ProgramField::ProgramName, u"  Widget Pro ");
    program.setText(ProgramField::ProgramVersion, u"2.1.0");
    ScriptedPrompts prompts;
    SubmissionSession s(company, program, prompts);
    s.load();
    using S = SubmissionSession;
    // The copy buttons by index: name (trimmed), version, main category, PAD file address, sub
    // category.
    QStringList events;
    QObject::connect(&s, &S::flashStarted, [&](S::Product p) {
        events << u"on " + S::productControl(p) + u' ' + prompts.clipboard;
    });
    QObject::connect(&s, &S::flashEnded, [&](S::Product p) {
        events << u"off " + S::productControl(p) + u' ' + prompts.clipboard;
    });
    prompts.onPump = [&] {
        events << u"pump"_s;
    };
    const QStringList copied = {u"Widget Pro"_s, u"2.1.0"_s, u"SpecificCategory"_s,
                                u"ApplicationXMLFileURL"_s, u"CategoryClass"_s};
    for (int i = 0; i < 5; ++i) {
        events.clear();
        s.copyProduct(i);
        const QString box = S::productControl(S::copyButtonField(i));
        // The clipboard is cleared while the box flashes, then holds the box's text.
        EXPECT_EQ(events,
                  (QStringList{u"on " + box + u' ', u"pump"_s, u"off " + box + u' ' + copied[i]}));
    }
    // A box the user edited is copied as it stands, and feeds the known fields.
    s.setProduct(S::PadFileUrl, u"http://acme.example/pad.xml"_s);
    s.copyProduct(3);
    EXPECT_EQ(prompts.clipboard, u"http://acme.example/pad.xml"_s);
    EXPECT_EQ(s.knownFields(u"me@acme.example"_s, u"s3cret"_s),
              (std::vector<KnownInput>{{u"padfile"_s, u"http://acme.example/pad.xml"_s, u"TEXT"_s},
                                       {u"padfile"_s, u"http://acme.example/pad.xml"_s, u"FILE"_s},
                                       {u"User"_s, u"me@acme.example"_s, u"TEXT"_s},
                                       {u"Password"_s, u"s3cret"_s, u"PASSWORD"_s}}));
}

TEST(SubmissionSession, FindsThePadFileCreatePadWrote) {
    TempHome home;
    CompanyRecord company = fullCompany();
    company.setText(CompanyField::CompanyName, u"Acme/Tools");
    ProgramRecord program = fullProgram();
    program.setText(ProgramField::ProgramName, u"Widget & Co");
    program.setText(ProgramField::ApplicationXMLFileURL, u"http://acme.example/pads/Widget.XML");
    const QString padFolder = home.home().padFolder();
    const QString folder = QDir(padFolder).filePath(u"Acme_Tools"_s);
    EXPECT_EQ(findCreatedPadFile(padFolder, company, program), QString()) << "nothing created";
    ASSERT_TRUE(QDir().mkpath(folder));

    // Saved under another name: found by the program name inside.
    const QString other = folder + u"/renamed.xml"_s;
    QString error;
    ASSERT_TRUE(writePadFiles(company, program, QString(), other, &error)) << error.toStdString();
    ProgramRecord second = program;
    second.setText(ProgramField::ProgramName, u"Gadget");
    ASSERT_TRUE(writePadFiles(company, second, QString(), folder + u"/gadget.xml"_s, &error));
    EXPECT_EQ(findCreatedPadFile(padFolder, company, program), other);
    EXPECT_EQ(findCreatedPadFile(padFolder, company, second), folder + u"/gadget.xml"_s);

    // The name Create PAD proposes wins.
    const QString proposed = folder + u"/widget.xml"_s;
    ASSERT_TRUE(writePadFiles(company, second, QString(), proposed, &error));
    EXPECT_EQ(findCreatedPadFile(padFolder, company, program), proposed);

    ProgramRecord unknown = program;
    unknown.setText(ProgramField::ProgramName, u"Never Created");
    unknown.setText(ProgramField::ApplicationXMLFileURL, u"");
    EXPECT_EQ(findCreatedPadFile(padFolder, company, unknown), QString());
}

TEST(KnownFields, ScriptsCarryTheirArgumentsSafely) {
    const KnownInput input{u"padfile"_s, u"a\"b'c</script>\\"_s, u"TEXT"_s};
    const QString script = setInputValueScript(input);
    // Name and type are compared in upper case; the value travels as a JSON string.
    EXPECT_TRUE(script.contains(u"[\"PADFILE\",\"TEXT\",\"a\\\"b'c</script>\\\\\"]"_s))
        << script.toStdString();
    EXPECT_TRUE(script.contains(u"'input'"_s));
    EXPECT_TRUE(script.contains(u"'change'"_s));
    const QString attach =
        attachFileScript({u"padfile"_s, QString(), u"FILE"_s}, u"w.xml"_s, QByteArray("<x/>"));
    EXPECT_TRUE(attach.contains(u"[\"PADFILE\",\"FILE\",\"w.xml\",\"PHgvPg==\"]"_s))
        << attach.toStdString();
}
