#include "session/FieldAssistance.h"

#include "platform/WebAddresses.h"
#include "session/SessionCore.h"
#include "session/SessionNavigation.h"

namespace brevaro {

FieldAssistance::FieldAssistance(SessionCore& core, SessionNavigation& navigation)
    : m_core(core)
    , m_navigation(navigation) {}

QString FieldAssistance::ShowCharCount(const QString& text, int limit) {
    const QString cut = text.size() > limit ? text.left(limit) : text;
    m_navigation.SimpleText(
        QStringLiteral("You have used %1 of %2 characters ...").arg(cut.size()).arg(limit));
    return cut;
}

int FieldAssistance::selectedLanguage() const {
    return std::max(0, m_core.screen.at(u"SSTab2").listIndex);
}

// Cuts a field's text at its limit and counts it; on a change the caret goes to the end when
// the limit is reached, on focus always (txtASP_MemberNo only at the limit).
void FieldAssistance::limitField(int control, bool onFocus) {
    const ControlRow& r = m_core.row(control);
    ScreenModel& screen = m_core.screen;
    const QString cut = ShowCharCount(screen.at(control).text, r.limit);
    screen.setText(control, cut);
    const bool atLimit = cut.size() == r.limit;
    if (atLimit || (onFocus && r.name != QLatin1String("txtASP_MemberNo")))
        screen.requestCaret(control, static_cast<int>(cut.size()));
}

void FieldAssistance::showFocusHint(int control) {
    const ControlRow& r = m_core.row(control);
    const ControlState& c = m_core.screen.at(control);
    switch (r.hint) {
    case FocusHint::Counter:
        return limitField(control, true);
    case FocusHint::ItemOf:
        return m_navigation.SimpleText(
            QStringLiteral("Item %1 of %2").arg(c.listIndex + 1).arg(c.items.size()));
    case FocusHint::Text:
        return m_navigation.SimpleText(r.hintText);
    case FocusHint::None:
        return;
    }
}

// The box a button acts on: a fixed box, or (arg 1) the box of the selected language.
int FieldAssistance::fieldOf(const ControlRow& button) const {
    return button.arg == 1 ? m_core.id(button.target, selectedLanguage())
                           : m_core.id(button.target);
}

void FieldAssistance::copyField(const ControlRow& button) {
    const int field = fieldOf(button);
    Prompts& prompts = m_core.prompts;
    prompts.setClipboardText(QString());
    m_core.screen.flash(field);
    prompts.setClipboardText(m_core.screen.at(field).text);
    prompts.pumpEvents();
    m_core.screen.requestFocus(m_core.id(button.name, button.index));
}

void FieldAssistance::copyDescription(const ControlRow& button) {
    const int lang = selectedLanguage();
    m_core.replaceText(button.target, m_core.text(button.source, lang), lang);
}

void FieldAssistance::translate(const ControlRow& button) {
    const QString source =
        button.target.isEmpty() ? button.source : m_core.screen.at(fieldOf(button)).text;
    m_core.prompts.openDocument(translationAddress(source, true));
}

void FieldAssistance::applyKeywords(const QString& keywords) {
    m_core.replaceText(u"txtKeywords", keywords, selectedLanguage());
}

} // namespace brevaro
