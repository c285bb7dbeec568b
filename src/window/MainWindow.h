#pragma once

#include <QMainWindow>
#include <QPointer>
#include <memory>

namespace brevaro {

class BannerRotation;
class BannerStripWidget;
class ControlBindingView;
class EditingSession;
class HttpTransfer;
class PadCheckDialog;
class SpellingView;

// The main window frmStart: a view over the editing session. Its widgets come from the
// control table; the menus, the button bar, the banner strip, the nine tabs and the status
// bar are placed here. Closing runs the session's shutdown (the save prompts).
class MainWindow : public QMainWindow {
    Q_OBJECT
public:
    explicit MainWindow(EditingSession& session, QWidget* parent = nullptr);
    ~MainWindow() override;

    ControlBindingView& view() { return *m_view; }
    BannerRotation& banners() { return *m_banners; }
    BannerStripWidget& bannerStrip() { return *m_strip; }
    SpellingView& spelling() {
        completePages();
        return *m_spelling;
    }
    // The window shows its first tab as soon as it can; the other tabs are built right after
    // its first paint, or when one is chosen before that. True once they are.
    bool pagesComplete() const { return m_pagesComplete; }
    void completePages();
    void setVisible(bool visible) override;

protected:
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool event(QEvent* event) override;

private:
    void buildMenus();
    QWidget* buildTabs();
    void buildFirstTab();
    void placePage(int tab, QWidget* page);
    QWidget* buildCopyright();
    void setTabOrder();
    bool noCompany() const;
    void showForms();
    void setCommandHandlers();
    void addShortcuts();

    EditingSession& m_session;
    ControlBindingView* m_view;
    std::unique_ptr<HttpTransfer> m_http;
    BannerRotation* m_banners;
    BannerStripWidget* m_strip = nullptr;
    QWidget* m_tabsPage = nullptr;   // the tabs, shown once a company exists
    QWidget* m_firstStart = nullptr; // what to do first, shown while none does
    SpellingView* m_spelling = nullptr;
    QPointer<PadCheckDialog> m_check;
    bool m_shutDown = false;
    bool m_shown = false;
    bool m_formsChosen = false; // which of the two pages shows, chosen at the first show
    bool m_pagesComplete = false;
    bool m_completionPosted = false;
    QList<QWidget*> m_tabPages; // the page of each tab
    bool m_firstTabBuilt = false;
};

} // namespace brevaro
