#include "store/RecordFile.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace brevaro {

RecordFile::RecordFile(QString path, QByteArray emptyRecord)
    : m_path(std::move(path))
    , m_empty(std::move(emptyRecord)) {}

bool RecordFile::exists() const {
    return QFileInfo(m_path).isFile();
}

int RecordFile::countFor(qint64 fileLength, int recordLength) {
    if (fileLength <= 0 || recordLength <= 0)
        return 0;
    qint64 whole = fileLength / recordLength;
    const qint64 rest = fileLength % recordLength;
    if (2 * rest > recordLength || (2 * rest == recordLength && whole % 2 == 1))
        ++whole;
    return static_cast<int>(whole);
}

int RecordFile::count() const {
    const QFileInfo info(m_path);
    return info.isFile() ? countFor(info.size(), recordLength()) : 0;
}

std::optional<QByteArray> RecordFile::read(int n) const {
    QFile file(m_path);
    if (n < 1 || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    if (n > countFor(file.size(), recordLength()))
        return std::nullopt;
    if (!file.seek(qint64(n - 1) * recordLength()))
        return std::nullopt;
    QByteArray bytes = file.read(recordLength());
    if (bytes.size() < recordLength())
        bytes += m_empty.mid(bytes.size());
    return bytes;
}

std::vector<QByteArray> RecordFile::readSlices(int offset, int length) const {
    std::vector<QByteArray> slices;
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly))
        return slices;
    const int n = countFor(file.size(), recordLength());
    slices.reserve(static_cast<std::size_t>(n));
    for (int i = 0; i < n; ++i) {
        QByteArray slice;
        if (file.seek(qint64(i) * recordLength() + offset))
            slice = file.read(length);
        if (slice.size() < length)
            slice += m_empty.mid(offset + slice.size(), length - slice.size());
        slices.push_back(slice);
    }
    return slices;
}

std::vector<QByteArray> RecordFile::readAll() const {
    std::vector<QByteArray> records;
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly))
        return records;
    const QByteArray contents = normalised(file.readAll());
    for (qsizetype at = 0; at < contents.size(); at += recordLength())
        records.push_back(contents.mid(at, recordLength()));
    return records;
}

// The file's bytes cut or completed to exactly count() whole records.
QByteArray RecordFile::normalised(const QByteArray& raw) const {
    const int n = countFor(raw.size(), recordLength());
    const qsizetype wanted = qsizetype(n) * recordLength();
    if (raw.size() >= wanted)
        return raw.left(wanted);
    return raw + m_empty.mid(raw.size() % recordLength());
}

bool RecordFile::write(int n, const QByteArray& record) {
    Q_ASSERT(record.size() == recordLength());
    QByteArray contents;
    QFile file(m_path);
    if (file.exists()) {
        if (!file.open(QIODevice::ReadOnly)) {
            m_error = file.errorString();
            return false;
        }
        contents = normalised(file.readAll());
        file.close();
    }
    const int count = static_cast<int>(contents.size() / recordLength());
    if (n < 1 || n > count + 1) {
        m_error = QStringLiteral("record %1 is outside the file").arg(n);
        return false;
    }
    if (n == count + 1)
        contents += record;
    else
        contents.replace(qsizetype(n - 1) * recordLength(), recordLength(), record);
    return commit(contents);
}

bool RecordFile::remove(int n) {
    std::vector<QByteArray> records = readAll();
    if (n < 1 || n > static_cast<int>(records.size())) {
        m_error = QStringLiteral("record %1 is outside the file").arg(n);
        return false;
    }
    records.erase(records.begin() + (n - 1));
    return writeAll(records);
}

bool RecordFile::writeAll(const std::vector<QByteArray>& records) {
    QByteArray contents;
    contents.reserve(qsizetype(records.size()) * recordLength());
    for (const auto& r : records) {
        Q_ASSERT(r.size() == recordLength());
        contents += r;
    }
    return commit(contents);
}

bool RecordFile::commit(const QByteArray& contents) {
    QSaveFile out(m_path);
    if (!out.open(QIODevice::WriteOnly) || out.write(contents) != contents.size() ||
        !out.commit()) {
        m_error = out.errorString();
        return false;
    }
    m_error.clear();
    return true;
}

} // namespace brevaro
