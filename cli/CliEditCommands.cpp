#include "CliCommands.h"

#include "platform/FileHelpers.h"
#include "platform/StringHelpers.h"
#include "records/ExtraFields.h"
#include "records/RecordJson.h"

namespace brevaro::cli {

namespace {

QString oneName(const CliArgs& args, const char* what) {
    if (args.positional().size() != 1)
        throw CliError{1, QStringLiteral("give exactly one %1").arg(QLatin1String(what))};
    const QString name = trimBlanks(args.positional().front());
    if (name.isEmpty())
        throw CliError{2, QStringLiteral("the %1 is empty").arg(QLatin1String(what))};
    return name;
}

// Runs a command of the window; what it did decides the exit status, not what it said.
void run(CliContext& ctx, ControlAction action) {
    const CommandResult result = ctx.session().trigger(action);
    switch (result.outcome) {
    case CommandResult::Outcome::Done:
        return;
    case CommandResult::Outcome::Declined:
        throw CliError{2, QStringLiteral("nothing was changed")};
    case CommandResult::Outcome::Refused:
        throw CliError{2, result.reason};
    case CommandResult::Outcome::Failed:
        throw CliError{2, QStringLiteral("the changes could not be saved: ") + result.reason};
    }
}

// An assignment resolved against the control table: the control that shows the field, or
// none when the field lives only in the record.
struct Target {
    RecordSide side = RecordSide::None;
    int field = -1;
    int entry = 0;
    int control = -1;
    FieldType type = FieldType::Text;
    QString extra; // an extra field (ExtraFields.h) instead of a record field
};

Target resolve(EditingSession& s, const FieldAssignment& a, bool haveProgram) {
    Target t;
    const int companyField = companyLayout().indexOf(a.name);
    const int programField = programLayout().indexOf(a.name);
    if (a.name == QLatin1String("CompanyID"))
        throw CliError{2, QStringLiteral("CompanyID is kept by the program and cannot be set")};
    if (const ExtraField* e = extraField(a.name); e && companyField < 0 && programField < 0) {
        if (e->side == RecordSide::Program && !haveProgram)
            throw CliError{2, QStringLiteral("%1 is a program field: give -p PROGRAM").arg(a.name)};
        if (a.index >= 0)
            throw CliError{2, QStringLiteral("%1 has no entries").arg(a.name)};
        t.side = e->side;
        t.extra = a.name;
        t.control = controlOfExtra(t.side, t.extra);
        return t;
    }
    if (companyField < 0 && programField < 0)
        throw CliError{2, QStringLiteral("there is no field %1").arg(a.name)};
    if (companyField < 0 && !haveProgram)
        throw CliError{2, QStringLiteral("%1 is a program field: give -p PROGRAM").arg(a.name)};
    t.side = companyField >= 0 ? RecordSide::Company : RecordSide::Program;
    t.field = companyField >= 0 ? companyField : programField;
    const RecordLayout& layout = t.side == RecordSide::Company ? companyLayout() : programLayout();
    const RecordField& f = layout.fields[static_cast<std::size_t>(t.field)];
    t.type = f.type;
    if (f.count > 1 && (a.index < 0 || a.index >= f.count))
        throw CliError{2, QStringLiteral("%1 has entries 0 to %2: write %1[i]=VALUE")
                              .arg(a.name)
                              .arg(f.count - 1)};
    if (f.count == 1 && a.index > 0)
        throw CliError{2, QStringLiteral("%1 has no entry %2").arg(a.name).arg(a.index)};
    t.entry = std::max(0, a.index);
    t.control = controlOfField(t.side, t.field, t.entry);
    // A list box shows only the entries of its list; the rest live in the record alone.
    if (t.control >= 0 && s.row(t.control).kind == ControlKind::ListBox &&
        t.entry >= s.screen().at(t.control).items.size())
        t.control = -1;
    return t;
}

int numberOf(const FieldAssignment& a) {
    bool ok = false;
    const int n = a.value.trimmed().toInt(&ok);
    if (!ok || n < -32768 || n > 32767)
        throw CliError{2,
                       QStringLiteral("%1 takes a whole number, not \"%2\"").arg(a.name, a.value)};
    return n;
}

// An extra field's value, checked against the field's kind and list, into its control or
// straight into the record.
void applyExtra(EditingSession& s, const Target& t, const FieldAssignment& a) {
    FixedRecord& r =
        t.side == RecordSide::Company ? static_cast<FixedRecord&>(s.company()) : s.program();
    FixedRecord checked = r;
    QString why;
    if (!applyAssignment(checked, a, &why))
        throw CliError{2, why};
    const QString value = checked.laterValue(t.extra);
    if (t.control < 0) {
        r.setLaterValue(t.extra, value);
        t.side == RecordSide::Company ? s.navigation().SetCompanyDirty()
                                      : s.navigation().SetProgramDirty();
    } else {
        s.transfer().ShowExtra(t.control, value);
    }
}

// Puts the value where a user would type or click it, so limits and marks apply alike.
void apply(EditingSession& s, const Target& t, const FieldAssignment& a) {
    ScreenModel& screen = s.screen();
    if (!t.extra.isEmpty())
        return applyExtra(s, t, a);
    if (t.control < 0) {
        FixedRecord& r =
            t.side == RecordSide::Company ? static_cast<FixedRecord&>(s.company()) : s.program();
        if (t.type == FieldType::Text)
            r.setText(t.field, a.value, t.entry);
        else
            r.setNumber(t.field, numberOf(a), t.entry);
        t.side == RecordSide::Company ? s.navigation().SetCompanyDirty()
                                      : s.navigation().SetProgramDirty();
        return;
    }
    switch (screen.at(t.control).kind) {
    case ControlKind::ListBox:
        screen.setItemSelected(t.control, t.entry, numberOf(a) != 0);
        break;
    case ControlKind::CheckBox:
        screen.setValue(t.control, numberOf(a) != 0 ? 1 : 0);
        break;
    case ControlKind::OptionButton:
        screen.setValue(t.control, numberOf(a) != 0 ? 1 : 0);
        break;
    default:
        screen.setText(t.control, a.value);
        break;
    }
}

} // namespace

int newCompanyCommand(CliContext& ctx, const QStringList& words) {
    const QString name = oneName(CliArgs(words, {}, {}), "company name");
    ctx.prompts().nextInput = name;
    run(ctx, ControlAction::NewCompany);
    run(ctx, ControlAction::SaveCompany);
    ctx.print(QStringLiteral("%1\n").arg(ctx.session().state().CurrentCompanyNo));
    return 0;
}

int newProgramCommand(CliContext& ctx, const QStringList& words) {
    const CliArgs args(words, {QStringLiteral("-c")}, {});
    const QString name = oneName(args, "program name");
    ctx.session();
    const int c = ctx.company(args.required(QStringLiteral("-c")));
    ctx.select(c);
    ctx.prompts().nextInput = name;
    run(ctx, ControlAction::NewProgram);
    run(ctx, ControlAction::SaveProgram);
    ctx.print(QStringLiteral("%1\t%2\n").arg(c).arg(ctx.session().state().CurrentProgramNo));
    return 0;
}

int deleteCommand(CliContext& ctx, const QStringList& words) {
    const CliArgs args(words, {QStringLiteral("-c"), QStringLiteral("-p")}, {});
    if (!args.positional().isEmpty())
        throw CliError{1, QStringLiteral("unexpected argument %1").arg(args.positional().front())};
    ctx.session();
    const int c = ctx.company(args.required(QStringLiteral("-c")));
    if (args.has(QStringLiteral("-p"))) {
        ctx.select(c, ctx.program(ctx.companyId(c), args.value(QStringLiteral("-p"))));
        run(ctx, ControlAction::DeleteProgram);
    } else {
        ctx.select(c);
        run(ctx, ControlAction::DeleteCompany);
    }
    return 0;
}

int setCommand(CliContext& ctx, const QStringList& words) {
    const CliArgs args(
        words, {QStringLiteral("-c"), QStringLiteral("-p"), QStringLiteral("--file-info")}, {});
    QList<FieldAssignment> assignments;
    for (const QString& word : args.positional()) {
        FieldAssignment a;
        if (!FieldAssignment::parse(word, &a))
            throw CliError{1, QStringLiteral("\"%1\" is not FIELD=VALUE").arg(word)};
        assignments << a;
    }
    const bool fileInfo = args.has(QStringLiteral("--file-info"));
    if (assignments.isEmpty() && !fileInfo)
        throw CliError{1, QStringLiteral("give at least one FIELD=VALUE or --file-info PATH")};
    if (fileInfo && !args.has(QStringLiteral("-p")))
        throw CliError{1, QStringLiteral("--file-info needs -p PROGRAM")};
    EditingSession& s = ctx.session();
    const int c = ctx.company(args.required(QStringLiteral("-c")));
    const int p = args.has(QStringLiteral("-p"))
                      ? ctx.program(ctx.companyId(c), args.value(QStringLiteral("-p")))
                      : 0;
    if (fileInfo && brevaro::fileSize(args.value(QStringLiteral("--file-info"))) < 0)
        throw CliError{
            2,
            QStringLiteral("there is no file %1").arg(args.value(QStringLiteral("--file-info")))};
    // Every assignment is checked before anything changes.
    QList<Target> targets;
    for (const auto& a : assignments)
        targets << resolve(s, a, p > 0);
    for (qsizetype i = 0; i < assignments.size(); ++i)
        if (targets[i].type != FieldType::Text)
            numberOf(assignments[i]);
    ctx.select(c, p);
    for (qsizetype i = 0; i < assignments.size(); ++i) {
        apply(s, targets[i], assignments[i]);
        // A value given is saved even where typing alone would not mark the record (the
        // name boxes are also the record selectors).
        if (targets[i].side == RecordSide::Company && !s.state().CompanyDirty)
            s.navigation().SetCompanyDirty();
        if (targets[i].side == RecordSide::Program && !s.state().ProgramDirty)
            s.navigation().SetProgramDirty();
    }
    if (fileInfo) {
        ctx.prompts().nextFile = args.value(QStringLiteral("--file-info"));
        s.screen().click(s.id(u"cmdOpenFileInfo"));
    }
    if (s.state().CompanyDirty)
        run(ctx, ControlAction::SaveCompany); // also saves the program, which is offered first
    if (s.state().ProgramDirty)
        run(ctx, ControlAction::SaveProgram);
    return 0;
}

} // namespace brevaro::cli
