#pragma once

#include "pad/PadCheck.h"

#include <QDialog>
#include <vector>

class QLabel;
class QTreeWidget;

namespace brevaro {

class EditingSession;
class SpellChecker;

// The findings of the PAD check in a list: errors, warnings and notes with the field, where it
// is and what to do. A double-click (or Enter) takes the user to the field; "Check Again"
// checks what the screen shows now. It stays open beside the main window while the user fixes.
class PadCheckDialog : public QDialog {
    Q_OBJECT
public:
    // With a spell checker, the misspelt words of the texts are notes too.
    explicit PadCheckDialog(EditingSession& session, SpellChecker* spelling = nullptr,
                            QWidget* parent = nullptr);

    // Checks the screen again and shows the findings.
    void refresh();
    const std::vector<PadFinding>& findings() const { return m_findings; }

private:
    void goTo(int row);

    EditingSession& m_session;
    SpellChecker* m_spelling;
    QTreeWidget* m_list;
    QLabel* m_summary;
    QLabel* m_detail;
    std::vector<PadFinding> m_findings;
};

} // namespace brevaro
