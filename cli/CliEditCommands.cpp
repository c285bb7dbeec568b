#include "CliCommands.h"

#include "platform/StringHelpers.h"
#include "records/RecordJson.h"
#include "records/ValueLists.h"

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

void check(bool ok, RecordStore& store) {
    if (!ok)
        throw CliError{2, QStringLiteral("the records cannot be written: ") + store.errorString()};
}

} // namespace

int newCompanyCommand(CliContext& ctx, const QStringList& words) {
    const QString name = oneName(CliArgs(words, {}, {}), "company name");
    ctx.lockForWriting();
    const int n = ctx.store().companyCount() + 1;
    CompanyRecord company;
    company.setNumber(CompanyField::CompanyID, n);
    company.setText(CompanyField::CompanyName, name);
    company.setText(CompanyField::Country, valueList(u"cboCountry").items.front());
    check(ctx.store().writeCompany(n, company), ctx.store());
    ctx.print(QStringLiteral("%1\n").arg(n));
    return 0;
}

int newProgramCommand(CliContext& ctx, const QStringList& words) {
    const CliArgs args(words, {QStringLiteral("-c")}, {});
    const QString name = oneName(args, "program name");
    ctx.lockForWriting();
    const int c = ctx.company(args.required(QStringLiteral("-c")));
    const int id = ctx.companyId(c);
    const int n = ctx.store().programCount(id) + 1;
    ProgramRecord program;
    program.clear(operatingSystemList().size(), languageList().size());
    program.setNumber(ProgramField::CompanyID, id);
    program.setText(ProgramField::ProgramName, name);
    check(ctx.store().writeProgram(id, n, program), ctx.store());
    ctx.print(QStringLiteral("%1\t%2\n").arg(c).arg(n));
    return 0;
}

int deleteCommand(CliContext& ctx, const QStringList& words) {
    const CliArgs args(words, {QStringLiteral("-c"), QStringLiteral("-p")}, {});
    if (!args.positional().isEmpty())
        throw CliError{1, QStringLiteral("unexpected argument %1").arg(args.positional().front())};
    ctx.lockForWriting();
    const int c = ctx.company(args.required(QStringLiteral("-c")));
    if (args.has(QStringLiteral("-p"))) {
        const int id = ctx.companyId(c);
        const int p = ctx.program(id, args.value(QStringLiteral("-p")));
        check(ctx.store().deleteProgram(id, p), ctx.store());
    } else {
        check(ctx.store().deleteCompany(c), ctx.store());
    }
    return 0;
}

int setCommand(CliContext& ctx, const QStringList& words) {
    const CliArgs args(words, {QStringLiteral("-c"), QStringLiteral("-p")}, {});
    QList<FieldAssignment> assignments;
    for (const QString& word : args.positional()) {
        FieldAssignment a;
        if (!FieldAssignment::parse(word, &a))
            throw CliError{1, QStringLiteral("\"%1\" is not FIELD=VALUE").arg(word)};
        assignments << a;
    }
    if (assignments.isEmpty())
        throw CliError{1, QStringLiteral("give at least one FIELD=VALUE")};
    ctx.lockForWriting();
    const int c = ctx.company(args.required(QStringLiteral("-c")));
    CompanyRecord company;
    ctx.store().readCompany(c, company);
    const int id = company.number(CompanyField::CompanyID);
    ProgramRecord program;
    int p = 0;
    if (args.has(QStringLiteral("-p"))) {
        p = ctx.program(id, args.value(QStringLiteral("-p")));
        ctx.store().readProgram(id, p, program);
    }
    bool companyChanged = false;
    bool programChanged = false;
    for (const auto& a : assignments) {
        QString message;
        if (a.name == QLatin1String("CompanyID"))
            throw CliError{2, QStringLiteral("CompanyID is kept by the program and cannot be set")};
        if (companyLayout().indexOf(a.name) >= 0) {
            if (!applyAssignment(company, a, &message))
                throw CliError{2, message};
            companyChanged = true;
        } else if (p > 0 || programLayout().indexOf(a.name) < 0) {
            if (!applyAssignment(program, a, &message))
                throw CliError{2, message};
            programChanged = true;
        } else {
            throw CliError{2, QStringLiteral("%1 is a program field: give -p PROGRAM").arg(a.name)};
        }
    }
    if (companyChanged)
        check(ctx.store().writeCompany(c, company), ctx.store());
    if (programChanged)
        check(ctx.store().writeProgram(id, p, program), ctx.store());
    return 0;
}

} // namespace brevaro::cli
