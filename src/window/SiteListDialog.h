#pragma once

#include <QDialog>
#include <functional>

class QAction;
class QLabel;
class QStatusBar;
class QTreeWidget;
class QTreeWidgetItem;

namespace brevaro {

class SiteList;
class TransferProgressWidget;

// The download-site list's window (frmSharewareSites), a view over SiteList. The submission
// browser shows it modally; a double-click on a directory emits siteChosen and hides the
// window, so that exec() returns Accepted. The banner data refresh after each download is
// SiteList::afterDownload, which the owner of the SiteList sets.
class SiteListDialog : public QDialog {
    Q_OBJECT
public:
    explicit SiteListDialog(SiteList& list, QWidget* parent = nullptr);

    // The directory last double-clicked, trimmed; empty before the first.
    const QString& siteName() const { return m_siteName; }
    const QString& siteUrl() const { return m_siteUrl; }
    // True while the window loads or downloads the list.
    bool isDownloading() const { return m_downloading; }

public slots:
    // Download Latest Directory Listing.
    void download();
    // Closing is refused while a download runs (it ends on its own, at the latest after the
    // transfer's time-out).
    void reject() override;

signals:
    // A double-click on a directory: its address, trimmed, and the same with its name
    // (which fits SubmissionBrowser::openSite).
    void siteChosen(const QString& url);
    void directoryChosen(const QString& name, const QString& url);
    // The window's own loading of the list, or a download from its menu, is over.
    void loadFinished();

protected:
    void showEvent(QShowEvent* event) override;

private:
    void buildMenu();
    void buildLayout();
    void runDownload(const std::function<void()>& what);
    void fillList();
    void sortBy(int column);
    void showModel();
    void showStatus(const QString& text);
    void chooseSite(QTreeWidgetItem* item);

    SiteList& m_list;
    QTreeWidget* m_view;
    QLabel* m_count;
    QStatusBar* m_status;
    TransferProgressWidget* m_progress;
    QAction* m_update = nullptr;
    QAction* m_exit = nullptr;
    QString m_siteName;
    QString m_siteUrl;
    bool m_loaded = false;
    bool m_downloading = false;
    bool m_sorting = false;
};

} // namespace brevaro
