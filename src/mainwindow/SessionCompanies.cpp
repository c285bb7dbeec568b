#include "mainwindow/EditingSession.h"

#include "platform/StringHelpers.h"

namespace brevaro {

int EditingSession::GetCompanyCount() const {
    return m_store.companyCount();
}

void EditingSession::ReadCurrentCompany() {
    if (!m_store.companyFile().exists())
        return;
    CompanyCount = GetCompanyCount();
    m_store.readCompany(CurrentCompanyNo, m_company);
}

bool EditingSession::WriteCurrentCompany() {
    if (m_store.writeCompany(CurrentCompanyNo, m_company))
        return true;
    reportWriteFailure(QStringLiteral("The company"));
    return false;
}

void EditingSession::LoadCompanyList() {
    if (!m_store.companyFile().exists())
        return;
    const int selector = id(u"cboCompanyName");
    m_screen.setItems(selector, {});
    CompanyCount = GetCompanyCount();
    // Only the names are read; the current record ends as the last company, as a full read
    // of every record would leave it.
    for (const QString& name : m_store.companyNames())
        m_screen.addItem(selector, name);
    if (CompanyCount > 0)
        m_store.readCompany(CompanyCount, m_company);
    if (CompanyCount > 0)
        m_screen.setListIndex(selector, 0);
}

void EditingSession::ShowCurrentCompany() {
    ReadCurrentCompany();
    CompanyToScreen();
    ShowCompanyPosition();
}

void EditingSession::ShowCompanyPosition() {
    m_screen.setCaption(id(u"lblCompanyRecord"),
                        QStringLiteral("%1 of %2").arg(CurrentCompanyNo).arg(CompanyCount));
}

void EditingSession::OpenCompanies() {
    ReadCurrentCompany();
    LoadCompanyList();
    const bool any = !m_screen.at(u"cboCompanyName").items.isEmpty();
    if (!any) {
        // Nothing to show: no stale company stays on the screen.
        ClearCompanyRecord();
        ClearCompanyScreen();
        m_screen.setText(id(u"cboCompanyName"), QString());
        CurrentCompanyNo = CompanyCount = 0;
    } else {
        CompanyToScreen();
    }
    EnableCompanyFields(any);
}

void EditingSession::NewCompany() {
    isCompanyDirty();
    const auto answer = m_prompts.inputBox(
        QStringLiteral("Enter new Company Name, or if you don't have a company, your First and "
                       "Last name: "),
        QStringLiteral("New Company"), QString());
    const QString name = trimBlanks(answer.value_or(QString()));
    if (name.isEmpty())
        return;
    CreateCompany(name);
}

void EditingSession::CreateCompany(const QString& name) {
    if (trimBlanks(name).isEmpty())
        return;
    EnableCompanyFields(true);
    NewCompanyPending = true;
    CompanyCount = GetCompanyCount() + 1;
    CurrentCompanyNo = CompanyCount;
    ClearCompanyScreen();
    ClearCompanyRecord();
    const int selector = id(u"cboCompanyName");
    m_screen.addItem(selector, name);
    m_screen.setText(selector, name);
    ShowCompanyPosition();
    m_screen.focus(id(u"txtAddress1"));
}

void EditingSession::SaveCompany() {
    ScreenToCompany();
    if (!WriteCurrentCompany())
        return;
    m_company.trimText(CompanyField::CompanyName);
    SetCompanyClean();
    m_screen.setListIndex(id(u"cboCompanyName"), CurrentCompanyNo - 1);
    NewCompanyPending = false;
}

bool EditingSession::FindCompany(const QString& name) {
    if (!m_store.companyFile().exists())
        return false;
    const int at = static_cast<int>(m_screen.at(u"cboCompanyName").items.indexOf(name));
    if (at < 0)
        return false;
    CurrentCompanyNo = at + 1;
    return true;
}

void EditingSession::DeleteCompany() {
    const ControlState& selector = m_screen.at(u"cboCompanyName");
    if (selector.items.isEmpty() || trimBlanks(selector.text).isEmpty())
        return;
    const QString name = m_company.trimText(CompanyField::CompanyName);
    if (!confirmDelete(name))
        return;
    if (!m_store.companyFile().exists())
        return;
    const int doomed = CurrentCompanyNo;
    // A new company that was never saved has nothing on disk to remove.
    if (doomed <= GetCompanyCount() && !m_store.deleteCompany(doomed)) {
        reportDeleteFailure(name);
        return;
    }
    NewCompanyPending = false;
    CompanyDirty = ProgramDirty = false;
    CurrentCompanyNo = 1;
    OpenCompanies();
    LoadCompanyProgramOnly();
    ShowCompanyPosition();
    ShowProgramPosition();
    SetCompanyClean();
    SetProgramClean();
    if (m_screen.at(u"cboCompanyName").items.isEmpty())
        EnableCompanyFields(false);
}

} // namespace brevaro
