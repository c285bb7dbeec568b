#include "submission/SubmissionLoaderWidget.h"

#include "submission/SubmissionPlugin.h"

#include <QCoreApplication>
#include <QDir>
#include <QPluginLoader>

namespace brevaro {

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
