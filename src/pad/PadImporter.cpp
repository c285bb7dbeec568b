#include "pad/PadImporter.h"

#include "AppVersion.h"
#include "mainwindow/EditingSession.h"
#include "platform/FileHelpers.h"
#include "platform/StringHelpers.h"
#include "platform/TextFiles.h"
#include "records/ValueLists.h"
#include "records/Win1252.h"

#include <QFile>
#include <QHash>
#include <QRegularExpression>

namespace brevaro {

namespace {

QStringView trimmed(QStringView s) {
    qsizetype b = 0, e = s.size();
    while (b < e && s[b] == u' ')
        ++b;
    while (e > b && s[e - 1] == u' ')
        --e;
    return s.sliced(b, e - b);
}

QString decodePad(const QByteArray& bytes) {
    static const QRegularExpression declared(
        QStringLiteral("encoding\\s*=\\s*[\"']([A-Za-z0-9_.:-]+)[\"']"));
    const qsizetype end = bytes.indexOf("?>");
    const QString head =
        QString::fromLatin1(bytes.left(end < 0 ? 256 : std::min<qsizetype>(end, 1024)));
    const QString name = declared.match(head).captured(1).toLower();
    if (name == QLatin1String("utf-8") || name == QLatin1String("utf8"))
        return QString::fromUtf8(bytes);
    if (name == QLatin1String("iso-8859-1") || name == QLatin1String("latin1") ||
        name == QLatin1String("iso8859-1"))
        return QString::fromLatin1(bytes);
    return fromWin1252(bytes);
}

enum class Action {
    Text,
    Company,
    Program,
    List,
    CheckExact,
    CheckUpper,
    Expire,
    Description,
    Append
};

struct Target {
    const char16_t* control;
    Action action;
};

const QHash<QString, Target>& dispatchTable() {
    static const QHash<QString, Target> table = [] {
        using A = Action;
        const std::pair<const char*, Target> rows[] = {
            {"Company_Name", {u"cboCompanyName", A::Company}},
            {"Address_1", {u"txtAddress1", A::Text}},
            {"Address_2", {u"txtAddress2", A::Text}},
            {"City_Town", {u"txtCity", A::Text}},
            {"State_Province", {u"txtState", A::Text}},
            {"Zip_Postal_Code", {u"txtZip", A::Text}},
            {"Country", {u"cboCountry", A::Text}},
            {"Company_WebSite_URL", {u"txtURL", A::Text}},
            {"Author_First_Name", {u"txtAuthorFname", A::Text}},
            {"Author_Last_Name", {u"txtAuthorLname", A::Text}},
            {"Author_Email", {u"txtAuthorEmail", A::Text}},
            {"Contact_First_Name", {u"txtContactFname", A::Text}},
            {"Contact_Last_Name", {u"txtContactLname", A::Text}},
            {"Contact_Email", {u"txtContactEmail", A::Text}},
            {"Sales_Email", {u"txtSupportEmailSales", A::Text}},
            {"Support_Email", {u"txtSupportEmailSupport", A::Text}},
            {"General_Email", {u"txtSupportEmailGeneral", A::Text}},
            {"Sales_Phone", {u"txtPhoneSales", A::Text}},
            {"Support_Phone", {u"txtPhoneSupport", A::Text}},
            {"General_Phone", {u"txtPhoneGeneral", A::Text}},
            {"Fax_Phone", {u"txtPhoneFax", A::Text}},
            {"Program_Name", {u"cboProgramName", A::Program}},
            {"Program_Version", {u"txtProgramVersion", A::Text}},
            {"Program_Release_Month", {u"cboReleaseMonth", A::Text}},
            {"Program_Release_Day", {u"cboReleaseDay", A::Text}},
            {"Program_Release_Year", {u"cboReleaseYear", A::Text}},
            {"Program_Cost_Dollars", {u"txtCostUS", A::Text}},
            {"Program_Cost_Other_Code", {u"cboCostOtherCurrency", A::Text}},
            {"Program_Cost_Other", {u"txtCostOtherAmount", A::Text}},
            {"Program_Type", {u"cboType", A::Text}},
            {"Program_Release_Status", {u"cboStatus", A::Text}},
            {"Program_Install_Support", {u"cboInstallSupport", A::Text}},
            {"Program_OS_Support", {u"lstSupportedOS", A::List}},
            {"Program_Language", {u"lstLanguages", A::List}},
            {"Filename_Versioned", {u"txtVersionedFilename", A::Text}},
            {"Filename_Previous", {u"txtPreviousFilename", A::Text}},
            {"Filename_Generic", {u"txtGenericFilename", A::Text}},
            {"Filename_Long", {u"txtLongFilename", A::Text}},
            {"File_Size_Bytes", {u"txtSizeByte", A::Text}},
            {"File_Size_K", {u"txtSizeKB", A::Text}},
            {"File_Size_MB", {u"txtSizeMB", A::Text}},
            {"Has_Expire_Info", {u"chkHasExpiredInfo", A::CheckExact}},
            {"Expire_Count", {u"txtExpireAfter", A::Text}},
            {"Expire_Based_On", {u"optExpire", A::Expire}},
            {"Expire_Other_Info", {u"txtExpireInfo", A::Text}},
            {"Expire_Month", {u"cboExpireMonth", A::Text}},
            {"Expire_Day", {u"cboExpireDay", A::Text}},
            {"Expire_Year", {u"cboExpireYear", A::Text}},
            {"Program_Change_Info", {u"txtRecentChanges", A::Text}},
            {"Program_Specific_Category", {u"cboSpecificCategory", A::Text}},
            {"Program_Categories", {u"cboPossibleCategories", A::Text}},
            {"Program_System_Requirements", {u"txtSystemRequirements", A::Text}},
            {"Includes_JAVA_VM", {u"chkIncludeJava", A::CheckExact}},
            {"Includes_VB_Runtime", {u"chkIncludeVBruntime", A::CheckExact}},
            {"Includes_DirectX", {u"chkIncludeDirectX", A::CheckExact}},
            {"Keywords", {u"txtKeywords", A::Description}},
            {"Char_Desc_45", {u"txt45char", A::Description}},
            {"Char_Desc_80", {u"txt80char", A::Description}},
            {"Char_Desc_250", {u"txt250char", A::Description}},
            {"Char_Desc_450", {u"txt450char", A::Description}},
            {"Char_Desc_2000", {u"txt2000char", A::Description}},
            {"Application_Info_URL", {u"txtApplicationHomeURL", A::Text}},
            {"Application_Order_URL", {u"txtApplicationOrderURL", A::Text}},
            {"Application_Screenshot_URL", {u"txtScreenshotURL", A::Text}},
            {"Application_Icon_URL", {u"txtProgramIconURL", A::Text}},
            {"Application_XML_File_URL", {u"txtPadXMLfileURL", A::Text}},
            {"Primary_Download_URL", {u"txtPrimaryDownloadURL", A::Text}},
            {"Secondary_Download_URL", {u"txtSecondDownloadURL", A::Text}},
            {"Additional_Download_URL_1", {u"txtThirdDownloadURL", A::Text}},
            {"Additional_Download_URL_2", {u"txtFourthDownloadURL", A::Text}},
            {"Distribution_Permissions", {u"txtDistributionAgreements", A::Append}},
            {"EULA", {u"txtEULA", A::Append}},
            {"ASP_FORM", {u"chkASPactivate", A::CheckUpper}},
            {"ASP_Member", {u"chkASP", A::CheckUpper}},
            {"ASP_Member_Number", {u"txtASP_MemberNo", A::Text}},
            {"ESC_FORM", {u"chkESCactivate", A::CheckUpper}},
            {"ESC_Member", {u"chkESC", A::CheckUpper}},
            {"MSN_FORM", {u"chkMSNactivate", A::CheckUpper}},
            {"MSN_IS_32bit", {u"chkMSN", A::CheckUpper}},
            {"TPA_FORM", {u"chkTPAactivate", A::CheckUpper}},
            {"TPA_Member", {u"chkTPA", A::CheckUpper}},
            {"TPA_Member_ID", {u"txtTPA_MemberNo", A::Text}},
            {"Trial_License_Type", {u"cboTPA_LicenseType", A::Text}},
        };
        QHash<QString, Target> t;
        for (const auto& [name, target] : rows)
            t.insert(u'<' + QLatin1String(name) + u'>', target);
        return t;
    }();
    return table;
}

void dispatch(EditingSession& s, const Target& target, const QString& value, int language) {
    ScreenModel& screen = s.screen();
    const QStringView control(target.control);
    switch (target.action) {
    case Action::Text:
        return screen.setText(s.id(control), value);
    case Action::Company:
        if (s.FindCompany(value))
            screen.setListIndex(s.id(control), s.CurrentCompanyNo - 1);
        else
            s.CreateCompany(value);
        s.SaveCompany();
        return screen.setText(s.id(control), value);
    case Action::Program:
        s.CreateProgram(value);
        s.SaveProgram();
        return screen.setText(s.id(control), value);
    case Action::List: {
        const int list = s.id(control);
        const QStringList items = screen.at(list).items;
        for (int i = 0; i < items.size(); ++i)
            screen.setItemSelected(list, i, findFrom(1, value, trimBlanks(items[i])) > 0);
        return;
    }
    case Action::CheckExact:
        return screen.setValue(s.id(control), value == QLatin1String("Y") ? 1 : 0);
    case Action::CheckUpper:
        return screen.setValue(s.id(control), value.toUpper() == QLatin1String("Y") ? 1 : 0);
    case Action::Expire: {
        static const QStringList bases = {QStringLiteral("Days"), QStringLiteral("Uses"),
                                          QStringLiteral("Either/Or"), QStringLiteral("Date")};
        const int option = static_cast<int>(bases.indexOf(value));
        if (option >= 0)
            screen.setValue(s.id(control, option), 1);
        return;
    }
    case Action::Description:
        screen.setText(s.id(control, language), value);
        if (!trimBlanks(value).isEmpty())
            screen.setValue(s.id(u"chkActivateLanguage", language), 1);
        return;
    case Action::Append: {
        const int box = s.id(control);
        return screen.setText(box, screen.at(box).text + value + QStringLiteral("\r\n"));
    }
    }
}

// Saves what the import set without reloading the fields over it, then shows the company
// and the program as a fresh selection would.
void saveImported(EditingSession& s) {
    if (s.CurrentCompanyNo >= 1) {
        s.ScreenToCompany();
        if (s.WriteCurrentCompany()) {
            s.company().trimText(CompanyField::CompanyName);
            s.SetCompanyClean();
            s.NewCompanyPending = false;
        }
    }
    if (s.CurrentCompanyNo >= 1 && s.CurrentProgramNo >= 1) {
        s.ScreenToProgram();
        if (s.WriteCurrentProgram()) {
            s.SetProgramClean();
            s.NewProgramPending = false;
        }
    }
    const int company = s.CurrentCompanyNo;
    const int program = s.CurrentProgramNo;
    s.ImportInProgress = false;
    if (s.CompanyDirty || s.ProgramDirty || company < 1 || company > s.GetCompanyCount())
        return;
    ScreenModel& screen = s.screen();
    screen.setItems(s.id(u"cboCompanyName"), s.store().companyNames());
    screen.setListIndex(s.id(u"cboCompanyName"), company - 1);
    if (program >= 1 && program <= screen.at(u"cboProgramName").items.size())
        screen.setListIndex(s.id(u"cboProgramName"), program - 1);
}

} // namespace

QString readPadFileText(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QString();
    return trimBlanks(linesWithCrLf(decodePad(file.readAll())));
}

void scanPadTags(
    QStringView t,
    const std::function<void(QStringView tag, QStringView value, int language)>& visit) {
    const QStringList& languages = languageList();
    const qsizetype n = t.size();
    // The next "</" only moves forward as the scan does, so it is searched for once per
    // occurrence rather than once per tag: the scan stays linear.
    qsizetype closeFrom = -1, close = -1;
    qsizetype closeEndFor = -1, closeEnd = -1;
    int language = 0;
    qsizetype p = 0;
    while (p < n) {
        const qsizetype a = t.indexOf(u'<', p);
        if (a < 0)
            break;
        const qsizetype b = t.indexOf(u'>', a);
        if (b < 0)
            break;
        const QStringView inner = trimmed(t.sliced(a + 1, b - a - 1));
        if (closeFrom < 0 || (close >= 0 && close < a)) {
            close = t.indexOf(u"</", a);
            closeFrom = a;
        }
        QStringView tag, value;
        if (close > b) {
            if (closeEndFor != close) {
                closeEnd = t.indexOf(u'>', close);
                closeEndFor = close;
            }
            if (closeEnd >= 0 && trimmed(t.sliced(close + 2, closeEnd - close - 2)) == inner) {
                tag = trimmed(t.sliced(a, b - a + 1));
                value = trimmed(t.sliced(b + 1, close - b - 1));
            }
        }
        if (tag.contains(u"/>"))
            tag = value = QStringView();
        if (inner.size() <= 18) // the longest language name
            for (int i = 0; i < languages.size(); ++i)
                if (inner == languages[i])
                    language = i;
        if (!tag.isEmpty())
            visit(tag, value, language);
        p = b;
    }
}

bool ReadPADFile(EditingSession& session, const QString& text) {
    if (!trimBlanks(text).left(5).toLower().startsWith(QLatin1String("<?xml"))) {
        session.prompts().beep();
        session.prompts().message(QStringLiteral("Invalid PAD XML File"),
                                  QStringLiteral("Invalid PAD XML File\r\nMust start with: <?xml"));
        return false;
    }
    const auto& table = dispatchTable();
    // A file that names no company or no program must not write its values over the company
    // or program the window happens to show: it gets one of its own, named after the author.
    bool companyNamed = false, programNamed = false;
    QString first, last;
    scanPadTags(text, [&](QStringView tag, QStringView value, int) {
        if (tag == u"<Company_Name>" && !value.isEmpty())
            companyNamed = true;
        else if (tag == u"<Program_Name>" && !value.isEmpty())
            programNamed = true;
        else if (tag == u"<Author_First_Name>")
            first = value.toString();
        else if (tag == u"<Author_Last_Name>")
            last = value.toString();
    });
    const Target company = table.value(QStringLiteral("<Company_Name>"));
    const Target program = table.value(QStringLiteral("<Program_Name>"));
    if (!companyNamed) {
        const QString author = trimBlanks(QString(first + u' ' + last));
        dispatch(session, company, author.isEmpty() ? QStringLiteral("Imported company") : author,
                 0);
    }
    bool programMade = programNamed;
    scanPadTags(text, [&](QStringView tag, QStringView value, int language) {
        const auto found = table.constFind(tag.toString());
        if (found == table.constEnd())
            return;
        const bool names = found->action == Action::Company || found->action == Action::Program;
        if (names && value.isEmpty())
            return; // an empty name would blank the shown record's name
        const ControlSpec& target = session.row(session.screen().id(
            QStringView(found->control), found->action == Action::Description ? 0
                                         : found->action == Action::Expire    ? 0
                                                                              : -1));
        if (!programMade && target.side == RecordSide::Program &&
            found->action != Action::Program) {
            dispatch(session, program, QStringLiteral("Unnamed program"), 0);
            programMade = true;
        }
        dispatch(session, *found, value.toString(), language);
    });
    return true;
}

bool importPadFile(EditingSession& session, const QString& path) {
    const CompanyRecord shown = session.company();
    session.ImportInProgress = true;
    session.ClearCompanyRecord();
    const bool accepted = ReadPADFile(session, readPadFileText(path));
    session.prompts().pumpEvents();
    if (!accepted) {
        session.company() = shown;
        session.ImportInProgress = false;
        return false;
    }
    saveImported(session);
    return true;
}

void ImportPAD(EditingSession& session) {
    const QString folder = session.store().home().padFolder();
    ensureFolder(folder);
    const auto chosen = session.prompts().openFile(
        {QString(), QStringLiteral("xml"), folder, QStringLiteral("PAD File(s) (*.xml)|*.xml")});
    if (!chosen || chosen->isEmpty())
        return;
    importPadFile(session, *chosen);
}

} // namespace brevaro
