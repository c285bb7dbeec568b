#include "plugin/SubmissionBrowser.h"
#include "submission/SubmissionPlugin.h"

#include <QtPlugin>

namespace brevaro {

// The entry point of the web plugin: the submission browser, shown modally.
class SubmissionWebPlugin : public QObject, public SubmissionPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID BrevaroSubmissionPlugin_iid)
    Q_INTERFACES(brevaro::SubmissionPlugin)
public:
    void openBrowser(QWidget* parent, const CompanyRecord& company, const ProgramRecord& program,
                     const QString& homeFolder, Prompts& prompts,
                     const std::function<void()>& afterSiteListDownload) override {
        SubmissionBrowser browser(company, program, homeFolder, prompts, parent);
        browser.setAfterSiteListDownload(afterSiteListDownload);
        browser.exec();
    }
};

} // namespace brevaro

#include "SubmissionWebPlugin.moc"
