#pragma once

#include "records/CompanyRecord.h"
#include "records/ProgramRecord.h"

namespace brevaro::test {

// A company and a program filled by hand the way a careful author fills them: every value
// follows the published PAD field rules.
inline CompanyRecord cleanCompany() {
    using CF = CompanyField;
    CompanyRecord c;
    c.setNumber(CF::CompanyID, 1);
    const std::pair<CF, const char16_t*> values[] = {
        {CF::CompanyName, u"Smith Software"},
        {CF::Address1, u"12 High Street"},
        {CF::CityTown, u"Leeds"},
        {CF::StateProvince, u"West Yorkshire"},
        {CF::ZipPostalCode, u"LS1 4AP"},
        {CF::Country, u"United Kingdom"},
        {CF::CompanyWebSiteURL, u"http://www.smith.example"},
        {CF::AuthorFirstName, u"Anna"},
        {CF::AuthorLastName, u"Smith"},
        {CF::AuthorEmail, u"anna@smith.example"},
        {CF::ContactFirstName, u"Ben"},
        {CF::ContactLastName, u"Jones"},
        {CF::ContactEmail, u"ben@smith.example"},
        {CF::SalesEmail, u"sales@smith.example"},
        {CF::SupportEmail, u"support@smith.example"},
        {CF::GeneralEmail, u"info@smith.example"},
        {CF::SalesPhone, u"+44 113 496 0000"},
        {CF::SupportPhone, u"+44 113 496 0001"},
    };
    for (const auto& [field, value] : values)
        c.setText(field, QStringView(value));
    return c;
}

inline ProgramRecord cleanProgram() {
    using PF = ProgramField;
    ProgramRecord p;
    p.setNumber(PF::CompanyID, 1);
    const std::pair<PF, const char16_t*> values[] = {
        {PF::ProgramName, u"Tidy Notes"},
        {PF::ProgramVersion, u"2.1.0"},
        {PF::ReleaseMonth, u"07"},
        {PF::ReleaseDay, u"30"},
        {PF::ReleaseYear, u"2008"},
        {PF::ProgramType, u"Shareware"},
        {PF::ReleaseStatus, u"Major Update"},
        {PF::CostDollars, u"19.95"},
        {PF::CostOtherCode, u"EUR"},
        {PF::CostOther, u"17.50"},
        {PF::InstallSupport, u"Install and Uninstall"},
        {PF::FilenameVersioned, u"tidyno21.zip"},
        {PF::FilenamePrevious, u"tidyno20.zip"},
        {PF::FilenameGeneric, u"tidyno.zip"},
        {PF::FilenameLong, u"tidy-notes-2.1.0.zip"},
        {PF::FileSizeBytes, u"1234567"},
        {PF::FileSizeK, u"1206"},
        {PF::FileSizeMB, u"1.18"},
        {PF::ChangeInfo, u"Faster search, tabs for notes"},
        {PF::SpecificCategory, u"Utilities"},
        {PF::CategoryClass, u"Text Editors"},
        {PF::SystemRequirements, u"Windows XP or later, 64 MB"},
        {PF::Keywords, u"notes, editor, outliner"},
        {PF::CharDesc45, u"Keeps your notes tidy"},
        {PF::CharDesc80, u"Keeps your notes tidy, searchable and backed up"},
        {PF::CharDesc250, u"Tidy Notes keeps your notes tidy, searchable and backed up."},
        {PF::CharDesc450, u"Tidy Notes keeps your notes tidy. Search them as you type."},
        {PF::CharDesc2000, u"Tidy Notes keeps your notes tidy.\r\n\r\nSearch them as you type."},
        {PF::ApplicationInfoURL, u"http://www.smith.example/tidy"},
        {PF::ApplicationOrderURL, u"https://www.smith.example/buy"},
        {PF::ApplicationScreenshotURL, u"http://www.smith.example/tidy.png"},
        {PF::ApplicationIconURL, u"http://www.smith.example/tidy.gif"},
        {PF::ApplicationXMLFileURL, u"http://www.smith.example/tidy.xml"},
        {PF::PrimaryDownloadURL, u"http://www.smith.example/tidy.zip"},
        {PF::DistributionPermissions, u"You may put Tidy Notes on any download site."},
        {PF::EULA, u"Use it for 30 days.\r\nThen buy it or remove it."},
    };
    for (const auto& [field, value] : values)
        p.setText(field, QStringView(value));
    p.setNumber(PF::OSSupported, 1, 6);       // WinXP
    p.setNumber(PF::OSSupported, 1, 10);      // Linux
    p.setNumber(PF::LanguageSupported, 1, 0); // English
    p.setNumber(PF::DescriptionActive, 1, 0);
    return p;
}

} // namespace brevaro::test
