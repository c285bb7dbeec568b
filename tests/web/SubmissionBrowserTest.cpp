#include "plugin/SubmissionBrowser.h"
#include "FullRecords.h"
#include "LocalHttpServer.h"
#include "ScriptedPrompts.h"
#include "TestSupport.h"
#include "pad/CreatePad.h"
#include "submission/SiteCipher.h"

#include <QDialog>
#include <QDir>
#include <QEventLoop>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>
#include <QWebEnginePage>
#include <QWebEngineView>
#include <gtest/gtest.h>

using namespace brevaro;
using namespace Qt::StringLiterals;
using namespace brevaro::test;

namespace {

constexpr int kPageTimeout = 60000;

// A submission form: two inputs named padfile of type text (names differ in case), an upload
// field, the log-in inputs and a text input named like the password (wrong type). Its own
// scripts record the events they hear.
const QByteArray kFormPage = R"(<html><body><form>
<input type="text" name="PADFILE" id="first">
<input type="text" name="padfile" id="second">
<input type="file" name="PadFile" id="upload">
<input name="User" id="user">
<input type="text" name="Password" id="plain">
<input type="password" name="password" id="secret">
</form><script>
var heard = [];
document.addEventListener('input', function (e) { heard.push('input:' + e.target.id); });
document.addEventListener('change', function (e) { heard.push('change:' + e.target.id); });
</script></body></html>)";

const QByteArray kUploadOnlyPage = R"(<html><body><form>
<input type="file" name="padfile" id="upload"></form></body></html>)";

QVariant evaluate(QWebEnginePage* page, const QString& script) {
    QVariant result;
    bool answered = false;
    QEventLoop loop;
    page->runJavaScript(script, [&](const QVariant& v) {
        result = v;
        answered = true;
        loop.quit();
    });
    QTimer::singleShot(kPageTimeout, &loop, &QEventLoop::quit);
    if (!answered)
        loop.exec();
    EXPECT_TRUE(answered) << script.toStdString();
    return result;
}

QString value(QWebEnginePage* page, const char* id) {
    return evaluate(page, u"document.getElementById('%1').value"_s.arg(QLatin1String(id)))
        .toString();
}

class SubmissionBrowserTest : public ::testing::Test {
protected:
    void SetUp() override {
        m_oldServer = qgetenv("BREVARO_SERVER");
        qputenv("BREVARO_SERVER", m_server.url("").toUtf8());
        const QString list = encipherField(u"Second Site"_s, siteListKey()) + u'|' +
                             encipherField(m_server.url("/second"), siteListKey()) + u"\n"_s;
        m_server.route("/pad/SharewareSites/sharewaresites_cryptated.txt",
                       {200, "text/plain", list.toLatin1(), {}});
        m_server.route("/unsignedpadfile.php", {200, "text/html", kFormPage, {}});
        m_server.route("/second", {200, "text/html", kUploadOnlyPage, {}});
        m_company.setText(CompanyField::CompanyName, u"Acme Tools");
        m_program.setText(ProgramField::ProgramName, u"Widget Pro");
        m_program.setText(ProgramField::ApplicationXMLFileURL, u"http://acme.example/widget.xml");
        m_prompts.clipboard = u"held before"_s;
    }
    void TearDown() override { qputenv("BREVARO_SERVER", m_oldServer); }

    // Writes the PAD file as Create PAD does, in the company's folder.
    QString createPad() {
        const QString folder = QDir(m_home.home().padFolder()).filePath(u"Acme Tools"_s);
        QDir().mkpath(folder);
        const QString path = folder + u"/widget.xml"_s;
        QString error;
        EXPECT_TRUE(writePadFiles(m_company, m_program, QString(), path, &error));
        return path;
    }

    LocalHttpServer m_server;
    TempHome m_home;
    CompanyRecord m_company = fullCompany();
    ProgramRecord m_program = fullProgram();
    ScriptedPrompts m_prompts;
    QByteArray m_oldServer;
};

} // namespace

TEST_F(SubmissionBrowserTest, OpensTheMakersPageAndFillsItsKnownInputs) {
    const QString padPath = createPad();
    SubmissionBrowser browser(m_company, m_program, m_home.path(), m_prompts);
    QSignalSpy filled(&browser, &SubmissionBrowser::knownFieldsFilled);
    auto* user = browser.findChild<QLineEdit*>(u"txtUser"_s);
    auto* password = browser.findChild<QLineEdit*>(u"txtPassword"_s);
    ASSERT_TRUE(user && password);
    QTest::keyClicks(user, u"me@acme.example"_s);
    QTest::keyClicks(password, u"s3cret"_s);
    EXPECT_EQ(password->echoMode(), QLineEdit::Password);
    EXPECT_EQ(browser.windowTitle(), u"Software Submission - [Quorin]"_s);
    EXPECT_FALSE(browser.findChild<QTreeWidget*>(u"lstInfo"_s)->isEnabled());

    browser.show();
    ASSERT_TRUE(QTest::qWaitFor([&] { return filled.count() == 1; }, kPageTimeout));
    // The site list was fetched on opening: the maker's entry and the one listed.
    ASSERT_EQ(browser.siteList().sites().size(), 2u);
    EXPECT_EQ(browser.siteList().sites()[1].name, u"Second Site"_s);
    EXPECT_EQ(browser.iex()->url().toString(), m_server.url("/unsignedpadfile.php"));
    EXPECT_TRUE(browser.findChild<QTreeWidget*>(u"lstInfo"_s)->isEnabled());

    QWebEnginePage* page = browser.iex()->page();
    EXPECT_EQ(value(page, "first"), u"http://acme.example/widget.xml"_s);
    EXPECT_EQ(value(page, "second"), QString()) << "only the first input of a name is filled";
    EXPECT_EQ(value(page, "user"), u"me@acme.example"_s);
    EXPECT_EQ(value(page, "secret"), u"s3cret"_s);
    EXPECT_EQ(value(page, "plain"), QString()) << "the type must match too";
    // The upload field holds the PAD file itself, bytes and all.
    EXPECT_EQ(evaluate(page, u"document.getElementById('upload').files.length"_s), QVariant(1));
    EXPECT_EQ(evaluate(page, u"document.getElementById('upload').files[0].name"_s).toString(),
              u"widget.xml"_s);
    evaluate(page, u"document.getElementById('upload').files[0].text()"
                   ".then(function (t) { window.attached = t; }); 0"_s);
    QString attached;
    ASSERT_TRUE(QTest::qWaitFor(
        [&] {
            attached = evaluate(page, u"window.attached || ''"_s).toString();
            return !attached.isEmpty();
        },
        kPageTimeout));
    EXPECT_EQ(attached.toUtf8(), readBytes(padPath));
    // The upload is answered last; otherwise the page hears the events in document order.
    EXPECT_EQ(evaluate(page, u"heard.join(' ')"_s).toString(),
              u"input:first change:first input:user change:user input:secret "
              "change:secret input:upload change:upload"_s);
    EXPECT_EQ(browser.findChild<QStatusBar*>(u"StatusBar1"_s)->currentMessage(),
              u"Attached PAD file: "_s + QDir::toNativeSeparators(padPath));
    EXPECT_EQ(m_prompts.clipboard, u"held before"_s);

    // Saving a screenshot for review when asked to.
    const QString shots = qEnvironmentVariable("BREVARO_SHOTS");
    if (!shots.isEmpty()) {
        QDir().mkpath(shots);
        browser.grab().save(shots + u"/frmBrowser.png"_s);
    }

    // A directory chosen from the site list: its name in the caption, its page loaded; without
    // a created PAD file the status says so.
    QFile::remove(padPath);
    browser.openChosenSite(m_server.url("/second"));
    EXPECT_EQ(browser.windowTitle(), u"Software Submission - [Second Site]"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return filled.count() == 2; }, kPageTimeout));
    EXPECT_EQ(browser.findChild<QLineEdit*>(u"txtURL"_s)->text(), m_server.url("/second"));
    EXPECT_EQ(browser.findChild<QStatusBar*>(u"StatusBar1"_s)->currentMessage(),
              u"No PAD file has been created yet for Widget Pro: use Create PAD "
              "first"_s);
    EXPECT_EQ(evaluate(browser.iex()->page(), u"document.getElementById('upload').files.length"_s),
              QVariant(0));
}

TEST_F(SubmissionBrowserTest, InfoListLabelAndCopyButtonsDriveTheModel) {
    SubmissionBrowser browser(m_company, m_program, m_home.path(), m_prompts);
    auto* list = browser.findChild<QTreeWidget*>(u"lstInfo"_s);
    auto* label = browser.findChild<QLabel*>(u"lblInfo"_s);
    ASSERT_TRUE(list && label);
    ASSERT_EQ(list->topLevelItemCount(), 96);
    EXPECT_TRUE(list->isColumnHidden(0));
    EXPECT_EQ(list->headerItem()->text(1), u"PAD Info - Doubleclick to Copy/Paste"_s);
    browser.session().EnableControls();
    browser.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&browser));

    QTreeWidgetItem* heading = list->topLevelItem(0);
    emit list->itemDoubleClicked(heading, 1);
    EXPECT_EQ(label->text(), u"Select Valid Field"_s);
    EXPECT_EQ(label->palette().color(QPalette::WindowText), QColor(Qt::red));
    EXPECT_TRUE(label->font().bold());
    EXPECT_EQ(m_prompts.beeps, 1);
    emit list->itemDoubleClicked(list->topLevelItem(1), 1);
    EXPECT_EQ(m_prompts.clipboard, u"Acme Tools"_s);
    EXPECT_EQ(label->text(), u"Acme Tools"_s);
    EXPECT_FALSE(label->font().bold());
    EXPECT_NE(label->palette().color(QPalette::WindowText), QColor(Qt::red));

    // Copy button 2 copies the main category; an edited box is copied as it stands.
    auto* mainCat = browser.findChild<QLineEdit*>(u"txtMainCat"_s);
    mainCat->clear();
    QTest::keyClicks(mainCat, u"Utilities"_s);
    QTest::mouseClick(browser.findChild<QWidget*>(u"cmdCopyWebInfo2ClipBoard_2"_s), Qt::LeftButton);
    EXPECT_EQ(m_prompts.clipboard, u"Utilities"_s);
    EXPECT_EQ(mainCat->palette().color(QPalette::Base), QColor(Qt::black)) << "the copy flash";
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return mainCat->palette().color(QPalette::Base) != QColor(Qt::black); }, 2000));
    browser.findChild<QPushButton*>(u"cmdRefresh_3"_s)->click();
    // "Directories" shows the download-site list over the browser.
    auto* directories = browser.findChild<QPushButton*>(u"cmdRefresh_2"_s);
    QSignalSpy asked(&browser, &SubmissionBrowser::directoriesRequested);
    browser.session().EnableControls();
    ASSERT_TRUE(directories->isEnabled());
    bool listShown = false;
    QTimer::singleShot(0, &browser, [&] {
        if (auto* list = browser.findChild<QDialog*>(u"frmSharewareSites"_s)) {
            listShown = list->isVisible();
            list->reject();
        }
    });
    directories->click();
    EXPECT_EQ(asked.count(), 1);
    EXPECT_TRUE(listShown);
    EXPECT_EQ(m_prompts.opened, QStringList{u"http://acme.example/widget.xml"_s});
}

// An address that is a file to download, or a server that never answers, fills nothing, says
// so, and leaves the window usable.
TEST_F(SubmissionBrowserTest, APageThatCannotBeFilledLeavesTheWindowUsable) {
    struct Case {
        LocalHttpServer::Response response;
        int limitMs;
        QString said;
    };
    LocalHttpServer::Response stalled;
    stalled.stall = true;
    const Case cases[] = {
        {{200, "application/octet-stream", "<?php ?>", {}}, 30000, u"file to download"_s},
        {stalled, 3000, u"did not finish loading within 3 seconds:"_s}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.said.toStdString());
        m_server.route("/unsignedpadfile.php", c.response);
        SubmissionBrowser browser(m_company, m_program, m_home.path(), m_prompts);
        browser.setPageLoadLimit(c.limitMs);
        browser.show();
        auto* status = browser.findChild<QStatusBar*>(u"StatusBar1"_s);
        ASSERT_TRUE(QTest::qWaitFor([&] { return status->currentMessage().contains(c.said); },
                                    kPageTimeout))
            << status->currentMessage().toStdString();
        EXPECT_TRUE(browser.findChild<QTreeWidget*>(u"lstInfo"_s)->isEnabled());
        for (QPushButton* button : browser.findChildren<QPushButton*>()) {
            if (button->text().remove(u'&') == u"Refresh"_s) {
                EXPECT_TRUE(button->isEnabled());
            }
        }
    }
}
