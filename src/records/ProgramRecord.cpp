#include "records/ProgramRecord.h"

#include <array>

namespace brevaro {
namespace {

using T = FieldType;
using I = PadImport;

constexpr std::array<RecordField, 64> kProgramFields = {{
    {"CompanyID", T::Int32, 1, 1, 0},
    {"ProgramName", T::Text, 40, 1, 4, "Program_Name", "Program Name", I::ProgramName},
    {"ProgramVersion", T::Text, 10, 1, 44, "Program_Version", "Program Version", I::Text},
    {"ReleaseMonth", T::Text, 2, 1, 54, "Program_Release_Month", "Program Release Month", I::Text},
    {"ReleaseDay", T::Text, 2, 1, 56, "Program_Release_Day", "Program Release Day", I::Text},
    {"ReleaseYear", T::Text, 4, 1, 58, "Program_Release_Year", "Program Release Year", I::Text},
    {"ProgramType", T::Text, 15, 1, 62, "Program_Type", "Program Type", I::Text},
    {"ReleaseStatus", T::Text, 15, 1, 77, "Program_Release_Status", "Program Release Status",
     I::Text},
    {"CostDollars", T::Text, 10, 1, 92, "Program_Cost_Dollars", "Program Cost Dollars", I::Text},
    {"CostOtherCode", T::Text, 3, 1, 102, "Program_Cost_Other_Code", "Program Cost Other Code",
     I::Text},
    {"CostOther", T::Text, 10, 1, 105, "Program_Cost_Other", "Program Cost Other", I::Text},
    {"InstallSupport", T::Text, 25, 1, 115, "Program_Install_Support", "Program Install Support",
     I::Text},
    {"OSSupported", T::Int16, 1, 27, 140, "Program_OS_Support", "Program OS Support", I::FlagList},
    {"LanguageSupported", T::Int16, 1, 9, 194, "Program_Language", "Program Language", I::FlagList},
    {"FilenameVersioned", T::Text, 12, 1, 212, "Filename_Versioned", "Filename Versioned", I::Text},
    {"FilenamePrevious", T::Text, 12, 1, 224, "Filename_Previous", "Filename Previous", I::Text},
    {"FilenameGeneric", T::Text, 10, 1, 236, "Filename_Generic", "Filename Generic", I::Text},
    {"FilenameLong", T::Text, 128, 1, 246, "Filename_Long", "Filename Long", I::Text},
    {"FileSizeBytes", T::Text, 12, 1, 374, "File_Size_Bytes", "File Size Bytes", I::Text},
    {"FileSizeK", T::Text, 12, 1, 386, "File_Size_K", "File Size KB", I::Text},
    {"FileSizeMB", T::Text, 12, 1, 398, "File_Size_MB", "File Size MB", I::Text},
    {"HasExpireInfo", T::Int16, 1, 1, 410, "Has_Expire_Info", "Has Expited Info", I::CheckExact},
    {"ExpireCount", T::Text, 10, 1, 412, "Expire_Count", "Expire Count", I::Text},
    {"ExpireBasedOn", T::Int16, 1, 4, 422, "Expire_Based_On", "Expire Based On", I::ExpireOption},
    {"ExpireMonth", T::Text, 2, 1, 430, "Expire_Month", "Expire Month", I::Text},
    {"ExpireDay", T::Text, 2, 1, 432, "Expire_Day", "Expire Day", I::Text},
    {"ExpireYear", T::Text, 4, 1, 434, "Expire_Year", "Expire Year", I::Text},
    {"ExpireOtherInfo", T::Text, 128, 1, 438, "Expire_Other_Info", "Expire Other Info", I::Text},
    {"ChangeInfo", T::Text, 128, 1, 566, "Program_Change_Info", "Program Change Info", I::Text},
    {"SpecificCategory", T::Text, 25, 1, 694, "Program_Specific_Category",
     "Program Specific Category", I::Text},
    {"CategoryClass", T::Text, 128, 1, 719, "Program_Categories", "Program Categories", I::Text},
    {"SystemRequirements", T::Text, 128, 1, 847, "Program_System_Requirements",
     "Program System Requirements", I::Text},
    {"IncludesJavaVM", T::Int16, 1, 1, 975, "Includes_JAVA_VM", "Includes JAVA VM", I::CheckExact},
    {"IncludesVBRuntime", T::Int16, 1, 1, 977, "Includes_VB_Runtime", "Includes VB Runtime",
     I::CheckExact},
    {"IncludesDirectX", T::Int16, 1, 1, 979, "Includes_DirectX", "Includes DirectX", I::CheckExact},
    {"DescriptionActive", T::Int16, 1, 9, 981},
    {"Keywords", T::Text, 128, 9, 999, "Keywords", "Keywords", I::Description},
    {"CharDesc45", T::Text, 45, 9, 2151, "Char_Desc_45", "Char 45 Desc", I::Description},
    {"CharDesc80", T::Text, 80, 9, 2556, "Char_Desc_80", "Char 80 Desc", I::Description},
    {"CharDesc250", T::Text, 250, 9, 3276, "Char_Desc_250", "Char 250 Desc", I::Description},
    {"CharDesc450", T::Text, 450, 9, 5526, "Char_Desc_450", "Char 450 Desc", I::Description},
    {"CharDesc2000", T::Text, 2000, 9, 9576, "Char_Desc_2000", "Char 2000 Desc", I::Description},
    {"ApplicationInfoURL", T::Text, 128, 1, 27576, "Application_Info_URL", "Application Info URL",
     I::Text},
    {"ApplicationOrderURL", T::Text, 128, 1, 27704, "Application_Order_URL",
     "Application Order URL", I::Text},
    {"ApplicationScreenshotURL", T::Text, 128, 1, 27832, "Application_Screenshot_URL",
     "Application Screenshot URL", I::Text},
    {"ApplicationIconURL", T::Text, 128, 1, 27960, "Application_Icon_URL", "Application Icon URL",
     I::Text},
    {"ApplicationXMLFileURL", T::Text, 128, 1, 28088, "Application_XML_File_URL",
     "Application XML File URL", I::Text},
    {"PrimaryDownloadURL", T::Text, 128, 1, 28216, "Primary_Download_URL", "Primary Download URL",
     I::Text},
    {"SecondaryDownloadURL", T::Text, 128, 1, 28344, "Secondary_Download_URL",
     "Secondary Download URL", I::Text},
    {"AdditionalDownloadURL1", T::Text, 128, 1, 28472, "Additional_Download_URL_1",
     "Additional Download URL 1", I::Text},
    {"AdditionalDownloadURL2", T::Text, 128, 1, 28600, "Additional_Download_URL_2",
     "Additional Download URL 2", I::Text},
    {"DistributionPermissions", T::Text, 500, 1, 28728, "Distribution_Permissions",
     "Distribution Permissions", I::Append},
    {"EULA", T::Text, 3000, 1, 29228, "EULA", "EULA", I::Append},
    {"ASPActivated", T::Int16, 1, 1, 32228, "ASP_FORM", "ASP Activated", I::CheckAnyCase},
    {"ASPMember", T::Int16, 1, 1, 32230, "ASP_Member", "ASP Member", I::CheckAnyCase},
    {"ASPMemberNumber", T::Text, 25, 1, 32232, "ASP_Member_Number", "ASP Member No", I::Text},
    {"ESCActivated", T::Int16, 1, 1, 32257, "ESC_FORM", "ESC Activated", I::CheckAnyCase},
    {"ESCMember", T::Int16, 1, 1, 32259, "ESC_Member", "ESC Member", I::CheckAnyCase},
    {"MSNActivated", T::Int16, 1, 1, 32261, "MSN_FORM", "MSN Activated", I::CheckAnyCase},
    {"MSNIs32Bit", T::Int16, 1, 1, 32263, "MSN_IS_32bit", "MSN 32bit Application", I::CheckAnyCase},
    {"TPAActivated", T::Int16, 1, 1, 32265, "TPA_FORM", "TPA Activated", I::CheckAnyCase},
    {"TPAMember", T::Int16, 1, 1, 32267, "TPA_Member", "TPA Member", I::CheckAnyCase},
    {"TPAMemberID", T::Text, 25, 1, 32269, "TPA_Member_ID", "TPA Member ID", I::Text},
    {"TrialLicenseType", T::Text, 25, 1, 32294, "Trial_License_Type", "TPA License Type", I::Text},
}};

static_assert(isContiguous(kProgramFields, ProgramRecord::kLength));
static_assert(static_cast<int>(ProgramField::TrialLicenseType) + 1 == kProgramFields.size());

constexpr RecordLayout kProgramLayout{"program", RecordSide::Program, kProgramFields,
                                      ProgramRecord::kLength};

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
