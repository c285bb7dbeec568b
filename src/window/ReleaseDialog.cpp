#include "window/ReleaseDialog.h"

#include "release/OnlineCheck.h"
#include "release/ReleaseOutputs.h"
#include "session/EditingSession.h"
#include "session/ReleaseSave.h"

#include <QDateEdit>
#include <QDialogButtonBox>
#include <QDir>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTableWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace brevaro {

namespace {

QString oneLine(QString text) {
    return text.replace(QStringLiteral("\r\n"), QStringLiteral("; "))
        .replace(u'\n', QStringLiteral("; "));
}

QTreeWidgetItem* resultRow(QTreeWidget* tree, const QString& what, const QString& detail) {
    auto* item = new QTreeWidgetItem(tree, {what, detail});
    item->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
    item->setToolTip(1, detail);
    return item;
}

} // namespace

ReleaseDialog::ReleaseDialog(EditingSession& session, QWidget* parent)
    : QDialog(parent)
    , m_session(session) {
    setObjectName(QStringLiteral("frmRelease"));
    setWindowTitle(
        QStringLiteral("New Release - %1")
            .arg(session.program().wholeText(static_cast<int>(ProgramField::ProgramName))));
    setAcceptDrops(true);
    buildLayout();
    m_version->setText(proposedVersion(session.program().text(ProgramField::ProgramVersion)));
    connect(m_version, &QLineEdit::textChanged, this, &ReleaseDialog::updatePlan);
    connect(m_date, &QDateEdit::dateChanged, this, &ReleaseDialog::updatePlan);
    connect(m_changes, &QPlainTextEdit::textChanged, this, &ReleaseDialog::updatePlan);
    updatePlan();
}

ReleaseDialog::~ReleaseDialog() = default;

void ReleaseDialog::buildLayout() {
    auto* files = new QGroupBox(QStringLiteral("&Distribution files"), this);
    m_fileList = new QListWidget(files);
    m_fileList->setObjectName(QStringLiteral("lstReleaseFiles"));
    m_fileList->setToolTip(QStringLiteral("The primary download first, then the secondary and "
                                          "the two additional ones; drop files here"));
    m_fileList->setMaximumHeight(m_fileList->fontMetrics().lineSpacing() * 5);
    auto* add = new QPushButton(QStringLiteral("&Add..."), files);
    add->setObjectName(QStringLiteral("cmdReleaseAdd"));
    auto* remove = new QPushButton(QStringLiteral("&Remove"), files);
    remove->setObjectName(QStringLiteral("cmdReleaseRemove"));
    connect(add, &QPushButton::clicked, this, &ReleaseDialog::chooseFiles);
    connect(remove, &QPushButton::clicked, this, &ReleaseDialog::removeFile);
    auto* fileButtons = new QVBoxLayout;
    fileButtons->addWidget(add);
    fileButtons->addWidget(remove);
    fileButtons->addStretch();
    auto* fileRow = new QHBoxLayout(files);
    fileRow->addWidget(m_fileList, 1);
    fileRow->addLayout(fileButtons);

    m_version = new QLineEdit(this);
    m_version->setObjectName(QStringLiteral("txtReleaseVersion"));
    m_version->setMaxLength(
        programLayout().field(static_cast<int>(ProgramField::ProgramVersion)).width);
    m_date = new QDateEdit(QDate::currentDate(), this);
    m_date->setObjectName(QStringLiteral("dtpReleaseDate"));
    m_date->setDisplayFormat(QStringLiteral("yyyy-MM-dd"));
    m_date->setCalendarPopup(true);
    m_changes = new QPlainTextEdit(this);
    m_changes->setObjectName(QStringLiteral("txtReleaseChanges"));
    m_changes->setPlaceholderText(QStringLiteral("Empty: the change information stays as it is"));
    m_changes->setMaximumHeight(m_changes->fontMetrics().lineSpacing() * 4);
    auto* form = new QFormLayout;
    auto* versionLabel = new QLabel(QStringLiteral("&Version:"), this);
    versionLabel->setBuddy(m_version);
    auto* dateLabel = new QLabel(QStringLiteral("Da&te:"), this);
    dateLabel->setBuddy(m_date);
    auto* changesLabel = new QLabel(QStringLiteral("C&hange notes:"), this);
    changesLabel->setBuddy(m_changes);
    form->addRow(versionLabel, m_version);
    form->addRow(dateLabel, m_date);
    form->addRow(changesLabel, m_changes);

    m_table = new QTableWidget(0, 3, this);
    m_table->setObjectName(QStringLiteral("grdReleaseChanges"));
    m_table->setHorizontalHeaderLabels(
        {QStringLiteral("Field"), QStringLiteral("Before"), QStringLiteral("After")});
    m_table->horizontalHeader()->setStretchLastSection(true);
    m_table->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
    m_table->verticalHeader()->hide();
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_notes = new QLabel(this);
    m_notes->setObjectName(QStringLiteral("lblReleaseNotes"));
    m_notes->setWordWrap(true);

    m_results = new QTreeWidget(this);
    m_results->setObjectName(QStringLiteral("lstReleaseResults"));
    m_results->setHeaderLabels(
        {QStringLiteral("Result"), QStringLiteral("File, address or finding")});
    m_results->setRootIsDecorated(false);
    m_results->header()->setStretchLastSection(true);
    m_progress = new QProgressBar(this);
    m_progress->setObjectName(QStringLiteral("barRelease"));
    m_progress->setTextVisible(false);
    m_progress->hide();
    m_status = new QLabel(this);
    m_status->setObjectName(QStringLiteral("lblReleaseStatus"));

    auto* buttons = new QDialogButtonBox(this);
    m_apply = buttons->addButton(QStringLiteral("A&pply"), QDialogButtonBox::AcceptRole);
    m_apply->setObjectName(QStringLiteral("cmdReleaseApply"));
    m_verify = buttons->addButton(QStringLiteral("Verify &Online"), QDialogButtonBox::ActionRole);
    m_verify->setObjectName(QStringLiteral("cmdReleaseVerify"));
    m_close = buttons->addButton(QDialogButtonBox::Close);
    m_close->setObjectName(QStringLiteral("cmdReleaseClose"));
    // Apply and Verify run in place; the dialog stays open to show what they did.
    disconnect(buttons, &QDialogButtonBox::accepted, this, nullptr);
    connect(m_apply, &QPushButton::clicked, this, &ReleaseDialog::apply);
    connect(m_verify, &QPushButton::clicked, this, &ReleaseDialog::verifyOnline);
    connect(m_close, &QPushButton::clicked, this, &ReleaseDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(files);
    layout->addLayout(form);
    layout->addWidget(new QLabel(QStringLiteral("Changes:"), this));
    layout->addWidget(m_table, 3);
    layout->addWidget(m_notes);
    layout->addWidget(m_results, 2);
    auto* statusRow = new QHBoxLayout;
    statusRow->addWidget(m_status, 1);
    statusRow->addWidget(m_progress);
    layout->addLayout(statusRow);
    layout->addWidget(buttons);
    resize(780, 720);
}

void ReleaseDialog::addFiles(const QStringList& paths) {
    QStringList problems;
    for (const QString& path : paths) {
        if (m_files.size() >= static_cast<std::size_t>(kReleaseFiles)) {
            problems << QStringLiteral("a program has %1 download addresses").arg(kReleaseFiles);
            break;
        }
        DistributionFile file;
        QString error;
        if (!readDistributionFile(path, &file, &error)) {
            problems << error;
            continue;
        }
        m_files.push_back(file);
        auto* item = new QListWidgetItem(
            QStringLiteral("%1  (%2 bytes)").arg(file.name).arg(file.size), m_fileList);
        item->setToolTip(QDir::toNativeSeparators(file.path) + QStringLiteral("\nSHA-256 ") +
                         file.sha256);
    }
    m_status->setText(problems.join(QStringLiteral("; ")));
    updatePlan();
}

void ReleaseDialog::chooseFiles() {
    addFiles(
        QFileDialog::getOpenFileNames(this, QStringLiteral("Distribution files"), outputFolder()));
}

void ReleaseDialog::removeFile() {
    const int row = m_fileList->currentRow();
    if (row < 0)
        return;
    delete m_fileList->takeItem(row);
    m_files.erase(m_files.begin() + row);
    updatePlan();
}

void ReleaseDialog::dragEnterEvent(QDragEnterEvent* event) {
    if (event->mimeData()->hasUrls())
        event->acceptProposedAction();
}

void ReleaseDialog::dropEvent(QDropEvent* event) {
    QStringList paths;
    for (const QUrl& url : event->mimeData()->urls())
        if (url.isLocalFile())
            paths << url.toLocalFile();
    addFiles(paths);
    event->acceptProposedAction();
}

ReleaseInput ReleaseDialog::input() const {
    ReleaseInput in{m_version->text(), m_files, m_date->date(), std::nullopt};
    if (!m_changes->toPlainText().trimmed().isEmpty())
        in.changes = m_changes->toPlainText().trimmed();
    return in;
}

void ReleaseDialog::updatePlan() {
    const ReleaseInput in = input();
    const QString problem = releaseInputProblem(in);
    m_table->setRowCount(0);
    if (!problem.isEmpty()) {
        m_plan = ReleasePlan{m_session.program(), {}, {}};
        m_notes->setText(problem.left(1).toUpper() + problem.mid(1) + u'.');
        m_apply->setEnabled(false);
        m_verify->setEnabled(false);
        return;
    }
    m_plan = planRelease(m_session.program(), in);
    m_table->setRowCount(static_cast<int>(m_plan.changes.size()));
    for (int row = 0; row < m_table->rowCount(); ++row) {
        const ReleaseChange& c = m_plan.changes[static_cast<std::size_t>(row)];
        m_table->setItem(row, 0, new QTableWidgetItem(c.caption));
        m_table->item(row, 0)->setToolTip(c.field);
        m_table->setItem(row, 1, new QTableWidgetItem(oneLine(c.before)));
        m_table->setItem(row, 2, new QTableWidgetItem(oneLine(c.after)));
    }
    m_table->resizeColumnToContents(0);
    QStringList notes = m_plan.notes;
    if (m_plan.changes.empty())
        notes.prepend(QStringLiteral("Nothing changes: the program is already at this release."));
    m_notes->setText(notes.join(u' '));
    m_apply->setEnabled(!m_verifying);
    m_verify->setEnabled(!m_verifying);
}

QString ReleaseDialog::outputFolder() const {
    return programOutputFolder(m_session.store().home().padFolder(), m_session.company());
}

void ReleaseDialog::setBusy(bool busy) {
    m_apply->setEnabled(!busy);
    m_verify->setEnabled(!busy);
    m_fileList->setEnabled(!busy);
    m_progress->setVisible(busy);
    m_close->setText(busy ? QStringLiteral("&Stop") : QStringLiteral("&Close"));
    busy ? setCursor(Qt::BusyCursor) : unsetCursor();
}

void ReleaseDialog::apply() {
    if (m_apply->isEnabled() == false)
        return;
    m_results->clear();
    m_progress->setRange(0, 3);
    m_progress->setValue(0);
    setBusy(true);
    const ReleasePlan plan = m_plan;
    if (!plan.changes.empty()) {
        m_status->setText(QStringLiteral("Saving the program..."));
        const CommandResult saved = saveRelease(m_session, plan.program);
        if (!saved.isDone()) {
            setBusy(false);
            m_status->setText(QStringLiteral("Nothing was saved or written: %1").arg(saved.reason));
            return;
        }
    }
    m_progress->setValue(1);
    m_status->setText(QStringLiteral("Writing every format..."));
    const std::vector<Output> outputs = buildAllOutputs(m_session.company(), m_session.program(),
                                                        m_session.text(u"lblOrganization", 0));
    m_progress->setValue(2);
    std::vector<WrittenFile> written;
    QString error;
    const bool ok = writeOutputFiles(outputFolder(), outputs, &written, &error);
    for (const WrittenFile& w : written)
        resultRow(m_results, w.changed ? QStringLiteral("written") : QStringLiteral("unchanged"),
                  QDir::toNativeSeparators(w.path));
    int errors = 0;
    for (const Output& o : outputs)
        for (const OutputFinding& f : o.findings) {
            const bool isError = f.severity == OutputFinding::Severity::Error;
            errors += isError ? 1 : 0;
            QTreeWidgetItem* row = resultRow(
                m_results, isError ? QStringLiteral("error") : QStringLiteral("warning"),
                QStringLiteral("%1: %2%3")
                    .arg(f.output, f.field.isEmpty() ? QString() : f.field + QStringLiteral(": "),
                         f.message));
            if (isError)
                row->setForeground(0, QColor(Qt::red));
        }
    m_progress->setValue(3);
    setBusy(false);
    m_results->resizeColumnToContents(0);
    if (!ok)
        m_status->setText(error);
    else if (errors > 0)
        m_status->setText(QStringLiteral("Released, but %1 error(s) will make a directory or "
                                         "store refuse a file: see the list.")
                              .arg(errors));
    else
        m_status->setText(QStringLiteral("Released %1: %2 file(s) written into %3.")
                              .arg(m_session.program().text(ProgramField::ProgramVersion))
                              .arg(std::count_if(written.begin(), written.end(),
                                                 [](const WrittenFile& w) { return w.changed; }))
                              .arg(QDir::toNativeSeparators(outputFolder())));
    // The table keeps what was applied; a change of the input plans again from the saved
    // program.
    m_plan = planRelease(m_session.program(), input());
    m_notes->setText(
        plan.changes.empty()
            ? QStringLiteral("Nothing changed: the program was already at this release.")
            : QStringLiteral("Applied: the changes above are saved."));
    m_apply->setEnabled(false);
    emit applied();
}

void ReleaseDialog::verifyOnline() {
    if (m_verifying || m_files.empty())
        return;
    const QString padPath =
        QDir(outputFolder())
            .filePath(QFileInfo(buildOutput(OutputFormat::Pad115, m_session.company(),
                                            m_plan.program, QString())
                                    .files.front()
                                    .fileName)
                          .fileName());
    std::vector<OnlineTarget> targets =
        onlineTargets(m_plan.program, m_files, QFileInfo::exists(padPath) ? padPath : QString());
    if (!targets.empty() && targets.back().localPath.isEmpty())
        targets.pop_back(); // the PAD file is compared once it is written
    m_results->clear();
    if (targets.empty()) {
        m_status->setText(QStringLiteral("The release has no address to verify."));
        return;
    }
    m_verifying = true;
    setBusy(true);
    m_progress->setRange(0, static_cast<int>(targets.size()));
    OnlineCheck check;
    m_check = &check;
    connect(&check, &OnlineCheck::progress, this, [this](int index, int count, const QString& url) {
        m_progress->setValue(index);
        m_status->setText(
            QStringLiteral("Fetching %1 of %2: %3").arg(index + 1).arg(count).arg(url));
    });
    const std::vector<OnlineResult> results = check.run(targets);
    m_check = nullptr;
    m_verifying = false;
    for (const OnlineResult& r : results) {
        QTreeWidgetItem* row =
            resultRow(m_results, outcomeName(r.outcome), r.url + QStringLiteral(" - ") + r.detail);
        if (r.outcome != OnlineResult::Outcome::Matches)
            row->setForeground(0, QColor(Qt::red));
    }
    m_results->resizeColumnToContents(0);
    setBusy(false);
    m_progress->setValue(m_progress->maximum());
    m_status->setText(allMatch(results) ? QStringLiteral("Every address serves its file.")
                                        : QStringLiteral("Not every address serves its file: see "
                                                         "the list."));
    updatePlan();
    emit verified();
}

void ReleaseDialog::reject() {
    if (m_verifying && m_check) {
        m_check->cancel();
        return;
    }
    QDialog::reject();
}

} // namespace brevaro
