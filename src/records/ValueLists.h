#pragma once

#include <QString>
#include <QStringList>
#include <vector>

namespace brevaro {

// One fixed list of values and the control it fills.
struct ValueList {
    static constexpr int kNoSelection = -1; // multi-select list boxes start with nothing selected
    static constexpr int kUnchanged = -2;   // the selection is left as it was

    QString control;
    bool clearFirst;
    QStringList items;
    int selected;
};

// Every value list, in the order in which the main window fills them.
const std::vector<ValueList>& valueLists();
// The list that fills control; asserts that there is one.
const ValueList& valueList(QStringView control);

// Shorthands for the lists that records and PAD files index by position.
const QStringList& operatingSystemList();
const QStringList& languageList();
// The countries of cboCountry, "United States" first.
const QStringList& countryNames();

} // namespace brevaro
