#pragma once

#include "records/FixedRecord.h"
#include "records/RecordField.h"

namespace brevaro {

struct SessionCore;
struct ControlRow;

// Copies between the two current records and the controls that show them, clears and
// enables the controls, and fills the value lists and tooltips: loops over the control table.
class ScreenTransfer {
public:
    explicit ScreenTransfer(SessionCore& core);

    void ScreenToCompany();
    // What the screen shows of one record, copied into record (the session's records stay).
    void screenInto(RecordSide side, FixedRecord& record) const;
    void CompanyToScreen();
    void ClearCompanyScreen();
    void EnableCompanyFields(bool enabled);
    void ScreenToProgram();
    void ProgramToScreen();
    void ClearProgramScreen();
    void EnableProgramFields(bool enabled);
    void ClearCompanyRecord();
    void ClearProgramRecord();
    void LoadValueLists();
    void SetToolTips();
    // Shows value in the control of an extra field, as loading its record would.
    void ShowExtra(int id, const QString& value);
    // The main class of the category class was chosen: its classes fill the class box.
    void CategoryMainChosen(int mainControl);

private:
    template <typename Fn> void forEachControl(RecordSide side, Fn fn);

    SessionCore& m_core;
};

} // namespace brevaro
