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
    s.load();
    EXPECT_EQ(s.SiteURL, QStringLiteral("http://127.0.0.1:9/unsignedpadfile.php"));
    EXPECT_EQ(s.txtURL, s.SiteURL);
    EXPECT_EQ(s.SiteName, QStringLiteral("Quorin"));
    EXPECT_EQ(s.caption, QStringLiteral("Software Submission - [Quorin]"));
    EXPECT_FALSE(s.controlsEnabled) << "disabled until the first page has loaded";
    EXPECT_EQ(s.lstInfo().size(), 96u);

    s.setSite(QStringLiteral("  Big Downloads "), QStringLiteral(" http://big.example/add "));
    EXPECT_EQ(s.SiteName, QStringLiteral("Big Downloads"));
    EXPECT_EQ(s.SiteURL, QStringLiteral("http://big.example/add"));
    EXPECT_EQ(s.txtURL, QStringLiteral("http://big.example/add"));
    EXPECT_EQ(s.caption, QStringLiteral("Software Submission - [Big Downloads]"));
    s.setSite(QStringLiteral("   "), QStringLiteral("http://x.example/"));
    EXPECT_EQ(s.caption, QStringLiteral("Software Submission - [Unknown]"));

    // A site set before loading is kept.
    SubmissionSession chosen(company, program, prompts);
    chosen.SiteURL = QStringLiteral("http://chosen.example/");
    chosen.SiteName = QStringLiteral("Chosen");
    chosen.load();
    EXPECT_EQ(chosen.txtURL, QStringLiteral("http://chosen.example/"));
    EXPECT_EQ(chosen.caption, QStringLiteral("Software Submission - [Chosen]"));
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
    EXPECT_EQ(s.product(S::ProductName), QStringLiteral("Widget Pro"));
    EXPECT_EQ(s.product(S::ProductVersion), QStringLiteral("2.1.0"));
    EXPECT_EQ(s.product(S::PadFileUrl), QStringLiteral("ApplicationXMLFileURL"));
    EXPECT_EQ(s.product(S::MainCategory), QStringLiteral("SpecificCategory"));
    EXPECT_EQ(s.product(S::SubCategory), QStringLiteral("CategoryClass"));

    // The copy buttons by index: name, version, main category, PAD file address, sub category.
    QStringList events;
    QObject::connect(&s, &S::flashStarted, [&](S::Product p) {
        events << u"on " + S::productControl(p) + u' ' + prompts.clipboard;
    });
    QObject::connect(&s, &S::flashEnded, [&](S::Product p) {
        events << u"off " + S::productControl(p) + u' ' + prompts.clipboard;
    });
    prompts.onPump = [&] {
        events << QStringLiteral("pump");
    };
    const QStringList copied = {
        QStringLiteral("Widget Pro"), QStringLiteral("2.1.0"), QStringLiteral("SpecificCategory"),
        QStringLiteral("ApplicationXMLFileURL"), QStringLiteral("CategoryClass")};
    for (int i = 0; i < 5; ++i) {
        events.clear();
        s.copyProduct(i);
        const QString box = S::productControl(S::copyButtonField(i));
        // The clipboard is cleared while the box flashes, then holds the box's text.
        EXPECT_EQ(events, (QStringList{u"on " + box + u' ', QStringLiteral("pump"),
                                       u"off " + box + u' ' + copied[i]}));
    }
    EXPECT_EQ(S::productControl(S::copyButtonField(3)), QStringLiteral("txtPADfileURL"));
    // A box the user edited is copied as it stands, and feeds the known fields.
    s.setProduct(S::PadFileUrl, QStringLiteral("http://acme.example/pad.xml"));
    s.copyProduct(3);
    EXPECT_EQ(prompts.clipboard, QStringLiteral("http://acme.example/pad.xml"));
    EXPECT_EQ(
        s.knownFields(QStringLiteral("me@acme.example"), QStringLiteral("s3cret")),
        (std::vector<KnownInput>{
            {QStringLiteral("padfile"), QStringLiteral("http://acme.example/pad.xml"),
             QStringLiteral("TEXT")},
            {QStringLiteral("padfile"), QStringLiteral("http://acme.example/pad.xml"),
             QStringLiteral("FILE")},
            {QStringLiteral("User"), QStringLiteral("me@acme.example"), QStringLiteral("TEXT")},
            {QStringLiteral("Password"), QStringLiteral("s3cret"), QStringLiteral("PASSWORD")}}));
}

TEST(SubmissionSession, FindsThePadFileCreatePadWrote) {
    TempHome home;
    CompanyRecord company = fullCompany();
    company.setText(CompanyField::CompanyName, u"Acme/Tools");
    ProgramRecord program = fullProgram();
    program.setText(ProgramField::ProgramName, u"Widget & Co");
    program.setText(ProgramField::ApplicationXMLFileURL, u"http://acme.example/pads/Widget.XML");
    const QString padFolder = home.home().padFolder();
    const QString folder = QDir(padFolder).filePath(QStringLiteral("Acme_Tools"));
    EXPECT_EQ(findCreatedPadFile(padFolder, company, program), QString()) << "nothing created";
    ASSERT_TRUE(QDir().mkpath(folder));

    // Saved under another name: found by the program name inside.
    const QString other = folder + QStringLiteral("/renamed.xml");
    QString error;
    ASSERT_TRUE(writePadFiles(company, program, QString(), other, &error)) << error.toStdString();
    ProgramRecord second = program;
    second.setText(ProgramField::ProgramName, u"Gadget");
    ASSERT_TRUE(
        writePadFiles(company, second, QString(), folder + QStringLiteral("/gadget.xml"), &error));
    EXPECT_EQ(findCreatedPadFile(padFolder, company, program), other);
    EXPECT_EQ(findCreatedPadFile(padFolder, company, second),
              folder + QStringLiteral("/gadget.xml"));

    // The name Create PAD proposes wins.
    const QString proposed = folder + QStringLiteral("/widget.xml");
    ASSERT_TRUE(writePadFiles(company, second, QString(), proposed, &error));
    EXPECT_EQ(findCreatedPadFile(padFolder, company, program), proposed);

    ProgramRecord unknown = program;
    unknown.setText(ProgramField::ProgramName, u"Never Created");
    unknown.setText(ProgramField::ApplicationXMLFileURL, u"");
    EXPECT_EQ(findCreatedPadFile(padFolder, company, unknown), QString());
}

TEST(KnownFields, ScriptsCarryTheirArgumentsSafely) {
    const KnownInput input{QStringLiteral("padfile"), QStringLiteral("a\"b'c</script>\\"),
                           QStringLiteral("TEXT")};
    const QString script = setInputValueScript(input);
    // Name and type are compared in upper case; the value travels as a JSON string.
    EXPECT_TRUE(script.contains(QStringLiteral("[\"PADFILE\",\"TEXT\",\"a\\\"b'c</script>\\\\\"]")))
        << script.toStdString();
    EXPECT_TRUE(script.contains(QStringLiteral("'input'")));
    EXPECT_TRUE(script.contains(QStringLiteral("'change'")));
    const QString attach =
        attachFileScript({QStringLiteral("padfile"), QString(), QStringLiteral("FILE")},
                         QStringLiteral("w.xml"), QByteArray("<x/>"));
    EXPECT_TRUE(attach.contains(QStringLiteral("[\"PADFILE\",\"FILE\",\"w.xml\",\"PHgvPg==\"]")))
        << attach.toStdString();
}
