#include "FullRecords.h"
#include "LocalHttpServer.h"
#include "ScriptedPrompts.h"
#include "TestSupport.h"
#include "window/SubmissionPluginLoader.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTimer>
#include <QTreeWidget>
#include <gtest/gtest.h>

using namespace brevaro;
using namespace Qt::StringLiterals;
using namespace brevaro::test;

namespace {

// Whether the web engine's library is mapped into this process (Linux only; elsewhere the
// question is not asked).
bool webEngineMapped() {
#ifdef Q_OS_LINUX
    QFile maps(u"/proc/self/maps"_s);
    return maps.open(QIODevice::ReadOnly) && maps.readAll().contains("libQt6WebEngineCore");
#else
    return false;
#endif
}

} // namespace

// This executable links no web code, like the program: the browser comes from the plugin.
TEST(SubmissionPlugin, LoadedOnFirstUseFromBesideTheProgram) {
    LocalHttpServer server;
    server.route("/unsignedpadfile.php",
                 {200, "text/html", "<html><body><input name=padfile></body></html>", {}});
    const QByteArray oldServer = qgetenv("BREVARO_SERVER");
    qputenv("BREVARO_SERVER", server.url("").toUtf8());
    TempHome home;
    const CompanyRecord company = fullCompany();
    const ProgramRecord program = fullProgram();
    ScriptedPrompts prompts;

    EXPECT_FALSE(webEngineMapped()) << "the web engine is loaded before it is needed";
    // Test executables run from bin/ like the program, so the plugin is found the same way.
    EXPECT_TRUE(QFile::exists(submissionPluginPath())) << submissionPluginPath().toStdString();

    // Set by main() before the application, as the program does; without it the web engine
    // would crash.
    EXPECT_TRUE(QCoreApplication::testAttribute(Qt::AA_ShareOpenGLContexts));
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts, false);
    QString error;
    EXPECT_FALSE(openSubmissionBrowser(nullptr, company, program, home.path(), prompts, &error));
    EXPECT_TRUE(error.contains(u"OpenGL"_s)) << error.toStdString();
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);

    qputenv("BREVARO_PLUGIN_DIR", QDir::tempPath().toUtf8() + "/no-such-folder");
    error.clear();
    EXPECT_FALSE(openSubmissionBrowser(nullptr, company, program, home.path(), prompts, &error));
    EXPECT_TRUE(error.contains(u"no-such-folder"_s)) << error.toStdString();
    qunsetenv("BREVARO_PLUGIN_DIR");
    EXPECT_FALSE(webEngineMapped());

    // The modal browser is found and closed once its first page has loaded.
    QString title;
    QTimer closer;
    QObject::connect(&closer, &QTimer::timeout, [&] {
        QWidget* modal = QApplication::activeModalWidget();
        if (!modal || modal->objectName() != u"frmBrowser")
            return;
        auto* list = modal->findChild<QTreeWidget*>(u"lstInfo"_s);
        if (list && list->isEnabled()) {
            title = modal->windowTitle();
            modal->close();
        }
    });
    closer.start(50);
    error.clear();
    int downloads = 0;
    EXPECT_TRUE(openSubmissionBrowser(nullptr, company, program, home.path(), prompts, &error, [&] {
        ++downloads;
    })) << error.toStdString();
    EXPECT_EQ(title, u"Software Submission - [Quorin]"_s);
    EXPECT_EQ(downloads, 1) << "the site list is fetched once on opening";
    EXPECT_EQ(webEngineMapped(), QFile::exists(u"/proc/self/maps"_s));
    qputenv("BREVARO_SERVER", oldServer);
}
