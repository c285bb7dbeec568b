#pragma once

#include "platform/HttpTransfer.h"
#include "submission/SiteList.h"
#include "submission/SubmissionSession.h"

#include <QDialog>
#include <array>
#include <functional>

class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QStatusBar;
class QToolButton;
class QTreeWidget;
class QWebEngineProfile;
class QWebEngineView;

namespace brevaro {

// frmBrowser: a directory's submission page in a web view, the product panel with its copy
// buttons, the log-in boxes, the list of every PAD field for copying, and the known inputs of
// each loaded page filled in. Opening it fetches the latest download-site list and loads the
// chosen directory (the maker's own by default).
class SubmissionBrowser : public QDialog {
    Q_OBJECT
public:
    SubmissionBrowser(const CompanyRecord& company, const ProgramRecord& program,
                      const QString& homeFolder, Prompts& prompts, QWidget* parent = nullptr);
    ~SubmissionBrowser() override;

    SubmissionSession& session() { return m_session; }
    const SiteList& siteList() const { return m_sites; }
    QWebEngineView* iex() const { return m_iex; }
    // How long a page may take to load before it is stopped (30 seconds unless set).
    void setPageLoadLimit(int milliseconds);
    // Runs after each download of the site list (the main window's banner data refresh).
    void setAfterSiteListDownload(std::function<void()> hook) {
        m_sites.afterDownload = std::move(hook);
    }

public slots:
    // The download-site list's double-click: the directory's name and address become the site,
    // and the browser goes there.
    void openSite(const QString& name, const QString& url);
    // The same for an address alone; the name is taken from the fetched site list.
    void openChosenSite(const QString& url);
    void navigate();

signals:
    // "Directories": the download-site list is shown; a chosen directory comes back through
    // openSite().
    void directoriesRequested();
    // A page has finished loading and its known inputs have been filled.
    void knownFieldsFilled();

protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void buildControls();
    QWidget* buildProductFrame();
    QWidget* buildAddressRow();
    void startUp();
    void fetchSiteList();
    void showSession();
    void showInfoList();
    void pageLoaded(bool ok);
    // A page that cannot be shown: the load stops, the reason shows, the window stays usable.
    void loadFailed(const QString& why);
    void FillKnownFields();
    using Done = std::function<void()>;
    void fillUpload(const KnownInput& input, const Done& done);
    void attachPadFile(const KnownInput& input, const Done& done);
    void flash(SubmissionSession::Product box, bool on);

    Prompts& m_prompts;
    QString m_homeFolder;
    const CompanyRecord& m_company;
    const ProgramRecord& m_program;
    SubmissionSession m_session;
    HttpTransfer m_http;
    SiteList m_sites;
    bool m_started = false;
    bool m_fetching = false;
    QString m_placeholder;

    QWebEngineProfile* m_profile = nullptr;
    QWebEngineView* m_iex = nullptr;
    QLineEdit* m_txtURL = nullptr;
    std::array<QPushButton*, 5> m_cmdRefresh{};
    std::array<QLineEdit*, SubmissionSession::kProducts> m_product{};
    std::array<QToolButton*, SubmissionSession::kProducts> m_copy{};
    QLineEdit* m_txtUser = nullptr;
    QLineEdit* m_txtPassword = nullptr;
    QTreeWidget* m_lstInfo = nullptr;
    QLabel* m_lblInfo = nullptr;
    QStatusBar* m_statusBar = nullptr;
    QProgressBar* m_progress = nullptr;
    QTimer* m_loadLimit = nullptr; // a page that has not finished by then is stopped
    QAction* m_exit = nullptr;
};

} // namespace brevaro
