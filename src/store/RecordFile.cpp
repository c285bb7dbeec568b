#include "store/RecordFile.h"

#include "platform/FileHelpers.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace brevaro {

RecordFile::RecordFile(QString path, QByteArray emptyRecord, PendingFiles* pending)
    : m_path(std::move(path))
    , m_empty(std::move(emptyRecord))
    , m_pending(pending) {}

// Null when the file has no pending change; else its pending bytes (empty when it is to go).
const QByteArray* RecordFile::pendingBytes() const {
    static const QByteArray gone;
    if (!m_pending)
        return nullptr;
    const auto it = m_pending->find(m_path);
    if (it == m_pending->end())
        return nullptr;
    return it->second ? &*it->second : &gone;
}

bool RecordFile::exists() const {
    if (m_pending && m_pending->count(m_path))
        return m_pending->at(m_path).has_value();
    return QFileInfo(m_path).isFile();
}

void RecordFile::removeFile() {
    if (m_pending)
        (*m_pending)[m_path] = std::nullopt;
    else
        QFile::remove(m_path);
}

QString RecordFile::damage() const {
    if (pendingBytes())
        return QString();
    const QFileInfo info(m_path);
    if (!info.exists())
        return QString();
    const QString shown = QDir::toNativeSeparators(m_path);
    if (!info.isFile())
        return QStringLiteral("%1 is not a file").arg(shown);
    if (info.size() > kMaxFileBytes)
        return QStringLiteral("%1 is %2 MB, far larger than any record file: it is damaged")
            .arg(shown)
            .arg(info.size() / (1024 * 1024));
    if (info.size() % recordLength() != 0)
        return QStringLiteral("%1 is damaged: it ends in the middle of a record").arg(shown);
    return QString();
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
    if (const QByteArray* bytes = pendingBytes())
        return countFor(bytes->size(), recordLength());
    const QFileInfo info(m_path);
    return info.isFile() ? countFor(info.size(), recordLength()) : 0;
}

std::optional<QByteArray> RecordFile::read(int n) const {
    if (const QByteArray* bytes = pendingBytes()) {
        if (n < 1 || n > countFor(bytes->size(), recordLength()))
            return std::nullopt;
        return bytes->mid(qsizetype(n - 1) * recordLength(), recordLength());
    }
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

void RecordFile::forEachSlice(int offset, int length,
                              const std::function<void(QByteArrayView)>& visit) const {
    if (const QByteArray* bytes = pendingBytes()) {
        for (qsizetype at = 0; at < bytes->size(); at += recordLength())
            visit(
                QByteArrayView(bytes->constData() + std::min<qsizetype>(at + offset, bytes->size()),
                               std::clamp<qsizetype>(bytes->size() - at - offset, 0, length)));
        return;
    }
    // Short records are read many at a time into one buffer; long ones slice by slice,
    // unbuffered, so that only the slices are read.
    const int perBlock = recordLength() < 16 * 1024 ? (1 << 20) / recordLength() : 1;
    QFile file(m_path);
    if (!file.open(perBlock > 1 ? QIODevice::ReadOnly
                                : QIODevice::ReadOnly | QIODevice::Unbuffered))
        return;
    const int n = countFor(file.size(), recordLength());
    QByteArray block(perBlock > 1 ? qsizetype(perBlock) * recordLength() : length,
                     Qt::Uninitialized);
    qint64 blockBytes = 0;
    int blockStart = 0;
    QByteArray shortSlice;
    for (int i = 0; i < n; ++i) {
        QByteArrayView slice;
        if (perBlock > 1) {
            if (i == 0 || i - blockStart >= perBlock) {
                blockStart = i;
                blockBytes = std::max<qint64>(0, file.read(block.data(), block.size()));
            }
            const qint64 at = qint64(i - blockStart) * recordLength() + offset;
            if (at < blockBytes)
                slice = QByteArrayView(block.constData() + at,
                                       std::min<qint64>(length, blockBytes - at));
        } else if (file.seek(qint64(i) * recordLength() + offset)) {
            slice = QByteArrayView(block.constData(),
                                   std::max<qint64>(0, file.read(block.data(), length)));
        }
        if (slice.size() < length) {
            // The end of a short last record: the rest as an empty record has it.
            shortSlice =
                slice.toByteArray() + m_empty.mid(offset + slice.size(), length - slice.size());
            slice = shortSlice;
        }
        visit(slice);
    }
}

std::optional<std::vector<QByteArray>> RecordFile::readAll() {
    const auto contents = readWhole();
    if (!contents)
        return std::nullopt;
    std::vector<QByteArray> records;
    for (qsizetype at = 0; at < contents->size(); at += recordLength())
        records.push_back(contents->mid(at, recordLength()));
    return records;
}

// The whole file, normalised; empty for a missing file, nothing for one that cannot be read
// or is far too large to be a record file.
std::optional<QByteArray> RecordFile::readWhole() {
    if (const QByteArray* bytes = pendingBytes())
        return *bytes;
    const QFileInfo info(m_path);
    if (!info.exists())
        return QByteArray();
    if (info.size() > kMaxFileBytes) {
        m_error = damage();
        return std::nullopt;
    }
    QByteArray raw;
    if (!readRegularFile(m_path, kMaxFileBytes, &raw, &m_error))
        return std::nullopt;
    return normalised(raw);
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
    std::optional<QByteArray> onDisk;
    QByteArray* contents = nullptr;
    if (m_pending && m_pending->count(m_path)) {
        // Changed in place, so that many writes to one file cost what one does.
        auto& pending = (*m_pending)[m_path];
        if (!pending)
            pending = QByteArray();
        contents = &*pending;
    } else {
        onDisk = readWhole();
        if (!onDisk)
            return false;
        contents = &*onDisk;
    }
    const int count = static_cast<int>(contents->size() / recordLength());
    if (n < 1 || n > count + 1) {
        m_error = QStringLiteral("record %1 is outside the file").arg(n);
        return false;
    }
    if (n == count + 1)
        *contents += record;
    else
        contents->replace(qsizetype(n - 1) * recordLength(), recordLength(), record);
    if (!onDisk) {
        m_error.clear();
        return true;
    }
    return commit(*contents);
}

bool RecordFile::remove(int n) {
    auto records = readAll();
    if (!records)
        return false;
    if (n < 1 || n > static_cast<int>(records->size())) {
        m_error = QStringLiteral("record %1 is outside the file").arg(n);
        return false;
    }
    records->erase(records->begin() + (n - 1));
    return writeAll(*records);
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
    if (m_pending) {
        (*m_pending)[m_path] = contents;
        m_error.clear();
        return true;
    }
    if (!writeFileAtomically(m_path, contents, &m_error))
        return false;
    m_error.clear();
    return true;
}

} // namespace brevaro
