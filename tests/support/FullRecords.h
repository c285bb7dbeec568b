#pragma once

#include "records/CompanyRecord.h"
#include "records/ProgramRecord.h"

namespace brevaro::test {

// Records with every text filled (a value derived from the field's name, cut to its width)
// and every flag set: selection flags -1, check boxes 1.
inline void fillEveryField(FixedRecord& r) {
    const auto& fields = r.layout().fields;
    for (int f = 1; f < static_cast<int>(fields.size()); ++f) {
        const RecordField& s = fields[static_cast<std::size_t>(f)];
        for (int i = 0; i < s.count; ++i) {
            if (s.isText()) {
                QString v = QLatin1String(s.name);
                if (s.count > 1)
                    v += QString::number(i);
                r.setText(f, v.right(s.width), i);
            } else {
                r.setNumber(f, 1, i);
            }
        }
    }
}

inline CompanyRecord fullCompany() {
    CompanyRecord c;
    fillEveryField(c);
    c.setNumber(CompanyField::CompanyID, 1);
    return c;
}

inline ProgramRecord fullProgram() {
    ProgramRecord p;
    fillEveryField(p);
    for (auto f :
         {ProgramField::OSSupported, ProgramField::LanguageSupported, ProgramField::ExpireBasedOn})
        for (int i = 0; i < p.layout().fields[static_cast<std::size_t>(f)].count; ++i)
            p.setNumber(f, -1, i);
    p.setNumber(ProgramField::CompanyID, 1);
    // Texts the way a user enters them: dates as digits, a multi-line licence.
    p.setText(ProgramField::ReleaseMonth, u"07");
    p.setText(ProgramField::ReleaseDay, u"04");
    p.setText(ProgramField::ReleaseYear, u"2008");
    p.setText(ProgramField::ExpireMonth, u"12");
    p.setText(ProgramField::ExpireDay, u"31");
    p.setText(ProgramField::ExpireYear, u"2010");
    p.setText(ProgramField::EULA, u"EULA first line\r\nsecond line & <more>");
    return p;
}

} // namespace brevaro::test
