#include "session/PadCommands.h"

#include "controls/FieldLabels.h"

#include "pad/CreatePad.h"
#include "pad/PadImportTarget.h"
#include "pad/PadImporter.h"
#include "pad/VerificationReport.h"
#include "platform/FileHelpers.h"
#include "platform/FileNames.h"
#include "platform/Win1252.h"
#include "session/EditingSession.h"
#include "session/SessionMessages.h"

#include <QDir>
#include <QSaveFile>
#include <QUrl>
#include <algorithm>

namespace brevaro {

namespace {

// The importer's values go where a user would type or click them, so limits, marks and the
// option groups apply as they do for typing.
class ImportOntoScreen : public PadImportTarget {
public:
    explicit ImportOntoScreen(EditingSession& s)
        : m_s(s) {}

    void importCompany(const QString& name) override {
        const int selector = m_s.id(u"cboCompanyName");
        if (m_s.companies().FindCompany(name))
            m_s.screen().setListIndex(selector, m_s.state().CurrentCompanyNo - 1);
        else
            m_s.companies().CreateCompany(name);
        m_s.companies().SaveCompany();
        m_s.screen().setText(selector, name);
    }
    void importProgram(const QString& name) override {
        m_s.programs().CreateProgram(name);
        m_s.programs().SaveProgram();
        m_s.screen().setText(m_s.id(u"cboProgramName"), name);
    }
    QString fieldText(RecordSide side, int field, int entry) const override {
        return m_s.screen().at(control(side, field, entry)).text;
    }
    void setFieldText(RecordSide side, int field, int entry, const QString& value) override {
        m_s.screen().setText(control(side, field, entry), value);
    }
    void setFieldFlag(RecordSide side, int field, int entry, bool on) override {
        const int id = control(side, field, entry);
        ScreenModel& screen = m_s.screen();
        if (screen.at(id).kind == ControlKind::ListBox)
            screen.setItemSelected(id, entry, on);
        else
            screen.setValue(id, on ? 1 : 0);
    }

private:
    static int control(RecordSide side, int field, int entry) {
        const int id = controlOfField(side, field, entry);
        if (id < 0)
            qFatal("no control shows field %d entry %d", field, entry);
        return id;
    }

    EditingSession& m_s;
};

} // namespace

PadCommands::PadCommands(EditingSession& session)
    : m_s(session) {}

CommandResult PadCommands::VerifyPAD() {
    const QString path = m_s.store().home().verificationPage();
    const QByteArray page =
        toWin1252(verificationPage(m_s.company(), m_s.program(), m_s.text(u"lblOrganization", 0)));
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(page) != page.size() || !file.commit()) {
        const QString message = QStringLiteral("The verification page %1 could not be written: %2")
                                    .arg(path, file.errorString());
        m_s.prompts().message(QStringLiteral("Verify PAD"), message);
        return CommandResult::failed(message);
    }
    m_s.prompts().openDocument(QUrl::fromLocalFile(path).toString());
    return CommandResult::done();
}

bool PadCommands::writePadFiles(const QString& path, QString* error) {
    return brevaro::writePadFiles(m_s.company(), m_s.program(), m_s.text(u"lblOrganization", 0),
                                  path, error);
}

CommandResult PadCommands::CreatePADFile() {
    m_s.navigation().isCompanyDirty();
    m_s.navigation().isProgramDirty();
    if (m_s.state().CompanyDirty || m_s.state().ProgramDirty) {
        m_s.prompts().beep();
        const QString why = QStringLiteral("You MUST save before you can create your PAD file ...");
        m_s.navigation().SimpleText(why);
        return CommandResult::refused(why);
    }
    const QString folder =
        QDir(m_s.store().home().padFolder())
            .filePath(safeFolderName(m_s.company().text(CompanyField::CompanyName)));
    ensureFolder(folder);
    const auto chosen = m_s.prompts().saveFile(
        {proposedPadFileName(m_s.text(u"txtPadXMLfileURL"), m_s.text(u"cboProgramName")),
         QStringLiteral("xml"), folder, QStringLiteral("PAD File(s) (*.xml)|*.xml")});
    if (!chosen || chosen->isEmpty())
        return CommandResult::declined();
    QString error;
    if (!writePadFiles(QDir::toNativeSeparators(*chosen), &error)) {
        m_s.prompts().message(QStringLiteral("Create PAD"), error);
        return CommandResult::failed(error);
    }
    // The file is written as asked; what download sites would reject is said afterwards.
    const auto findings = checkPad(m_s.company(), m_s.program());
    const auto errors = std::count_if(findings.begin(), findings.end(), [](const PadFinding& f) {
        return f.severity == PadFinding::Severity::Error;
    });
    if (errors > 0)
        m_s.navigation().SimpleText(
            QStringLiteral("The PAD file was written, but %1 of its values will make download "
                           "sites reject it: Tools, Check PAD shows where.")
                .arg(errors));
    return CommandResult::done();
}

std::vector<PadFinding> PadCommands::checkScreen() {
    CompanyRecord company = m_s.company();
    ProgramRecord program = m_s.program();
    m_s.transfer().screenInto(RecordSide::Company, company);
    m_s.transfer().screenInto(RecordSide::Program, program);
    return withFieldLabels(checkPad(company, program));
}

bool PadCommands::goToField(const PadFinding& finding) {
    ScreenModel& screen = m_s.screen();
    for (int id = 0; id < screen.count(); ++id) {
        const ControlRow& r = m_s.row(id);
        if (r.side != finding.side || r.field != finding.field || r.side == RecordSide::None ||
            (r.entry != finding.entry && r.kind != ControlKind::ListBox))
            continue;
        const int tab = r.place == Place::LanguagePage ? 2 : r.placeIndex;
        const int tabs = m_s.id(u"SSTab1");
        if (screen.at(tabs).listIndex != tab)
            screen.setListIndex(tabs, tab);
        if (screen.at(tabs).listIndex != tab)
            return false;
        if (r.place == Place::LanguagePage)
            screen.setListIndex(m_s.id(u"SSTab2"), r.index);
        screen.requestFocus(id);
        return true;
    }
    return false;
}

bool PadCommands::importPadFile(const QString& path) {
    m_s.beginImport();
    ImportOntoScreen target(m_s);
    const bool accepted = ReadPADFile(target, m_s.prompts(), readPadFileText(path));
    m_s.prompts().pumpEvents();
    m_s.finishImport(accepted);
    return accepted;
}

CommandResult PadCommands::ImportPAD() {
    // The import replaces the fields on screen: what the user changed is offered for saving.
    if (!m_s.navigation().isCompanyDirty() || !m_s.navigation().isProgramDirty())
        return CommandResult::failed(m_s.store().errorString());
    const QString folder = m_s.store().home().padFolder();
    ensureFolder(folder);
    const auto chosen = m_s.prompts().openFile(
        {QString(), QStringLiteral("xml"), folder, QStringLiteral("PAD File(s) (*.xml)|*.xml")});
    if (!chosen || chosen->isEmpty())
        return CommandResult::declined();
    // The company and the program the file holds are saved together or not at all.
    RecordStore& store = m_s.store();
    store.beginBatch();
    const bool accepted = importPadFile(*chosen);
    // A save of the import that failed has said so and left its record modified.
    const bool savedBoth = !m_s.state().CompanyDirty && !m_s.state().ProgramDirty;
    const bool written = savedBoth && store.commitBatch();
    store.endBatch();
    if (!accepted)
        return CommandResult::refused(QStringLiteral("%1 is not a PAD file").arg(*chosen));
    if (!written) {
        m_s.navigation().SetCompanyDirty();
        m_s.navigation().SetProgramDirty();
        if (savedBoth)
            return reportWriteFailure(m_s, QStringLiteral("The imported company and program"));
        return CommandResult::failed(store.errorString());
    }
    return CommandResult::done();
}

} // namespace brevaro
