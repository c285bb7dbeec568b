#include "pad/PadText.h"

#include "AppVersion.h"
#include "pad/PadLayout.h"
#include "pad/PadLines.h"
#include "platform/StringHelpers.h"
#include "platform/WebAddresses.h"
#include "records/ValueLists.h"

namespace brevaro {

namespace {

using CF = CompanyField;
using PF = ProgramField;

using Lines = PadLines;

bool nonZero(const ProgramRecord& p, PF f, int i = 0) {
    return p.number(f, i) != 0;
}
bool isOne(const ProgramRecord& p, PF f, int i = 0) {
    return p.number(f, i) == 1;
}
const char* element(PF f) {
    return programLayout().field(static_cast<int>(f)).padElement;
}

void expiryBlock(Lines& d, int indent, const ProgramRecord& p) {
    d.yesNo(indent, element(PF::HasExpireInfo), nonZero(p, PF::HasExpireInfo));
    if (!nonZero(p, PF::ExpireBasedOn, 3)) {
        d.value(indent, element(PF::ExpireCount), p.text(PF::ExpireCount));
        d.value(indent, element(PF::ExpireBasedOn), expireBasedOnCaption(p));
    } else {
        const QString month = p.text(PF::ExpireMonth);
        if (!month.isEmpty()) {
            d.full(indent, element(PF::ExpireBasedOn), QStringLiteral("Date"));
            d.full(indent, element(PF::ExpireMonth), month);
        } else {
            d.line(indent, u'<' + QLatin1String(element(PF::ExpireMonth)) + QStringLiteral(" />"));
        }
        d.value(indent, element(PF::ExpireDay), p.text(PF::ExpireDay));
        d.value(indent, element(PF::ExpireYear), p.text(PF::ExpireYear));
    }
    d.value(indent, element(PF::ExpireOtherInfo), p.text(PF::ExpireOtherInfo));
}

} // namespace

void writeDescriptions(PadLines& d, int indent, const ProgramRecord& p, PadVersion version) {
    const QStringList& languages = languageList();
    for (int i = 0; i < ProgramRecord::kLanguages; ++i) {
        if (!isOne(p, PF::DescriptionActive, i))
            continue;
        const QString language = trimBlanks(languages.value(i));
        d.line(indent, u'<' + language + u'>');
        for (PF f : descriptionFields())
            d.value(indent + 1, element(f), descriptionText(p, f, i, version));
        d.line(indent, QStringLiteral("</") + language + u'>');
    }
}

QString descriptionText(const ProgramRecord& p, ProgramField f, int language, PadVersion version) {
    return version == PadVersion::V1_15 ? p.text(f, language)
                                        : laterText(p.wholeText(static_cast<int>(f), language));
}

std::span<const ProgramField> descriptionFields() {
    static constexpr PF fields[] = {PF::Keywords,    PF::CharDesc45,  PF::CharDesc80,
                                    PF::CharDesc250, PF::CharDesc450, PF::CharDesc2000};
    return fields;
}

const QStringList& flagListItems(ProgramField field) {
    return field == PF::OSSupported ? operatingSystemList() : languageList();
}

QString fixedValue(const PadRow& row) {
    return QLatin1String(row.text) == QLatin1String("MASTER_PAD_VERSION")
               ? QStringLiteral("1.15")
               : padStandardDescription();
}

QString padValue(const PadRow& row, const CompanyRecord& company, const ProgramRecord& program) {
    const FixedRecord& r =
        row.side == RecordSide::Company ? static_cast<const FixedRecord&>(company) : program;
    if (row.kind == PadRowKind::FlagList) {
        const auto f = static_cast<PF>(row.field);
        return joinedFlagTexts(program, f, flagListItems(f));
    }
    return r.text(row.field);
}

QString padStandardDescription() {
    return QStringLiteral(
               "Portable Application Description, or PAD for short, is a data set that is "
               "used by shareware authors to disseminate information to anyone "
               "interested in their software products. To find out more go to ") +
           organizationSite(0) + QStringLiteral("/pad");
}

QString createdByComment() {
    return QStringLiteral("<!-- Created By ") + QLatin1String(kAppTitle) +
           QStringLiteral(" version: ") + versionText() + QStringLiteral(" -->");
}

QString availableAtComment() {
    return QStringLiteral("<!-- Available for download at: ") + productSite() +
           QStringLiteral(" -->");
}

QString joinedFlagTexts(const ProgramRecord& program, ProgramField field,
                        const QStringList& items) {
    QStringList set;
    for (int i = 0; i < items.size(); ++i)
        if (program.number(field, i) != 0)
            set << trimBlanks(items[i]);
    return set.join(u',');
}

QString expireBasedOnCaption(const ProgramRecord& program) {
    static const char* captions[] = {"Days", "Uses", "Either/Or"};
    for (int i = 2; i >= 0; --i)
        if (program.number(ProgramField::ExpireBasedOn, i) != 0)
            return QLatin1String(captions[i]);
    return QString();
}

QString CreatePADText(const CompanyRecord& company, const ProgramRecord& program) {
    Lines d;
    d.line(0, QStringLiteral("<?xml version=\"1.0\" encoding=\"Windows-1252\" ?> "));
    d.empty();
    d.line(0, createdByComment());
    d.line(0, availableAtComment());
    d.empty();
    bool blockActive = false;
    for (const PadRow& row : padRows()) {
        if (!blockActive &&
            (row.kind == PadRowKind::MemberYesNo || row.kind == PadRowKind::MemberText))
            continue;
        const char* name = row.field >= 0 ? fieldOf(row).padElement : row.text;
        const auto f = static_cast<PF>(row.field);
        switch (row.kind) {
        case PadRowKind::Line:
            d.line(row.indent, QLatin1String(row.text));
            break;
        case PadRowKind::Blank:
            d.empty();
            break;
        case PadRowKind::Fixed:
            d.full(row.indent, name, fixedValue(row));
            break;
        case PadRowKind::Value:
        case PadRowKind::FlagList:
            d.value(row.indent, name, padValue(row, company, program));
            break;
        case PadRowKind::YesNo:
            d.yesNo(row.indent, name, nonZero(program, f));
            break;
        case PadRowKind::Expiry:
            expiryBlock(d, row.indent, program);
            break;
        case PadRowKind::Descriptions:
            writeDescriptions(d, row.indent, program, PadVersion::V1_15);
            break;
        case PadRowKind::Association:
            blockActive = isOne(program, f);
            if (blockActive) {
                d.line(row.indent, u'<' + QLatin1String(row.text) + u'>');
                d.full(row.indent + 1, name, QStringLiteral("Y"));
            }
            break;
        case PadRowKind::MemberYesNo:
            d.yesNo(row.indent, name, isOne(program, f));
            break;
        case PadRowKind::MemberText:
            d.full(row.indent, name, program.text(f));
            break;
        case PadRowKind::AssociationEnd:
            if (blockActive)
                d.line(row.indent, QStringLiteral("</") + QLatin1String(row.text) + u'>');
            blockActive = false;
            d.empty();
            break;
        }
    }
    return d.text();
}

} // namespace brevaro
