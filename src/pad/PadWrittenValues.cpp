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

// Record fields (each one's PAD element is the field table's), in the writer's order.
const Row kRows[] = {
    {C, c(CF::CompanyName)},
    {C, c(CF::Address1)},
    {C, c(CF::Address2)},
    {C, c(CF::CityTown)},
    {C, c(CF::StateProvince)},
    {C, c(CF::ZipPostalCode)},
    {C, c(CF::Country)},
    {C, c(CF::CompanyWebSiteURL)},
    {C, c(CF::AuthorFirstName)},
    {C, c(CF::AuthorLastName)},
    {C, c(CF::AuthorEmail)},
    {C, c(CF::ContactFirstName)},
    {C, c(CF::ContactLastName)},
    {C, c(CF::ContactEmail)},
    {C, c(CF::SalesEmail)},
    {C, c(CF::SupportEmail)},
    {C, c(CF::GeneralEmail)},
    {C, c(CF::SalesPhone)},
    {C, c(CF::SupportPhone)},
    {C, c(CF::GeneralPhone)},
    {C, c(CF::FaxPhone)},
    {P, p(PF::ProgramName)},
    {P, p(PF::ProgramVersion)},
    {P, p(PF::ReleaseMonth)},
    {P, p(PF::ReleaseDay)},
    {P, p(PF::ReleaseYear)},
    {P, p(PF::CostDollars)},
    {P, p(PF::CostOtherCode)},
    {P, p(PF::CostOther)},
    {P, p(PF::ProgramType)},
    {P, p(PF::ReleaseStatus)},
    {P, p(PF::InstallSupport)},
    {P, p(PF::OSSupported), From::Systems},
    {P, p(PF::LanguageSupported), From::Languages},
    {P, p(PF::FilenameVersioned)},
    {P, p(PF::FilenamePrevious)},
    {P, p(PF::FilenameGeneric)},
    {P, p(PF::FilenameLong)},
    {P, p(PF::FileSizeBytes)},
    {P, p(PF::FileSizeK)},
    {P, p(PF::FileSizeMB)},
    {P, p(PF::HasExpireInfo), From::YesNo},
    {P, p(PF::ExpireCount), From::Text, When::ExpireByCount},
    {P, p(PF::ExpireBasedOn), From::ExpireBasedOn},
    {P, p(PF::ExpireMonth), From::Text, When::ExpireByDate},
    {P, p(PF::ExpireDay), From::Text, When::ExpireByDate},
    {P, p(PF::ExpireYear), From::Text, When::ExpireByDate},
    {P, p(PF::ExpireOtherInfo)},
    {P, p(PF::ChangeInfo)},
    {P, p(PF::SpecificCategory)},
    {P, p(PF::CategoryClass)},
    {P, p(PF::SystemRequirements)},
    {P, p(PF::Keywords), From::Text, When::Description},
    {P, p(PF::CharDesc45), From::Text, When::Description},
    {P, p(PF::CharDesc80), From::Text, When::Description},
    {P, p(PF::CharDesc250), From::Text, When::Description},
    {P, p(PF::CharDesc450), From::Text, When::Description},
    {P, p(PF::CharDesc2000), From::Text, When::Description},
    {P, p(PF::ApplicationInfoURL)},
    {P, p(PF::ApplicationOrderURL)},
    {P, p(PF::ApplicationScreenshotURL)},
    {P, p(PF::ApplicationIconURL)},
    {P, p(PF::ApplicationXMLFileURL)},
    {P, p(PF::PrimaryDownloadURL)},
    {P, p(PF::SecondaryDownloadURL)},
    {P, p(PF::AdditionalDownloadURL1)},
    {P, p(PF::AdditionalDownloadURL2)},
    {P, p(PF::DistributionPermissions)},
    {P, p(PF::EULA)},
    {P, p(PF::ASPMemberNumber), From::Text, When::ASP},
    {P, p(PF::TPAMemberID), From::Text, When::TPA},
    {P, p(PF::TrialLicenseType), From::Text, When::TPA},
};

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
    auto add = [&](const Row& row, int entry) {
        // Expire_Based_On is not written at all for a date without a month.
        if (row.from == From::ExpireBasedOn && program.number(PF::ExpireBasedOn, 3) != 0 &&
            program.text(PF::ExpireMonth).isEmpty())
            return;
        const RecordLayout& layout = row.side == C ? companyLayout() : programLayout();
        out.push_back({QLatin1String(layout.field(row.field).padElement),
                       valueOf(row, company, program, entry), row.side, row.field, entry});
    };
    bool descriptionsDone = false;
    for (const Row& row : kRows) {
        if (row.when != When::Description) {
            if (written(row.when, program))
                add(row, 0);
            continue;
        }
        // At the first description row: every active language with all its rows.
        if (descriptionsDone)
            continue;
        descriptionsDone = true;
        for (int language = 0; language < ProgramRecord::kLanguages; ++language) {
            if (program.number(PF::DescriptionActive, language) != 1)
                continue;
            for (const Row& d : kRows)
                if (d.when == When::Description)
                    add(d, language);
        }
    }
    return out;
}

} // namespace brevaro
