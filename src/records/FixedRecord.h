#pragma once

#include "records/RecordField.h"

#include <QByteArray>
#include <QMap>
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

    // What the bytes cannot hold, kept beside them (on disk in the companion store):
    //  - the values of the fields later PAD versions add, by their names (see ExtraFields.h);
    //  - the whole text of a field whose value the record cuts or cannot spell in
    //    Windows-1252, by the field's name ("Name", or "Name[i]" for an array entry).
    // setText keeps a whole text when the value does not fit, and keeps it while the value
    // set is its cut form (what a box limited to the field's width shows); any other value
    // replaces it.
    using Extras = QMap<QString, QString>;
    const Extras& laterValues() const { return m_later; }
    QString laterValue(const QString& name) const { return m_later.value(name); }
    // An empty value removes the entry.
    void setLaterValue(const QString& name, const QString& value);
    const Extras& wholeTexts() const { return m_whole; }
    // The text a field stands for: its whole text while the record still holds that text's
    // cut form, else what the record holds (trimmed).
    QString wholeText(int field, int index = 0) const;
    // Replaces both kinds of extra values (as read from the companion store).
    void setExtras(Extras later, Extras whole);
    bool hasExtras() const { return !m_later.isEmpty() || !m_whole.isEmpty(); }
    // The key of a field's whole text.
    static QString wholeKey(const RecordField& field, int index);

    friend bool operator==(const FixedRecord& a, const FixedRecord& b) {
        return a.m_bytes == b.m_bytes && a.m_later == b.m_later && a.m_whole == b.m_whole;
    }

protected:
    void resetToEmpty() {
        m_bytes = emptyBytes(*m_layout);
        m_later.clear();
        m_whole.clear();
    }

private:
    const RecordField& fieldAt(int field) const;
    void dropStaleWhole(const RecordField& f, int index, const QString& held);

    const RecordLayout* m_layout;
    QByteArray m_bytes;
    Extras m_later;
    Extras m_whole;
};

} // namespace brevaro
