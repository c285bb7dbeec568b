#pragma once

#include "controls/ControlTable.h"
#include "records/CompanyRecord.h"
#include "records/ProgramRecord.h"

#include <algorithm>

namespace brevaro::controltable {

using K = ControlKind;
using W = WidgetType;
using A = ControlAction;
using CF = CompanyField;
using PF = ProgramField;

// The limit of a box that takes as many characters as its record field holds.
inline constexpr int kFieldWidth = -1;

// Builds the table row by row; each call of add starts a row and the chained setters fill
// it. A row that holds a record field must say explicitly whether an edit marks a record.
class TableBuilder {
public:
    TableBuilder& add(const char* name, K kind, int index = -1);
    TableBuilder& add(const QString& name, K kind);
    TableBuilder& company(CF f, int limit = 0) {
        return field(RecordSide::Company, int(f), 0, limit);
    }
    TableBuilder& program(PF f, int entry = 0, int limit = 0) {
        return field(RecordSide::Program, int(f), entry, limit);
    }
    // The control holds an extra field of side (ExtraFields.h); a text's limit is the field's.
    TableBuilder& extra(RecordSide side, const char* name, int limit) {
        row().side = side;
        row().extra = QLatin1String(name);
        row().limit = limit;
        if (limit > 0)
            row().hint = FocusHint::Counter;
        return *this;
    }
    TableBuilder& mark(RecordSide side, unsigned on) {
        row().marks = side;
        row().markOn = on;
        m_markSet.back() = true;
        return *this;
    }
    TableBuilder& noMark() { return mark(RecordSide::None, kMarkNever); }
    TableBuilder& itemHint() {
        row().hint = FocusHint::ItemOf;
        return *this;
    }
    TableBuilder& hint(const char* text) {
        row().hint = FocusHint::Text;
        row().hintText = QString::fromUtf8(text);
        return *this;
    }
    TableBuilder& noHint() {
        row().hint = FocusHint::None;
        return *this;
    }
    TableBuilder& keepsItem() {
        row().keepsItem = true;
        return *this;
    }
    TableBuilder& tip(const QString& text) {
        row().toolTip = text;
        return *this;
    }
    TableBuilder& tip(const char* text) { return tip(QString::fromUtf8(text)); }
    // The text shown with the control: its own caption for buttons, check boxes, options,
    // labels and menu items; the label beside it for a field that shows a value.
    TableBuilder& caption(const char* text);
    TableBuilder& widget(W type) {
        row().widget = type;
        return *this;
    }
    TableBuilder& action(A a, int arg = 0, const char* target = nullptr,
                         const char* source = nullptr) {
        row().action = a;
        row().arg = arg;
        row().target = target ? QString::fromUtf8(target) : QString();
        row().source = source ? QString::fromUtf8(source) : QString();
        return *this;
    }
    // Where the control sits: the window itself, the button bar, a menu (File 0, Tools 1,
    // Help 2), the banner strip, or out of sight.
    TableBuilder& on(Place place, int index = 0) { return at(place, index, "", ""); }
    // On a main tab, in a frame (none: on the page itself), in the row of the control beside
    // (none: a row of its own).
    TableBuilder& onTab(int tab, const char* frame = "", const char* beside = "") {
        return at(Place::MainTab, tab, frame, beside);
    }
    // On its language's page of the descriptions (the row's index is the language).
    TableBuilder& onLanguagePage() {
        const int language = std::max(0, row().index);
        at(Place::LanguagePage, language, "", "");
        if (row().name != QLatin1String("frmDescriptions"))
            row().frame = QStringLiteral("frmDescriptions_%1").arg(language);
        return *this;
    }
    // In a frame whose name is made at run time (a member of a frame array).
    TableBuilder& inFrame(const QString& frame) {
        row().frame = frame;
        return *this;
    }
    // In the row of control, on its tab and in its frame.
    TableBuilder& besides(const char* control) {
        row().beside = QString::fromUtf8(control);
        m_placed.back() = kBesideItsControl;
        return *this;
    }
    // Every row: places the rows beside a control, then checks that each row has a place and
    // each field row said what it marks.
    std::vector<ControlRow> take();

private:
    static constexpr char kUnplaced = 0, kPlaced = 1, kBesideItsControl = 2;
    TableBuilder& at(Place place, int index, const char* frame, const char* beside) {
        row().place = place;
        row().placeIndex = index;
        row().frame = QString::fromUtf8(frame);
        row().beside = QString::fromUtf8(beside);
        m_placed.back() = kPlaced;
        return *this;
    }
    TableBuilder& field(RecordSide side, int f, int entry, int limit);
    ControlRow& row() { return m_rows.back(); }
    std::vector<ControlRow> m_rows;
    std::vector<bool> m_markSet;
    std::vector<char> m_placed;
};

inline constexpr unsigned kBoth = kMarkOnChange | kMarkOnClick;
inline constexpr auto P = RecordSide::Program;

// The rows of the record fields, in the order every record operation visits them.
void companyControls(TableBuilder& t);
void programInfoControls(TableBuilder& t);
void descriptionControls(TableBuilder& t);
void webAndAssociationControls(TableBuilder& t);
// Buttons, menus, links, frames and labels.
void commandControls(TableBuilder& t);
void frameAndLabelControls(TableBuilder& t);
void laterVersionControls(TableBuilder& t);

} // namespace brevaro::controltable
