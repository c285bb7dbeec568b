#include "session/SessionNavigation.h"

#include "AppVersion.h"
#include "platform/StringHelpers.h"
#include "session/CompanyCommands.h"
#include "session/ProgramCommands.h"
#include "session/ScreenTransfer.h"
#include "session/SessionCore.h"

namespace brevaro {

namespace {
const QString kModified = QStringLiteral(" (MODIFIED) ");
}

SessionNavigation::SessionNavigation(SessionCore& core, CompanyCommands& companies,
                                     ProgramCommands& programs, ScreenTransfer& transfer)
    : m_core(core)
    , m_state(core.state)
    , m_companies(companies)
    , m_programs(programs)
    , m_transfer(transfer) {}

bool SessionNavigation::isCompanyDirty() {
    if (!m_state.CompanyDirty || m_state.ImportInProgress)
        return true;
    const QString name = m_core.company.trimText(CompanyField::CompanyName);
    if (!m_core.prompts.askYesNo(name + QStringLiteral(" not saved"),
                                 QStringLiteral("Do you want to save ") + name + u'?',
                                 Prompts::Icon::Question))
        return true;
    return m_companies.SaveCompany().isDone();
}

bool SessionNavigation::isProgramDirty() {
    if (!m_state.ProgramDirty || m_state.ImportInProgress)
        return true;
    const QString name = m_core.program.trimText(ProgramField::ProgramName);
    if (!m_core.prompts.askYesNo(name + QStringLiteral(" Company not saved"),
                                 QStringLiteral("Do you want to save ") + name + u'?',
                                 Prompts::Icon::Question))
        return true;
    m_transfer.ScreenToProgram();
    if (!m_programs.WriteCurrentProgram())
        return false;
    SetProgramClean();
    return true;
}

// A modified record locks its selector, so no other record can be chosen until it is saved.
void SessionNavigation::setModified(QStringView selector, bool& flag, bool modified) {
    m_core.screen.setEnabled(m_core.id(selector), !modified);
    flag = modified;
    UpdateCaption();
}

void SessionNavigation::SetCompanyDirty() {
    setModified(u"cboCompanyName", m_state.CompanyDirty, true);
}
void SessionNavigation::SetCompanyClean() {
    setModified(u"cboCompanyName", m_state.CompanyDirty, false);
}
void SessionNavigation::SetProgramDirty() {
    setModified(u"cboProgramName", m_state.ProgramDirty, true);
}
void SessionNavigation::SetProgramClean() {
    setModified(u"cboProgramName", m_state.ProgramDirty, false);
}

void SessionNavigation::UpdateCaption() {
    QString extra;
    UpdateCaption(extra);
}

void SessionNavigation::UpdateCaption(QString& extra) {
    if (!trimBlanks(extra).isEmpty())
        extra = QStringLiteral(" > (") + extra + u')';
    const QString companyMarker = m_state.CompanyDirty ? kModified : QString();
    const QString programMarker = m_state.ProgramDirty ? kModified : QString();
    ProgramRecord& p = m_core.program;
    const QString caption =
        QLatin1String(kAppTitle) + u' ' + m_core.appVersionText + QStringLiteral(" - [") +
        m_core.company.trimText(CompanyField::CompanyName) + companyMarker + QStringLiteral(" - ") +
        p.trimText(ProgramField::ProgramName) + u' ' + p.trimText(ProgramField::ProgramVersion) +
        programMarker + QStringLiteral("] ") + extra;
    m_core.screen.setCaption(m_core.id(u"frmStart"), caption);
}

void SessionNavigation::SimpleText(const QString& text) {
    m_core.screen.setCaption(m_core.id(u"StatusBar1"), text);
}

void SessionNavigation::LoadCompanyProgramOnly() {
    ProgramCommands& programs = m_programs;
    m_core.screen.setItems(m_core.id(u"cboProgramName"), {});
    m_transfer.ClearProgramScreen();
    m_transfer.ClearProgramRecord();
    programs.OpenPrograms();
    programs.ReadCurrentProgram();
    programs.LoadProgramList();
    m_transfer.ProgramToScreen();
    programs.ShowProgramPosition();
}

void SessionNavigation::companySelected() {
    ScreenModel& screen = m_core.screen;
    const int selector = m_core.id(u"cboCompanyName");
    const int index = screen.at(selector).listIndex;
    if (index < 0)
        return;
    // The program on screen belongs to the company being left: offer to save it first. When
    // a save fails, the records stay on screen and the selector goes back to them.
    if (!isCompanyDirty() || !isProgramDirty()) {
        screen.restoreListIndex(selector, m_state.CurrentCompanyNo - 1);
        return;
    }
    m_state.CurrentCompanyNo = index + 1;
    m_companies.ShowCurrentCompany();
    m_companies.ShowCompanyPosition();
    m_programs.ShowProgramPosition();
    screen.setCaption(m_core.id(u"lblCompanyID"),
                      QString::number(m_core.company.number(CompanyField::CompanyID)));
    LoadCompanyProgramOnly();
    if (!m_state.NewCompanyPending)
        SetProgramClean();
    screen.setCaption(m_core.id(u"lblProgramID"),
                      QString::number(m_core.program.number(ProgramField::CompanyID)));
    SetCompanyClean();
    SetProgramClean();
    UpdateCaption();
    if (!screen.at(u"cboProgramName").items.isEmpty())
        screen.setListIndex(m_core.id(u"cboProgramName"), 0);
    m_state.CurrentProgramNo = screen.at(u"cboProgramName").listIndex + 1;
    m_programs.ShowProgramPosition();
}

void SessionNavigation::programSelected() {
    ScreenModel& screen = m_core.screen;
    const int selector = m_core.id(u"cboProgramName");
    const int index = screen.at(selector).listIndex;
    if (index < 0)
        return;
    if (!isProgramDirty()) {
        screen.restoreListIndex(selector, m_state.CurrentProgramNo - 1);
        return;
    }
    m_state.CurrentProgramNo = index + 1;
    m_programs.ShowSelectedProgram();
    screen.setCaption(m_core.id(u"lblProgramID"),
                      QString::number(m_core.program.number(ProgramField::CompanyID)));
    SetProgramClean();
}

void SessionNavigation::tabSelected() {
    ScreenModel& screen = m_core.screen;
    const int tabs = m_core.id(u"SSTab1");
    if (m_state.NewCompanyPending) {
        SimpleText(QStringLiteral("Please SAVE your Company Data before you try to add products!"));
        if (screen.at(tabs).listIndex != 0)
            screen.setListIndex(tabs, 0);
        return;
    }
    const int tab = screen.at(tabs).listIndex;
    SimpleText(mainTabCaptions().value(tab));
    m_tabRule = tab;
    EnableCommands();
}

void SessionNavigation::EnableCommands() {
    using A = ControlAction;
    const bool company = !m_core.screen.at(u"cboCompanyName").items.isEmpty();
    // The company commands on the company tab, the program commands on the program tab, and
    // Save Program on every other tab.
    const int tab = m_tabRule;
    auto byTab = [tab](A action, bool onCompanyTab) {
        if (tab < 0)
            return true;
        return onCompanyTab ? tab == 0 : tab == 1 || (tab > 1 && action == A::SaveProgram);
    };
    m_core.setCommandEnabled(A::NewCompany, byTab(A::NewCompany, true));
    for (const A a : {A::SaveCompany, A::DeleteCompany})
        m_core.setCommandEnabled(a, company && byTab(a, true));
    for (const A a : {A::NewProgram, A::SaveProgram, A::DeleteProgram})
        m_core.setCommandEnabled(a, company && byTab(a, false));
    for (const A a : {A::VerifyPAD, A::CreatePAD, A::Submit, A::CheckPAD})
        m_core.setCommandEnabled(a, company);
    m_core.setCommandEnabled(A::NewRelease,
                             company && !m_core.screen.at(u"cboProgramName").items.isEmpty());
}

} // namespace brevaro
