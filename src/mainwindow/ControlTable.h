#pragma once

#include "mainwindow/ScreenModel.h"

#include <QString>
#include <vector>

namespace brevaro {

enum class RecordSide { None, Company, Program };
enum MarkOn : unsigned { kMarkNever = 0, kMarkOnChange = 1, kMarkOnClick = 2 };
enum class FocusHint { None, Counter, ItemOf, Text };

// One control of the main window: what it shows, which record field it holds, its limit,
// which record an edit marks modified, its tooltip and its focus hint. The transfer, the
// limits, the tooltips and the widget binding are all loops over this table.
struct ControlSpec {
    QString name;
    int index = -1;
    ControlKind kind = ControlKind::Label;
    QString caption; // button, check box, option, menu and label text; the field's label
    RecordSide side = RecordSide::None;
    int field = -1; // index into the record layout of side
    int entry = 0;  // entry of an array field
    int limit = 0;
    RecordSide marks = RecordSide::None;
    unsigned markOn = kMarkNever;
    FocusHint hint = FocusHint::None;
    QString hintText;
    QString toolTip;
    bool keepsItem = false; // clearing the text keeps the selected item (a status always shows)
};

// The controls of the main window. Company and program controls come first, each in the
// order in which every record operation visits them.
const std::vector<ControlSpec>& mainWindowControls();

// The tab captions of the main tab control and of the description languages.
const QStringList& mainTabCaptions();
const QStringList& languageTabCaptions();

// The controls of the expiry group, enabled only while the product expires.
bool isExpiryGroup(const ControlSpec& row);

} // namespace brevaro
