#include "CliContext.h"

#include <QFile>

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

CliContext::CliContext(AppHome home, QIODevice& in, QIODevice& out)
    : m_store(home)
    , m_lock(home)
    , m_in(in)
    , m_out(out) {}

void CliContext::lockForWriting() {
    QString message;
    if (!m_lock.acquire(&message))
        throw CliError{2, message};
    if (!m_store.completeInterruptedDeletion())
        throw CliError{2, QStringLiteral("an interrupted deletion cannot be completed: ") +
                              m_store.errorString()};
}

void CliContext::prepareForReading() {
    if (QFile::exists(home().deletionIntentFile()))
        lockForWriting();
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

void CliContext::select(int company, int program) {
    ScreenModel& screen = session().screen();
    screen.setListIndex(screen.id(u"cboCompanyName"), company - 1);
    if (program > 0)
        screen.setListIndex(screen.id(u"cboProgramName"), program - 1);
    failOnMessages();
}

void CliContext::failOnMessages() {
    if (!m_prompts.messages.isEmpty())
        throw CliError{2, m_prompts.messages.join(QStringLiteral(" ")).simplified()};
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
