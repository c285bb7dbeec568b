#include "window/MainWindow.h"

#include "controls/Mnemonics.h"
#include "keywords/KeywordSuggester.h"
#include "pad/PadSpelling.h"
#include "platform/HttpTransfer.h"
#include "platform/StringHelpers.h"
#include "session/BannerRotation.h"
#include "session/EditingSession.h"
#include "window/AboutDialog.h"
#include "window/AssociationTabWidget.h"
#include "window/BannerStripWidget.h"
#include "window/ButtonBarWidget.h"
#include "window/CompanyTabWidget.h"
#include "window/ControlBindingView.h"
#include "window/DescriptionsTabWidget.h"
#include "window/FirstStartWidget.h"
#include "window/KeywordsDialog.h"
#include "window/LinkLabelWidget.h"
#include "window/PadCheckDialog.h"
#include "window/PermissionsTabWidget.h"
#include "window/ProgramTabWidget.h"
#include "window/ReleaseDialog.h"
#include "window/SpellingView.h"
#include "window/SubmissionPluginLoader.h"
#include "window/TabRowsWidget.h"
#include "window/WebInfoTabWidget.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QMenu>
#include <QMenuBar>
#include <QScrollArea>
#include <QStatusBar>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>

namespace brevaro {

MainWindow::MainWindow(EditingSession& session, QWidget* parent)
    : QMainWindow(parent)
    , m_session(session)
    , m_http(std::make_unique<HttpTransfer>()) {
    setObjectName(QStringLiteral("frmStart"));
    m_view = new ControlBindingView(session, this);
    m_banners = new BannerRotation(session.store().home(), session.prompts(), *m_http, this);

    // Menu bar letters first, so the buttons do not take them.
    QString used = QStringLiteral("fth");
    buildMenus();
    auto* central = new QWidget;
    auto* column = new QVBoxLayout(central);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    m_strip = new BannerStripWidget(*m_view, *m_banners);
    column->addWidget(m_strip);
    auto* middle = new QHBoxLayout;
    middle->addWidget(new ButtonBarWidget(*m_view, used));
    // The form area: the tabs, or on a home without a company what to do first. The one not
    // wanted is hidden (a layout leaves hidden widgets out). Which one is chosen when the window
    // shows (see setVisible): showing a page lays it out at once, at a size it would not keep.
    auto* forms = new QWidget;
    forms->setObjectName(QStringLiteral("stkForms"));
    auto* formsLayout = new QVBoxLayout(forms);
    formsLayout->setContentsMargins(0, 0, 0, 0);
    m_tabsPage = buildTabs();
    m_firstStart = new FirstStartWidget(*m_view);
    formsLayout->addWidget(m_tabsPage);
    formsLayout->addWidget(m_firstStart);
    connect(&session.screen(), &ScreenModel::controlChanged, forms,
            [this, companies = session.screen().id(u"cboCompanyName")](int id, unsigned) {
                if (id == companies && m_formsChosen)
                    showForms();
            });
    middle->addWidget(forms, 1);
    column->addLayout(middle, 1);
    column->addWidget(buildCopyright());
    setCentralWidget(central);
    setStatusBar(qobject_cast<QStatusBar*>(m_view->widget(u"StatusBar1")));
    setCommandHandlers();
    addShortcuts();
    connect(&session, &EditingSession::closeRequested, this, [this] {
        m_shutDown = true;
        close();
    });
    m_view->repaintAll();
    // 11000 by 8150 twips.
    resize(733, 543);
}

void MainWindow::buildFirstTab() {
    if (m_firstTabBuilt)
        return;
    m_firstTabBuilt = true;
    m_view->createTab(0);
    placePage(0, new CompanyTabWidget(*m_view));
    m_view->repaintAll();
}

void MainWindow::placePage(int tab, QWidget* page) {
    // A page taller than the window scrolls instead of being squeezed. The scroll area is made
    // with the page: nine empty ones (each with its bars) would only slow the start.
    auto* scroll = new QScrollArea;
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidget(page);
    auto* holder = m_tabPages[tab];
    auto* fill = new QVBoxLayout(holder);
    fill->setContentsMargins(0, 0, 0, 0);
    fill->addWidget(scroll);
    // A page already on screen does not show what it is given by itself.
    if (holder->isVisible())
        scroll->show();
}

bool MainWindow::event(QEvent* event) {
    // After the first paint, the other tabs are built from the event loop.
    if (event->type() == QEvent::Paint && !m_pagesComplete && !m_completionPosted) {
        m_completionPosted = true;
        QTimer::singleShot(0, this, &MainWindow::completePages);
    }
    return QMainWindow::event(event);
}

void MainWindow::completePages() {
    if (m_pagesComplete)
        return;
    m_pagesComplete = true;
    // The desktop draws the window's icon in its task list, in four sizes: after the window's
    // own first picture, not before it.
    setWindowIcon(QIcon(QStringLiteral(":/icons/brevaro.svg")));
    buildFirstTab();
    m_view->completeWidgets();
    QList<QWidget*> pages = {new ProgramTabWidget(*m_view), new DescriptionsTabWidget(*m_view),
                             new WebInfoTabWidget(*m_view), new PermissionsTabWidget(*m_view)};
    for (int extension = 0; extension < 4; ++extension)
        pages << new AssociationTabWidget(*m_view, extension);
    // Made after the widgets, so that it goes after them (their highlighters use its checker),
    // and before they show, so that it sees them shown.
    m_spelling = new SpellingView(*m_view, homeSpellChecker(m_session.store().home()), this);
    for (int i = 0; i < pages.size(); ++i)
        placePage(i + 1, pages[i]);
    setTabOrder();
    m_view->repaintAll();
}

MainWindow::~MainWindow() = default;

void MainWindow::buildMenus() {
    QHash<int, QMenu*> menus;
    for (int id : m_view->ids()) {
        const ControlRow& r = m_view->row(id);
        if (r.widget == WidgetType::MenuTitle) {
            auto* menu = qobject_cast<QMenu*>(m_view->widget(id));
            menu->setTitle(u'&' + r.caption);
            menu->setParent(menuBar(), menu->windowFlags());
            menuBar()->addMenu(menu);
            menus.insert(r.placeIndex, menu);
        }
    }
    QHash<int, QString> usedIn;
    for (int id : m_view->ids()) {
        const ControlRow& r = m_view->row(id);
        QAction* a = m_view->action(id);
        if (!a || r.place != Place::Menu || !menus.contains(r.placeIndex))
            continue;
        if (!a->isSeparator())
            a->setText(withMnemonic(r.caption, usedIn[r.placeIndex]));
        menus[r.placeIndex]->addAction(a);
    }
}

QWidget* MainWindow::buildTabs() {
    auto* tabs = qobject_cast<QTabWidget*>(m_view->widget(u"SSTab1"));
    {
        // Adding pages is not the user choosing a tab. Each page holds its tab's form once it
        // is built (see placePage).
        const QSignalBlocker quiet(tabs);
        const QStringList captions = mainTabCaptions();
        for (int i = 0; i < captions.size(); ++i) {
            m_tabPages << new QWidget;
            // Titled once all are in: the bar measures every title again at each insertion.
            tabs->addTab(m_tabPages.back(), QString());
        }
        for (int i = 0; i < captions.size(); ++i)
            tabs->setTabText(i, captions[i]);
    }
    // The first tab when the window shows it (see showEvent), the others once the window has
    // shown (see completePages). A tab chosen before then is built at once.
    connect(tabs, &QTabWidget::currentChanged, this, &MainWindow::completePages);
    // The tabs and, when the window is too narrow for one row of them, their rows.
    auto* area = new QWidget;
    auto* column = new QVBoxLayout(area);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(new TabRowsWidget(*tabs));
    column->addWidget(tabs, 1);
    return area;
}

QWidget* MainWindow::buildCopyright() {
    auto* frame = qobject_cast<QGroupBox*>(m_view->widget(u"frmCopyright"));
    frame->setFlat(true);
    auto* row = new QHBoxLayout(frame);
    row->setContentsMargins(6, 2, 6, 2);
    auto* line = qobject_cast<LinkLabelWidget*>(m_view->widget(u"lblCopyright"));
    line->setPointSize(8);
    row->addStretch();
    row->addWidget(line);
    return frame;
}

// Tab follows the order in which the record operations visit the fields, each field
// followed by the buttons beside it.
void MainWindow::setTabOrder() {
    QWidget* previous = nullptr;
    auto chain = [&](QWidget* w) {
        if (previous)
            QWidget::setTabOrder(previous, w);
        previous = w;
    };
    // The fields in table order, each followed by the buttons beside it; the buttons of a
    // frame that stand on their own (Same As Author) follow the frame's last field.
    std::vector<int> fields;
    for (int id : m_view->ids()) {
        const ControlRow& r = m_view->row(id);
        if (r.side != RecordSide::None && m_view->widget(id) && r.place != Place::Hidden)
            fields.push_back(id);
    }
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const ControlRow& r = m_view->row(fields[i]);
        chain(m_view->widget(fields[i]));
        const bool lastOfFrame =
            i + 1 == fields.size() || m_view->row(fields[i + 1]).frame != r.frame;
        for (int other : m_view->ids()) {
            const ControlRow& o = m_view->row(other);
            if (o.action == ControlAction::None || !m_view->widget(other) ||
                o.place != Place::MainTab)
                continue;
            const bool beside = r.index <= 0 && o.beside == r.name;
            const bool onItsOwn =
                lastOfFrame && o.beside.isEmpty() && o.frame == r.frame && !r.frame.isEmpty();
            if (beside || onItsOwn)
                chain(m_view->widget(other));
        }
    }
}

void MainWindow::addShortcuts() {
    // The platform's standard keys. Save and New act on the record the shown tab holds: the
    // company on its tab, the program on every other.
    auto onShownRecord = [this](QKeySequence::StandardKey key, ControlAction company,
                                ControlAction program) {
        auto* a = new QAction(this);
        a->setShortcuts(key);
        connect(a, &QAction::triggered, this, [this, company, program] {
            const bool companyTab = m_session.screen().at(u"SSTab1").listIndex == 0;
            if (QAction* command = m_view->command(companyTab ? company : program);
                command && command->isEnabled())
                command->trigger();
        });
        addAction(a);
    };
    onShownRecord(QKeySequence::Save, ControlAction::SaveCompany, ControlAction::SaveProgram);
    onShownRecord(QKeySequence::New, ControlAction::NewCompany, ControlAction::NewProgram);
    if (QAction* import = m_view->command(ControlAction::ImportPAD))
        import->setShortcuts(QKeySequence::Open);
    if (QAction* exit = m_view->command(ControlAction::Exit))
        exit->setShortcuts(QKeySequence::Quit);
}

void MainWindow::setCommandHandlers() {
    m_session.setCommandHandler(ControlAction::About, [this] {
        AboutDialog about(m_session.prompts(), this);
        about.exec();
    });
    m_session.setCommandHandler(ControlAction::Keywords, [this] {
        // Suggestions from the program's home page, for the language shown.
        HttpTransfer http;
        KeywordSuggester suggester(trimBlanks(m_session.text(u"cboProgramName")),
                                   m_session.text(u"txtApplicationHomeURL"), http);
        KeywordsDialog dialog(suggester, this);
        const bool accepted = dialog.exec() == QDialog::Accepted;
        m_session.screen().setVisible(m_session.id(u"picKeywordsGenerator"), true);
        if (!accepted)
            return;
        if (const auto keywords = suggester.accept())
            m_session.assistance().applyKeywords(*keywords);
    });
    m_session.setCommandHandler(ControlAction::NewRelease, [this] {
        // A release starts from the saved records, as Create PAD does.
        if (m_session.state().CompanyDirty || m_session.state().ProgramDirty) {
            m_session.prompts().beep();
            m_session.navigation().SimpleText(
                QStringLiteral("Save the company and the program before a release."));
            return;
        }
        ReleaseDialog dialog(m_session, this);
        dialog.exec();
    });
    m_session.setCommandHandler(ControlAction::Submit, [this] {
        QString error;
        const bool opened = openSubmissionBrowser(this, m_session.company(), m_session.program(),
                                                  m_session.store().home().root(),
                                                  m_session.prompts(), &error, [this] {
                                                      // A fresh site list brings the banner data
                                                      // along when it is two days old.
                                                      if (m_banners->TimeToDownloadData(2))
                                                          m_banners->BannerDataDownload();
                                                  });
        if (!opened)
            m_session.navigation().SimpleText(error);
    });
    m_session.setCommandHandler(ControlAction::CheckPAD, [this] {
        // One findings window, checked again each time it is asked for.
        if (!m_check) {
            m_check = new PadCheckDialog(m_session, &m_spelling->checker(), this);
            m_check->setAttribute(Qt::WA_DeleteOnClose);
        } else {
            m_check->refresh();
        }
        m_check->show();
        m_check->raise();
        m_check->activateWindow();
    });
    m_session.setCommandHandler(ControlAction::NextBanner,
                                [this] { m_banners->Banner_Timer_Timer(); });
    m_session.setCommandHandler(ControlAction::ClickBanner, [this] { m_banners->clickBanner(); });
    m_session.setCommandHandler(ControlAction::DownloadBanners,
                                [this] { m_banners->BannerDataDownload(); });
}

bool MainWindow::noCompany() const {
    return m_session.screen().at(u"cboCompanyName").items.isEmpty();
}

void MainWindow::showForms() {
    const bool none = noCompany();
    QWidget* coming = none ? m_firstStart : m_tabsPage;
    QWidget* going = none ? m_tabsPage : m_firstStart;
    if (coming->isVisibleTo(this) && !going->isVisibleTo(this))
        return;
    // The coming page shows first (the layout places the two at its next pass, so they never
    // share the area on screen), so that focus on the going page moves into the coming one,
    // to its first field or button, rather than on along the window.
    coming->setVisible(true);
    if (QWidget* focus = QApplication::focusWidget(); focus && going->isAncestorOf(focus)) {
        for (QWidget* w = coming->nextInFocusChain(); w != coming; w = w->nextInFocusChain())
            if (coming->isAncestorOf(w) && (w->focusPolicy() & Qt::TabFocus) &&
                w->isVisibleTo(coming) && w->isEnabled()) {
                w->setFocus(Qt::OtherFocusReason);
                break;
            }
    }
    going->setVisible(false);
}

void MainWindow::setVisible(bool visible) {
    if (visible && !m_formsChosen) {
        m_formsChosen = true;
        // The other page shows with the window, laid out once at its real size.
        (noCompany() ? m_tabsPage : m_firstStart)->setVisible(false);
    }
    QMainWindow::setVisible(visible);
}

void MainWindow::showEvent(QShowEvent* event) {
    QMainWindow::showEvent(event);
    if (m_shown)
        return;
    m_shown = true;
    // The first tab is built for the first paint when the tabs show (not on a first start).
    if (!noCompany())
        buildFirstTab();
    // The rotation starts once the window is on screen, so it never delays start-up.
    QTimer::singleShot(0, m_banners, [this] { m_banners->LoadLocalBannerList(); });
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (!m_shutDown && !m_session.Shutdown()) {
        // A save the user asked for failed: the window stays with the edits on it.
        event->ignore();
        return;
    }
    event->accept();
    // Every other window of the program closes with the main window.
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w != this && w->isVisible())
            w->close();
}

} // namespace brevaro
