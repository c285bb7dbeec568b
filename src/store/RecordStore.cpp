#include "store/RecordStore.h"

#include "platform/StringHelpers.h"
#include "records/Win1252.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QtEndian>

namespace brevaro {

namespace {

constexpr auto kMovingSuffix = ".moving";

QStringList trimmedNames(const std::vector<QByteArray>& slices) {
    QStringList names;
    names.reserve(static_cast<qsizetype>(slices.size()));
    for (const auto& s : slices)
        names << trimBlanks(fromWin1252(s));
    return names;
}

const FieldSpec& nameField(const RecordLayout& layout) {
    return layout.fields[1];
}

} // namespace

RecordStore::RecordStore(AppHome home)
    : m_home(std::move(home)) {}

RecordFile RecordStore::companyFile() const {
    return RecordFile(m_home.companyFile(), FixedRecord::emptyBytes(companyLayout()));
}

RecordFile RecordStore::programFile(int companyId) const {
    return RecordFile(m_home.programFile(companyId), FixedRecord::emptyBytes(programLayout()));
}

QString RecordStore::programFileName(int companyId) {
    return QString::number(companyId) + QStringLiteral(".dta");
}

bool RecordStore::readCompany(int n, CompanyRecord& record) const {
    const auto bytes = companyFile().read(n);
    if (bytes)
        record.setBytes(*bytes);
    return bytes.has_value();
}

bool RecordStore::writeCompany(int n, const CompanyRecord& record) {
    RecordFile file = companyFile();
    const bool ok = file.write(n, record.bytes());
    m_error = file.errorString();
    return ok;
}

QStringList RecordStore::companyNames() const {
    const FieldSpec& f = nameField(companyLayout());
    return trimmedNames(companyFile().readSlices(f.offset, f.size()));
}

bool RecordStore::readProgram(int companyId, int n, ProgramRecord& record) const {
    const auto bytes = programFile(companyId).read(n);
    if (bytes)
        record.setBytes(*bytes);
    return bytes.has_value();
}

bool RecordStore::writeProgram(int companyId, int n, const ProgramRecord& record) {
    RecordFile file = programFile(companyId);
    const bool ok = file.write(n, record.bytes());
    m_error = file.errorString();
    return ok;
}

QStringList RecordStore::programNames(int companyId) const {
    const FieldSpec& f = nameField(programLayout());
    return trimmedNames(programFile(companyId).readSlices(f.offset, f.size()));
}

bool RecordStore::deleteProgram(int companyId, int n) {
    RecordFile file = programFile(companyId);
    if (!file.remove(n)) {
        m_error = file.errorString();
        return false;
    }
    if (file.count() == 0)
        QFile::remove(file.path());
    return true;
}

// A company deletion is a list of steps kept in an intent file until the last one is done,
// so that a crash part-way is completed on the next start. Every step can be run twice.
bool RecordStore::deleteCompany(int n) {
    const int count = companyCount();
    if (n < 1 || n > count) {
        m_error = QStringLiteral("there is no company %1").arg(n);
        return false;
    }
    std::vector<int> ids;
    const FieldSpec& idField = companyLayout().fields[0];
    for (const auto& slice : companyFile().readSlices(idField.offset, idField.size()))
        ids.push_back(qFromLittleEndian<qint32>(slice.constData()));

    QStringList steps{QStringLiteral("compact %1 %2").arg(n).arg(count),
                      QStringLiteral("remove ") + programFileName(ids[std::size_t(n - 1)])};
    QStringList finishing;
    for (int k = n + 1; k <= count; ++k) {
        const QString source = programFileName(ids[std::size_t(k - 1)]);
        steps << QStringLiteral("stage ") + source;
        finishing << QStringLiteral("finish %1 %2").arg(source).arg(k - 1);
    }
    steps += finishing;
    if (!saveIntent(steps, 0))
        return false;
    return runDeletion(steps, 0);
}

bool RecordStore::completeInterruptedDeletion() {
    QFile intent(m_home.deletionIntentFile());
    if (!intent.exists())
        return true;
    if (!intent.open(QIODevice::ReadOnly)) {
        m_error = intent.errorString();
        return false;
    }
    QStringList lines = QString::fromUtf8(intent.readAll()).split(u'\n', Qt::SkipEmptyParts);
    intent.close();
    if (lines.isEmpty() || !lines.front().startsWith(QStringLiteral("next "))) {
        m_error = QStringLiteral("the deletion record %1 is damaged").arg(intent.fileName());
        return false;
    }
    const int next = lines.takeFirst().mid(5).toInt();
    return runDeletion(lines, next);
}

bool RecordStore::saveIntent(const QStringList& steps, int next) {
    QSaveFile out(m_home.deletionIntentFile());
    const QByteArray text =
        (QStringLiteral("next %1\n").arg(next) + steps.join(u'\n') + u'\n').toUtf8();
    if (!out.open(QIODevice::WriteOnly) || out.write(text) != text.size() || !out.commit()) {
        m_error = out.errorString();
        return false;
    }
    return true;
}

bool RecordStore::runDeletion(QStringList steps, int next) {
    for (int i = next; i < steps.size(); ++i) {
        if (!runDeletionStep(steps[i]) || !saveIntent(steps, i + 1))
            return false;
    }
    QFile::remove(m_home.deletionIntentFile());
    return true;
}

bool RecordStore::runDeletionStep(const QString& step) {
    const QStringList words = step.split(u' ');
    const QString& verb = words.front();
    const QDir data(m_home.dataFolder());
    if (verb == QLatin1String("compact") && words.size() == 3) {
        const int doomed = words[1].toInt();
        RecordFile file = companyFile();
        if (file.count() != words[2].toInt())
            return true; // done before the crash
        std::vector<QByteArray> records = file.readAll();
        records.erase(records.begin() + (doomed - 1));
        for (std::size_t k = std::size_t(doomed - 1); k < records.size(); ++k) {
            CompanyRecord r;
            r.setBytes(records[k]);
            r.setNumber(CompanyField::CompanyID, static_cast<int>(k + 1));
            records[k] = r.bytes();
        }
        const bool ok = file.writeAll(records);
        m_error = file.errorString();
        return ok;
    }
    if (verb == QLatin1String("remove") && words.size() == 2) {
        QFile::remove(data.filePath(words[1]));
        return true;
    }
    if (verb == QLatin1String("stage") && words.size() == 2) {
        const QString source = data.filePath(words[1]);
        const QString staged = source + QLatin1String(kMovingSuffix);
        if (!QFile::exists(source))
            return true;
        QFile::remove(staged);
        if (!QFile::rename(source, staged)) {
            m_error = QStringLiteral("%1 cannot be renamed").arg(source);
            return false;
        }
        return true;
    }
    if (verb == QLatin1String("finish") && words.size() == 3) {
        const QString staged = data.filePath(words[1]) + QLatin1String(kMovingSuffix);
        if (!QFile::exists(staged))
            return true;
        const int newId = words[2].toInt();
        RecordFile from(staged, FixedRecord::emptyBytes(programLayout()));
        std::vector<QByteArray> records = from.readAll();
        for (auto& bytes : records) {
            ProgramRecord r;
            r.setBytes(bytes);
            r.setNumber(ProgramField::CompanyID, newId);
            bytes = r.bytes();
        }
        RecordFile to = programFile(newId);
        if (!to.writeAll(records)) {
            m_error = to.errorString();
            return false;
        }
        QFile::remove(staged);
        return true;
    }
    m_error = QStringLiteral("unknown deletion step: %1").arg(step);
    return false;
}

} // namespace brevaro
