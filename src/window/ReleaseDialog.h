#pragma once

#include "release/DistributionFile.h"
#include "release/ReleaseStep.h"

#include <QDialog>
#include <vector>

class QDateEdit;
class QLabel;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;
class QTableWidget;
class QTreeWidget;

namespace brevaro {

class EditingSession;
class OnlineCheck;

// File › New Release: the distribution files (chosen or dropped), the version (proposed from
// the current one), the date and the change notes; the changes as a before and after table,
// kept up to date as the input changes. Apply saves the program and writes every format into
// the company's folder, listing the files written and the findings; Verify Online fetches
// every address of the release, with progress, and Stop ends it at once.
class ReleaseDialog : public QDialog {
    Q_OBJECT
public:
    explicit ReleaseDialog(EditingSession& session, QWidget* parent = nullptr);
    ~ReleaseDialog() override;

    // Adds distribution files as a drop or the file dialog does; what cannot be read is said
    // in the status line.
    void addFiles(const QStringList& paths);
    void apply();
    void verifyOnline();
    // True while Verify Online runs.
    bool isVerifying() const { return m_verifying; }

public slots:
    // Stops a running verification at once, else closes.
    void reject() override;

signals:
    void applied();
    void verified();

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void buildLayout();
    ReleaseInput input() const;
    void updatePlan();
    void chooseFiles();
    void removeFile();
    void setBusy(bool busy);
    QString outputFolder() const;

    EditingSession& m_session;
    std::vector<DistributionFile> m_files;
    ReleasePlan m_plan;
    QListWidget* m_fileList;
    QLineEdit* m_version;
    QDateEdit* m_date;
    QPlainTextEdit* m_changes;
    QTableWidget* m_table;
    QLabel* m_notes;
    QTreeWidget* m_results;
    QProgressBar* m_progress;
    QLabel* m_status;
    QPushButton* m_apply;
    QPushButton* m_verify;
    QPushButton* m_close;
    OnlineCheck* m_check = nullptr;
    bool m_verifying = false;
};

} // namespace brevaro
