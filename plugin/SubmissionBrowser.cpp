#include "plugin/SubmissionBrowser.h"

#include "window/SiteListDialog.h"

#include "platform/Prompts.h"
#include "store/AppHome.h"
#include "submission/CreatedPadFile.h"

#include <QAction>
#include <QCloseEvent>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMetaMethod>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QStatusBar>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <QWebEngineDownloadRequest>
#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <QWebEngineView>
#include <algorithm>
#include <memory>

namespace brevaro {

namespace {

// As every transfer: a page gets 30 seconds.
constexpr int kPageLoadLimitMs = 30000;

// The info list is a column of fixed width at the right; everything else follows the window.
constexpr int kInfoColumnWidth = 360;
constexpr int kFlashMilliseconds = 150;

QLabel* buddyLabel(const char* name, const char* text, QWidget* buddy) {
    auto* label = new QLabel(QLatin1String(text));
    label->setObjectName(QLatin1String(name));
    label->setBuddy(buddy);
    return label;
}

} // namespace

SubmissionBrowser::SubmissionBrowser(const CompanyRecord& company, const ProgramRecord& program,
                                     const QString& homeFolder, Prompts& prompts, QWidget* parent)
    : QDialog(parent)
    , m_prompts(prompts)
    , m_homeFolder(homeFolder)
    , m_company(company)
    , m_program(program)
    , m_session(company, program, prompts)
    , m_sites(AppHome(homeFolder).siteListFile(), m_http) {
    setObjectName(QStringLiteral("frmBrowser"));
    setWindowFlags(windowFlags() | Qt::WindowMinMaxButtonsHint);
    buildControls();
    if (parent)
        setGeometry(parent->window()->geometry());
    else
        resize(1100, 760);

    connect(&m_session, &SubmissionSession::changed, this, &SubmissionBrowser::showSession);
    connect(&m_session, &SubmissionSession::flashStarted, this,
            [this](SubmissionSession::Product box) { flash(box, true); });
    connect(&m_session, &SubmissionSession::flashEnded, this,
            [this](SubmissionSession::Product box) { flash(box, false); });
    connect(&m_sites, &SiteList::changed, this, [this] { m_session.SimpleText(m_sites.status); });

    m_session.load();
    showInfoList();
    showSession();
}

SubmissionBrowser::~SubmissionBrowser() {
    // The page must go before the profile it was made with.
    delete m_iex;
}

void SubmissionBrowser::buildControls() {
    auto* menuBar = new QMenuBar(this);
    QMenu* mnuFile = menuBar->addMenu(QStringLiteral("&File"));
    mnuFile->setObjectName(QStringLiteral("mnuFile"));
    m_exit = mnuFile->addAction(QStringLiteral("E&xit"), this, &QWidget::close);
    m_exit->setObjectName(QStringLiteral("mnuExit"));

    // An own profile that keeps nothing on disk: submission pages leave no cache behind.
    m_profile = new QWebEngineProfile(this);
    m_iex = new QWebEngineView;
    m_iex->setObjectName(QStringLiteral("iex"));
    m_iex->setPage(new QWebEnginePage(m_profile, m_iex));
    connect(m_iex, &QWebEngineView::loadFinished, this, &SubmissionBrowser::pageLoaded);
    // A page is held to the limits of every transfer: one that has not finished within them
    // is stopped, and an address that is a file to download is not followed.
    m_loadLimit = new QTimer(this);
    m_loadLimit->setSingleShot(true);
    m_loadLimit->setInterval(kPageLoadLimitMs);
    connect(m_loadLimit, &QTimer::timeout, this, [this] {
        const int seconds = (m_loadLimit->interval() + 999) / 1000;
        loadFailed(QStringLiteral("The page did not finish loading within %1 second%2: check "
                                  "the address, or press Refresh to try again.")
                       .arg(seconds)
                       .arg(seconds == 1 ? QString() : QStringLiteral("s")));
    });
    connect(m_profile, &QWebEngineProfile::downloadRequested, this,
            [this](QWebEngineDownloadRequest* download) {
                download->cancel();
                loadFailed(QStringLiteral("The address is a file to download, not a page to "
                                          "fill: ") +
                           download->url().toString());
            });

    m_lstInfo = new QTreeWidget;
    m_lstInfo->setObjectName(QStringLiteral("lstInfo"));
    const QString header = QStringLiteral("PAD Info - Doubleclick to Copy/Paste");
    m_lstInfo->setHeaderLabels({QString(), header, QStringLiteral("Value")});
    m_lstInfo->setColumnHidden(0, true);
    m_lstInfo->setRootIsDecorated(false);
    m_lstInfo->setUniformRowHeights(true);
    m_lstInfo->setColumnWidth(1, m_lstInfo->fontMetrics().horizontalAdvance(header) + 24);
    m_lstInfo->setFixedWidth(kInfoColumnWidth);
    connect(m_lstInfo, &QTreeWidget::itemClicked, this,
            [this](QTreeWidgetItem* item) { m_session.clickEntry(item->text(0)); });
    connect(m_lstInfo, &QTreeWidget::itemDoubleClicked, this,
            [this](QTreeWidgetItem* item) { m_session.doubleClickEntry(item->text(0)); });

    m_lblInfo = new QLabel;
    m_lblInfo->setObjectName(QStringLiteral("lblInfo"));
    m_lblInfo->setWordWrap(true);
    m_lblInfo->setFixedWidth(kInfoColumnWidth);
    m_lblInfo->setMinimumHeight(2 * m_lblInfo->fontMetrics().lineSpacing() + 6);
    m_lblInfo->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    // The label sits a little right of the list's left edge, directly below it.
    m_lblInfo->setIndent(16);

    m_statusBar = new QStatusBar;
    m_statusBar->setObjectName(QStringLiteral("StatusBar1"));
    m_statusBar->setSizeGripEnabled(false);
    m_progress = new QProgressBar;
    m_progress->setObjectName(QStringLiteral("progress"));
    m_progress->setMaximumWidth(160);
    m_progress->setTextVisible(false);
    m_progress->hide();
    m_statusBar->addPermanentWidget(m_progress);

    auto* left = new QVBoxLayout;
    left->addWidget(buildProductFrame());
    left->addWidget(m_iex, 1);
    auto* right = new QVBoxLayout;
    right->addWidget(m_lstInfo, 1);
    right->addWidget(m_lblInfo);
    auto* body = new QHBoxLayout;
    body->addLayout(left, 1);
    body->addLayout(right);
    auto* root = new QVBoxLayout(this);
    root->setMenuBar(menuBar);
    root->addWidget(buildAddressRow());
    root->addLayout(body, 1);
    root->addWidget(m_statusBar);
}

QWidget* SubmissionBrowser::buildAddressRow() {
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    m_txtURL = new QLineEdit;
    m_txtURL->setObjectName(QStringLiteral("txtURL"));
    layout->addWidget(buddyLabel("Label8", "&Address", m_txtURL));
    layout->addWidget(m_txtURL, 1);
    connect(m_txtURL, &QLineEdit::textEdited, this,
            [this](const QString& text) { m_session.txtURL = text; });
    connect(m_txtURL, &QLineEdit::returnPressed, this, &SubmissionBrowser::navigate);
    static const char* captions[] = {"Stop", "Refresh", "Directories", "View PADfile", "GO"};
    for (int i = 0; i < 5; ++i) {
        auto* button = new QPushButton(QLatin1String(captions[i]));
        button->setObjectName(QStringLiteral("cmdRefresh_%1").arg(i));
        button->setAutoDefault(false);
        layout->addWidget(button);
        m_cmdRefresh[static_cast<std::size_t>(i)] = button;
    }
    connect(m_cmdRefresh[0], &QPushButton::clicked, m_iex, &QWebEngineView::stop);
    connect(m_cmdRefresh[1], &QPushButton::clicked, this, &SubmissionBrowser::navigate);
    connect(m_cmdRefresh[2], &QPushButton::clicked, this, &SubmissionBrowser::directoriesRequested);
    connect(this, &SubmissionBrowser::directoriesRequested, this, [this] {
        // The download-site list, modal; a double-clicked directory opens here.
        SiteListDialog list(m_sites, this);
        connect(&list, &SiteListDialog::directoryChosen, this, &SubmissionBrowser::openSite);
        list.exec();
    });
    connect(m_cmdRefresh[3], &QPushButton::clicked, this,
            [this] { m_prompts.openDocument(m_session.product(SubmissionSession::PadFileUrl)); });
    connect(m_cmdRefresh[4], &QPushButton::clicked, this, &SubmissionBrowser::navigate);
    return row;
}

QWidget* SubmissionBrowser::buildProductFrame() {
    using S = SubmissionSession;
    auto* frame = new QGroupBox(QStringLiteral("Current Product Info"));
    frame->setObjectName(QStringLiteral("Frame1"));
    auto* grid = new QGridLayout(frame);
    struct Row {
        S::Product box;
        const char* label;
        const char* text;
        int row, column;
    };
    static const Row rows[] = {
        {S::ProductName, "Label1", "Product &Title", 0, 0},
        {S::ProductVersion, "lblVersion", "Product &Version", 1, 0},
        {S::PadFileUrl, "Label2", "PAD &File URL", 2, 0},
        {S::MainCategory, "Label4", "&Main Category", 0, 3},
        {S::SubCategory, "Label5", "&Sub Category", 1, 3},
    };
    const QIcon copyIcon(QStringLiteral(":/brevaro-web/copy.svg"));
    // Wide enough for a typical category or version to show whole.
    const int minimumBox = frame->fontMetrics().averageCharWidth() * 20;
    for (const Row& r : rows) {
        auto* edit = new QLineEdit;
        edit->setObjectName(S::productControl(r.box));
        edit->setMinimumWidth(minimumBox);
        connect(edit, &QLineEdit::textEdited, this,
                [this, box = r.box](const QString& text) { m_session.setProduct(box, text); });
        m_product[r.box] = edit;
        grid->addWidget(buddyLabel(r.label, r.text, edit), r.row, r.column);
        grid->addWidget(edit, r.row, r.column + 1);
    }
    for (int i = 0; i < S::kProducts; ++i) {
        const Row& r = *std::find_if(std::begin(rows), std::end(rows), [i](const Row& row) {
            return row.box == S::copyButtonField(i);
        });
        auto* copy = new QToolButton;
        copy->setObjectName(QStringLiteral("cmdCopyWebInfo2ClipBoard_%1").arg(i));
        copy->setIcon(copyIcon);
        copy->setToolTip(QStringLiteral("Copy to Clipboard"));
        copy->setAccessibleName(QStringLiteral("Copy ") + S::productControl(r.box));
        connect(copy, &QToolButton::clicked, this, [this, i] { m_session.copyProduct(i); });
        m_copy[static_cast<std::size_t>(i)] = copy;
        grid->addWidget(copy, r.row, r.column + 2);
    }
    m_txtUser = new QLineEdit;
    m_txtUser->setObjectName(QStringLiteral("txtUser"));
    m_txtPassword = new QLineEdit;
    m_txtPassword->setObjectName(QStringLiteral("txtPassword"));
    m_txtPassword->setEchoMode(QLineEdit::Password);
    m_txtUser->setMinimumWidth(minimumBox);
    m_txtPassword->setMinimumWidth(minimumBox);
    grid->addWidget(buddyLabel("Label7", "&Username / Email Address", m_txtUser), 3, 0);
    grid->addWidget(m_txtUser, 3, 1);
    grid->addWidget(buddyLabel("Label6", "&Password", m_txtPassword), 3, 3);
    grid->addWidget(m_txtPassword, 3, 4);
    grid->setColumnStretch(1, 3);
    grid->setColumnStretch(4, 2);
    grid->setColumnMinimumWidth(2, 0);
    return frame;
}

void SubmissionBrowser::showInfoList() {
    m_lstInfo->clear();
    QList<QTreeWidgetItem*> items;
    for (const InfoEntry& e : m_session.lstInfo()) {
        auto* item = new QTreeWidgetItem({e.number, e.label, e.value});
        if (!e.value.isEmpty())
            item->setToolTip(2, e.value);
        if (e.label.contains(u'>')) {
            QFont bold = item->font(1);
            bold.setBold(true);
            item->setFont(1, bold);
        }
        items << item;
    }
    m_lstInfo->addTopLevelItems(items);
}

void SubmissionBrowser::showSession() {
    setWindowTitle(m_session.caption);
    if (m_statusBar->currentMessage() != m_session.status)
        m_statusBar->showMessage(m_session.status);
    m_lblInfo->setText(m_session.lblInfo.text);
    QFont font = m_lblInfo->font();
    font.setBold(m_session.lblInfo.bold);
    m_lblInfo->setFont(font);
    QPalette palette = this->palette();
    if (m_session.lblInfo.red)
        palette.setColor(QPalette::WindowText, Qt::red);
    m_lblInfo->setPalette(palette);
    if (m_txtURL->text() != m_session.txtURL) {
        m_txtURL->setText(m_session.txtURL);
        m_txtURL->setCursorPosition(0);
    }
    for (int i = 0; i < SubmissionSession::kProducts; ++i) {
        const auto box = static_cast<SubmissionSession::Product>(i);
        if (m_product[box]->text() != m_session.product(box)) {
            m_product[box]->setText(m_session.product(box));
            m_product[box]->setCursorPosition(0);
        }
    }
    const bool on = m_session.controlsEnabled;
    for (int i = 1; i <= 3; ++i)
        m_cmdRefresh[static_cast<std::size_t>(i)]->setEnabled(on);
    m_cmdRefresh[2]->setEnabled(on);
    for (QWidget* w : m_product)
        w->setEnabled(on);
    for (QWidget* w : m_copy)
        w->setEnabled(on);
    m_txtURL->setEnabled(on);
    m_lstInfo->setEnabled(on);
    if (on)
        unsetCursor();
    else
        setCursor(Qt::WaitCursor);
}

void SubmissionBrowser::flash(SubmissionSession::Product box, bool on) {
    QLineEdit* edit = m_product[box];
    if (on) {
        QPalette palette = edit->palette();
        palette.setColor(QPalette::Base, Qt::black);
        palette.setColor(QPalette::Text, Qt::white);
        edit->setPalette(palette);
        edit->repaint();
        return;
    }
    // Held a moment longer than the pause so that the flash is seen.
    QPointer<QLineEdit> guard(edit);
    QTimer::singleShot(kFlashMilliseconds, this, [guard, this] {
        if (guard)
            guard->setPalette(palette());
    });
}

void SubmissionBrowser::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (m_started)
        return;
    m_started = true;
    // The rest of the opening runs once the window is on screen, so the fetch shows progress.
    QTimer::singleShot(0, this, &SubmissionBrowser::startUp);
}

void SubmissionBrowser::closeEvent(QCloseEvent* event) {
    // The site list's transfer runs in a local event loop: the window stays until it ends.
    if (m_fetching) {
        event->ignore();
        return;
    }
    QDialog::closeEvent(event);
}

void SubmissionBrowser::startUp() {
    m_prompts.pumpEvents();
    fetchSiteList();
    m_prompts.pumpEvents();
    m_session.SimpleText(QStringLiteral("Loading: ") + m_session.SiteURL);
    m_iex->setHtml(QStringLiteral("Loading Page! Wait ..."));
    m_placeholder = m_iex->url().toString();
    navigate();
}

void SubmissionBrowser::fetchSiteList() {
    m_fetching = true;
    m_exit->setEnabled(false);
    m_progress->setRange(0, 0);
    m_progress->show();
    m_sites.Download();
    m_progress->hide();
    m_exit->setEnabled(true);
    m_fetching = false;
}

void SubmissionBrowser::openSite(const QString& name, const QString& url) {
    m_session.setSite(name, url);
    navigate();
}

void SubmissionBrowser::openChosenSite(const QString& url) {
    QString name;
    for (const SiteList::Site& site : m_sites.sites())
        if (site.url == url)
            name = site.name;
    openSite(name, url);
}

void SubmissionBrowser::navigate() {
    m_progress->setRange(0, 100);
    m_progress->setValue(0);
    m_progress->show();
    connect(m_iex, &QWebEngineView::loadProgress, m_progress, &QProgressBar::setValue,
            Qt::UniqueConnection);
    m_iex->load(QUrl::fromUserInput(m_session.txtURL));
    m_loadLimit->start();
}

void SubmissionBrowser::setPageLoadLimit(int milliseconds) {
    m_loadLimit->setInterval(milliseconds);
}

void SubmissionBrowser::loadFailed(const QString& why) {
    m_loadLimit->stop();
    m_iex->stop();
    m_progress->hide();
    m_session.EnableControls();
    m_session.SimpleText(why);
}

void SubmissionBrowser::pageLoaded(bool ok) {
    // The "Loading" text shown while the site list is fetched is not a submission page.
    if (m_iex->url().toString() == m_placeholder || m_iex->url().scheme() == u"data")
        return;
    if (!m_loadLimit->isActive() && !ok)
        return; // stopped: loadFailed said why
    m_loadLimit->stop();
    m_progress->hide();
    FillKnownFields();
    m_session.SimpleText(ok ? QString()
                            : QStringLiteral("The page could not be loaded: ") +
                                  m_iex->url().toString());
}

void SubmissionBrowser::FillKnownFields() {
    const auto plan = m_session.knownFields(m_txtUser->text(), m_txtPassword->text());
    // The page answers each script later; the signal follows the last answer.
    auto pending = std::make_shared<int>(static_cast<int>(plan.size()));
    QPointer<SubmissionBrowser> self(this);
    const Done done = [self, pending] {
        if (self && --*pending == 0)
            emit self->knownFieldsFilled();
    };
    for (const KnownInput& input : plan) {
        if (!input.isUpload()) {
            m_iex->page()->runJavaScript(setInputValueScript(input),
                                         [done](const QVariant&) { done(); });
            continue;
        }
        m_iex->page()->runJavaScript(selectInputScript(input),
                                     [self, input, done](const QVariant& found) {
                                         if (self && found.toBool())
                                             self->fillUpload(input, done);
                                         else
                                             done();
                                     });
    }
    m_session.EnableControls();
}

void SubmissionBrowser::fillUpload(const KnownInput& input, const Done& done) {
    // The selected upload field gets the value pasted, as a user would; the clipboard keeps
    // what it held before.
    const QString before = m_prompts.clipboardText();
    m_prompts.setClipboardText(input.value);
    m_iex->page()->triggerAction(QWebEnginePage::Paste);
    m_prompts.setClipboardText(before);
    // A browser takes no typed or pasted path for an upload: the PAD file itself is attached.
    attachPadFile(input, done);
}

void SubmissionBrowser::attachPadFile(const KnownInput& input, const Done& done) {
    const QString path =
        findCreatedPadFile(AppHome(m_homeFolder).padFolder(), m_company, m_program);
    QFile file(path);
    if (path.isEmpty() || !file.open(QIODevice::ReadOnly)) {
        m_session.SimpleText(
            QStringLiteral("No PAD file has been created yet for %1: use Create PAD first")
                .arg(m_program.text(ProgramField::ProgramName)));
        done();
        return;
    }
    const QString shown = QDir::toNativeSeparators(path);
    QPointer<SubmissionBrowser> self(this);
    m_iex->page()->runJavaScript(
        attachFileScript(input, QFileInfo(path).fileName(), file.readAll()),
        [self, shown, done](const QVariant& name) {
            if (self)
                self->m_session.SimpleText(
                    name.toString().isEmpty()
                        ? QStringLiteral("The PAD file could not be attached: ") + shown
                        : QStringLiteral("Attached PAD file: ") + shown);
            done();
        });
}

} // namespace brevaro
