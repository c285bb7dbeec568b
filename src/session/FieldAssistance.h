#pragma once

#include <QString>

namespace brevaro {

struct SessionCore;
class SessionNavigation;
struct ControlRow;

// Help while a field is filled: limits and counters, focus hints, copy buttons with their
// flash, description copies, translation links and the suggested keywords.
class FieldAssistance {
public:
    FieldAssistance(SessionCore& core, SessionNavigation& navigation);

    QString ShowCharCount(const QString& text, int limit);
    // Cuts a field at its limit and counts it (on a change, or on focus).
    void limitField(int control, bool onFocus);
    void showFocusHint(int control);
    int selectedLanguage() const;
    void copyField(const ControlRow& button);
    void copyDescription(const ControlRow& button);
    void translate(const ControlRow& button);
    // The keyword suggester's OK: the selected language's keywords box gets the text.
    void applyKeywords(const QString& keywords);

private:
    int fieldOf(const ControlRow& button) const;

    SessionCore& m_core;
    SessionNavigation& m_navigation;
};

} // namespace brevaro
