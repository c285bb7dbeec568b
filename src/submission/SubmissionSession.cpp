#include "submission/SubmissionSession.h"

#include "platform/Prompts.h"
#include "platform/StringHelpers.h"
#include "submission/SiteList.h"

namespace brevaro {

QString SubmissionSession::productControl(Product p) {
    static const char* names[kProducts] = {"txtProductName", "txtProductVersion", "txtPADfileURL",
                                           "txtMainCat", "txtSubCat"};
    return QLatin1String(names[p]);
}

SubmissionSession::Product SubmissionSession::copyButtonField(int index) {
    static const Product order[kProducts] = {ProductName, ProductVersion, MainCategory, PadFileUrl,
                                             SubCategory};
    return order[index];
}

SubmissionSession::SubmissionSession(const CompanyRecord& company, const ProgramRecord& program,
                                     Prompts& prompts, QObject* parent)
    : QObject(parent)
    , m_company(company)
    , m_program(program)
    , m_prompts(prompts) {}

void SubmissionSession::load() {
    DisableControls();
    FillInfoList();
    if (SiteURL.isEmpty()) {
        SiteURL = SiteList::makerSiteUrl();
        SiteName = QStringLiteral("Quorin");
    }
    txtURL = SiteURL;
    m_product[ProductName] = m_program.text(ProgramField::ProgramName);
    m_product[ProductVersion] = m_program.text(ProgramField::ProgramVersion);
    m_product[PadFileUrl] = m_program.text(ProgramField::ApplicationXMLFileURL);
    m_product[MainCategory] = m_program.text(ProgramField::SpecificCategory);
    m_product[SubCategory] = m_program.text(ProgramField::CategoryClass);
    SetCaption();
}

void SubmissionSession::SetCaption() {
    const QString name = trimBlanks(SiteName);
    caption = QStringLiteral("Software Submission - [") +
              (name.isEmpty() ? QStringLiteral("Unknown") : name) + u']';
    emit changed();
}

void SubmissionSession::SimpleText(const QString& text) {
    status = text;
    emit changed();
}

void SubmissionSession::DisableControls() {
    controlsEnabled = false;
    emit changed();
}

void SubmissionSession::EnableControls() {
    controlsEnabled = true;
    emit changed();
}

void SubmissionSession::FillInfoList() {
    m_info = brevaro::FillInfoList(m_company, m_program);
    emit changed();
}

void SubmissionSession::setSite(const QString& name, const QString& url) {
    SiteName = trimBlanks(name);
    SiteURL = trimBlanks(url);
    txtURL = SiteURL;
    SetCaption();
}

const InfoEntry* SubmissionSession::entry(const QString& number) const {
    for (const InfoEntry& e : m_info)
        if (e.number == number)
            return &e;
    return nullptr;
}

void SubmissionSession::showValue(const QString& value) {
    lblInfo.text = infoPreview(value);
    lblInfo.red = false;
    lblInfo.bold = false;
}

void SubmissionSession::clickEntry(const QString& number) {
    const InfoEntry* e = entry(number);
    if (!e)
        return;
    if (e->isField()) {
        showValue(e->value);
    } else {
        lblInfo.text.clear();
        lblInfo.red = true;
        lblInfo.bold = true;
    }
    emit changed();
}

void SubmissionSession::doubleClickEntry(const QString& number) {
    const InfoEntry* e = entry(number);
    if (!e)
        return;
    if (!e->isField()) {
        lblInfo = {QStringLiteral("Select Valid Field"), true, true};
        emit changed();
        m_prompts.beep();
        return;
    }
    // The value is shown first so that "Empty" stays visible for an empty field.
    showValue(e->value);
    CopyToClipboard(e->value);
}

void SubmissionSession::CopyToClipboard(const QString& text) {
    const QString trimmed = trimBlanks(text);
    if (trimmed.isEmpty()) {
        lblInfo.text = QStringLiteral("Empty");
        emit changed();
        m_prompts.beep();
        return;
    }
    m_prompts.setClipboardText(QString());
    m_prompts.setClipboardText(trimmed);
    emit changed();
}

void SubmissionSession::copyProduct(int index) {
    if (index < 0 || index >= kProducts)
        return;
    const Product box = copyButtonField(index);
    m_prompts.setClipboardText(QString());
    emit flashStarted(box);
    m_prompts.setClipboardText(m_product[box]);
    m_prompts.pumpEvents();
    emit flashEnded(box);
}

std::vector<KnownInput> SubmissionSession::knownFields(const QString& user,
                                                       const QString& password) const {
    return knownFieldPlan(m_product[PadFileUrl], user, password);
}

} // namespace brevaro
