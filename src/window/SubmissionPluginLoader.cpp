#include "window/SubmissionPluginLoader.h"

#include "submission/SubmissionPlugin.h"

#include <QCoreApplication>
#include <QDir>
#include <QPluginLoader>

namespace brevaro {

namespace {

// The web engine, loaded later from the plugin, needs OpenGL contexts shared from the moment
// the application object is made (without it, it crashes when the browser opens). This runs
// before main() in any program that can open the browser.
void shareOpenGLContexts() {
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
}
Q_CONSTRUCTOR_FUNCTION(shareOpenGLContexts)

} // namespace

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
