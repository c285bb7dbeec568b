#pragma once

#include <QObject>
#include <QString>
#include <functional>

class QWidget;

namespace brevaro {

class CompanyRecord;
class ProgramRecord;
class Prompts;

// What the web plugin offers the program: the submission browser, opened modally over parent
// for the current company and program. homeFolder is the application home (the site list
// file and the pad/ folder). The plugin is loaded only when this is first needed, so that
// the program starts without the web engine. afterSiteListDownload, when set, runs after each
// download of the site list (the banner data refresh).
class SubmissionPlugin {
public:
    virtual ~SubmissionPlugin() = default;
    virtual void openBrowser(QWidget* parent, const CompanyRecord& company,
                             const ProgramRecord& program, const QString& homeFolder,
                             Prompts& prompts,
                             const std::function<void()>& afterSiteListDownload) = 0;
};

} // namespace brevaro

#define BrevaroSubmissionPlugin_iid "io.github.brevaro.SubmissionPlugin/1.0"
Q_DECLARE_INTERFACE(brevaro::SubmissionPlugin, BrevaroSubmissionPlugin_iid)
