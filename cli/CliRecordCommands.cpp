#include "CliCommands.h"

#include "platform/StringHelpers.h"
#include "records/RecordJson.h"

#include <QJsonDocument>

namespace brevaro::cli {

namespace {

void noPositional(const CliArgs& args) {
    if (!args.positional().isEmpty())
        throw CliError{1, QStringLiteral("unexpected argument %1").arg(args.positional().front())};
}

} // namespace

int listCommand(CliContext& ctx, const QStringList& words) {
    noPositional(CliArgs(words, {}, {}));
    ctx.prepareForReading();
    ctx.printBytes(ctx.readStable([&] {
        QString text;
        RecordStore& store = ctx.store();
        const QStringList companies = store.companyNames();
        for (int c = 1; c <= companies.size(); ++c) {
            text += QStringLiteral("%1\t%2\n").arg(c).arg(escapeControls(companies[c - 1]));
            const int id = ctx.companyId(c);
            const int count = store.programCount(id);
            for (int p = 1; p <= count; ++p) {
                ProgramRecord program;
                store.readProgram(id, p, program);
                text += QStringLiteral("\t%1\t%2\t%3\n")
                            .arg(p)
                            .arg(escapeControls(program.text(ProgramField::ProgramName)),
                                 escapeControls(program.text(ProgramField::ProgramVersion)));
            }
        }
        return text.toUtf8();
    }));
    return 0;
}

int showCommand(CliContext& ctx, const QStringList& words) {
    const CliArgs args(words, {QStringLiteral("-c"), QStringLiteral("-p")},
                       {QStringLiteral("--json")});
    noPositional(args);
    ctx.prepareForReading(-1);
    ctx.printBytes(ctx.readStable([&] {
        const int c = ctx.company(args.required(QStringLiteral("-c")));
        CompanyRecord company;
        ctx.store().readCompany(c, company);
        const int id = company.number(CompanyField::CompanyID);
        ctx.warnAboutProgramFile(id);
        QJsonObject object{{QStringLiteral("company"), recordToJson(company)}};
        if (args.has(QStringLiteral("-p")) || ctx.store().programCount(id) > 0) {
            const int p = args.has(QStringLiteral("-p"))
                              ? ctx.program(id, args.value(QStringLiteral("-p")))
                              : 1;
            ProgramRecord program;
            ctx.store().readProgram(id, p, program);
            object.insert(QStringLiteral("program"), recordToJson(program));
        } else {
            object.insert(QStringLiteral("program"), QJsonValue::Null);
        }
        return QJsonDocument(object).toJson(QJsonDocument::Indented);
    }));
    return 0;
}

} // namespace brevaro::cli
