#include "session/RecordSideCommands.h"

#include "platform/StringHelpers.h"
#include "session/ScreenTransfer.h"
#include "session/SessionCore.h"

namespace brevaro {

namespace {

struct Side {
    const char16_t* selector;
    const char16_t* position;
    const char16_t* firstField;
    const char* question;
    const char* title;
    bool SessionState::*pending;
    int SessionState::*count;
    int SessionState::*current;
};

const Side& sideOf(RecordSide side) {
    static const Side company{u"cboCompanyName",
                              u"lblCompanyRecord",
                              u"txtAddress1",
                              "Enter new Company Name, or if you don't have a company, your "
                              "First and Last name: ",
                              "New Company",
                              &SessionState::NewCompanyPending,
                              &SessionState::CompanyCount,
                              &SessionState::CurrentCompanyNo};
    static const Side program{u"cboProgramName",
                              u"lblProgramRecord",
                              u"txtProgramVersion",
                              "Enter new Program Name:",
                              "New Program",
                              &SessionState::NewProgramPending,
                              &SessionState::ProgramCount,
                              &SessionState::CurrentProgramNo};
    return side == RecordSide::Company ? company : program;
}

} // namespace

RecordSideCommands::RecordSideCommands(SessionCore& core, ScreenTransfer& transfer, RecordSide side)
    : m_core(core)
    , m_transfer(transfer)
    , m_side(side) {}

std::optional<QString> RecordSideCommands::askName() {
    const Side& s = sideOf(m_side);
    const auto answer = m_core.prompts.inputBox(QString::fromUtf8(s.question),
                                                QString::fromUtf8(s.title), QString());
    const QString name = trimBlanks(answer.value_or(QString()));
    if (name.isEmpty())
        return std::nullopt;
    return name;
}

void RecordSideCommands::create(const QString& name, int storedCount) {
    if (trimBlanks(name).isEmpty())
        return;
    const Side& s = sideOf(m_side);
    const bool company = m_side == RecordSide::Company;
    company ? m_transfer.EnableCompanyFields(true) : m_transfer.EnableProgramFields(true);
    SessionState& state = m_core.state;
    state.*s.pending = true;
    state.*s.count = storedCount + 1;
    state.*s.current = state.*s.count;
    if (company) {
        m_transfer.ClearCompanyScreen();
        m_transfer.ClearCompanyRecord();
    } else {
        m_transfer.ClearProgramScreen();
        m_transfer.ClearProgramRecord();
    }
    const int selector = m_core.id(s.selector);
    m_core.screen.addItem(selector, name);
    m_core.screen.setText(selector, name);
    showPosition(state.*s.current,
                 company ? state.CompanyCount : m_core.screen.at(selector).items.size());
    m_core.screen.requestFocus(m_core.id(s.firstField));
}

void RecordSideCommands::showPosition(int current, qsizetype count) {
    m_core.screen.setCaption(m_core.id(sideOf(m_side).position),
                             QStringLiteral("%1 of %2").arg(current).arg(count));
}

} // namespace brevaro
