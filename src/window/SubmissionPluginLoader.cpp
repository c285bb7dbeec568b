#include "window/SubmissionPluginLoader.h"

#include "platform/SystemUser.h"
#include "submission/SubmissionPlugin.h"

#include <QCoreApplication>
#include <QDir>
#include <QPluginLoader>
#include <cstdio>

namespace brevaro {

void prepareForSubmissionBrowser() {
    // The web engine, loaded later from the plugin, needs OpenGL contexts shared from the
    // moment the application object is made.
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    // Its sandbox refuses to run as root and then ends the whole program: as root the browser
    // runs without it, and says so.
    if (isSuperUser() && qEnvironmentVariableIsEmpty("QTWEBENGINE_DISABLE_SANDBOX")) {
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
        std::fprintf(stderr, "brevaro: running as root, so the submission browser runs without "
                             "its sandbox\n");
    }
}

QString submissionPluginPath() {
    QString folder = qEnvironmentVariable("BREVARO_PLUGIN_DIR");
    if (folder.isEmpty())
        folder = QDir(QCoreApplication::applicationDirPath())
                     .filePath(QStringLiteral("../" BREVARO_PLUGIN_DIR));
    return QDir::cleanPath(QDir(folder).filePath(QStringLiteral(BREVARO_PLUGIN_FILE)));
}

bool openSubmissionBrowser(QWidget* parent, const CompanyRecord& company,
                           const ProgramRecord& program, const QString& homeFolder,
                           Prompts& prompts, QString* error,
                           const std::function<void()>& afterSiteListDownload) {
    if (!QCoreApplication::testAttribute(Qt::AA_ShareOpenGLContexts)) {
        if (error)
            *error = QStringLiteral("The submission browser cannot be opened: the web engine "
                                    "needs shared OpenGL contexts, which this program did not "
                                    "set up before it started.");
        return false;
    }
    // Loaded once and kept: the web engine is not made to unload.
    static QPluginLoader* loader = nullptr;
    const QString path = submissionPluginPath();
    if (!loader)
        loader = new QPluginLoader(path, QCoreApplication::instance());
    auto* plugin = qobject_cast<SubmissionPlugin*>(loader->instance());
    if (!plugin) {
        if (error)
            *error = QStringLiteral("The submission browser could not be loaded from %1: %2")
                         .arg(QDir::toNativeSeparators(path), loader->errorString());
        delete loader;
        loader = nullptr;
        return false;
    }
    plugin->openBrowser(parent, company, program, homeFolder, prompts, afterSiteListDownload);
    return true;
}

} // namespace brevaro
