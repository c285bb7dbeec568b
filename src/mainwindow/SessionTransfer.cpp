#include "mainwindow/EditingSession.h"

#include "records/ValueLists.h"

namespace brevaro {

template <typename Fn> void EditingSession::forEachControl(RecordSide side, Fn fn) {
    for (int i = 0; i < m_screen.count(); ++i)
        if (row(i).side == side)
            fn(i, row(i));
}

namespace {

void screenToRecord(const ScreenModel& screen, int id, const ControlSpec& s, FixedRecord& r) {
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

void recordToScreen(ScreenModel& screen, int id, const ControlSpec& s, FixedRecord& r) {
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

void EditingSession::ScreenToCompany() {
    m_company.setNumber(CompanyField::CompanyID, CurrentCompanyNo);
    forEachControl(RecordSide::Company, [&](int id, const ControlSpec& s) {
        screenToRecord(m_screen, id, s, m_company);
    });
}

void EditingSession::CompanyToScreen() {
    forEachControl(RecordSide::Company, [&](int id, const ControlSpec& s) {
        recordToScreen(m_screen, id, s, m_company);
    });
}

void EditingSession::ClearCompanyScreen() {
    forEachControl(RecordSide::Company, [&](int id, const ControlSpec& s) {
        if (s.name == QLatin1String("cboCompanyName"))
            return;
        if (s.name == QLatin1String("cboCountry"))
            m_screen.setListIndex(id, 0);
        else
            m_screen.setText(id, QString());
    });
}

void EditingSession::EnableCompanyFields(bool enabled) {
    forEachControl(RecordSide::Company,
                   [&](int id, const ControlSpec&) { m_screen.setEnabled(id, enabled); });
}

void EditingSession::ScreenToProgram() {
    m_program.setNumber(ProgramField::CompanyID, m_company.number(CompanyField::CompanyID));
    forEachControl(RecordSide::Program, [&](int id, const ControlSpec& s) {
        screenToRecord(m_screen, id, s, m_program);
    });
}

void EditingSession::ProgramToScreen() {
    forEachControl(RecordSide::Program, [&](int id, const ControlSpec& s) {
        recordToScreen(m_screen, id, s, m_program);
    });
}

void EditingSession::ClearProgramScreen() {
    forEachControl(RecordSide::Program, [&](int id, const ControlSpec& s) {
        switch (s.kind) {
        case ControlKind::TextBox:
            m_screen.setText(id, QString());
            break;
        case ControlKind::ComboBox:
            if (s.name != QLatin1String("cboProgramName"))
                m_screen.setText(id, QString());
            break;
        case ControlKind::ListBox:
            for (int i = 0; i < m_screen.at(id).items.size(); ++i)
                m_screen.setItemSelected(id, i, false);
            break;
        case ControlKind::CheckBox:
        case ControlKind::OptionButton:
            m_screen.setValue(id, 0);
            break;
        default:
            break;
        }
    });
    m_screen.setValue(id(u"chkActivateLanguage", 0), 1);
}

void EditingSession::EnableProgramFields(bool enabled) {
    forEachControl(RecordSide::Program, [&](int id, const ControlSpec& s) {
        if (!isExpiryGroup(s))
            m_screen.setEnabled(id, enabled);
    });
    const bool expiry = enabled && m_screen.value(u"chkHasExpiredInfo") == 1;
    forEachControl(RecordSide::Program, [&](int id, const ControlSpec& s) {
        if (isExpiryGroup(s))
            m_screen.setEnabled(id, expiry);
    });
}

void EditingSession::ClearCompanyRecord() {
    m_company.clear();
}

void EditingSession::ClearProgramRecord() {
    m_program.clear(static_cast<int>(m_screen.at(u"lstSupportedOS").items.size()),
                    static_cast<int>(m_screen.at(u"lstLanguages").items.size()));
}

} // namespace brevaro
