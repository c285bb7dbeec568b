#include "pad/PadWrittenValues.h"

#include "pad/PadText.h"
#include "records/ValueLists.h"

namespace brevaro {

namespace {

using CF = CompanyField;
using PF = ProgramField;

// How a row's value is found and when the writer writes it.
enum class From { Text, Systems, Languages, YesNo, ExpireBasedOn };
enum class When { Always, ExpireByCount, ExpireByDate, Description, ASP, TPA };

struct Row {
    RecordSide side;
    int field;
    const char* label;
    const char* place;
    From from = From::Text;
    When when = When::Always;
};

constexpr RecordSide C = RecordSide::Company;
constexpr RecordSide P = RecordSide::Program;
constexpr int c(CF f) {
    return static_cast<int>(f);
}
constexpr int p(PF f) {
    return static_cast<int>(f);
}

// Record field (its PAD element is the field table's) and the window's label, in the writer's
// order.
const Row kRows[] = {
    {C, c(CF::CompanyName), "Name", "Company Info"},
    {C, c(CF::Address1), "Address 1", "Company Info"},
    {C, c(CF::Address2), "Address 2", "Company Info"},
    {C, c(CF::CityTown), "City / Town", "Company Info"},
    {C, c(CF::StateProvince), "State/Province", "Company Info"},
    {C, c(CF::ZipPostalCode), "Zip", "Company Info"},
    {C, c(CF::Country), "Country", "Company Info"},
    {C, c(CF::CompanyWebSiteURL), "URL", "Company Info"},
    {C, c(CF::AuthorFirstName), "First", "Company Info, Author"},
    {C, c(CF::AuthorLastName), "Last", "Company Info, Author"},
    {C, c(CF::AuthorEmail), "Email", "Company Info, Author"},
    {C, c(CF::ContactFirstName), "First", "Company Info, Contact"},
    {C, c(CF::ContactLastName), "Last", "Company Info, Contact"},
    {C, c(CF::ContactEmail), "Email", "Company Info, Contact"},
    {C, c(CF::SalesEmail), "Sales", "Company Info, Email Addresses"},
    {C, c(CF::SupportEmail), "Support", "Company Info, Email Addresses"},
    {C, c(CF::GeneralEmail), "General", "Company Info, Email Addresses"},
    {C, c(CF::SalesPhone), "Sales", "Company Info, Phone Numbers"},
    {C, c(CF::SupportPhone), "Support", "Company Info, Phone Numbers"},
    {C, c(CF::GeneralPhone), "General", "Company Info, Phone Numbers"},
    {C, c(CF::FaxPhone), "Fax", "Company Info, Phone Numbers"},
    {P, p(PF::ProgramName), "Name", "Program Info"},
    {P, p(PF::ProgramVersion), "Version", "Program Info"},
    {P, p(PF::ReleaseMonth), "Release Date (month)", "Program Info"},
    {P, p(PF::ReleaseDay), "Release Date (day)", "Program Info"},
    {P, p(PF::ReleaseYear), "Release Date (year)", "Program Info"},
    {P, p(PF::CostDollars), "Cost (US$)", "Program Info"},
    {P, p(PF::CostOtherCode), "Cost (Other)", "Program Info"},
    {P, p(PF::CostOther), "Cost (Other) amount", "Program Info"},
    {P, p(PF::ProgramType), "Type", "Program Info"},
    {P, p(PF::ReleaseStatus), "Status", "Program Info"},
    {P, p(PF::InstallSupport), "Install Support", "Program Info"},
    {P, p(PF::OSSupported), "Supported OS", "Program Info", From::Systems},
    {P, p(PF::LanguageSupported), "Languages", "Program Info", From::Languages},
    {P, p(PF::FilenameVersioned), "Versioned Filename", "Program Info, File Info"},
    {P, p(PF::FilenamePrevious), "Previous Filename", "Program Info, File Info"},
    {P, p(PF::FilenameGeneric), "Generic Filename", "Program Info, File Info"},
    {P, p(PF::FilenameLong), "Long Filename", "Program Info, File Info"},
    {P, p(PF::FileSizeBytes), "Size Bytes", "Program Info, File Info"},
    {P, p(PF::FileSizeK), "Size KB", "Program Info, File Info"},
    {P, p(PF::FileSizeMB), "Size MB", "Program Info, File Info"},
    {P, p(PF::HasExpireInfo), "Has Expired Info", "Program Info", From::YesNo},
    {P, p(PF::ExpireCount), "Expire After", "Program Info", From::Text, When::ExpireByCount},
    {P, p(PF::ExpireBasedOn), "Days / Uses / Either/Or", "Program Info", From::ExpireBasedOn},
    {P, p(PF::ExpireMonth), "Expire on (month)", "Program Info", From::Text, When::ExpireByDate},
    {P, p(PF::ExpireDay), "Expire on (day)", "Program Info", From::Text, When::ExpireByDate},
    {P, p(PF::ExpireYear), "Expire on (year)", "Program Info", From::Text, When::ExpireByDate},
    {P, p(PF::ExpireOtherInfo), "Other Expire info", "Program Info"},
    {P, p(PF::ChangeInfo), "Recent Changes", "Program Info"},
    {P, p(PF::SpecificCategory), "Specific Category", "Program Info"},
    {P, p(PF::CategoryClass), "Possible Categories", "Program Info"},
    {P, p(PF::SystemRequirements), "System Requirements", "Program Info"},
    {P, p(PF::Keywords), "Keywords:", "Descriptions", From::Text, When::Description},
    {P, p(PF::CharDesc45), "45 Char:", "Descriptions", From::Text, When::Description},
    {P, p(PF::CharDesc80), "80 Char:", "Descriptions", From::Text, When::Description},
    {P, p(PF::CharDesc250), "250 Char:", "Descriptions", From::Text, When::Description},
    {P, p(PF::CharDesc450), "450 Char:", "Descriptions", From::Text, When::Description},
    {P, p(PF::CharDesc2000), "2000 Char:", "Descriptions", From::Text, When::Description},
    {P, p(PF::ApplicationInfoURL), "Application Home", "Web Info, General URL Info"},
    {P, p(PF::ApplicationOrderURL), "Application Order", "Web Info, General URL Info"},
    {P, p(PF::ApplicationScreenshotURL), "Screenshot", "Web Info, General URL Info"},
    {P, p(PF::ApplicationIconURL), "Program Icon", "Web Info, General URL Info"},
    {P, p(PF::ApplicationXMLFileURL), "PAD XML File", "Web Info, General URL Info"},
    {P, p(PF::PrimaryDownloadURL), "Primary Download", "Web Info, Download URL Info"},
    {P, p(PF::SecondaryDownloadURL), "Second Download", "Web Info, Download URL Info"},
    {P, p(PF::AdditionalDownloadURL1), "Third Download", "Web Info, Download URL Info"},
    {P, p(PF::AdditionalDownloadURL2), "Fourth Download", "Web Info, Download URL Info"},
    {P, p(PF::DistributionPermissions), "Distribution Agreements", "Permissions"},
    {P, p(PF::EULA), "End User License Agreement", "Permissions"},
    {P, p(PF::ASPMemberNumber), "ASP Member Number", "ASP Info", From::Text, When::ASP},
    {P, p(PF::TPAMemberID), "TPA Member ID", "TPA Info", From::Text, When::TPA},
    {P, p(PF::TrialLicenseType), "Trialware license type", "TPA Info", From::Text, When::TPA},
};

// The captions of the description language tabs.
const char* const kLanguageTabs[] = {"English",        "Spanish",           "French",
                                     "German",         "Italian",           "Japanese",
                                     "Chinese Simple", "Chinese Tradional", "Russian"};
static_assert(std::size(kLanguageTabs) == ProgramRecord::kLanguages);

bool written(When when, const ProgramRecord& pr) {
    const bool byDate = pr.number(PF::ExpireBasedOn, 3) != 0;
    switch (when) {
    case When::Always:
    case When::Description:
        return true;
    case When::ExpireByCount:
        return !byDate;
    case When::ExpireByDate:
        return byDate;
    case When::ASP:
        return pr.number(PF::ASPActivated) == 1;
    case When::TPA:
        return pr.number(PF::TPAActivated) == 1;
    }
    return false;
}

QString valueOf(const Row& row, const CompanyRecord& co, const ProgramRecord& pr, int entry) {
    switch (row.from) {
    case From::Text:
        return row.side == C ? co.text(row.field, entry) : pr.text(row.field, entry);
    case From::Systems:
        return joinedFlagTexts(pr, PF::OSSupported, operatingSystemList());
    case From::Languages:
        return joinedFlagTexts(pr, PF::LanguageSupported, languageList());
    case From::YesNo:
        return pr.number(row.field) != 0 ? QStringLiteral("Y") : QStringLiteral("N");
    case From::ExpireBasedOn:
        if (pr.number(PF::ExpireBasedOn, 3) == 0)
            return expireBasedOnCaption(pr);
        return pr.text(PF::ExpireMonth).isEmpty() ? QString() : QStringLiteral("Date");
    }
    return QString();
}

} // namespace

std::vector<PadWrittenValue> padWrittenValues(const CompanyRecord& company,
                                              const ProgramRecord& program) {
    std::vector<PadWrittenValue> out;
    auto add = [&](const Row& row, int entry, const QString& place) {
        // Expire_Based_On is not written at all for a date without a month.
        if (row.from == From::ExpireBasedOn && program.number(PF::ExpireBasedOn, 3) != 0 &&
            program.text(PF::ExpireMonth).isEmpty())
            return;
        const RecordLayout& layout = row.side == C ? companyLayout() : programLayout();
        out.push_back({QLatin1String(layout.field(row.field).padElement),
                       valueOf(row, company, program, entry), QString::fromUtf8(row.label), place,
                       row.side, row.field, entry});
    };
    bool descriptionsDone = false;
    for (const Row& row : kRows) {
        if (row.when != When::Description) {
            if (written(row.when, program))
                add(row, 0, QString::fromUtf8(row.place));
            continue;
        }
        // At the first description row: every active language with all its rows.
        if (descriptionsDone)
            continue;
        descriptionsDone = true;
        for (int language = 0; language < ProgramRecord::kLanguages; ++language) {
            if (program.number(PF::DescriptionActive, language) != 1)
                continue;
            const QString place = QString::fromUtf8(row.place) + QStringLiteral(", ") +
                                  QString::fromUtf8(kLanguageTabs[language]);
            for (const Row& d : kRows)
                if (d.when == When::Description)
                    add(d, language, place);
        }
    }
    return out;
}

} // namespace brevaro
