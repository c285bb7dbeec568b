#include "session/ScreenTransfer.h"

#include "platform/StringHelpers.h"
#include "platform/WebAddresses.h"
#include "session/SessionCore.h"

#include "records/ExtraFields.h"
#include "records/ValueLists.h"

namespace brevaro {

ScreenTransfer::ScreenTransfer(SessionCore& core)
    : m_core(core) {}

template <typename Fn> void ScreenTransfer::forEachControl(RecordSide side, Fn fn) {
    for (int i = 0; i < m_core.screen.count(); ++i)
        if (m_core.row(i).side == side)
            fn(i, m_core.row(i));
}

namespace {

constexpr auto kClassSeparator = u"::";

// The classes of a main class, without the main class's name.
QStringList classesOf(const QString& main) {
    QStringList classes;
    if (main.isEmpty())
        return classes;
    const QString prefix = main + kClassSeparator;
    for (const QString& c : publishedList(PublishedList::Categories))
        if (c.startsWith(prefix))
            classes << c.mid(prefix.size());
    return classes;
}

// The main classes of the published list, in its order.
QStringList mainClasses() {
    QStringList mains;
    for (const QString& c : publishedList(PublishedList::Categories)) {
        const QString main = c.section(QString::fromUtf16(kClassSeparator), 0, 0);
        if (!mains.contains(main))
            mains << main;
    }
    return mains;
}

// An extra field's control: a text, a choice, or the checked items of a list joined by commas.
// A choice made in two steps (its source is the first) is "first::second".
void screenToExtra(const ScreenModel& screen, const ControlState& c, const ControlRow& s,
                   FixedRecord& r) {
    if (!s.source.isEmpty()) {
        const QString first = screen.at(s.source).text;
        r.setLaterValue(s.extra, first.isEmpty() || c.text.isEmpty()
                                     ? QString()
                                     : first + kClassSeparator + c.text);
        return;
    }
    if (s.kind != ControlKind::ListBox) {
        r.setLaterValue(s.extra, trimBlanks(c.text));
        return;
    }
    QStringList checked;
    for (int i = 0; i < c.items.size(); ++i)
        if (c.selected.value(i))
            checked << c.items[i];
    r.setLaterValue(s.extra, checked.join(u','));
}

void showExtra(ScreenModel& screen, int id, const ControlRow& s, const QString& value) {
    if (!s.source.isEmpty()) {
        const QString first = value.section(QString::fromUtf16(kClassSeparator), 0, 0);
        screen.setText(screen.id(s.source), first);
        screen.setItems(id, classesOf(first));
        screen.setText(id, value.section(QString::fromUtf16(kClassSeparator), 1));
        return;
    }
    if (s.kind != ControlKind::ListBox) {
        screen.setText(id, value);
        return;
    }
    QStringList chosen = value.split(u',', Qt::SkipEmptyParts);
    for (QString& token : chosen)
        token = token.trimmed();
    const QStringList& items = screen.at(id).items;
    for (int i = 0; i < items.size(); ++i)
        screen.setItemSelected(id, i, chosen.contains(items[i]));
}

void screenToRecord(const ScreenModel& screen, int id, const ControlRow& s, FixedRecord& r) {
    const ControlState& c = screen.at(id);
    if (!s.extra.isEmpty())
        return screenToExtra(screen, c, s, r);
    switch (s.kind) {
    case ControlKind::TextBox:
    case ControlKind::ComboBox: {
        // A box that shows the record's whole text cut at its limit keeps the whole text.
        const QString whole = r.wholeText(s.field, s.entry);
        const bool cutForm = s.limit > 0 && whole.size() > s.limit && c.text == whole.left(s.limit);
        r.setText(s.field, cutForm ? whole : c.text, s.entry);
        break;
    }
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
    if (!s.extra.isEmpty())
        return showExtra(screen, id, s, r.laterValue(s.extra));
    switch (s.kind) {
    case ControlKind::TextBox:
    case ControlKind::ComboBox:
        // The whole text where the record holds only part of it (the box shows what its
        // limit allows; the whole is kept while it is not edited).
        r.trimText(s.field, s.entry);
        screen.setText(id, r.wholeText(s.field, s.entry));
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
    m_core.company.setNumber(CompanyField::CompanyID, m_core.state.CurrentCompanyNo);
    forEachControl(RecordSide::Company, [&](int id, const ControlRow& s) {
        screenToRecord(m_core.screen, id, s, m_core.company);
    });
}

void ScreenTransfer::screenInto(RecordSide side, FixedRecord& record) const {
    for (int i = 0; i < m_core.screen.count(); ++i)
        if (m_core.row(i).side == side)
            screenToRecord(m_core.screen, i, m_core.row(i), record);
}

void ScreenTransfer::CompanyToScreen() {
    const SessionCore::RecordLoad loading(m_core);
    forEachControl(RecordSide::Company, [&](int id, const ControlRow& s) {
        recordToScreen(m_core.screen, id, s, m_core.company);
    });
}

void ScreenTransfer::ClearCompanyScreen() {
    forEachControl(RecordSide::Company, [&](int id, const ControlRow& s) {
        if (s.name == QLatin1String("cboCompanyName"))
            return;
        if (s.name == QLatin1String("cboCountry"))
            m_core.screen.setListIndex(id, 0);
        else
            m_core.screen.setText(id, QString());
    });
}

void ScreenTransfer::EnableCompanyFields(bool enabled) {
    forEachControl(RecordSide::Company,
                   [&](int id, const ControlRow&) { m_core.screen.setEnabled(id, enabled); });
}

void ScreenTransfer::ScreenToProgram() {
    m_core.program.setNumber(ProgramField::CompanyID,
                             m_core.company.number(CompanyField::CompanyID));
    forEachControl(RecordSide::Program, [&](int id, const ControlRow& s) {
        screenToRecord(m_core.screen, id, s, m_core.program);
    });
}

void ScreenTransfer::ProgramToScreen() {
    const SessionCore::RecordLoad loading(m_core);
    forEachControl(RecordSide::Program, [&](int id, const ControlRow& s) {
        recordToScreen(m_core.screen, id, s, m_core.program);
    });
}

void ScreenTransfer::ClearProgramScreen() {
    forEachControl(RecordSide::Program, [&](int id, const ControlRow& s) {
        switch (s.kind) {
        case ControlKind::TextBox:
            m_core.screen.setText(id, QString());
            break;
        case ControlKind::ComboBox:
            if (s.name != QLatin1String("cboProgramName"))
                m_core.screen.setText(id, QString());
            break;
        case ControlKind::ListBox:
            for (int i = 0; i < m_core.screen.at(id).items.size(); ++i)
                m_core.screen.setItemSelected(id, i, false);
            break;
        case ControlKind::CheckBox:
        case ControlKind::OptionButton:
            m_core.screen.setValue(id, 0);
            break;
        default:
            break;
        }
    });
    m_core.screen.setValue(m_core.id(u"chkActivateLanguage", 0), 1);
}

void ScreenTransfer::EnableProgramFields(bool enabled) {
    forEachControl(RecordSide::Program, [&](int id, const ControlRow& s) {
        if (!isExpiryGroup(s))
            m_core.screen.setEnabled(id, enabled);
    });
    const bool expiry = enabled && m_core.screen.value(u"chkHasExpiredInfo") == 1;
    forEachControl(RecordSide::Program, [&](int id, const ControlRow& s) {
        if (isExpiryGroup(s))
            m_core.screen.setEnabled(id, expiry);
    });
}

void ScreenTransfer::ShowExtra(int id, const QString& value) {
    showExtra(m_core.screen, id, m_core.row(id), value);
}

void ScreenTransfer::CategoryMainChosen(int mainControl) {
    for (int i = 0; i < m_core.screen.count(); ++i)
        if (m_core.row(i).source == m_core.row(mainControl).name &&
            !m_core.row(i).extra.isEmpty()) {
            m_core.screen.setItems(i, classesOf(m_core.screen.at(mainControl).text));
            m_core.screen.setText(i, QString());
        }
}

void ScreenTransfer::LoadValueLists() {
    ScreenModel& screen = m_core.screen;
    // The lists of the extra fields; a choice may also be left empty.
    for (int i = 0; i < screen.count(); ++i) {
        const ControlRow& r = m_core.row(i);
        const ExtraField* field = r.extra.isEmpty() ? nullptr : extraField(r.extra);
        if (!field || !r.source.isEmpty())
            continue;
        const QStringList choices = extraFieldChoices(*field);
        screen.setItems(i, r.kind == ControlKind::ComboBox ? QStringList{QString()} + choices
                                                           : choices);
    }
    for (int i = 0; i < screen.count(); ++i)
        if (m_core.row(i).action == ControlAction::CategoryMain)
            screen.setItems(i, QStringList{QString()} + mainClasses());
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
    ScreenModel& screen = m_core.screen;
    for (int i = 0; i < screen.count(); ++i)
        if (!m_core.row(i).toolTip.isEmpty())
            screen.setToolTip(i, m_core.row(i).toolTip);
    screen.setCaption(m_core.id(u"lblCopyright"), copyrightLine());
    for (int i = 0; i < 3; ++i)
        screen.setCaption(m_core.id(u"lblOrganization", i), organizationSite(i));
}

void ScreenTransfer::ClearCompanyRecord() {
    m_core.company.clear();
}

void ScreenTransfer::ClearProgramRecord() {
    m_core.program.clear(static_cast<int>(m_core.screen.at(u"lstSupportedOS").items.size()),
                         static_cast<int>(m_core.screen.at(u"lstLanguages").items.size()));
}

} // namespace brevaro
