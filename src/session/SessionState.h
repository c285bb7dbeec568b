#pragma once

namespace brevaro {

// The values held beside the two current records: where they stand in their files and
// whether the screen differs from what is stored.
struct SessionState {
    int CurrentCompanyNo = 0;
    int CompanyCount = 0;
    int CurrentProgramNo = 0;
    int ProgramCount = 0;
    bool CompanyDirty = false;
    bool ProgramDirty = false;
    bool NewCompanyPending = false;
    bool NewProgramPending = false;
    bool ImportInProgress = false;
};

} // namespace brevaro
