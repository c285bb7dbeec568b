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

QString labelOf(const ControlRow* row) {
    if (!row)
        return QString();
    // A group of option buttons holds one field: its label is their captions together.
    if (row->kind == ControlKind::OptionButton) {
        QStringList captions;
        for (const ControlRow& r : mainWindowControls())
            if (r.side == row->side && r.field == row->field)
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

QString placeOf(const ControlRow* row) {
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

} // namespace

QString fieldLabel(RecordSide side, int field, int entry) {
    return labelOf(rowOf(side, field, entry));
}

QString fieldPlace(RecordSide side, int field, int entry) {
    return placeOf(rowOf(side, field, entry));
}

std::vector<PadFinding> withFieldLabels(std::vector<PadFinding> findings) {
    for (PadFinding& f : findings) {
        const int extra = f.extra.isEmpty() ? -1 : controlOfExtra(f.side, f.extra);
        const ControlRow* row = extra >= 0     ? &mainWindowControls()[std::size_t(extra)]
                                : f.field >= 0 ? rowOf(f.side, f.field, f.entry)
                                               : nullptr;
        f.label = labelOf(row);
        f.place = placeOf(row);
    }
    return findings;
}

} // namespace brevaro
