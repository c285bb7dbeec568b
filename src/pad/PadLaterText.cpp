// The PAD 3.11 and 4.0 documents: one writer over the later layout's rows.
#include "AppVersion.h"
#include "pad/PadLaterLayout.h"
#include "pad/PadLines.h"
#include "pad/PadText.h"
#include "pad/PadTokens.h"
#include "platform/Win1252.h"

namespace brevaro {

namespace {

using K = LaterRowKind;
using PF = ProgramField;

bool flagSet(const ProgramRecord& p, PF f, int i = 0) {
    return p.number(f, i) != 0;
}

QString fixedValue(const char* element, PadVersion version) {
    const QLatin1String name(element);
    if (name == QLatin1String("MASTER_PAD_VERSION"))
        return padVersionText(version);
    if (name == QLatin1String("MASTER_PAD_EDITOR"))
        return QLatin1String(kAppTitle) + u' ' + versionText();
    return padStandardDescription();
}

QString laterPadText(PadVersion version, const CompanyRecord& company,
                     const ProgramRecord& program) {
    PadLines d;
    d.line(0, QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\" ?>"));
    bool blockActive = false;
    for (const LaterPadRow& row : laterPadRows()) {
        if (!inVersion(row, version))
            continue;
        if (!blockActive && (row.kind == K::MemberYesNo || row.kind == K::MemberText))
            continue;
        const char* name = elementOf(row);
        const auto f = static_cast<PF>(row.field);
        switch (row.kind) {
        case K::Open:
            d.line(row.indent, u'<' + QLatin1String(name) + u'>');
            break;
        case K::Close:
            d.line(row.indent, QStringLiteral("</") + QLatin1String(name) + u'>');
            break;
        case K::Fixed:
            d.full(row.indent, name, fixedValue(name, version));
            break;
        case K::Value:
        case K::Extra:
        case K::OsTokens:
        case K::Languages:
        case K::CategoryClass:
            d.value(row.indent, name, laterValue(row, company, program, version));
            break;
        case K::YesNo:
            d.yesNo(row.indent, name, flagSet(program, f));
            break;
        case K::Expiry:
            for (const LaterExpiryValue& v : laterExpiryValues(program))
                v.field == PF::HasExpireInfo ? d.full(row.indent, v.element, v.value)
                                             : d.value(row.indent, v.element, v.value);
            break;
        case K::Descriptions:
            writeDescriptions(d, row.indent, program, version);
            break;
        case K::Association:
            blockActive = program.number(f) == 1;
            if (blockActive) {
                d.line(row.indent, u'<' + QLatin1String(row.element) + u'>');
                d.full(row.indent + 1, layoutOf(row.side).field(row.field).padElement,
                       QStringLiteral("Y"));
            }
            break;
        case K::MemberYesNo:
            d.yesNo(row.indent, name, program.number(f) == 1);
            break;
        case K::MemberText:
            d.full(row.indent, name, laterText(program.wholeText(row.field)));
            break;
        case K::AssociationEnd:
            if (blockActive)
                d.line(row.indent, QStringLiteral("</") + QLatin1String(row.element) + u'>');
            blockActive = false;
            break;
        }
    }
    return d.text();
}

} // namespace

std::array<LaterExpiryValue, 7> laterExpiryValues(const ProgramRecord& p) {
    // A date-based expiry writes its date and no count (the later lists have no "Date" basis:
    // the date says it), any other its count and no date.
    const bool byDate = flagSet(p, PF::ExpireBasedOn, 3);
    auto dated = [&](PF f) {
        return byDate ? p.wholeText(static_cast<int>(f)) : QString();
    };
    return {
        {{"Has_Expire_Info", PF::HasExpireInfo,
          flagSet(p, PF::HasExpireInfo) ? QStringLiteral("Y") : QStringLiteral("N")},
         {"Expire_Count", PF::ExpireCount, byDate ? QString() : p.wholeText(int(PF::ExpireCount))},
         {"Expire_Based_On", PF::ExpireBasedOn, byDate ? QString() : expireBasedOnCaption(p)},
         {"Expire_Other_Info", PF::ExpireOtherInfo, p.wholeText(int(PF::ExpireOtherInfo))},
         {"Expire_Month", PF::ExpireMonth, dated(PF::ExpireMonth)},
         {"Expire_Day", PF::ExpireDay, dated(PF::ExpireDay)},
         {"Expire_Year", PF::ExpireYear, dated(PF::ExpireYear)}}};
}

QString laterValue(const LaterPadRow& row, const CompanyRecord& company,
                   const ProgramRecord& program, PadVersion version) {
    const FixedRecord& record =
        row.side == RecordSide::Company ? static_cast<const FixedRecord&>(company) : program;
    // The systems, languages and class the author chose for the later versions, if any.
    const QString chosen =
        row.kind == K::OsTokens || row.kind == K::Languages || row.kind == K::CategoryClass
            ? program.laterValue(QLatin1String(elementOf(row)))
            : QString();
    switch (row.kind) {
    case K::Value:
        return laterText(record.wholeText(row.field));
    case K::Extra:
        return laterText(record.laterValue(QLatin1String(row.extra)));
    case K::OsTokens: {
        if (chosen.isEmpty())
            return laterOsTokens(program, version).join(u',');
        // The tokens chosen for 4.0 that the version's list has.
        QStringList tokens = chosen.split(u',');
        tokens.removeIf([&](const QString& t) {
            return !laterOperatingSystems(version).contains(t.trimmed());
        });
        return tokens.join(u',');
    }
    case K::Languages:
        return !chosen.isEmpty() ? chosen : laterLanguageTokens(program).join(u',');
    case K::CategoryClass:
        return !chosen.isEmpty() ? chosen : proposedCategoryClass(program);
    default:
        return QString();
    }
}

QString laterText(QString value) {
    while (value.endsWith(u'\n') || value.endsWith(u'\r'))
        value.chop(1);
    return value;
}

QString CreatePADText(const CompanyRecord& company, const ProgramRecord& program,
                      PadVersion version) {
    return version == PadVersion::V1_15 ? CreatePADText(company, program)
                                        : laterPadText(version, company, program);
}

QByteArray padFileBytes(const QString& document, PadVersion version) {
    const QString text = document + QStringLiteral("\r\n");
    return version == PadVersion::V1_15 ? toWin1252(text) : text.toUtf8();
}

} // namespace brevaro
