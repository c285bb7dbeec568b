#include "pad/VerificationReport.h"

#include "pad/PadLayout.h"
#include "pad/PadText.h"
#include "pad/WebInfo.h"
#include "platform/StringHelpers.h"
#include "records/ValueLists.h"

namespace brevaro {

namespace {
using PF = ProgramField;
const QString kCrLf = QStringLiteral("\r\n");
QString yesNo(bool set) {
    return set ? QStringLiteral("YES") : QStringLiteral("NO");
}
} // namespace

QString FormatFieldLine(const QString& caption, const QString& value) {
    const QString c = trimBlanks(caption);
    const QString v = trimBlanks(value);
    if (c.isEmpty())
        return QString();
    QString line = QStringLiteral("<b>") + c + QStringLiteral(": </b>");
    if (!v.isEmpty())
        line += QStringLiteral("<FONT color=\"#000099\"><b>") + v + QStringLiteral("</b></FONT>");
    else
        line += QStringLiteral("<FONT Size=4 color=\"#CC0000\"><b>*** Field EMPTY ***</b></FONT>");
    return line + QStringLiteral("<BR><BR>") + kCrLf;
}

QString CreateVerificationReport(const CompanyRecord& c, const ProgramRecord& p) {
    QString r;
    for (const char* fixed :
         {"<br><br>", "<FONT Size=4>", "<b>", "XML Data Info Verification:<br>", "</b>", "</FONT>",
          "This section list out all of the fields that will be saved into the XML file. Empty "
          "fields will appear in <FONT Size=4 color=\"#CC0000\"><b>red bold</b></FONT> text.<br>",
          "<hr>", ""})
        r += QString::fromUtf8(fixed) + kCrLf;
    auto field = [&](const char* caption, const QString& value) {
        r += FormatFieldLine(QString::fromUtf8(caption), value);
    };
    auto captionOf = [](PF f) {
        return programLayout().field(static_cast<int>(f)).reportCaption;
    };
    bool blockActive = false;
    for (const PadRow& row : padRows()) {
        const auto f = static_cast<PF>(row.field);
        const char* caption = row.field >= 0 ? fieldOf(row).reportCaption : row.caption;
        switch (row.kind) {
        case PadRowKind::Line:
        case PadRowKind::Blank:
            break;
        case PadRowKind::Fixed:
            field(caption, fixedValue(row));
            break;
        case PadRowKind::Value:
        case PadRowKind::FlagList:
            field(caption, padValue(row, c, p));
            break;
        case PadRowKind::YesNo:
            field(caption, yesNo(p.number(f) != 0));
            break;
        case PadRowKind::Expiry:
            field(caption, yesNo(p.number(PF::HasExpireInfo) != 0));
            field(captionOf(PF::ExpireCount), p.text(PF::ExpireCount));
            field(captionOf(PF::ExpireBasedOn), expireBasedOnCaption(p));
            for (PF e : {PF::ExpireOtherInfo, PF::ExpireMonth, PF::ExpireDay, PF::ExpireYear})
                field(captionOf(e), p.text(e));
            break;
        case PadRowKind::Descriptions:
            for (PF d : descriptionFields())
                field(captionOf(d), p.text(d, 0));
            break;
        case PadRowKind::Association:
            blockActive = p.number(f) == 1;
            if (blockActive)
                field(caption, yesNo(true));
            break;
        case PadRowKind::MemberYesNo:
            if (blockActive)
                field(caption, yesNo(p.number(f) == 1));
            break;
        case PadRowKind::MemberText:
            if (blockActive)
                field(caption, p.text(f));
            break;
        case PadRowKind::AssociationEnd:
            blockActive = false;
            break;
        }
    }
    return r + QStringLiteral("<hr>") + kCrLf;
}

QString verificationPage(const CompanyRecord& company, const ProgramRecord& program,
                         const QString& aspSite) {
    return CreateWebInfo(company, program, aspSite) + CreateVerificationReport(company, program) +
           kCrLf;
}

} // namespace brevaro
