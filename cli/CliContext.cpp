#include "CliContext.h"

#include "platform/StringHelpers.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QThread>

namespace brevaro::cli {

namespace {

int pick(const QStringList& names, const QString& which, const QString& what) {
    bool isNumber = false;
    const int n = which.toInt(&isNumber);
    if (isNumber && n >= 1 && n <= names.size())
        return n;
    const qsizetype at = names.indexOf(which);
    if (at >= 0)
        return static_cast<int>(at) + 1;
    throw CliError{2, QStringLiteral("there is no %1 \"%2\"").arg(what, which)};
}

} // namespace

CliContext::CliContext(AppHome home, QIODevice& in, QIODevice& out, QIODevice& err)
    : m_store(home)
    , m_lock(home)
    , m_in(in)
    , m_out(out)
    , m_err(err) {}

void CliContext::warn(const QString& text) {
    m_err.write((QStringLiteral("brevaro-cli: warning: ") + escapeControls(text) + u'\n').toUtf8());
}

void CliContext::warnAboutDamage(int companyId) {
    if (m_warned)
        return;
    m_warned = true;
    for (const QString& problem : m_store.damage(companyId))
        warn(problem);
}

void CliContext::warnAboutProgramFile(int companyId) {
    if (const QString problem = m_store.programFile(companyId).damage(); !problem.isEmpty())
        warn(problem);
}

void CliContext::lockForWriting() {
    if (m_lock.isLocked())
        return;
    QString message;
    if (!m_lock.acquire(&message))
        throw CliError{2, message};
    if (!m_store.completeInterruptedDeletion())
        throw CliError{2, m_store.errorString()};
    for (const QString& line : m_store.clearCrashLeftovers())
        warn(line);
    warnAboutDamage();
    // From here on the command's changes are gathered and written together by finish(), and
    // what it prints waits for them: a pipeline never reads of a record that was not saved.
    m_store.beginBatch();
    m_holdOutput = true;
}

void CliContext::finish() {
    if (!m_store.commitBatch())
        throw CliError{2,
                       QStringLiteral("the changes could not be saved: ") + m_store.errorString()};
    m_out.write(m_heldOutput);
    m_heldOutput.clear();
    m_holdOutput = false;
}

void CliContext::printBytes(const QByteArray& bytes) {
    if (m_holdOutput)
        m_heldOutput += bytes;
    else
        m_out.write(bytes);
}

namespace {

// Changes when a writer replaces the company file (a deletion always shortens it), and while
// a deletion or a save of several files is under way.
struct CompanyFileStamp {
    bool intent = false;
    qint64 size = -1;
    QDateTime modified;
    bool operator==(const CompanyFileStamp&) const = default;
};

CompanyFileStamp stampOf(const AppHome& home) {
    const QFileInfo info(home.companyFile());
    return {QFileInfo::exists(home.deletionIntentFile()) ||
                QFileInfo::exists(home.saveIntentFile()),
            info.exists() ? info.size() : -1, info.lastModified()};
}

constexpr int kWaitStepMs = 20;
constexpr int kWaitLimitMs = 10'000;

} // namespace

// A deletion that another writer runs is waited for; one that nobody runs is completed.
void CliContext::waitForDeletion() {
    const auto pending = [this] {
        return QFile::exists(home().deletionIntentFile()) || QFile::exists(home().saveIntentFile());
    };
    for (int waited = 0; pending(); waited += kWaitStepMs) {
        if (m_lock.isLocked())
            return;
        QString message;
        if (m_lock.acquire(&message)) {
            if (!m_store.completeInterruptedDeletion())
                throw CliError{2, m_store.errorString()};
            return;
        }
        if (waited >= kWaitLimitMs)
            throw CliError{2, message};
        QThread::msleep(kWaitStepMs);
    }
}

void CliContext::prepareForReading(int companyId) {
    const QFileInfo root(home().root());
    if (root.exists() && !root.isDir())
        throw CliError{2, QStringLiteral("the home %1 is not a folder")
                              .arg(QDir::toNativeSeparators(home().root()))};
    waitForDeletion();
    warnAboutDamage(companyId);
}

QByteArray CliContext::readStable(const std::function<QByteArray()>& read) {
    for (int waited = 0;; waited += kWaitStepMs) {
        waitForDeletion();
        const CompanyFileStamp before = stampOf(home());
        QByteArray out = read();
        const CompanyFileStamp after = stampOf(home());
        if (m_lock.isLocked() || (!after.intent && after == before))
            return out;
        if (waited >= kWaitLimitMs)
            throw CliError{2, QStringLiteral("The data in %1 is in use by another Brevaro "
                                             "window or command. Close it and try again.")
                                  .arg(home().root())};
        QThread::msleep(kWaitStepMs);
    }
}

EditingSession& CliContext::session() {
    if (!m_session) {
        lockForWriting();
        m_session = std::make_unique<EditingSession>(m_store, m_prompts);
        m_session->Start();
        failOnMessages();
    }
    return *m_session;
}

EditingSession& CliContext::readingSession() {
    if (!m_session) {
        prepareForReading();
        m_session = std::make_unique<EditingSession>(m_store, m_prompts);
        m_session->Start();
        failOnMessages();
    }
    return *m_session;
}

void CliContext::select(int company, int program) {
    ScreenModel& screen = session().screen();
    screen.setListIndex(screen.id(u"cboCompanyName"), company - 1);
    if (program > 0)
        screen.setListIndex(screen.id(u"cboProgramName"), program - 1);
    failOnMessages();
}

void CliContext::failOnMessages() {
    if (m_prompts.messages.isEmpty())
        return;
    const QString text = m_prompts.messages.join(QStringLiteral(" "));
    // A failed save is told in the store's own words; the window's text speaks of its screen.
    const QString stored = m_store.errorString();
    if (!stored.isEmpty() && text.contains(stored))
        throw CliError{2, QStringLiteral("the changes could not be saved: ") + stored};
    throw CliError{2, text.simplified()};
}

int CliContext::companyId(int company) {
    CompanyRecord record;
    m_store.readCompany(company, record);
    return record.number(CompanyField::CompanyID);
}

int CliContext::company(const QString& which) {
    return pick(m_store.companyNames(), which, QStringLiteral("company"));
}

int CliContext::program(int company, const QString& which) {
    return pick(m_store.programNames(company), which, QStringLiteral("program"));
}

} // namespace brevaro::cli
