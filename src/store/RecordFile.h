#pragma once

#include <QByteArray>
#include <QString>
#include <functional>
#include <map>
#include <optional>
#include <vector>

namespace brevaro {

// Whole record files not yet on disk: a path maps to its new bytes, or to nothing when the
// file is to go. A command gathers its changes here and writes them together.
using PendingFiles = std::map<QString, std::optional<QByteArray>>;

// A file of fixed-length records without header, numbered from 1. Every change writes a
// whole new file beside the old one and renames it over it, so a crash leaves the old or the
// new file, never a torn record. A damaged file (a length that is not a multiple of the
// record length) is read as far as it goes; a partial last record reads as blanks and zeros,
// and damage() says what is wrong. A file far larger than any real one is not rewritten.
class RecordFile {
public:
    // With pending, changes go there instead of to disk, and reads see them.
    RecordFile(QString path, QByteArray emptyRecord, PendingFiles* pending = nullptr);

    const QString& path() const { return m_path; }
    int recordLength() const { return static_cast<int>(m_empty.size()); }
    bool exists() const;

    // No record file of real use comes near this size (10,000 companies take 8 MB).
    static constexpr qint64 kMaxFileBytes = qint64(256) * 1024 * 1024;
    // What is wrong with the file in plain words; empty when nothing is.
    QString damage() const;

    // Number of records: length / record length rounded to the nearest whole number, a half
    // to the even neighbour; 0 for a missing file.
    int count() const;
    static int countFor(qint64 fileLength, int recordLength);

    // Record n, or nothing when n is not a record of the file.
    std::optional<QByteArray> read(int n) const;
    // From every record, the bytes at [offset, offset + length), handed to visit (valid only
    // during the call): reads only those bytes.
    void forEachSlice(int offset, int length,
                      const std::function<void(QByteArrayView)>& visit) const;
    // Every record; nothing (and errorString()) when the file cannot be read whole.
    std::optional<std::vector<QByteArray>> readAll();

    // Writes record n in place; n = count() + 1 appends.
    bool write(int n, const QByteArray& record);
    bool append(const QByteArray& record) { return write(count() + 1, record); }
    // Removes record n; the records after it move down by one.
    bool remove(int n);
    // Replaces the whole file with these records.
    bool writeAll(const std::vector<QByteArray>& records);
    // Removes the file.
    void removeFile();

    const QString& errorString() const { return m_error; }

private:
    QByteArray normalised(const QByteArray& raw) const;
    std::optional<QByteArray> readWhole();
    bool commit(const QByteArray& contents);

    const QByteArray* pendingBytes() const;

    QString m_path;
    QByteArray m_empty;
    PendingFiles* m_pending = nullptr;
    QString m_error;
};

} // namespace brevaro
