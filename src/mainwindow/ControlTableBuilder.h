#pragma once

#include "mainwindow/ControlTable.h"
#include "records/CompanyRecord.h"
#include "records/ProgramRecord.h"

namespace brevaro::controltable {

using K = ControlKind;
using CF = CompanyField;
using PF = ProgramField;

// Builds the table row by row; each call starts a row and the chained setters fill it.
class TableBuilder {
public:
    TableBuilder& add(const char* name, K kind, int index = -1) {
        ControlSpec s;
        s.name = QLatin1String(name);
        s.index = index;
        s.kind = kind;
        m_rows.push_back(s);
        return *this;
    }
    TableBuilder& company(CF f, int limit = 0, bool marks = true) {
        row().side = RecordSide::Company;
        row().field = static_cast<int>(f);
        row().limit = limit;
        if (marks)
            mark(RecordSide::Company, kMarkOnChange);
        if (limit > 0)
            row().hint = FocusHint::Counter;
        return *this;
    }
    TableBuilder& program(PF f, int entry = 0, int limit = 0) {
        row().side = RecordSide::Program;
        row().field = static_cast<int>(f);
        row().entry = entry;
        row().limit = limit;
        if (limit > 0) {
            row().hint = FocusHint::Counter;
            mark(RecordSide::Program, kMarkOnChange);
        }
        return *this;
    }
    TableBuilder& mark(RecordSide side, unsigned on) {
        row().marks = side;
        row().markOn = on;
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
    TableBuilder& keepsItem() {
        row().keepsItem = true;
        return *this;
    }
    TableBuilder& noHint() {
        row().hint = FocusHint::None;
        return *this;
    }
    TableBuilder& tip(const QString& text) {
        row().toolTip = text;
        return *this;
    }
    TableBuilder& tip(const char* text) { return tip(QString::fromUtf8(text)); }
    TableBuilder& caption(const char* text) {
        row().caption = QString::fromUtf8(text);
        return *this;
    }
    std::vector<ControlSpec> take() { return std::move(m_rows); }

private:
    ControlSpec& row() { return m_rows.back(); }
    std::vector<ControlSpec> m_rows;
};

inline constexpr unsigned kBoth = kMarkOnChange | kMarkOnClick;
inline constexpr auto P = RecordSide::Program;

// The rows of the record fields, in the order every record operation visits them.
void companyControls(TableBuilder& t);
void programInfoControls(TableBuilder& t);
void descriptionControls(TableBuilder& t);
void webAndAssociationControls(TableBuilder& t);

} // namespace brevaro::controltable
