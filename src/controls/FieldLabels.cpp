#include "controls/FieldLabels.h"

#include "controls/ControlTable.h"

namespace brevaro {

namespace {

const ControlRow* rowOf(RecordSide side, int field, int entry) {
    const int id = controlOfField(side, field, entry);
    return id < 0 ? nullptr : &mainWindowControls()[static_cast<std::size_t>(id)];
}

const ControlRow* rowNamed(const QString& objectName) {
    for (const ControlRow& r : mainWindowControls())
        if (r.objectName() == objectName)
            return &r;
    return nullptr;
}

} // namespace

QString fieldLabel(RecordSide side, int field, int entry) {
    const ControlRow* row = rowOf(side, field, entry);
    if (!row)
        return QString();
    // A group of option buttons holds one field: its label is their captions together.
    if (row->kind == ControlKind::OptionButton) {
        QStringList captions;
        for (const ControlRow& r : mainWindowControls())
            if (r.side == side && r.field == field)
                captions << r.caption;
        return captions.join(QStringLiteral(" / "));
    }
    if (!row->label.isEmpty())
        return row->label;
    if (!row->caption.isEmpty())
        return row->caption;
    for (const ControlRow& r : mainWindowControls())
        if (r.kind == ControlKind::Label && r.beside == row->name && !r.caption.isEmpty())
            return r.caption;
    return QString();
}

QString fieldPlace(RecordSide side, int field, int entry) {
    const ControlRow* row = rowOf(side, field, entry);
    if (!row)
        return QString();
    if (row->place == Place::LanguagePage)
        return mainTabCaptions().at(2) + QStringLiteral(", ") +
               languageTabCaptions().at(row->placeIndex);
    if (row->place != Place::MainTab)
        return QString();
    const QString& tab = mainTabCaptions().at(row->placeIndex);
    const ControlRow* frame = row->frame.isEmpty() ? nullptr : rowNamed(row->frame);
    // A frame whose caption only repeats the tab's ("Company" on "Company Info") adds nothing.
    if (!frame || frame->caption.isEmpty() || tab.startsWith(frame->caption))
        return tab;
    return tab + QStringLiteral(", ") + frame->caption;
}

std::vector<PadFinding> withFieldLabels(std::vector<PadFinding> findings) {
    for (PadFinding& f : findings) {
        if (f.field < 0)
            continue;
        f.label = fieldLabel(f.side, f.field, f.entry);
        f.place = fieldPlace(f.side, f.field, f.entry);
    }
    return findings;
}

} // namespace brevaro
