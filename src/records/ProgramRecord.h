#pragma once

#include "records/TypedRecord.h"

namespace brevaro {

// Fields of a program record, in their order on disk.
enum class ProgramField {
    CompanyID,
    ProgramName,
    ProgramVersion,
    ReleaseMonth,
    ReleaseDay,
    ReleaseYear,
    ProgramType,
    ReleaseStatus,
    CostDollars,
    CostOtherCode,
    CostOther,
    InstallSupport,
    OSSupported,
    LanguageSupported,
    FilenameVersioned,
    FilenamePrevious,
    FilenameGeneric,
    FilenameLong,
    FileSizeBytes,
    FileSizeK,
    FileSizeMB,
    HasExpireInfo,
    ExpireCount,
    ExpireBasedOn,
    ExpireMonth,
    ExpireDay,
    ExpireYear,
    ExpireOtherInfo,
    ChangeInfo,
    SpecificCategory,
    CategoryClass,
    SystemRequirements,
    IncludesJavaVM,
    IncludesVBRuntime,
    IncludesDirectX,
    DescriptionActive,
    Keywords,
    CharDesc45,
    CharDesc80,
    CharDesc250,
    CharDesc450,
    CharDesc2000,
    ApplicationInfoURL,
    ApplicationOrderURL,
    ApplicationScreenshotURL,
    ApplicationIconURL,
    ApplicationXMLFileURL,
    PrimaryDownloadURL,
    SecondaryDownloadURL,
    AdditionalDownloadURL1,
    AdditionalDownloadURL2,
    DistributionPermissions,
    EULA,
    ASPActivated,
    ASPMember,
    ASPMemberNumber,
    ESCActivated,
    ESCMember,
    MSNActivated,
    MSNIs32Bit,
    TPAActivated,
    TPAMember,
    TPAMemberID,
    TrialLicenseType,
};

const RecordLayout& programLayout();

// One product of a company: 32319 bytes on disk.
class ProgramRecord : public TypedRecord<ProgramField> {
public:
    static constexpr int kLength = 32319;
    static constexpr int kOSFlags = 27;
    static constexpr int kLanguages = 9;
    ProgramRecord();

    // Blanks every text and clears every flag, except CompanyID and the OS flags beyond the
    // listed systems; English is left active.
    void clear(int listedSystems, int listedLanguages);
};

} // namespace brevaro
