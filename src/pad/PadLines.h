#pragma once

#include "pad/PadXmlText.h"

#include <QString>

namespace brevaro {

// Builds a PAD document line by line, each line ending with CR LF, values written well-formed.
class PadLines {
public:
    void line(int blanks, const QString& text) {
        m_text += QString(blanks, u' ') + text + QStringLiteral("\r\n");
    }
    void empty() { m_text += QStringLiteral("\r\n"); }
    // The value element rule: full form with a value, "<Name />" without.
    void value(int blanks, const char* element, const QString& v) {
        if (v.isEmpty())
            line(blanks, u'<' + QLatin1String(element) + QStringLiteral(" />"));
        else
            full(blanks, element, v);
    }
    // Full form always, as the association blocks and Y/N flags are written.
    void full(int blanks, const char* element, const QString& v) {
        const QString name = QLatin1String(element);
        line(blanks,
             u'<' + name + u'>' + wellFormedXmlText(v) + QStringLiteral("</") + name + u'>');
    }
    void yesNo(int blanks, const char* element, bool set) {
        full(blanks, element, set ? QStringLiteral("Y") : QStringLiteral("N"));
    }
    const QString& text() const { return m_text; }

private:
    QString m_text;
};

} // namespace brevaro
