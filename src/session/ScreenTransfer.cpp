#include "session/ScreenTransfer.h"

#include "platform/WebAddresses.h"
#include "session/EditingSession.h"

#include "records/ValueLists.h"

namespace brevaro {

ScreenTransfer::ScreenTransfer(EditingSession& session)
    : m_s(session) {}

template <typename Fn> void ScreenTransfer::forEachControl(RecordSide side, Fn fn) {
    for (int i = 0; i < m_s.screen().count(); ++i)
        if (m_s.row(i).side == side)
            fn(i, m_s.row(i));
}

namespace {

void screenToRecord(const ScreenModel& screen, int id, const ControlRow& s, FixedRecord& r) {
    const ControlState& c = screen.at(id);
    switch (s.kind) {
    case ControlKind::TextBox:
    case ControlKind::ComboBox:
        r.setText(s.field, c.text, s.entry);
        break;
    case ControlKind::ListBox:
        for (int i = 0; i < c.items.size(); ++i)
            r.setNumber(s.field, c.selected.value(i) ? -1 : 0, i);
        break;
    case ControlKind::CheckBox:
        r.setNumber(s.field, c.value ? 1 : 0, s.entry);
        break;
    case ControlKind::OptionButton:
        r.setNumber(s.field, c.value ? -1 : 0, s.entry);
        break;
    default:
        break;
    }
}

void recordToScreen(ScreenModel& screen, int id, const ControlRow& s, FixedRecord& r) {
    switch (s.kind) {
    case ControlKind::TextBox:
    case ControlKind::ComboBox:
        screen.setText(id, r.trimText(s.field, s.entry));
        break;
    case ControlKind::ListBox:
        for (int i = 0; i < screen.at(id).items.size(); ++i)
            screen.setItemSelected(id, i, r.number(s.field, i) != 0);
        break;
    // A stored check-box value other than 0 shows as checked.
    case ControlKind::CheckBox:
        screen.setValue(id, r.number(s.field, s.entry) != 0 ? 1 : 0);
        break;
    case ControlKind::OptionButton:
        if (r.number(s.field, s.entry) != 0)
            screen.setValue(id, 1);
        else if (screen.at(id).value)
            screen.setValue(id, 0);
        break;
    default:
        break;
    }
}

} // namespace

void ScreenTransfer::ScreenToCompany() {
    m_s.company().setNumber(CompanyField::CompanyID, m_s.state().CurrentCompanyNo);
    forEachControl(RecordSide::Company, [&](int id, const ControlRow& s) {
        screenToRecord(m_s.screen(), id, s, m_s.company());
    });
}

void ScreenTransfer::screenInto(RecordSide side, FixedRecord& record) const {
    for (int i = 0; i < m_s.screen().count(); ++i)
        if (m_s.row(i).side == side)
            screenToRecord(m_s.screen(), i, m_s.row(i), record);
}

void ScreenTransfer::CompanyToScreen() {
    const EditingSession::RecordLoad loading(m_s);
    forEachControl(RecordSide::Company, [&](int id, const ControlRow& s) {
        recordToScreen(m_s.screen(), id, s, m_s.company());
    });
}

void ScreenTransfer::ClearCompanyScreen() {
    forEachControl(RecordSide::Company, [&](int id, const ControlRow& s) {
        if (s.name == QLatin1String("cboCompanyName"))
            return;
        if (s.name == QLatin1String("cboCountry"))
            m_s.screen().setListIndex(id, 0);
        else
            m_s.screen().setText(id, QString());
    });
}

void ScreenTransfer::EnableCompanyFields(bool enabled) {
    forEachControl(RecordSide::Company,
                   [&](int id, const ControlRow&) { m_s.screen().setEnabled(id, enabled); });
}

void ScreenTransfer::ScreenToProgram() {
    m_s.program().setNumber(ProgramField::CompanyID, m_s.company().number(CompanyField::CompanyID));
    forEachControl(RecordSide::Program, [&](int id, const ControlRow& s) {
        screenToRecord(m_s.screen(), id, s, m_s.program());
    });
}

void ScreenTransfer::ProgramToScreen() {
    const EditingSession::RecordLoad loading(m_s);
    forEachControl(RecordSide::Program, [&](int id, const ControlRow& s) {
        recordToScreen(m_s.screen(), id, s, m_s.program());
    });
}

void ScreenTransfer::ClearProgramScreen() {
    forEachControl(RecordSide::Program, [&](int id, const ControlRow& s) {
        switch (s.kind) {
        case ControlKind::TextBox:
            m_s.screen().setText(id, QString());
            break;
        case ControlKind::ComboBox:
            if (s.name != QLatin1String("cboProgramName"))
                m_s.screen().setText(id, QString());
            break;
        case ControlKind::ListBox:
            for (int i = 0; i < m_s.screen().at(id).items.size(); ++i)
                m_s.screen().setItemSelected(id, i, false);
            break;
        case ControlKind::CheckBox:
        case ControlKind::OptionButton:
            m_s.screen().setValue(id, 0);
            break;
        default:
            break;
        }
    });
    m_s.screen().setValue(m_s.id(u"chkActivateLanguage", 0), 1);
}

void ScreenTransfer::EnableProgramFields(bool enabled) {
    forEachControl(RecordSide::Program, [&](int id, const ControlRow& s) {
        if (!isExpiryGroup(s))
            m_s.screen().setEnabled(id, enabled);
    });
    const bool expiry = enabled && m_s.screen().value(u"chkHasExpiredInfo") == 1;
    forEachControl(RecordSide::Program, [&](int id, const ControlRow& s) {
        if (isExpiryGroup(s))
            m_s.screen().setEnabled(id, expiry);
    });
}

void ScreenTransfer::LoadValueLists() {
    ScreenModel& screen = m_s.screen();
    for (const ValueList& list : valueLists()) {
        const int control = controlOfField(list.side, list.field);
        if (list.clearFirst || screen.at(control).items.isEmpty())
            screen.setItems(control, list.items);
        else
            for (const QString& item : list.items)
                screen.addItem(control, item);
        if (list.selected >= 0)
            screen.setListIndex(control, list.selected);
    }
}

void ScreenTransfer::SetToolTips() {
    ScreenModel& screen = m_s.screen();
    for (int i = 0; i < screen.count(); ++i)
        if (!m_s.row(i).toolTip.isEmpty())
            screen.setToolTip(i, m_s.row(i).toolTip);
    screen.setCaption(m_s.id(u"lblCopyright"), copyrightLine());
    for (int i = 0; i < 3; ++i)
        screen.setCaption(m_s.id(u"lblOrganization", i), organizationSite(i));
}

void ScreenTransfer::ClearCompanyRecord() {
    m_s.company().clear();
}

void ScreenTransfer::ClearProgramRecord() {
    m_s.program().clear(static_cast<int>(m_s.screen().at(u"lstSupportedOS").items.size()),
                        static_cast<int>(m_s.screen().at(u"lstLanguages").items.size()));
}

} // namespace brevaro
