#include "records/ProgramRecord.h"

#include <array>

namespace brevaro {
namespace {

using T = FieldType;

constexpr std::array<FieldSpec, 64> kProgramFields = {{
    {"CompanyID", T::Int32, 1, 1, 0},
    {"ProgramName", T::Text, 40, 1, 4},
    {"ProgramVersion", T::Text, 10, 1, 44},
    {"ReleaseMonth", T::Text, 2, 1, 54},
    {"ReleaseDay", T::Text, 2, 1, 56},
    {"ReleaseYear", T::Text, 4, 1, 58},
    {"ProgramType", T::Text, 15, 1, 62},
    {"ReleaseStatus", T::Text, 15, 1, 77},
    {"CostDollars", T::Text, 10, 1, 92},
    {"CostOtherCode", T::Text, 3, 1, 102},
    {"CostOther", T::Text, 10, 1, 105},
    {"InstallSupport", T::Text, 25, 1, 115},
    {"OSSupported", T::Int16, 1, 27, 140},
    {"LanguageSupported", T::Int16, 1, 9, 194},
    {"FilenameVersioned", T::Text, 12, 1, 212},
    {"FilenamePrevious", T::Text, 12, 1, 224},
    {"FilenameGeneric", T::Text, 10, 1, 236},
    {"FilenameLong", T::Text, 128, 1, 246},
    {"FileSizeBytes", T::Text, 12, 1, 374},
    {"FileSizeK", T::Text, 12, 1, 386},
    {"FileSizeMB", T::Text, 12, 1, 398},
    {"HasExpireInfo", T::Int16, 1, 1, 410},
    {"ExpireCount", T::Text, 10, 1, 412},
    {"ExpireBasedOn", T::Int16, 1, 4, 422},
    {"ExpireMonth", T::Text, 2, 1, 430},
    {"ExpireDay", T::Text, 2, 1, 432},
    {"ExpireYear", T::Text, 4, 1, 434},
    {"ExpireOtherInfo", T::Text, 128, 1, 438},
    {"ChangeInfo", T::Text, 128, 1, 566},
    {"SpecificCategory", T::Text, 25, 1, 694},
    {"CategoryClass", T::Text, 128, 1, 719},
    {"SystemRequirements", T::Text, 128, 1, 847},
    {"IncludesJavaVM", T::Int16, 1, 1, 975},
    {"IncludesVBRuntime", T::Int16, 1, 1, 977},
    {"IncludesDirectX", T::Int16, 1, 1, 979},
    {"DescriptionActive", T::Int16, 1, 9, 981},
    {"Keywords", T::Text, 128, 9, 999},
    {"CharDesc45", T::Text, 45, 9, 2151},
    {"CharDesc80", T::Text, 80, 9, 2556},
    {"CharDesc250", T::Text, 250, 9, 3276},
    {"CharDesc450", T::Text, 450, 9, 5526},
    {"CharDesc2000", T::Text, 2000, 9, 9576},
    {"ApplicationInfoURL", T::Text, 128, 1, 27576},
    {"ApplicationOrderURL", T::Text, 128, 1, 27704},
    {"ApplicationScreenshotURL", T::Text, 128, 1, 27832},
    {"ApplicationIconURL", T::Text, 128, 1, 27960},
    {"ApplicationXMLFileURL", T::Text, 128, 1, 28088},
    {"PrimaryDownloadURL", T::Text, 128, 1, 28216},
    {"SecondaryDownloadURL", T::Text, 128, 1, 28344},
    {"AdditionalDownloadURL1", T::Text, 128, 1, 28472},
    {"AdditionalDownloadURL2", T::Text, 128, 1, 28600},
    {"DistributionPermissions", T::Text, 500, 1, 28728},
    {"EULA", T::Text, 3000, 1, 29228},
    {"ASPActivated", T::Int16, 1, 1, 32228},
    {"ASPMember", T::Int16, 1, 1, 32230},
    {"ASPMemberNumber", T::Text, 25, 1, 32232},
    {"ESCActivated", T::Int16, 1, 1, 32257},
    {"ESCMember", T::Int16, 1, 1, 32259},
    {"MSNActivated", T::Int16, 1, 1, 32261},
    {"MSNIs32Bit", T::Int16, 1, 1, 32263},
    {"TPAActivated", T::Int16, 1, 1, 32265},
    {"TPAMember", T::Int16, 1, 1, 32267},
    {"TPAMemberID", T::Text, 25, 1, 32269},
    {"TrialLicenseType", T::Text, 25, 1, 32294},
}};

static_assert(isContiguous(kProgramFields, ProgramRecord::kLength));
static_assert(static_cast<int>(ProgramField::TrialLicenseType) + 1 == kProgramFields.size());

constexpr RecordLayout kProgramLayout{"program", kProgramFields, ProgramRecord::kLength};

} // namespace

const RecordLayout& programLayout() {
    return kProgramLayout;
}

ProgramRecord::ProgramRecord()
    : TypedRecord(kProgramLayout) {}

void ProgramRecord::clear(int listedSystems, int listedLanguages) {
    const ProgramRecord old = *this;
    resetToEmpty();
    setNumber(ProgramField::CompanyID, old.number(ProgramField::CompanyID));
    // Flags without a list item are not touched.
    for (int i = listedSystems; i < kOSFlags; ++i)
        setNumber(ProgramField::OSSupported, old.number(ProgramField::OSSupported, i), i);
    for (int i = listedLanguages; i < kLanguages; ++i)
        setNumber(ProgramField::LanguageSupported, old.number(ProgramField::LanguageSupported, i),
                  i);
    setNumber(ProgramField::DescriptionActive, 1, 0);
}

} // namespace brevaro
