#include "CliCommands.h"

#include "controls/FieldLabels.h"
#include "pad/PadCheck.h"
#include "pad/PadSpelling.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace brevaro::cli {

namespace {

// "Email (Company Info, Author) "bob(at)example": should be an e-mail address ..."
QString findingText(const PadFinding& f) {
    QString text;
    if (!f.label.isEmpty())
        text = f.label + QStringLiteral(" (") + f.place + u')';
    if (!f.value.isEmpty())
        text += (text.isEmpty() ? QString() : QStringLiteral(" ")) + u'"' + f.value + u'"';
    return text.isEmpty() ? f.message : text + QStringLiteral(": ") + f.message;
}

QJsonArray findingsJson(const std::vector<PadFinding>& findings) {
    QJsonArray array;
    for (const auto& f : findings)
        array.append(QJsonObject{{QStringLiteral("severity"), severityName(f.severity)},
                                 {QStringLiteral("element"), f.element},
                                 {QStringLiteral("label"), f.label},
                                 {QStringLiteral("place"), f.place},
                                 {QStringLiteral("value"), f.value},
                                 {QStringLiteral("message"), f.message}});
    return array;
}

} // namespace

int checkCommand(CliContext& ctx, const QStringList& words) {
    const CliArgs args(words,
                       {QStringLiteral("-c"), QStringLiteral("-p"), QStringLiteral("--format")},
                       {QStringLiteral("--json"), QStringLiteral("--no-spelling")});
    const PadVersion version = formatOption(args);
    if (!args.positional().isEmpty())
        throw CliError{1, QStringLiteral("unexpected argument %1").arg(args.positional().front())};
    EditingSession& s = ctx.readingSession();
    const int c = ctx.company(args.required(QStringLiteral("-c")));
    ctx.select(c, ctx.program(ctx.companyId(c), args.required(QStringLiteral("-p"))));
    std::vector<PadFinding> found = checkPad(s.company(), s.program(), version);
    // Spelling notes follow the check's own notes; dictionaries are read only here.
    if (!args.has(QStringLiteral("--no-spelling"))) {
        const auto checker = homeSpellChecker(s.store().home());
        const auto notes = spellingFindings(s.company(), s.program(), version, *checker);
        found.insert(found.end(), notes.begin(), notes.end());
    }
    const std::vector<PadFinding> findings = withFieldLabels(std::move(found));
    if (args.has(QStringLiteral("--json"))) {
        ctx.print(QString::fromUtf8(QJsonDocument(findingsJson(findings)).toJson()));
    } else {
        for (const auto& f : findings) {
            QString line = severityName(f.severity) + u'\t' +
                           (f.element.isEmpty() ? QStringLiteral("-") : f.element) + u'\t';
            // One finding, one line, whatever the value holds.
            line += findingText(f).replace(u'\t', u' ');
            ctx.print(line + u'\n');
        }
    }
    return hasErrors(findings) ? kCheckFoundErrors : 0;
}

void refusePadWithErrors(const CompanyRecord& company, const ProgramRecord& program,
                         PadVersion version) {
    const std::vector<PadFinding> findings = withFieldLabels(checkPad(company, program, version));
    if (!hasErrors(findings))
        return;
    int errors = 0;
    for (const auto& f : findings)
        errors += f.severity == PadFinding::Severity::Error ? 1 : 0;
    const PadFinding& first = findings.front(); // errors sort first
    throw CliError{
        kCheckFoundErrors,
        QStringLiteral("the PAD file was not written: %1 error(s), the first in %2: "
                       "%3; see brevaro-cli check")
            .arg(errors)
            .arg(first.element.isEmpty() ? QStringLiteral("the document") : first.element,
                 findingText(first).replace(u'\t', u' '))};
}

} // namespace brevaro::cli
