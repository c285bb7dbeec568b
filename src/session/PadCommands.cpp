#include "session/PadCommands.h"

#include "controls/FieldLabels.h"

#include "pad/CreatePad.h"
#include "pad/PadImportTarget.h"
#include "pad/PadImporter.h"
#include "pad/VerificationReport.h"
#include "platform/FileHelpers.h"
#include "platform/FileNames.h"
#include "platform/StringHelpers.h"
#include "platform/Win1252.h"
#include "session/CompanyCommands.h"
#include "session/ProgramCommands.h"
#include "session/ScreenTransfer.h"
#include "session/SessionCore.h"
#include "session/SessionMessages.h"
#include "session/SessionNavigation.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QUrl>
#include <algorithm>

namespace brevaro {

namespace {

// The importer's values go where a user would type or click them, so limits, marks and the
// option groups apply as they do for typing.
class ImportOntoScreen : public PadImportTarget {
public:
    ImportOntoScreen(SessionCore& core, CompanyCommands& companies, ProgramCommands& programs,
                     ScreenTransfer& transfer)
        : m_core(core)
        , m_companies(companies)
        , m_programs(programs)
        , m_transfer(transfer) {}

    void importCompany(const QString& name) override {
        const int selector = m_core.id(u"cboCompanyName");
        if (m_companies.FindCompany(name))
            m_core.screen.setListIndex(selector, m_core.state.CurrentCompanyNo - 1);
        else
            m_companies.CreateCompany(name);
        m_companies.SaveCompany();
        m_core.screen.setText(selector, name);
    }
    void importProgram(const QString& name) override {
        m_programs.CreateProgram(name);
        m_programs.SaveProgram();
        m_core.screen.setText(m_core.id(u"cboProgramName"), name);
    }
    QString fieldText(RecordSide side, int field, int entry) const override {
        return m_core.screen.at(control(side, field, entry)).text;
    }
    void setFieldText(RecordSide side, int field, int entry, const QString& value) override {
        const int id = control(side, field, entry);
        m_core.screen.setText(id, value);
        // A box cuts what goes over its limit, as typing would; the record keeps the whole
        // text beside what it holds, while the box shows the cut form.
        if (m_core.screen.at(id).text != value)
            recordOf(side).setText(field, value, entry);
    }
    void setExtraValue(RecordSide side, const QString& name, const QString& value) override {
        // Into its control when the window shows the field, else straight into the record
        // (the import's saves write it).
        const int id = controlOfExtra(side, name);
        if (id < 0) {
            recordOf(side).setLaterValue(name, value);
            return;
        }
        m_transfer.ShowExtra(id, value);
    }
    void setFieldFlag(RecordSide side, int field, int entry, bool on) override {
        const int id = control(side, field, entry);
        ScreenModel& screen = m_core.screen;
        if (screen.at(id).kind == ControlKind::ListBox)
            screen.setItemSelected(id, entry, on);
        else
            screen.setValue(id, on ? 1 : 0);
    }

private:
    FixedRecord& recordOf(RecordSide side) {
        return side == RecordSide::Company ? static_cast<FixedRecord&>(m_core.company)
                                           : m_core.program;
    }
    static int control(RecordSide side, int field, int entry) {
        const int id = controlOfField(side, field, entry);
        if (id < 0)
            qFatal("no control shows field %d entry %d", field, entry);
        return id;
    }

    SessionCore& m_core;
    CompanyCommands& m_companies;
    ProgramCommands& m_programs;
    ScreenTransfer& m_transfer;
};

} // namespace

PadCommands::PadCommands(SessionCore& core, CompanyCommands& companies, ProgramCommands& programs,
                         ScreenTransfer& transfer, SessionNavigation& navigation)
    : m_core(core)
    , m_companies(companies)
    , m_programs(programs)
    , m_transfer(transfer)
    , m_navigation(navigation) {}

CommandResult PadCommands::VerifyPAD() {
    const QString path = m_core.store.home().verificationPage();
    const QByteArray page = toWin1252(
        verificationPage(m_core.company, m_core.program, m_core.text(u"lblOrganization", 0)));
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(page) != page.size() || !file.commit()) {
        const QString message = QStringLiteral("The verification page %1 could not be written: %2")
                                    .arg(path, file.errorString());
        m_core.prompts.message(QStringLiteral("Verify PAD"), message);
        return CommandResult::failed(message);
    }
    m_core.prompts.openDocument(QUrl::fromLocalFile(path).toString());
    return CommandResult::done();
}

bool PadCommands::writePadFiles(const QString& path, QString* error) {
    return brevaro::writePadFiles(m_core.company, m_core.program,
                                  m_core.text(u"lblOrganization", 0), path, error,
                                  chosenPadVersion(m_core.program));
}

CommandResult PadCommands::CreatePADFile() {
    m_navigation.isCompanyDirty();
    m_navigation.isProgramDirty();
    if (m_core.state.CompanyDirty || m_core.state.ProgramDirty) {
        m_core.prompts.beep();
        const QString why = QStringLiteral("You MUST save before you can create your PAD file ...");
        m_navigation.SimpleText(why);
        return CommandResult::refused(why);
    }
    // A PAD file names its company and its program: without them there is nothing to write.
    if (trimBlanks(m_core.company.text(CompanyField::CompanyName)).isEmpty() ||
        trimBlanks(m_core.program.text(ProgramField::ProgramName)).isEmpty()) {
        const QString why = QStringLiteral("Create PAD needs a saved company and program, each "
                                           "with a name: no PAD file was written.");
        m_core.prompts.beep();
        m_navigation.SimpleText(why);
        return CommandResult::refused(why);
    }
    const QString folder =
        QDir(m_core.store.home().padFolder())
            .filePath(safeFolderName(m_core.company.text(CompanyField::CompanyName)));
    ensureFolder(folder);
    const auto chosen = m_core.prompts.saveFile(
        {proposedPadFileName(m_core.text(u"txtPadXMLfileURL"), m_core.text(u"cboProgramName")),
         QStringLiteral("xml"), folder, QStringLiteral("PAD File(s) (*.xml)|*.xml")});
    if (!chosen || chosen->isEmpty())
        return CommandResult::declined();
    QString error;
    if (!writePadFiles(QDir::toNativeSeparators(*chosen), &error)) {
        m_core.prompts.message(QStringLiteral("Create PAD"), error);
        return CommandResult::failed(error);
    }
    // The file is written as asked; what download sites would reject is said afterwards.
    const PadVersion version = chosenPadVersion(m_core.program);
    const auto findings = checkPad(m_core.company, m_core.program, version);
    const auto errors = std::count_if(findings.begin(), findings.end(), [](const PadFinding& f) {
        return f.severity == PadFinding::Severity::Error;
    });
    if (errors > 0)
        m_navigation.SimpleText(
            QStringLiteral("The PAD %1 file was written, but %2 of its values will make download "
                           "sites reject it: Tools, Check PAD shows where.")
                .arg(padVersionText(version))
                .arg(errors));
    else if (version != PadVersion::V1_15)
        m_navigation.SimpleText(
            QStringLiteral("The PAD %1 file was written.").arg(padVersionText(version)));
    return CommandResult::done();
}

std::vector<PadFinding> PadCommands::checkScreen() {
    CompanyRecord company = m_core.company;
    ProgramRecord program = m_core.program;
    m_transfer.screenInto(RecordSide::Company, company);
    m_transfer.screenInto(RecordSide::Program, program);
    return withFieldLabels(checkPad(company, program, chosenPadVersion(program)));
}

bool PadCommands::goToField(const PadFinding& finding) {
    ScreenModel& screen = m_core.screen;
    for (int id = 0; id < screen.count(); ++id) {
        const ControlRow& r = m_core.row(id);
        const bool holds = finding.extra.isEmpty()
                               ? r.field == finding.field && r.field >= 0 &&
                                     (r.entry == finding.entry || r.kind == ControlKind::ListBox)
                               : r.extra == finding.extra;
        if (r.side != finding.side || r.side == RecordSide::None || !holds)
            continue;
        const int tab = r.place == Place::LanguagePage ? 2 : r.placeIndex;
        const int tabs = m_core.id(u"SSTab1");
        if (screen.at(tabs).listIndex != tab)
            screen.setListIndex(tabs, tab);
        if (screen.at(tabs).listIndex != tab)
            return false;
        if (r.place == Place::LanguagePage)
            screen.setListIndex(m_core.id(u"SSTab2"), r.index);
        screen.requestFocus(id);
        return true;
    }
    return false;
}

bool PadCommands::importPadFile(const QString& path) {
    beginImport();
    ImportOntoScreen target(m_core, m_companies, m_programs, m_transfer);
    m_notKept.clear();
    const bool accepted = ReadPADFile(target, m_core.prompts, readPadFileText(path), &m_notKept);
    m_core.prompts.pumpEvents();
    finishImport(accepted);
    return accepted;
}

CommandResult PadCommands::ImportPAD() {
    // The import replaces the fields on screen: what the user changed is offered for saving.
    if (!m_navigation.isCompanyDirty() || !m_navigation.isProgramDirty())
        return CommandResult::failed(m_core.store.errorString());
    const QString folder = m_core.store.home().padFolder();
    ensureFolder(folder);
    const auto chosen = m_core.prompts.openFile(
        {QString(), QStringLiteral("xml"), folder, QStringLiteral("PAD File(s) (*.xml)|*.xml")});
    if (!chosen || chosen->isEmpty())
        return CommandResult::declined();
    // The company and the program the file holds are saved together or not at all.
    RecordStore& store = m_core.store;
    store.beginBatch();
    const bool accepted = importPadFile(*chosen);
    // A save of the import that failed has said so and left its record modified.
    const bool savedBoth = !m_core.state.CompanyDirty && !m_core.state.ProgramDirty;
    const bool written = savedBoth && store.commitBatch();
    store.endBatch();
    if (!accepted)
        return CommandResult::refused(QStringLiteral("%1 is not a PAD file").arg(*chosen));
    if (!written) {
        m_navigation.SetCompanyDirty();
        m_navigation.SetProgramDirty();
        if (savedBoth)
            return reportWriteFailure(m_core, QStringLiteral("The imported company and program"));
        return CommandResult::failed(store.errorString());
    }
    // Nothing is lost without a word.
    if (!m_notKept.isEmpty())
        m_core.prompts.message(
            QStringLiteral("Import PAD"),
            QStringLiteral("%1 was imported, but a PAD 1.15 record cannot keep all of it:\n\n- %2")
                .arg(QFileInfo(*chosen).fileName(), m_notKept.join(QStringLiteral("\n- "))));
    return CommandResult::done();
}

void PadCommands::beginImport() {
    m_shownBeforeImport = m_core.company;
    m_core.state.ImportInProgress = true;
    m_transfer.ClearCompanyRecord();
}

void PadCommands::finishImport(bool accepted) {
    if (!accepted) {
        m_core.company = m_shownBeforeImport;
        m_core.state.ImportInProgress = false;
        return;
    }
    saveImported();
}

// Saves what the import set without reloading the fields over it, then shows the company
// and the program as a fresh selection would.
void PadCommands::saveImported() {
    if (m_core.state.CurrentCompanyNo >= 1) {
        m_transfer.ScreenToCompany();
        if (m_companies.WriteCurrentCompany()) {
            m_core.company.trimText(CompanyField::CompanyName);
            m_navigation.SetCompanyClean();
            m_core.state.NewCompanyPending = false;
        } else {
            // The write failed and said so: the imported values stay, marked unsaved.
            m_navigation.SetCompanyDirty();
        }
    }
    if (m_core.state.CurrentCompanyNo >= 1 && m_core.state.CurrentProgramNo >= 1) {
        m_transfer.ScreenToProgram();
        if (m_programs.WriteCurrentProgram()) {
            m_navigation.SetProgramClean();
            m_core.state.NewProgramPending = false;
        } else {
            m_navigation.SetProgramDirty();
        }
    }
    const int company = m_core.state.CurrentCompanyNo;
    const int program = m_core.state.CurrentProgramNo;
    m_core.state.ImportInProgress = false;
    if (m_core.state.CompanyDirty || m_core.state.ProgramDirty || company < 1 ||
        company > m_companies.GetCompanyCount())
        return;
    m_core.screen.setItems(m_core.id(u"cboCompanyName"), m_core.store.companyNames());
    m_core.screen.setListIndex(m_core.id(u"cboCompanyName"), company - 1);
    if (program >= 1 && program <= m_core.screen.at(u"cboProgramName").items.size())
        m_core.screen.setListIndex(m_core.id(u"cboProgramName"), program - 1);
}

} // namespace brevaro
