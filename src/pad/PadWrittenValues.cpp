#include "pad/PadWrittenValues.h"

#include "pad/PadLayout.h"
#include "pad/PadText.h"

namespace brevaro {

namespace {

using PF = ProgramField;

// The values of the expiry group as the writer writes them: the flag, then the count and its
// kind or the date (a date without a month has no Expire_Based_On), then the other text.
template <typename Add> void expiryValues(const ProgramRecord& p, Add add) {
    add(PF::HasExpireInfo,
        p.number(PF::HasExpireInfo) != 0 ? QStringLiteral("Y") : QStringLiteral("N"));
    if (p.number(PF::ExpireBasedOn, 3) == 0) {
        add(PF::ExpireCount, p.text(PF::ExpireCount));
        add(PF::ExpireBasedOn, expireBasedOnCaption(p));
    } else {
        if (!p.text(PF::ExpireMonth).isEmpty())
            add(PF::ExpireBasedOn, QStringLiteral("Date"));
        add(PF::ExpireMonth, p.text(PF::ExpireMonth));
        add(PF::ExpireDay, p.text(PF::ExpireDay));
        add(PF::ExpireYear, p.text(PF::ExpireYear));
    }
    add(PF::ExpireOtherInfo, p.text(PF::ExpireOtherInfo));
}

} // namespace

std::vector<PadWrittenValue> padWrittenValues(const CompanyRecord& company,
                                              const ProgramRecord& program) {
    std::vector<PadWrittenValue> out;
    auto add = [&](RecordSide side, int field, int entry, const QString& value) {
        out.push_back(
            {QLatin1String(layoutOf(side).field(field).padElement), value, side, field, entry, {}});
    };
    auto addProgram = [&](PF f, const QString& value, int entry = 0) {
        add(RecordSide::Program, static_cast<int>(f), entry, value);
    };
    bool blockActive = false;
    for (const PadRow& row : padRows()) {
        switch (row.kind) {
        case PadRowKind::Value:
        case PadRowKind::FlagList:
            add(row.side, row.field, 0, padValue(row, company, program));
            break;
        case PadRowKind::Expiry:
            expiryValues(program, addProgram);
            break;
        case PadRowKind::Descriptions:
            for (int language = 0; language < ProgramRecord::kLanguages; ++language)
                if (program.number(PF::DescriptionActive, language) == 1)
                    for (PF f : descriptionFields())
                        addProgram(f, program.text(f, language), language);
            break;
        case PadRowKind::Association:
            blockActive = program.number(row.field) == 1;
            break;
        case PadRowKind::MemberText:
            if (blockActive)
                add(row.side, row.field, 0, program.text(row.field));
            break;
        default: // fixed lines and texts, and Y/N flags other than the expiry's
            break;
        }
    }
    return out;
}

std::vector<PadWrittenValue> padWrittenValues(const CompanyRecord& company,
                                              const ProgramRecord& program, PadVersion version) {
    if (version == PadVersion::V1_15)
        return padWrittenValues(company, program);
    std::vector<PadWrittenValue> out;
    auto add = [&](const char* element, RecordSide side, int field, int entry, QString value) {
        out.push_back({QLatin1String(element), std::move(value), side, field, entry, {}});
    };
    bool blockActive = false;
    for (const LaterPadRow& row : laterPadRows()) {
        if (!inVersion(row, version))
            continue;
        const char* element = elementOf(row);
        switch (row.kind) {
        case LaterRowKind::Value:
        case LaterRowKind::OsTokens:
        case LaterRowKind::Languages:
        case LaterRowKind::CategoryClass:
            add(element, row.side, row.field, 0, laterValue(row, company, program, version));
            // The systems, languages and class chosen for the later versions come from their
            // own boxes, and so does a class none was proposed for (the author chooses one).
            if ((row.kind != LaterRowKind::Value &&
                 !program.laterValue(QLatin1String(element)).isEmpty()) ||
                (row.kind == LaterRowKind::CategoryClass && out.back().value.isEmpty()))
                out.back().extra = QLatin1String(element);
            break;
        case LaterRowKind::Extra:
            add(element, row.side, -1, 0, laterValue(row, company, program, version));
            out.back().extra = QLatin1String(row.extra);
            break;
        case LaterRowKind::Expiry:
            for (const LaterExpiryValue& v : laterExpiryValues(program))
                add(v.element, RecordSide::Program, static_cast<int>(v.field), 0, v.value);
            break;
        case LaterRowKind::Descriptions:
            for (int language = 0; language < ProgramRecord::kLanguages; ++language)
                if (program.number(PF::DescriptionActive, language) == 1)
                    for (PF f : descriptionFields())
                        add(programLayout().field(static_cast<int>(f)).padElement,
                            RecordSide::Program, static_cast<int>(f), language,
                            descriptionText(program, f, language, version));
            break;
        case LaterRowKind::Association:
            blockActive = program.number(row.field) == 1;
            break;
        case LaterRowKind::MemberText:
            if (blockActive)
                add(element, row.side, row.field, 0, laterText(program.wholeText(row.field)));
            break;
        default: // tags, fixed texts and Y/N flags
            break;
        }
    }
    return out;
}

} // namespace brevaro
