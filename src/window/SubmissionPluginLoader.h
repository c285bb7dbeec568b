#pragma once

#include <QString>
#include <functional>

class QWidget;

namespace brevaro {

class CompanyRecord;
class ProgramRecord;
class Prompts;

// What the web engine needs before the application object is made: shared OpenGL contexts,
// and, when running as root, its sandbox turned off (with a line on stderr saying so). Every
// program that can open the browser calls it first thing in main().
void prepareForSubmissionBrowser();

// Opens the submission browser modally over parent, loading the web plugin on first use.
// homeFolder is the application home; afterSiteListDownload, when set, runs after each download
// of the site list (the main window's banner data refresh). False, with a plain message in
// *error, when the plugin cannot be loaded; the browser is then not shown.
bool openSubmissionBrowser(QWidget* parent, const CompanyRecord& company,
                           const ProgramRecord& program, const QString& homeFolder,
                           Prompts& prompts, QString* error,
                           const std::function<void()>& afterSiteListDownload = {});

// Where the plugin is looked for: $BREVARO_PLUGIN_DIR when set, else the plugin folder of the
// install layout relative to the executable's folder (<prefix>/bin and
// <prefix>/lib/<multiarch>/brevaro; the build tree has the same layout).
QString submissionPluginPath();

} // namespace brevaro
