#include "store/RecordStore.h"

#include "platform/FileHelpers.h"
#include "platform/StringHelpers.h"
#include "platform/Win1252.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>
#include <QtEndian>

namespace brevaro {

namespace {

constexpr auto kMovingSuffix = ".moving";
constexpr auto kDoomedSuffix = ".doomed";
constexpr auto kPendingSuffix = ".pending";

// The name of every record of file, without its surrounding blanks. A blank is one byte in
// Windows-1252, so the bytes are trimmed before they are decoded, once.
QStringList trimmedNames(const RecordFile& file, const RecordField& name) {
    QStringList names;
    file.forEachSlice(name.offset, name.size(), [&](QByteArrayView slice) {
        qsizetype begin = 0, end = slice.size();
        while (begin < end && slice[begin] == ' ')
            ++begin;
        while (end > begin && slice[end - 1] == ' ')
            --end;
        names << fromWin1252(slice.data() + begin, end - begin);
    });
    return names;
}

const RecordField& nameField(const RecordLayout& layout) {
    return layout.fields[1];
}

} // namespace

RecordStore::RecordStore(AppHome home)
    : m_home(std::move(home)) {}

// The empty records, made once: a record file is opened for every company in some commands.
static const QByteArray& emptyCompany() {
    static const QByteArray bytes = FixedRecord::emptyBytes(companyLayout());
    return bytes;
}
static const QByteArray& emptyProgram() {
    static const QByteArray bytes = FixedRecord::emptyBytes(programLayout());
    return bytes;
}

RecordFile RecordStore::companyFile() const {
    return RecordFile(m_home.companyFile(), emptyCompany(), m_batching ? &m_pending : nullptr);
}

RecordFile RecordStore::programFile(int companyId) const {
    return RecordFile(m_home.programFile(companyId), emptyProgram(),
                      m_batching ? &m_pending : nullptr);
}

void RecordStore::beginBatch() {
    m_batching = true;
}

void RecordStore::endBatch() {
    discardBatch();
    m_batching = false;
}

void RecordStore::discardBatch() {
    m_pending.clear();
    m_pendingExtras.clear();
    m_programNames.clear();
}

bool RecordStore::commitBatch() {
    for (const auto& [recordPath, extras] : m_pendingExtras) {
        const QString path = AppHome::extrasFile(recordPath);
        if (!extras.entries.empty())
            m_pending[path] = extras.toBytes();
        else if (QFileInfo::exists(path))
            m_pending[path] = std::nullopt;
        m_extrasCache.erase(path);
    }
    m_pendingExtras.clear();
    if (m_pending.empty())
        return true;
    SaveIntent intent;
    QStringList pendingFiles;
    for (const auto& [path, bytes] : m_pending) {
        const QString name = QFileInfo(path).fileName();
        if (!bytes) {
            intent.removed << name;
            continue;
        }
        QString why;
        if (!writeFileAtomically(path + QLatin1String(kPendingSuffix), *bytes, &why)) {
            for (const QString& done : pendingFiles)
                QFile::remove(done);
            m_error = why;
            return false;
        }
        pendingFiles << path + QLatin1String(kPendingSuffix);
        intent.written << name;
    }
    // From here the new files are complete: the intent makes them the data.
    QString why;
    if (!writeFileAtomically(m_home.saveIntentFile(), intent.toBytes(), &why)) {
        for (const QString& done : pendingFiles)
            QFile::remove(done);
        m_error = why;
        return false;
    }
    m_pending.clear();
    return applySave(intent);
}

bool RecordStore::applySave(const SaveIntent& intent) {
    const QDir data(m_home.dataFolder());
    for (const QString& name : intent.written) {
        const QString staged = data.filePath(name + QLatin1String(kPendingSuffix));
        if (QFile::exists(staged) && !replaceFile(staged, data.filePath(name))) {
            m_error = QStringLiteral("%1 cannot be renamed").arg(QDir::toNativeSeparators(staged));
            return false;
        }
    }
    for (const QString& name : intent.removed)
        QFile::remove(data.filePath(name));
    QFile::remove(m_home.saveIntentFile());
    return true;
}

bool RecordStore::completeInterruptedSave() {
    const QString path = m_home.saveIntentFile();
    if (!QFileInfo::exists(path))
        return true;
    QByteArray bytes;
    QString why;
    if (readRegularFile(path, SaveIntent::kMaxBytes, &bytes, &why)) {
        if (const auto intent = SaveIntent::parse(bytes, &why))
            return applySave(*intent);
    }
    m_error = QStringLiteral("the record of an unfinished save, %1, is damaged (%2); nothing "
                             "was changed. Move that file away to use the data as it is")
                  .arg(QDir::toNativeSeparators(path), why);
    return false;
}

QString RecordStore::programFileName(int companyId) {
    return QString::number(companyId) + QStringLiteral(".dta");
}

bool RecordStore::readCompany(int n, CompanyRecord& record) const {
    const auto bytes = companyFile().read(n);
    if (bytes) {
        record.setBytes(*bytes);
        attachExtras(m_home.companyFile(), n, record, [this] { return companyNames(); });
    }
    return bytes.has_value();
}

bool RecordStore::writeCompany(int n, const CompanyRecord& record) {
    RecordFile file = companyFile();
    const bool ok = file.write(n, record.bytes());
    m_error = file.errorString();
    return ok && updateExtras(m_home.companyFile(), n, record, [this] { return companyNames(); });
}

QStringList RecordStore::companyNames() const {
    const RecordField& f = nameField(companyLayout());
    return trimmedNames(companyFile(), f);
}

bool RecordStore::readProgram(int companyId, int n, ProgramRecord& record) const {
    const auto bytes = programFile(companyId).read(n);
    if (bytes) {
        record.setBytes(*bytes);
        attachExtras(m_home.programFile(companyId), n, record,
                     [this, companyId] { return programNames(companyId); });
    }
    return bytes.has_value();
}

bool RecordStore::writeProgram(int companyId, int n, const ProgramRecord& record) {
    RecordFile file = programFile(companyId);
    const bool ok = file.write(n, record.bytes());
    m_error = file.errorString();
    // The gathered names follow the write, so that a long import does not decode every
    // name again for each program.
    const auto cached = m_programNames.find(companyId);
    if (cached != m_programNames.end()) {
        const RecordField& f = nameField(programLayout());
        const QString name = trimBlanks(fromWin1252(record.bytes().mid(f.offset, f.size())));
        if (ok && n >= 1 && n <= cached->second.size())
            cached->second[n - 1] = name;
        else if (ok && n == cached->second.size() + 1)
            cached->second << name;
        else
            m_programNames.erase(cached);
    }
    return ok && updateExtras(m_home.programFile(companyId), n, record,
                              [this, companyId] { return programNames(companyId); });
}

QStringList RecordStore::programNames(int companyId) const {
    const auto cached = m_programNames.find(companyId);
    if (cached != m_programNames.end())
        return cached->second;
    const RecordField& f = nameField(programLayout());
    QStringList names = trimmedNames(programFile(companyId), f);
    // Only a batch keeps them: then no other writer changes the files.
    if (m_batching)
        m_programNames[companyId] = names;
    return names;
}

bool RecordStore::deleteProgram(int companyId, int n) {
    const QStringList before = programNames(companyId);
    m_programNames.erase(companyId);
    RecordFile file = programFile(companyId);
    if (!file.remove(n)) {
        m_error = file.errorString();
        return false;
    }
    if (file.count() == 0)
        file.removeFile();
    ExtrasFile extras = extrasOf(file.path());
    if (extras.entries.empty() && !QFileInfo::exists(AppHome::extrasFile(file.path())))
        return true;
    extras.matchRecords(before);
    extras.removeRecord(n);
    return putExtras(file.path(), extras);
}

ExtrasFile RecordStore::extrasOf(const QString& recordPath) const {
    if (const auto pending = m_pendingExtras.find(recordPath); pending != m_pendingExtras.end())
        return pending->second;
    const QString path = AppHome::extrasFile(recordPath);
    const QFileInfo info(path);
    if (!info.exists())
        return ExtrasFile();
    CachedExtras& cached = m_extrasCache[path];
    const qint64 modified = info.lastModified().toMSecsSinceEpoch();
    if (cached.size != info.size() || cached.modified != modified) {
        QByteArray bytes;
        QString why;
        QStringList problems;
        cached.file = readRegularFile(path, ExtrasFile::kMaxBytes, &bytes, &why)
                          ? ExtrasFile::parse(bytes, &problems)
                          : ExtrasFile();
        cached.size = info.size();
        cached.modified = modified;
    }
    return cached.file;
}

bool RecordStore::putExtras(const QString& recordPath, const ExtrasFile& file) {
    if (m_batching) {
        m_pendingExtras[recordPath] = file;
        return true;
    }
    const QString path = AppHome::extrasFile(recordPath);
    m_extrasCache.erase(path);
    if (file.entries.empty()) {
        if (QFileInfo::exists(path) && !QFile::remove(path)) {
            m_error = QStringLiteral("%1 cannot be removed").arg(QDir::toNativeSeparators(path));
            return false;
        }
        return true;
    }
    return writeFileAtomically(path, file.toBytes(), &m_error);
}

void RecordStore::attachExtras(const QString& recordPath, int n, FixedRecord& record,
                               const std::function<QStringList()>& names) const {
    record.setExtras({}, {});
    ExtrasFile extras = extrasOf(recordPath);
    if (extras.entries.empty())
        return;
    const QString name = record.text(1);
    const ExtrasEntry* entry = extras.entry(n);
    if (!entry || entry->name != name) {
        // The numbers no longer fit the records (another program changed the file): the
        // entries are matched again, by name.
        extras.matchRecords(names());
        entry = extras.entry(n);
    }
    if (entry && entry->name == name)
        record.setExtras(entry->later, entry->whole);
}

bool RecordStore::updateExtras(const QString& recordPath, int n, const FixedRecord& record,
                               const std::function<QStringList()>& names) {
    ExtrasFile extras = extrasOf(recordPath);
    const bool stored = !extras.entries.empty() || m_pendingExtras.count(recordPath) ||
                        QFileInfo::exists(AppHome::extrasFile(recordPath));
    if (!stored && !record.hasExtras())
        return true; // a home without extra values stays without a companion
    // Record n is written whole, extra values included: its old entry goes first, so that it
    // can never be matched to another record of the same name.
    std::erase_if(extras.entries, [n](const ExtrasEntry& e) { return e.number == n; });
    const QStringList current = names();
    extras.matchRecords(current);
    extras.setEntry(n, current.value(n - 1), record);
    return putExtras(recordPath, extras);
}

// A company deletion runs in four phases, kept in an intent file until the last phase is
// done, so that a crash part-way is completed on the next start. Within a phase every step
// can be run again; the phase number is recorded as each phase ends.
//   0 compact  the company file without the company, the later ones renumbered
//   1 doom     its program file set aside; stage: the later companies' files set aside
//   2 remove   its program file deleted
//   3 finish   each set-aside file under its new number, its programs restamped
bool RecordStore::deleteCompany(int n) {
    m_programNames.clear();
    // The deletion has its own intent: what is gathered goes first, the deletion unbatched.
    if (!commitBatch())
        return false;
    const bool batching = std::exchange(m_batching, false);
    const bool ok = deleteCompanyNow(n);
    m_batching = batching;
    return ok;
}

bool RecordStore::deleteCompanyNow(int n) {
    const int count = companyCount();
    if (n < 1 || n > count) {
        m_error = QStringLiteral("there is no company %1").arg(n);
        return false;
    }
    const std::vector<int> ids = companyIds();
    DeletionIntent intent;
    intent.doomedIndex = n;
    intent.companyCount = count;
    intent.doomedFile = ids[std::size_t(n - 1)];
    for (int k = n + 1; k <= count; ++k)
        intent.moves.push_back({ids[std::size_t(k - 1)], k - 1});
    QString why;
    if (!DeletionIntent::parse(intent.toBytes(), &why)) {
        m_error = QStringLiteral("the company numbers in %1 are damaged (%2)")
                      .arg(m_home.companyFile(), why);
        return false;
    }
    if (!saveIntent(intent))
        return false;
    return runDeletion(intent, 3);
}

std::vector<int> RecordStore::companyIds() const {
    std::vector<int> ids;
    const RecordField& idField = companyLayout().fields[0];
    companyFile().forEachSlice(idField.offset, idField.size(), [&](QByteArrayView slice) {
        ids.push_back(qFromLittleEndian<qint32>(slice.data()));
    });
    return ids;
}

bool RecordStore::completeInterruptedDeletion() {
    m_programNames.clear();
    if (!completeInterruptedSave())
        return false;
    const bool batching = std::exchange(m_batching, false);
    const bool ok = completeDeletionNow();
    m_batching = batching;
    return ok;
}

bool RecordStore::completeDeletionNow() {
    const QString path = m_home.deletionIntentFile();
    if (!QFileInfo::exists(path))
        return true;
    QByteArray bytes;
    QString why;
    if (!readRegularFile(path, DeletionIntent::kMaxBytes, &bytes, &why)) {
        m_error = why;
        return false;
    }
    auto intent = DeletionIntent::parse(bytes, &why);
    if (intent)
        why = checkIntentAgainstFiles(*intent);
    if (!why.isEmpty()) {
        m_error = QStringLiteral("the record of an unfinished company deletion, %1, is damaged "
                                 "(%2); nothing was changed. Move that file away to use the "
                                 "data as it is")
                      .arg(QDir::toNativeSeparators(path), why);
        return false;
    }
    return runDeletion(*intent, 3);
}

QString RecordStore::checkIntentAgainstFiles(const DeletionIntent& intent) const {
    const int count = companyCount();
    const bool compacted = count == intent.companyCount - 1;
    if (!compacted && count != intent.companyCount)
        return QStringLiteral("it speaks of %1 companies, the company file holds %2")
            .arg(intent.companyCount)
            .arg(count);
    if (!compacted && intent.phase > 0)
        return QStringLiteral("the company file was not yet shortened");
    if (!compacted) {
        // Before the company file is shortened its numbers name the files exactly.
        const std::vector<int> ids = companyIds();
        bool same = ids[std::size_t(intent.doomedIndex - 1)] == intent.doomedFile;
        for (const auto& m : intent.moves)
            same = same && ids[std::size_t(m.to)] == m.from;
        if (!same)
            return QStringLiteral("its files are not those of the companies");
    }
    return QString();
}

bool RecordStore::runDeletionPhases(const DeletionIntent& intent, int lastPhase) {
    if (!saveIntent(intent))
        return false;
    return runDeletion(intent, lastPhase);
}

bool RecordStore::saveIntent(const DeletionIntent& intent) {
    QString why;
    if (!writeFileAtomically(m_home.deletionIntentFile(), intent.toBytes(), &why)) {
        m_error = why;
        return false;
    }
    return true;
}

QString RecordStore::setAsidePath(const QString& path, bool doomed) const {
    return path + QLatin1String(doomed ? kDoomedSuffix : kMovingSuffix);
}

bool RecordStore::setAside(const QString& source, bool doomed) {
    const QString staged = setAsidePath(source, doomed);
    if (!QFile::exists(source))
        return true;
    QFile::remove(staged);
    if (!QFile::rename(source, staged)) {
        m_error = QStringLiteral("%1 cannot be renamed").arg(source);
        return false;
    }
    return true;
}

bool RecordStore::runDeletion(DeletionIntent intent, int lastPhase) {
    for (int p = intent.phase; p <= lastPhase; ++p) {
        if (p == 0 && !compactCompanies(intent))
            return false;
        if (p == 1) {
            for (const QString& path : {m_home.programFile(intent.doomedFile),
                                        AppHome::extrasFile(m_home.programFile(intent.doomedFile))})
                if (!setAside(path, true))
                    return false;
            for (const auto& m : intent.moves)
                for (const QString& path :
                     {m_home.programFile(m.from), AppHome::extrasFile(m_home.programFile(m.from))})
                    if (!setAside(path, false))
                        return false;
        }
        if (p == 2) {
            const QString doomed = m_home.programFile(intent.doomedFile);
            QFile::remove(setAsidePath(doomed, true));
            QFile::remove(setAsidePath(AppHome::extrasFile(doomed), true));
        }
        if (p == 3)
            for (const auto& m : intent.moves)
                if (!finishMove(m))
                    return false;
        if (p < 3) {
            intent.phase = p + 1;
            if (!saveIntent(intent))
                return false;
        }
    }
    if (lastPhase >= 3)
        QFile::remove(m_home.deletionIntentFile());
    return true;
}

// The companion of the company file loses the deleted company's entry, the later entries
// moving down; its record count says whether that was done before a crash.
bool RecordStore::compactCompanyExtras(const DeletionIntent& intent) {
    const QString recordPath = m_home.companyFile();
    m_extrasCache.erase(AppHome::extrasFile(recordPath));
    ExtrasFile extras = extrasOf(recordPath);
    if (extras.recordCount != intent.companyCount ||
        !QFileInfo::exists(AppHome::extrasFile(recordPath)))
        return true;
    extras.removeRecord(intent.doomedIndex);
    if (extras.entries.empty()) {
        // An empty companion still records that the compaction was done.
        return writeFileAtomically(AppHome::extrasFile(recordPath), extras.toBytes(), &m_error);
    }
    return putExtras(recordPath, extras);
}

bool RecordStore::compactCompanies(const DeletionIntent& intent) {
    if (!compactCompanyExtras(intent))
        return false;
    RecordFile file = companyFile();
    if (file.count() != intent.companyCount)
        return true; // done before the crash
    auto read = file.readAll();
    if (!read) {
        m_error = file.errorString();
        return false;
    }
    std::vector<QByteArray>& records = *read;
    const int doomed = intent.doomedIndex;
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

bool RecordStore::finishMove(const DeletionIntent::Move& m) {
    const QString stagedExtras =
        setAsidePath(AppHome::extrasFile(m_home.programFile(m.from)), false);
    if (QFile::exists(stagedExtras) &&
        !replaceFile(stagedExtras, AppHome::extrasFile(m_home.programFile(m.to)))) {
        m_error = QStringLiteral("%1 cannot be renamed").arg(stagedExtras);
        return false;
    }
    const QString staged = setAsidePath(m_home.programFile(m.from), false);
    if (!QFile::exists(staged))
        return true;
    RecordFile from(staged, FixedRecord::emptyBytes(programLayout()));
    auto read = from.readAll();
    if (!read) {
        m_error = from.errorString();
        return false;
    }
    std::vector<QByteArray>& records = *read;
    for (auto& bytes : records) {
        ProgramRecord r;
        r.setBytes(bytes);
        r.setNumber(ProgramField::CompanyID, m.to);
        bytes = r.bytes();
    }
    RecordFile to = programFile(m.to);
    if (!to.writeAll(records)) {
        m_error = to.errorString();
        return false;
    }
    QFile::remove(staged);
    return true;
}

QStringList RecordStore::damage(int companyId) const {
    QStringList problems;
    const RecordFile companies = companyFile();
    if (const QString d = companies.damage(); !d.isEmpty())
        problems << d;
    std::vector<int> ids;
    if (companyId > 0)
        ids.push_back(companyId);
    else if (companyId == 0)
        ids = companyIds();
    for (int id : ids)
        if (const QString d = programFile(id).damage(); !d.isEmpty())
            problems << d;
    problems << extrasDamage(m_home.companyFile(), [this] { return companyNames(); });
    for (int id : ids)
        problems << extrasDamage(m_home.programFile(id), [this, id] { return programNames(id); });
    return problems;
}

QStringList RecordStore::extrasDamage(const QString& recordPath,
                                      const std::function<QStringList()>& names) const {
    const QString path = AppHome::extrasFile(recordPath);
    if (!QFileInfo::exists(path))
        return {};
    QByteArray bytes;
    QString why;
    QStringList problems;
    ExtrasFile extras;
    if (readRegularFile(path, ExtrasFile::kMaxBytes, &bytes, &why))
        extras = ExtrasFile::parse(bytes, &problems);
    else
        problems << why;
    for (const ExtrasEntry& lost : extras.matchRecords(names()))
        problems << QStringLiteral("the extra fields kept for \"%1\" belong to no record; they "
                                   "are dropped at the next save")
                        .arg(lost.name);
    for (QString& p : problems)
        p = QDir::toNativeSeparators(path) + QStringLiteral(": ") + p;
    return problems;
}

QStringList RecordStore::clearCrashLeftovers() {
    QStringList report;
    QDir data(m_home.dataFolder());
    // QSaveFile's temporary files: the target's name and six random letters or digits.
    static const QRegularExpression temporary(QStringLiteral(
        "^((company|[1-9][0-9]*)\\.(dta|extra\\.json)(\\.pending)?|deletion\\.intent|"
        "save\\.intent)"
        "\\.(?!moving$|doomed$)[A-Za-z0-9]{6}$"));
    static const QRegularExpression programFileName(
        QStringLiteral("^([1-9][0-9]{0,8})\\.(dta|extra\\.json)$"));
    const std::vector<int> ids = companyIds();
    const QSet<int> owned(ids.begin(), ids.end());
    for (const QString& name : data.entryList(QDir::Files | QDir::Hidden | QDir::System)) {
        if (temporary.match(name).hasMatch() || (name.endsWith(QLatin1String(kPendingSuffix)) &&
                                                 !QFileInfo::exists(m_home.saveIntentFile()))) {
            data.remove(name);
            continue;
        }
        const auto match = programFileName.match(name);
        if (!match.hasMatch() || owned.contains(match.captured(1).toInt()))
            continue;
        QString aside = name + QStringLiteral(".orphaned");
        for (int k = 2; data.exists(aside); ++k)
            aside = name + QStringLiteral(".orphaned-%1").arg(k);
        if (data.rename(name, aside))
            report << QStringLiteral("%1 belongs to no company; it was set aside as %2")
                          .arg(QDir::toNativeSeparators(data.filePath(name)), aside);
    }
    return report;
}

} // namespace brevaro
