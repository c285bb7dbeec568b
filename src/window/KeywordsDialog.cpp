#include "window/KeywordsDialog.h"

#include "keywords/KeywordSuggester.h"
#include "window/TransferProgressWidget.h"

#include <QAction>
#include <QApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPointer>
#include <QPushButton>
#include <QStatusBar>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace brevaro {

// One entry of the File menu (mnuPAD), and the button that runs the same command.
struct KeywordsDialog::Command {
    int menuIndex;
    const char* button;  // objectName of the button, or none
    const char* caption; // with its mnemonic; none for a separator
    void (KeywordsDialog::*run)();
};

namespace {

const char* const kColumns[] = {"Keywords", "#"};

// The labels and the controls they name; the mnemonic moves the focus to the control.
struct LabelRow {
    const char* name;
    const char* caption;
    const char* controlName; // the accessible name of the control
};
const LabelRow kLabels[] = {
    {"Label1", "Application Home&page:", "Application homepage"},
    {"Label2", "&Words Found on Application Homepage above:", "Words found on the homepage"},
    {"Label3",
     "Suggested/Selected &Keywords, up to max 128 character string:", "Suggested keywords"},
};

QString plain(const char* caption) {
    return QString::fromLatin1(caption).remove(QLatin1Char('&'));
}

} // namespace

KeywordsDialog::KeywordsDialog(KeywordSuggester& suggester, QWidget* parent)
    : QDialog(parent)
    , m_suggester(suggester)
    , m_url(new QLineEdit(this))
    , m_list(new QTreeWidget(this))
    , m_keywords(new QLineEdit(this))
    , m_info(new QLabel(this))
    , m_status(new QStatusBar(this))
    , m_progress(new TransferProgressWidget(this)) {
    setObjectName(QStringLiteral("frmKeywords"));
    setModal(true);
    m_url->setObjectName(QStringLiteral("txtURL"));
    m_list->setObjectName(QStringLiteral("ListView1"));
    m_keywords->setObjectName(QStringLiteral("txtKeywords"));
    m_info->setObjectName(QStringLiteral("lblInfo"));
    m_status->setObjectName(QStringLiteral("StatusBar1"));
    m_info->setAccessibleName(QStringLiteral("Instructions"));
    m_status->setAccessibleName(QStringLiteral("Status"));
    m_status->addPermanentWidget(m_progress);

    m_list->setColumnCount(2);
    QStringList headers;
    for (const char* c : kColumns)
        headers << QString::fromLatin1(c);
    m_list->setHeaderLabels(headers);
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setAllColumnsShowFocus(true);
    m_list->setSortingEnabled(false); // the suggester keeps the order
    m_list->header()->setAccessibleName(QStringLiteral("Sort the words by"));
    m_list->header()->setSectionsClickable(true);
    m_list->header()->setSortIndicatorShown(true);
    m_list->header()->setStretchLastSection(false);
    m_list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_list->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    m_list->headerItem()->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);

    m_info->setText(
        KeywordSuggester::instructions().replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
    m_info->setTextFormat(Qt::PlainText);
    m_info->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_info->setFrameShape(QFrame::StyledPanel);
    m_info->setMargin(6);

    buildCommands();
    buildLayout();

    connect(m_url, &QLineEdit::textEdited, this, [this](const QString& t) { m_suggester.url = t; });
    connect(m_url, &QLineEdit::returnPressed, this, &KeywordsDialog::checkHomepage);
    connect(m_keywords, &QLineEdit::textEdited, this,
            [this](const QString& t) { m_suggester.keywords = t; });
    connect(m_list, &QTreeWidget::itemChanged, this, [this](QTreeWidgetItem* item, int column) {
        if (column == 0)
            m_suggester.setTicked(m_list->indexOfTopLevelItem(item),
                                  item->checkState(0) == Qt::Checked);
    });
    connect(m_list->header(), &QHeaderView::sectionClicked, this, &KeywordsDialog::sortBy);
    connect(&m_suggester, &KeywordSuggester::changed, this, &KeywordsDialog::showModel);
    m_suggester.pump = [] {
        QCoreApplication::processEvents();
    };

    sortBy(1);
    showModel();
}

KeywordsDialog::~KeywordsDialog() {
    m_suggester.pump = nullptr;
}

void KeywordsDialog::buildCommands() {
    static const Command kCommands[] = {
        {0, "cmdRun", "C&heck Homepage", &KeywordsDialog::checkHomepage},
        {1, "cmdBuild", "&Re-Build Keywords", &KeywordsDialog::rebuildKeywords},
        {3, nullptr, nullptr, nullptr},
        {4, "cmdCancel", "&Cancel", &KeywordsDialog::reject},
        {5, "cmdOK", "&OK", &KeywordsDialog::accept},
        {6, nullptr, nullptr, nullptr},
        {7, nullptr, "E&xit", &KeywordsDialog::exitForm},
    };
    auto* bar = new QMenuBar(this);
    bar->setObjectName(QStringLiteral("menuBar"));
    bar->setAccessibleName(QStringLiteral("Menu"));
    QMenu* file = bar->addMenu(QStringLiteral("&File"));
    file->setObjectName(QStringLiteral("mnuFile"));
    for (const Command& c : kCommands) {
        QAction* action =
            c.caption ? file->addAction(QString::fromLatin1(c.caption)) : file->addSeparator();
        action->setObjectName(QStringLiteral("mnuPAD_%1").arg(c.menuIndex));
        if (!c.caption)
            continue;
        connect(action, &QAction::triggered, this, c.run);
        if (!c.button)
            continue;
        auto* button = new QPushButton(action->text(), this);
        button->setObjectName(QString::fromLatin1(c.button));
        button->setAccessibleName(plain(c.caption));
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, action, &QAction::trigger);
        connect(action, &QAction::changed, button,
                [button, action] { button->setEnabled(action->isEnabled()); });
    }
    // The pointer over the commands that stay usable during a fetch stays an arrow.
    bar->setCursor(Qt::ArrowCursor);
    findChild<QPushButton*>(QStringLiteral("cmdCancel"))->setCursor(Qt::ArrowCursor);
}

QAction* KeywordsDialog::command(int menuIndex) const {
    return findChild<QAction*>(QStringLiteral("mnuPAD_%1").arg(menuIndex));
}

void KeywordsDialog::buildLayout() {
    QWidget* buddies[] = {m_url, m_list, m_keywords};
    QLabel* labels[3];
    for (int i = 0; i < 3; ++i) {
        labels[i] = new QLabel(QString::fromLatin1(kLabels[i].caption), this);
        labels[i]->setObjectName(QString::fromLatin1(kLabels[i].name));
        labels[i]->setBuddy(buddies[i]);
        buddies[i]->setAccessibleName(QString::fromLatin1(kLabels[i].controlName));
    }
    auto button = [this](const char* name) {
        return findChild<QPushButton*>(QString::fromLatin1(name));
    };

    auto* urlRow = new QHBoxLayout;
    urlRow->addWidget(labels[0]);
    urlRow->addWidget(m_url, 1);
    auto* closeRow = new QHBoxLayout;
    closeRow->addWidget(button("cmdOK"));
    closeRow->addWidget(button("cmdCancel"));

    // Left: the page, its words and the keywords; right: the commands and the instructions.
    auto* grid = new QGridLayout;
    grid->addLayout(urlRow, 0, 0);
    grid->addWidget(button("cmdRun"), 0, 1);
    grid->addWidget(labels[1], 1, 0);
    grid->addWidget(m_list, 2, 0);
    grid->addWidget(m_info, 2, 1);
    grid->addWidget(labels[2], 3, 0);
    grid->addWidget(m_keywords, 4, 0);
    grid->addWidget(button("cmdBuild"), 4, 1);
    grid->addLayout(closeRow, 5, 1);
    grid->setColumnStretch(0, 1);
    grid->setRowStretch(2, 1);

    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->setSpacing(0);
    outer->setMenuBar(findChild<QMenuBar*>(QStringLiteral("menuBar")));
    auto* body = new QWidget(this);
    body->setLayout(grid);
    outer->addWidget(body, 1);
    outer->addWidget(m_status);

    const QFontMetrics fm = m_list->fontMetrics();
    m_list->setMinimumSize(fm.horizontalAdvance(QLatin1Char('M')) * 20, fm.height() * 12);
    // Opens with room for more words than the smallest size shows.
    resize(sizeHint() + QSize(fm.horizontalAdvance(QLatin1Char('M')) * 6, fm.height() * 6));
}

void KeywordsDialog::setChecking(bool checking) {
    m_checking = checking;
    for (int i : {0, 1, 5})
        command(i)->setEnabled(!checking);
    m_url->setReadOnly(checking);
    m_keywords->setReadOnly(checking);
    m_list->setEnabled(!checking);
    if (checking) {
        setCursor(Qt::BusyCursor);
        m_progress->start();
    } else {
        unsetCursor();
        m_progress->finish();
    }
}

void KeywordsDialog::checkHomepage() {
    if (m_checking)
        return;
    m_list->clear();
    setChecking(true);
    const QPointer<KeywordsDialog> alive(this);
    m_suggester.checkHomepage();
    if (!alive)
        return;
    setChecking(false);
    fillList();
    showModel();
    emit checkFinished();
}

void KeywordsDialog::rebuildKeywords() {
    m_suggester.rebuild();
}

void KeywordsDialog::accept() {
    if (!m_checking)
        QDialog::accept();
}

void KeywordsDialog::reject() {
    m_suggester.cancel();
    QDialog::reject();
}

void KeywordsDialog::exitForm() {
    close();
}

void KeywordsDialog::fillList() {
    const QSignalBlocker block(m_list);
    m_list->clear();
    QList<QTreeWidgetItem*> items;
    for (const KeywordEntry& e : m_suggester.entries()) {
        auto* item = new QTreeWidgetItem(QStringList{e.word, e.countText()});
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item->setCheckState(0, e.ticked ? Qt::Checked : Qt::Unchecked);
        item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
        items << item;
    }
    m_list->addTopLevelItems(items);
}

// The word column sorts ascending, the count column by number, highest first.
void KeywordsDialog::sortBy(int column) {
    m_suggester.sortByColumn(column);
    m_list->header()->setSortIndicator(column,
                                       column == 1 ? Qt::DescendingOrder : Qt::AscendingOrder);
    fillList();
}

void KeywordsDialog::showModel() {
    setWindowTitle(m_suggester.caption);
    if (m_url->text() != m_suggester.url)
        m_url->setText(m_suggester.url);
    if (m_keywords->text() != m_suggester.keywords) {
        m_keywords->setText(m_suggester.keywords);
        m_keywords->home(false); // a built text is read from its start
    }
    m_status->showMessage(m_suggester.status);
    if (m_checking)
        m_progress->setBytes(m_suggester.bytesReceived);
}

} // namespace brevaro
