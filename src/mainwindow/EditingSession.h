#pragma once

#include "mainwindow/ControlTable.h"
#include "mainwindow/ScreenModel.h"
#include "platform/Prompts.h"
#include "records/CompanyRecord.h"
#include "records/ProgramRecord.h"
#include "store/RecordStore.h"

#include <QObject>
#include <functional>
#include <map>

namespace brevaro {

// Commands that other parts of the program provide to the main window.
enum class SessionCommand {
    VerifyPAD,
    CreatePAD,
    ImportPAD,
    Submit,
    Keywords,
    About,
    DownloadBanners
};

// The main window without widgets: one current company and program, the screen model that
// shows them, the modified state, and every command of the button bar and the menus. The
// Qt window is a view over it; tests and the command-line tool drive it directly.
class EditingSession : public QObject, public ControlEvents {
    Q_OBJECT
public:
    EditingSession(RecordStore& store, Prompts& prompts, QObject* parent = nullptr);

    ScreenModel& screen() { return m_screen; }
    // The control table row of control id.
    const ControlSpec& row(int id) const { return m_controls[static_cast<std::size_t>(id)]; }
    RecordStore& store() { return m_store; }
    Prompts& prompts() { return m_prompts; }
    CompanyRecord& company() { return m_company; }
    ProgramRecord& program() { return m_program; }
    const QString& appVersionText() const { return m_appVersionText; }

    // Supplies a command that lives elsewhere; without one the command says it is not
    // available yet.
    void setCommandHandler(SessionCommand command, std::function<void()> handler);
    void runCommand(SessionCommand command);

    // Start-up sequence of the main window.
    void Start();
    // Closing the window: offers to save, then asks the view to close.
    void Shutdown();

    // Session state.
    int CurrentCompanyNo = 0;
    int CompanyCount = 0;
    int CurrentProgramNo = 0;
    int ProgramCount = 0;
    bool CompanyDirty = false;
    bool ProgramDirty = false;
    bool NewCompanyPending = false;
    bool NewProgramPending = false;
    bool ImportInProgress = false;

    void isCompanyDirty();
    void isProgramDirty();
    void SetCompanyDirty();
    void SetCompanyClean();
    void SetProgramDirty();
    void SetProgramClean();
    void UpdateCaption(QString& extra);
    void UpdateCaption();
    void SimpleText(const QString& text);
    void LoadCompanyProgramOnly();
    void LoadValueLists();
    void SetToolTips();

    // Company file operations.
    int GetCompanyCount() const;
    void ReadCurrentCompany();
    bool WriteCurrentCompany();
    void LoadCompanyList();
    void ShowCurrentCompany();
    void ShowCompanyPosition();
    void OpenCompanies();
    void NewCompany();
    void CreateCompany(const QString& name);
    void SaveCompany();
    bool FindCompany(const QString& name);
    void DeleteCompany();

    // Program file operations.
    QString ProgramFileName();
    int GetProgramCount();
    void ReadCurrentProgram();
    bool WriteCurrentProgram();
    void LoadProgramList();
    void ShowSelectedProgram();
    void ShowProgramPosition();
    void OpenPrograms();
    void NewProgram();
    void CreateProgram(const QString& name);
    void SaveProgram();
    void DeleteProgram();

    // Record and screen transfer.
    void ScreenToCompany();
    void CompanyToScreen();
    void ClearCompanyScreen();
    void EnableCompanyFields(bool enabled);
    void ScreenToProgram();
    void ProgramToScreen();
    void ClearProgramScreen();
    void EnableProgramFields(bool enabled);
    void ClearCompanyRecord();
    void ClearProgramRecord();

    // Field help.
    QString ShowCharCount(const QString& text, int limit);
    int selectedLanguage() const;
    QString defaultText(int which) const;

    // Control events.
    void onChange(int id) override;
    void onClick(int id) override;
    void onFocus(int id) override;

    // Shorthands for the screen model.
    int id(QStringView name, int index = -1) const { return m_screen.id(name, index); }
    void setText(QStringView name, const QString& text, int index = -1) {
        m_screen.setText(id(name, index), text);
    }
    QString text(QStringView name, int index = -1) const { return m_screen.text(name, index); }

signals:
    void closeRequested();

private:
    void buildScreen();
    void companySelected();
    void programSelected();
    void tabSelected();
    void pressButton(int i);
    void chooseFileMenu(int i);
    void chooseToolsMenu(int i);
    void chooseHelpMenu(int i);
    void limitField(int id, bool onFocus);
    void showFocusHint(int id);
    void copyToClipboard(int i);
    void copyDescription(int i);
    void translate(int i);
    void openFileInfo();
    void expiryCheckClicked();
    void expiryOptionClicked(int i);
    void insertDefaultText(int i);
    void permissionFile(int i);
    void openUrlOf(QStringView control);
    void reportWriteFailure(const QString& what);
    void setModified(QStringView selector, bool& flag, bool modified);
    void markModified(const ControlSpec& control, unsigned event);
    bool confirmDelete(const QString& name);
    void reportDeleteFailure(const QString& name);
    template <typename Fn> void forEachControl(RecordSide side, Fn fn);

    RecordStore& m_store;
    Prompts& m_prompts;
    ScreenModel m_screen;
    std::vector<ControlSpec> m_controls;
    CompanyRecord m_company;
    ProgramRecord m_program;
    QString m_appVersionText;
    std::map<SessionCommand, std::function<void()>> m_handlers;
};

} // namespace brevaro
