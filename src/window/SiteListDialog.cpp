#include "window/SiteListDialog.h"

#include "platform/StringHelpers.h"
#include "submission/SiteList.h"
#include "window/TransferProgressWidget.h"

#include <QAction>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenuBar>
#include <QPointer>
#include <QStatusBar>
#include <QTimer>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <functional>

namespace brevaro {

namespace {

const char* const kColumns[] = {"#", "Shareware Directories", "URL"};

// The File menu: objectName, caption with its mnemonic (none: a separator).
struct MenuItem {
    const char* name;
    const char* caption;
};
const MenuItem kMenu[] = {
    {"mnuUpdate", "&Download Latest Directory Listing"},
    {"mnuBar01", nullptr},
    {"mnuExit", "E&xit"},
};

} // namespace

SiteListDialog::SiteListDialog(SiteList& list, QWidget* parent)
    : QDialog(parent)
    , m_list(list)
    , m_view(new QTreeWidget(this))
    , m_count(new QLabel(this))
    , m_status(new QStatusBar(this))
    , m_progress(new TransferProgressWidget(this)) {
    setObjectName(QStringLiteral("frmSharewareSites"));
    setWindowTitle(QStringLiteral("Shareware Directory Listing"));
    setModal(true);
    m_view->setObjectName(QStringLiteral("ListView1"));
    m_view->setAccessibleName(QStringLiteral("Shareware Directories"));
    m_view->setToolTip(QStringLiteral("Doubleclick to Open"));
    m_count->setObjectName(QStringLiteral("lblNo"));
    m_count->setAccessibleName(QStringLiteral("Number of directories"));
    m_status->setObjectName(QStringLiteral("StatusBar1"));
    m_status->setAccessibleName(QStringLiteral("Status"));
    m_status->addPermanentWidget(m_progress);

    QStringList headers;
    for (const char* c : kColumns)
        headers << QString::fromLatin1(c);
    m_view->setHeaderLabels(headers);
    m_view->setRootIsDecorated(false);
    m_view->setUniformRowHeights(true);
    m_view->setAllColumnsShowFocus(true);
    m_view->setSortingEnabled(false); // the site list keeps the order
    m_view->header()->setAccessibleName(QStringLiteral("Sort the directories by"));
    m_view->header()->setSectionsClickable(true);
    m_view->header()->setSortIndicatorShown(true);
    m_view->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    m_view->headerItem()->setTextAlignment(0, Qt::AlignRight | Qt::AlignVCenter);

    buildMenu();
    buildLayout();

    connect(m_view->header(), &QHeaderView::sectionClicked, this, &SiteListDialog::sortBy);
    connect(m_view, &QTreeWidget::itemClicked, this,
            [this](QTreeWidgetItem* item) { showStatus(trimBlanks(item->text(1))); });
    connect(m_view, &QTreeWidget::itemDoubleClicked, this, &SiteListDialog::chooseSite);
    // Enter on the current entry opens it as a double-click does.
    auto* open = new QAction(m_view);
    open->setShortcuts({QKeySequence(Qt::Key_Return), QKeySequence(Qt::Key_Enter)});
    open->setShortcutContext(Qt::WidgetShortcut);
    m_view->addAction(open);
    connect(open, &QAction::triggered, this, [this] {
        if (QTreeWidgetItem* item = m_view->currentItem())
            chooseSite(item);
    });
    connect(&m_list, &SiteList::listChanged, this, &SiteListDialog::fillList);
    connect(&m_list, &SiteList::changed, this, &SiteListDialog::showModel);
    fillList();
    showModel();
}

void SiteListDialog::buildMenu() {
    auto* bar = new QMenuBar(this);
    bar->setObjectName(QStringLiteral("menuBar"));
    bar->setAccessibleName(QStringLiteral("Menu"));
    bar->setCursor(Qt::ArrowCursor);
    QMenu* file = bar->addMenu(QStringLiteral("&File"));
    file->setObjectName(QStringLiteral("mnuFile"));
    for (const MenuItem& m : kMenu) {
        QAction* action =
            m.caption ? file->addAction(QString::fromLatin1(m.caption)) : file->addSeparator();
        action->setObjectName(QString::fromLatin1(m.name));
    }
    m_update = findChild<QAction*>(QStringLiteral("mnuUpdate"));
    m_exit = findChild<QAction*>(QStringLiteral("mnuExit"));
    connect(m_update, &QAction::triggered, this, &SiteListDialog::download);
    connect(m_exit, &QAction::triggered, this, &QDialog::close);
}

void SiteListDialog::buildLayout() {
    auto* caption = new QLabel(QStringLiteral("Directories listed:"), this);
    caption->setObjectName(QStringLiteral("lblNoCaption"));
    caption->setBuddy(m_view);
    auto* countRow = new QHBoxLayout;
    countRow->addWidget(caption);
    countRow->addWidget(m_count);
    countRow->addStretch(1);

    auto* body = new QWidget(this);
    auto* inner = new QVBoxLayout(body);
    inner->addWidget(m_view, 1);
    inner->addLayout(countRow);

    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->setSpacing(0);
    outer->setMenuBar(findChild<QMenuBar*>(QStringLiteral("menuBar")));
    outer->addWidget(body, 1);
    outer->addWidget(m_status);

    const QFontMetrics fm = m_view->fontMetrics();
    m_view->setMinimumSize(fm.horizontalAdvance(QLatin1Char('M')) * 32, fm.height() * 10);
    resize(sizeHint().expandedTo(
        QSize(fm.horizontalAdvance(QLatin1Char('M')) * 64, fm.height() * 26)));
}

void SiteListDialog::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (m_loaded)
        return;
    m_loaded = true;
    // Loading the window: fetch the list when there is no list file yet, else read it. Run
    // once the window is on screen, so that a download shows its progress.
    QTimer::singleShot(0, this, [this] { runDownload([this] { m_list.open(); }); });
}

void SiteListDialog::download() {
    runDownload([this] { m_list.Download(); });
}

void SiteListDialog::runDownload(const std::function<void()>& what) {
    if (m_downloading)
        return;
    m_downloading = true;
    m_update->setEnabled(false);
    m_exit->setEnabled(false);
    setCursor(Qt::BusyCursor);
    m_progress->start();
    const QPointer<SiteListDialog> alive(this);
    what();
    if (!alive)
        return;
    m_downloading = false;
    m_progress->finish();
    unsetCursor();
    m_update->setEnabled(true);
    m_exit->setEnabled(true);
    emit loadFinished();
}

void SiteListDialog::reject() {
    if (!m_downloading)
        QDialog::reject();
}

void SiteListDialog::fillList() {
    // A freshly loaded list is in its own order, which no column header stands for.
    if (!m_sorting)
        m_view->header()->setSortIndicator(-1, Qt::AscendingOrder);
    m_view->clear();
    QList<QTreeWidgetItem*> items;
    for (const SiteList::Site& s : m_list.sites()) {
        auto* item = new QTreeWidgetItem(QStringList{s.number, s.name, s.url});
        item->setTextAlignment(0, Qt::AlignRight | Qt::AlignVCenter);
        items << item;
    }
    m_view->addTopLevelItems(items);
    m_view->resizeColumnToContents(1);
}

// Directory names sort descending, the numbers and addresses ascending, all as text.
void SiteListDialog::sortBy(int column) {
    m_view->header()->setSortIndicator(column,
                                       column == 1 ? Qt::DescendingOrder : Qt::AscendingOrder);
    m_sorting = true;
    m_list.sortByColumn(column);
    m_sorting = false;
}

void SiteListDialog::showModel() {
    m_count->setText(m_list.lblNo);
    m_status->showMessage(m_list.status);
    if (m_downloading)
        m_progress->setBytes(m_list.bytesReceived);
}

void SiteListDialog::showStatus(const QString& text) {
    m_list.status = text;
    m_status->showMessage(text);
}

void SiteListDialog::chooseSite(QTreeWidgetItem* item) {
    const int row = m_view->indexOfTopLevelItem(item);
    if (row < 0 || row >= static_cast<int>(m_list.sites().size()))
        return;
    const SiteList::Site& site = m_list.sites()[std::size_t(row)];
    m_siteName = trimBlanks(site.name);
    m_siteUrl = trimBlanks(site.url);
    showStatus(QStringLiteral("Opening: ") + m_siteName);
    emit siteChosen(m_siteUrl);
    emit directoryChosen(m_siteName, m_siteUrl);
    done(QDialog::Accepted);
}

} // namespace brevaro
