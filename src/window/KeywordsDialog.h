#pragma once

#include <QDialog>

class QAction;
class QLabel;
class QLineEdit;
class QStatusBar;
class QTreeWidget;
class QTreeWidgetItem;

namespace brevaro {

class KeywordSuggester;
class TransferProgressWidget;

// The keyword suggester's window (frmKeywords), a view over KeywordSuggester. Modal. When
// exec() returns Accepted, the suggester's accept() gives the text for the keywords box of
// the selected description language (nothing when that text is blank).
class KeywordsDialog : public QDialog {
    Q_OBJECT
public:
    explicit KeywordsDialog(KeywordSuggester& suggester, QWidget* parent = nullptr);
    ~KeywordsDialog() override;

    // True while Check Homepage fetches and counts.
    bool isChecking() const { return m_checking; }

public slots:
    void checkHomepage();
    void rebuildKeywords();
    void accept() override;
    // Cancel, Exit, Escape and closing the window: stops a running fetch at once and closes.
    void reject() override;

signals:
    // Check Homepage is over, also when it was cancelled.
    void checkFinished();

private:
    struct Command;
    void buildCommands();
    void buildLayout();
    QAction* command(int menuIndex) const;
    void setChecking(bool checking);
    void fillList();
    void sortBy(int column);
    void showModel();
    void exitForm();

    KeywordSuggester& m_suggester;
    QLineEdit* m_url;
    QTreeWidget* m_list;
    QLineEdit* m_keywords;
    QLabel* m_info;
    QStatusBar* m_status;
    TransferProgressWidget* m_progress;
    bool m_checking = false;
};

} // namespace brevaro
