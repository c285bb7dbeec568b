#include "store/RecordStore.h"

#include "platform/StringHelpers.h"
#include "platform/Win1252.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QtEndian>

namespace brevaro {

namespace {

constexpr auto kMovingSuffix = ".moving";
constexpr auto kDoomedSuffix = ".doomed";

QStringList trimmedNames(const std::vector<QByteArray>& slices) {
    QStringList names;
    names.reserve(static_cast<qsizetype>(slices.size()));
    for (const auto& s : slices)
        names << trimBlanks(fromWin1252(s));
    return names;
}

const RecordField& nameField(const RecordLayout& layout) {
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
    const RecordField& f = nameField(companyLayout());
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
    const RecordField& f = nameField(programLayout());
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

// A company deletion is a list of steps in four phases, kept in an intent file until the
// last phase is done, so that a crash part-way is completed on the next start. Within a
// phase every step can be run again; the phase number is recorded as each phase ends.
//   0 compact  the company file without the company, the later ones renumbered
//   1 doom     its program file set aside; stage: the later companies' files set aside
//   2 remove   its program file deleted
//   3 finish   each set-aside file under its new number, its programs restamped
bool RecordStore::deleteCompany(int n) {
    const int count = companyCount();
    if (n < 1 || n > count) {
        m_error = QStringLiteral("there is no company %1").arg(n);
        return false;
    }
    std::vector<int> ids;
    const RecordField& idField = companyLayout().fields[0];
    for (const auto& slice : companyFile().readSlices(idField.offset, idField.size()))
        ids.push_back(qFromLittleEndian<qint32>(slice.constData()));

    const QString doomed = programFileName(ids[std::size_t(n - 1)]);
    QStringList steps{QStringLiteral("compact %1 %2").arg(n).arg(count),
                      QStringLiteral("doom ") + doomed};
    QStringList finishing;
    for (int k = n + 1; k <= count; ++k) {
        const QString source = programFileName(ids[std::size_t(k - 1)]);
        steps << QStringLiteral("stage ") + source;
        finishing << QStringLiteral("finish %1 %2").arg(source).arg(k - 1);
    }
    steps << QStringLiteral("remove ") + doomed;
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
    if (lines.isEmpty() || !lines.front().startsWith(QStringLiteral("phase "))) {
        m_error = QStringLiteral("the deletion record %1 is damaged").arg(intent.fileName());
        return false;
    }
    const int phase = lines.takeFirst().mid(6).toInt();
    return runDeletion(lines, phase);
}

bool RecordStore::saveIntent(const QStringList& steps, int phase) {
    QSaveFile out(m_home.deletionIntentFile());
    const QByteArray text =
        (QStringLiteral("phase %1\n").arg(phase) + steps.join(u'\n') + u'\n').toUtf8();
    if (!out.open(QIODevice::WriteOnly) || out.write(text) != text.size() || !out.commit()) {
        m_error = out.errorString();
        return false;
    }
    return true;
}

static int phaseOf(const QString& step) {
    static const QStringList verbs = {QStringLiteral("compact"), QStringLiteral("doom"),
                                      QStringLiteral("stage"), QStringLiteral("remove"),
                                      QStringLiteral("finish")};
    static const int phases[] = {0, 1, 1, 2, 3};
    const qsizetype verb = verbs.indexOf(step.section(u' ', 0, 0));
    return verb < 0 ? -1 : phases[verb];
}

bool RecordStore::runDeletion(QStringList steps, int phase) {
    for (int p = phase; p <= 3; ++p) {
        for (const QString& step : steps)
            if (phaseOf(step) == p && !runDeletionStep(step))
                return false;
        if (p < 3 && !saveIntent(steps, p + 1))
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
        QFile::remove(data.filePath(words[1]) + QLatin1String(kDoomedSuffix));
        return true;
    }
    if ((verb == QLatin1String("stage") || verb == QLatin1String("doom")) && words.size() == 2) {
        const QString source = data.filePath(words[1]);
        const QString staged =
            source + QLatin1String(verb == QLatin1String("doom") ? kDoomedSuffix : kMovingSuffix);
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
