#pragma once

#include "records/RecordField.h"

#include <QByteArray>
#include <QString>

namespace brevaro {

// A record held as its exact bytes on disk. Texts are read and written through the field
// table: assignment cuts or blank-pads to the field width, integers are little-endian.
class FixedRecord {
public:
    explicit FixedRecord(const RecordLayout& layout);

    const RecordLayout& layout() const { return *m_layout; }
    const QByteArray& bytes() const { return m_bytes; }
    // Takes raw bytes from a file; a short buffer is completed with blanks and zeros.
    void setBytes(const QByteArray& bytes);

    // The full fixed-width text, blanks included.
    QString rawText(int field, int index = 0) const;
    // The text without leading and trailing blanks, as every reader uses it.
    QString text(int field, int index = 0) const;
    void setText(int field, QStringView value, int index = 0);
    // Stores the trimmed value back into the field and returns it.
    QString trimText(int field, int index = 0);

    int number(int field, int index = 0) const;
    void setNumber(int field, int value, int index = 0);

    // A record of blank texts and zero numbers, in bytes.
    static QByteArray emptyBytes(const RecordLayout& layout);

    friend bool operator==(const FixedRecord& a, const FixedRecord& b) {
        return a.m_bytes == b.m_bytes;
    }

protected:
    void resetToEmpty() { m_bytes = emptyBytes(*m_layout); }

private:
    const RecordField& fieldAt(int field) const;

    const RecordLayout* m_layout;
    QByteArray m_bytes;
};

} // namespace brevaro
