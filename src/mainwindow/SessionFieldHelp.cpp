#include "mainwindow/EditingSession.h"

#include "mainwindow/WebAddresses.h"

namespace brevaro {

QString EditingSession::ShowCharCount(const QString& text, int limit) {
    const QString cut = text.size() > limit ? text.left(limit) : text;
    SimpleText(QStringLiteral("You have used %1 of %2 characters ...").arg(cut.size()).arg(limit));
    return cut;
}

int EditingSession::selectedLanguage() const {
    return std::max(0, m_screen.at(u"SSTab2").listIndex);
}

// Cuts a field's text at its limit and counts it; on a change the caret goes to the end when
// the limit is reached, on focus always (txtASP_MemberNo only at the limit).
void EditingSession::limitField(int control, bool onFocus) {
    const ControlSpec& s = row(control);
    const QString cut = ShowCharCount(m_screen.at(control).text, s.limit);
    m_screen.setText(control, cut);
    const bool atLimit = cut.size() == s.limit;
    if (atLimit || (onFocus && s.name != QLatin1String("txtASP_MemberNo")))
        m_screen.setCaret(control, static_cast<int>(cut.size()));
}

void EditingSession::showFocusHint(int control) {
    const ControlSpec& s = row(control);
    const ControlState& c = m_screen.at(control);
    switch (s.hint) {
    case FocusHint::Counter:
        return limitField(control, true);
    case FocusHint::ItemOf:
        return SimpleText(QStringLiteral("Item %1 of %2").arg(c.listIndex + 1).arg(c.items.size()));
    case FocusHint::Text:
        return SimpleText(s.hintText);
    case FocusHint::None:
        return;
    }
}

namespace {

// The field each copy button copies: fixed fields, or the description of the selected tab.
struct CopySource {
    const char16_t* name;
    bool perLanguage;
};
constexpr CopySource kCopySources[] = {{u"txtApplicationHomeURL", false},
                                       {u"txtApplicationOrderURL", false},
                                       {u"txtScreenshotURL", false},
                                       {u"txtProgramIconURL", false},
                                       {u"txtPadXMLfileURL", false},
                                       {u"txtPrimaryDownloadURL", false},
                                       {u"txtSecondDownloadURL", false},
                                       {u"txtThirdDownloadURL", false},
                                       {u"txtFourthDownloadURL", false},
                                       {u"txtKeywords", true},
                                       {u"txt45char", true},
                                       {u"txt80char", true},
                                       {u"txt250char", true},
                                       {u"txt450char", true},
                                       {u"txt2000char", true},
                                       {u"txtDistributionAgreements", false},
                                       {u"txtEULA", false}};

constexpr const char16_t* kDescriptionBoxes[] = {u"txtKeywords", u"txt45char",  u"txt80char",
                                                 u"txt250char",  u"txt450char", u"txt2000char"};

} // namespace

void EditingSession::copyToClipboard(int i) {
    if (i < 0 || i >= static_cast<int>(std::size(kCopySources)))
        return;
    const CopySource& source = kCopySources[i];
    const int field = source.perLanguage ? id(QStringView(source.name), selectedLanguage())
                                         : id(QStringView(source.name));
    m_prompts.setClipboardText(QString());
    m_screen.setInverted(field, true);
    m_prompts.setClipboardText(m_screen.at(field).text);
    m_prompts.pumpEvents();
    m_screen.setInverted(field, false);
    m_screen.focus(id(u"cmdCopyWebInfo2ClipBoard", i));
}

void EditingSession::copyDescription(int i) {
    if (i < 0 || i > 2)
        return;
    const int lang = selectedLanguage();
    // 0: 80 into 250, 1: 250 into 450, 2: 450 into 2000.
    setText(QStringView(kDescriptionBoxes[i + 3]),
            text(QStringView(kDescriptionBoxes[i + 2]), lang), lang);
}

void EditingSession::translate(int i) {
    QString source;
    if (i >= 0 && i <= 5)
        source = text(QStringView(kDescriptionBoxes[i]), selectedLanguage());
    else if (i == 6)
        source = text(u"txtDistributionAgreements");
    else if (i == 7)
        source = QStringLiteral("Copy and paste sections of the EULA text here!");
    else
        return;
    m_prompts.openDocument(translationAddress(source, true));
}

} // namespace brevaro
