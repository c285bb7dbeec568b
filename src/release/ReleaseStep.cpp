#include "release/ReleaseStep.h"

#include "platform/DayNumbers.h"
#include "records/ExtraFields.h"

namespace brevaro {

namespace {

using PF = ProgramField;

constexpr std::array<PF, kReleaseFiles> kDownloadFields = {
    PF::PrimaryDownloadURL, PF::SecondaryDownloadURL, PF::AdditionalDownloadURL1,
    PF::AdditionalDownloadURL2};
constexpr int kHistoryLength = 4000;
const QString kPatternField = QStringLiteral("Download_URL_Pattern");
const QString kHistoryField = QStringLiteral("Release_History");

QString dateText(QDate date) {
    return date.toString(QStringLiteral("yyyy-MM-dd"));
}

// The history with the release first and any older line of the same version dropped; the
// oldest lines go when it outgrows its field.
QString historyWith(const ProgramRecord& program, const QString& version, QDate date) {
    QStringList lines{version + u' ' + dateText(date)};
    std::vector<ReleaseEntry> history = releaseHistory(program);
    // A program released before it had a history starts it with the release it shows.
    const QDate shownDate(program.text(PF::ReleaseYear).toInt(),
                          program.text(PF::ReleaseMonth).toInt(),
                          program.text(PF::ReleaseDay).toInt());
    if (history.empty() && !program.text(PF::ProgramVersion).isEmpty() && shownDate.isValid())
        history.push_back({program.text(PF::ProgramVersion), shownDate});
    for (const ReleaseEntry& e : history)
        if (e.version != version)
            lines << e.version + u' ' + dateText(e.date);
    while (lines.size() > 1 && lines.join(u'\n').size() > kHistoryLength)
        lines.removeLast();
    return lines.join(u'\n');
}

// Every field whose text differs, in the order of the record and then of the extra fields.
std::vector<ReleaseChange> differences(const ProgramRecord& before, const ProgramRecord& after) {
    std::vector<ReleaseChange> changes;
    const RecordLayout& layout = programLayout();
    for (int i = 0; i < static_cast<int>(layout.fields.size()); ++i) {
        const RecordField& f = layout.field(i);
        for (int entry = 0; entry < f.count; ++entry) {
            const QString b =
                f.isText() ? before.wholeText(i, entry) : QString::number(before.number(i, entry));
            const QString a =
                f.isText() ? after.wholeText(i, entry) : QString::number(after.number(i, entry));
            if (a == b)
                continue;
            QString name = QLatin1String(f.name);
            if (f.count > 1)
                name += QStringLiteral("[%1]").arg(entry);
            changes.push_back(
                {name, QLatin1String(f.reportCaption ? f.reportCaption : f.name), b, a});
        }
    }
    for (const ExtraField& e : extraFields()) {
        if (e.side != RecordSide::Program)
            continue;
        const QString name = QLatin1String(e.name);
        if (before.laterValue(name) != after.laterValue(name))
            changes.push_back(
                {name, QLatin1String(e.caption), before.laterValue(name), after.laterValue(name)});
    }
    return changes;
}

} // namespace

int downloadAddressField(int slot) {
    return static_cast<int>(kDownloadFields.at(static_cast<std::size_t>(slot)));
}

QString downloadHashField(int slot) {
    return QStringLiteral("Download_SHA256_%1").arg(slot + 1);
}

QString proposedVersion(const QString& current) {
    const QString v = current.trimmed();
    if (v.isEmpty())
        return QStringLiteral("1.0");
    qsizetype start = v.size();
    while (start > 0 && v.at(start - 1).isDigit())
        --start;
    if (start == v.size())
        return v;
    bool ok = false;
    const qulonglong last = v.mid(start).toULongLong(&ok);
    return ok ? v.left(start) + QString::number(last + 1) : v;
}

QString downloadAddress(const QString& pattern, const QString& version, const QString& file) {
    QString address = pattern;
    address.replace(QLatin1String("{version}"), version);
    address.replace(QLatin1String("{file}"), file);
    return address;
}

std::vector<ReleaseEntry> releaseHistory(const ProgramRecord& program) {
    std::vector<ReleaseEntry> entries;
    for (const QString& line : program.laterValue(kHistoryField).split(u'\n', Qt::SkipEmptyParts)) {
        const QStringList parts = line.split(u' ', Qt::SkipEmptyParts);
        const QDate date = parts.size() == 2 ? dateFromText(parts[1]) : QDate();
        if (date.isValid())
            entries.push_back({parts[0], date});
    }
    return entries;
}

QString releaseInputProblem(const ReleaseInput& input) {
    const RecordField& version = programLayout().field(static_cast<int>(PF::ProgramVersion));
    if (input.version.trimmed().isEmpty())
        return QStringLiteral("give the new version");
    if (input.version != input.version.trimmed() || input.version.contains(u' '))
        return QStringLiteral("the version \"%1\" holds blanks").arg(input.version);
    if (input.version.size() > version.width)
        return QStringLiteral("the version \"%1\" is longer than %2 characters")
            .arg(input.version)
            .arg(version.width);
    if (input.files.empty())
        return QStringLiteral("give at least one distribution file");
    if (input.files.size() > kReleaseFiles)
        return QStringLiteral("a program has %1 download addresses: give at most %1 files")
            .arg(kReleaseFiles);
    if (!input.date.isValid() || input.date.year() < 1000 || input.date.year() > 9999)
        return QStringLiteral("the release date is not a date");
    return {};
}

ReleasePlan planRelease(const ProgramRecord& program, const ReleaseInput& input) {
    ReleasePlan plan{program, {}, {}};
    ProgramRecord& p = plan.program;
    p.setText(PF::ProgramVersion, input.version);
    p.setText(PF::ReleaseMonth,
              QStringLiteral("%1").arg(input.date.month(), 2, 10, QLatin1Char('0')));
    p.setText(PF::ReleaseDay, QStringLiteral("%1").arg(input.date.day(), 2, 10, QLatin1Char('0')));
    p.setText(PF::ReleaseYear, QString::number(input.date.year()));

    const DistributionFile& primary = input.files.front();
    const FileInfoValues info = fileInfoValues(primary.name, primary.size, input.version);
    p.setText(PF::FilenameVersioned, info.versioned);
    p.setText(PF::FilenamePrevious, info.previous);
    p.setText(PF::FilenameGeneric, info.generic);
    p.setText(PF::FilenameLong, info.longName);
    p.setText(PF::FileSizeBytes, info.bytes);
    p.setText(PF::FileSizeK, info.kilobytes);
    p.setText(PF::FileSizeMB, info.megabytes);

    const QString pattern = program.laterValue(kPatternField).trimmed();
    for (int slot = 0; slot < kReleaseFiles; ++slot) {
        const bool given = slot < static_cast<int>(input.files.size());
        // A hash names one file: a download without a file in this release has none.
        p.setLaterValue(downloadHashField(slot),
                        given ? input.files[static_cast<std::size_t>(slot)].sha256 : QString());
        if (given && !pattern.isEmpty())
            p.setText(downloadAddressField(slot),
                      downloadAddress(pattern, input.version,
                                      input.files[static_cast<std::size_t>(slot)].name));
    }
    if (pattern.isEmpty())
        plan.notes << QStringLiteral("The program has no download address pattern: the "
                                     "download addresses are left as they are.");
    else if (input.files.size() < static_cast<std::size_t>(kReleaseFiles))
        plan.notes << QStringLiteral("Download addresses without a file in this release are "
                                     "left as they are.");

    if (input.changes)
        p.setText(PF::ChangeInfo, *input.changes);
    else
        plan.notes << QStringLiteral("No change notes were given: the change information is "
                                     "left as it is.");
    p.setLaterValue(kHistoryField, historyWith(program, input.version, input.date));
    plan.changes = differences(program, p);
    return plan;
}

} // namespace brevaro
