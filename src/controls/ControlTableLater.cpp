// The controls of the fields beyond the 1.15 records: one per row of the extra field table,
// each in the frame of its group.
#include "controls/ControlTableBuilder.h"
#include "records/ExtraFields.h"

namespace brevaro::controltable {

namespace {

struct GroupFrame {
    ExtraGroup group;
    const char* frame;
    const char* caption;
    int tab;
};

constexpr GroupFrame kFrames[] = {
    {ExtraGroup::CompanyPages, "frmCompanyPages", "Pages", 0},
    {ExtraGroup::Publishing, "frmPublishing", "PAD 3.11 and 4.0", 1},
    {ExtraGroup::ProgramPages, "frmProgramPages", "Program Pages and Stores", 3},
    {ExtraGroup::PressRelease, "frmPressRelease", "Press Release", 3},
    {ExtraGroup::NewsFeed, "frmNewsFeed", "News Feed", 3},
};

const GroupFrame& frameOf(ExtraGroup group) {
    for (const GroupFrame& f : kFrames)
        if (f.group == group)
            return f;
    qFatal("no frame shows the extra fields of group %d", int(group));
}

// The control's name: its kind's prefix and the field's name without underscores.
QString controlName(const ExtraField& f) {
    const char* prefix = f.kind == ExtraKind::TokenList ? "lst"
                         : f.kind == ExtraKind::Choice  ? "cbo"
                                                        : "txt";
    return QLatin1String(prefix) + QLatin1String(f.name).toString().remove(u'_');
}

} // namespace

void laterVersionControls(TableBuilder& t) {
    for (const GroupFrame& f : kFrames)
        t.add(f.frame, K::Label).widget(W::Frame).caption(f.caption).onTab(f.tab);
    for (const ExtraField& f : extraFields()) {
        if (f.group == ExtraGroup::Release)
            continue;
        const GroupFrame& place = frameOf(f.group);
        // The category class is chosen in two steps: its main class, then the class.
        const bool twoLevel = QLatin1String(f.name) == QLatin1String("Program_Category_Class");
        if (twoLevel)
            t.add("cboCategoryMain", K::ComboBox)
                .widget(W::ListCombo)
                .onTab(place.tab, place.frame)
                .action(A::CategoryMain)
                .noMark()
                .caption("Category class")
                .tip("The main class of the category class; then choose the class beside it");
        switch (f.kind) {
        case ExtraKind::TokenList:
            t.add(controlName(f), K::ListBox).extra(f.side, f.name, 0).mark(f.side, kMarkOnClick);
            break;
        case ExtraKind::Choice:
            t.add(controlName(f), K::ComboBox)
                .widget(W::ListCombo)
                .extra(f.side, f.name, 0)
                .mark(f.side, kBoth)
                .itemHint();
            break;
        case ExtraKind::LongText:
            t.add(controlName(f), K::TextBox)
                .widget(W::MultiLineEdit)
                .extra(f.side, f.name, f.maxLength)
                .mark(f.side, kMarkOnChange);
            break;
        case ExtraKind::Text:
        case ExtraKind::Address:
            t.add(controlName(f), K::TextBox)
                .extra(f.side, f.name, f.maxLength)
                .mark(f.side, kMarkOnChange);
            break;
        }
        t.onTab(place.tab, place.frame, twoLevel ? "cboCategoryMain" : "")
            .caption(f.caption)
            .tip(f.tip);
        if (twoLevel)
            t.action(A::None, 0, nullptr, "cboCategoryMain");
    }
}

} // namespace brevaro::controltable
