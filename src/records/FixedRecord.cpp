#include "records/FixedRecord.h"

#include <algorithm>

#include "platform/StringHelpers.h"
#include "platform/Win1252.h"

#include <QtEndian>

namespace brevaro {

int RecordLayout::indexOf(QStringView fieldName) const {
    for (std::size_t i = 0; i < fields.size(); ++i)
        if (fieldName == QLatin1String(fields[i].name))
            return static_cast<int>(i);
    return -1;
}

const RecordField& RecordLayout::field(int index) const {
    if (index < 0 || index >= static_cast<int>(fields.size()))
        qFatal("%s record has no field %d", name, index);
    return fields[static_cast<std::size_t>(index)];
}

// Every access names an existing field and entry; anything else is a programming error that
// must stop the program rather than read or write beside the record.
static void checkEntry(const RecordField& f, int index, bool text) {
    if (f.isText() != text || index < 0 || index >= f.count)
        qFatal("field %s has no %s entry %d", f.name, text ? "text" : "number", index);
}

FixedRecord::FixedRecord(const RecordLayout& layout)
    : m_layout(&layout)
    , m_bytes(emptyBytes(layout)) {}

QByteArray FixedRecord::emptyBytes(const RecordLayout& layout) {
    QByteArray bytes(layout.length, '\0');
    for (const auto& f : layout.fields)
        if (f.isText())
            bytes.replace(f.offset, f.size(), QByteArray(f.size(), ' '));
    return bytes;
}

void FixedRecord::setBytes(const QByteArray& bytes) {
    if (bytes.size() >= m_layout->length) {
        m_bytes = bytes.left(m_layout->length);
        return;
    }
    m_bytes = emptyBytes(*m_layout);
    m_bytes.replace(0, bytes.size(), bytes);
}

const RecordField& FixedRecord::fieldAt(int field) const {
    return m_layout->field(field);
}

QString FixedRecord::rawText(int field, int index) const {
    const RecordField& f = fieldAt(field);
    checkEntry(f, index, true);
    return fromWin1252(m_bytes.constData() + f.entryOffset(index), f.width);
}

QString FixedRecord::text(int field, int index) const {
    // Trimmed before it is decoded (a blank is one byte and no other byte reads as one): most
    // of a wide field is blanks.
    const RecordField& f = fieldAt(field);
    checkEntry(f, index, true);
    const char* begin = m_bytes.constData() + f.entryOffset(index);
    const char* end = begin + f.width;
    while (begin < end && *begin == ' ')
        ++begin;
    while (end > begin && end[-1] == ' ')
        --end;
    return fromWin1252(begin, end - begin);
}

// What a field of f's width holds of value, trimmed.
static QString heldForm(const RecordField& f, QStringView value) {
    const QByteArray bytes = toWin1252(value);
    return trimBlanks(fromWin1252(bytes.constData(), std::min<qsizetype>(bytes.size(), f.width)));
}

QString FixedRecord::wholeKey(const RecordField& field, int index) {
    const QString name = QLatin1String(field.name);
    return field.count > 1 ? name + u'[' + QString::number(index) + u']' : name;
}

void FixedRecord::setText(int field, QStringView value, int index) {
    const RecordField& f = fieldAt(field);
    checkEntry(f, index, true);
    char* dst = m_bytes.data() + f.entryOffset(index);
    // Widths count characters; a surrogate pair is one character (one '?').
    const QByteArray bytes = toWin1252(value);
    const qsizetype n = std::min<qsizetype>(bytes.size(), f.width);
    std::copy_n(bytes.constData(), n, dst);
    std::fill(dst + n, dst + f.width, ' ');

    // Most values fit and have a byte for every character: the record holds them whole, and
    // with no whole text kept there is nothing more to do.
    if (m_whole.isEmpty() && bytes.size() == value.size() && bytes.size() <= f.width) {
        bool substituted = false;
        for (qsizetype i = 0; i < bytes.size() && !substituted; ++i)
            substituted = bytes[i] == '?' && value[i] != u'?';
        if (!substituted)
            return;
    }
    const QString held = text(field, index);
    const QString typed = trimBlanks(value);
    if (typed != held)
        m_whole.insert(wholeKey(f, index), typed);
    else
        dropStaleWhole(f, index, held);
}

void FixedRecord::dropStaleWhole(const RecordField& f, int index, const QString& held) {
    // A whole text equal to what is held, or one the record no longer holds the start of.
    const auto whole = m_whole.find(wholeKey(f, index));
    if (whole != m_whole.end() && (*whole == held || heldForm(f, *whole) != held))
        m_whole.erase(whole);
}

QString FixedRecord::wholeText(int field, int index) const {
    const RecordField& f = fieldAt(field);
    checkEntry(f, index, true);
    const QString held = text(field, index);
    if (m_whole.isEmpty())
        return held;
    const auto whole = m_whole.constFind(wholeKey(f, index));
    return whole != m_whole.cend() && heldForm(f, *whole) == held ? *whole : held;
}

void FixedRecord::setLaterValue(const QString& name, const QString& value) {
    if (value.isEmpty())
        m_later.remove(name);
    else
        m_later.insert(name, value);
}

void FixedRecord::setExtras(Extras later, Extras whole) {
    m_later = std::move(later);
    m_whole = std::move(whole);
}

QString FixedRecord::trimText(int field, int index) {
    QString value = text(field, index);
    // A value that starts at the field's first byte is already held trimmed (the blanks after
    // it are the field's padding): writing it back would change no byte.
    const RecordField& f = fieldAt(field);
    if (m_bytes.at(f.entryOffset(index)) == ' ')
        setText(field, value, index);
    else if (!m_whole.isEmpty())
        dropStaleWhole(f, index, value);
    return value;
}

int FixedRecord::number(int field, int index) const {
    const RecordField& f = fieldAt(field);
    checkEntry(f, index, false);
    const char* src = m_bytes.constData() + f.entryOffset(index);
    if (f.type == FieldType::Int32)
        return qFromLittleEndian<qint32>(src);
    return qFromLittleEndian<qint16>(src);
}

void FixedRecord::setNumber(int field, int value, int index) {
    const RecordField& f = fieldAt(field);
    checkEntry(f, index, false);
    char* dst = m_bytes.data() + f.entryOffset(index);
    if (f.type == FieldType::Int32)
        qToLittleEndian<qint32>(value, dst);
    else
        qToLittleEndian<qint16>(static_cast<qint16>(value), dst);
}

} // namespace brevaro
