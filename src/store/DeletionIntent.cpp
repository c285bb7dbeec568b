#include "store/DeletionIntent.h"

#include <QRegularExpression>
#include <QSet>
#include <QStringList>

namespace brevaro {

namespace {

QString fileName(int number) {
    return QString::number(number) + QStringLiteral(".dta");
}

// A whole number from 0 to max written plainly (no sign, no leading zeros), else -1.
int plainNumber(const QString& word, int max) {
    static const QRegularExpression digits(QStringLiteral("^(0|[1-9][0-9]{0,9})$"));
    if (!digits.match(word).hasMatch())
        return -1;
    const qint64 n = word.toLongLong();
    return n <= max ? static_cast<int>(n) : -1;
}

// The number of a program file name "N.dta", N from 1; else -1.
int programFileNumber(const QString& word) {
    if (!word.endsWith(QLatin1String(".dta")))
        return -1;
    const int n = plainNumber(word.chopped(4), std::numeric_limits<int>::max());
    return n >= 1 ? n : -1;
}

} // namespace

QByteArray DeletionIntent::toBytes() const {
    QStringList lines{QStringLiteral("phase %1").arg(phase),
                      QStringLiteral("compact %1 %2").arg(doomedIndex).arg(companyCount),
                      QStringLiteral("doom ") + fileName(doomedFile)};
    for (const Move& m : moves)
        lines << QStringLiteral("stage ") + fileName(m.from);
    lines << QStringLiteral("remove ") + fileName(doomedFile);
    for (const Move& m : moves)
        lines << QStringLiteral("finish %1 %2").arg(fileName(m.from)).arg(m.to);
    return (lines.join(u'\n') + u'\n').toUtf8();
}

std::optional<DeletionIntent> DeletionIntent::parse(const QByteArray& bytes, QString* error) {
    auto fail = [&](const QString& why) {
        *error = why;
        return std::nullopt;
    };
    if (bytes.size() > kMaxBytes)
        return fail(QStringLiteral("it is far too long"));
    const QString text = QString::fromUtf8(bytes);
    if (text.toUtf8() != bytes)
        return fail(QStringLiteral("it is not plain text"));
    QStringList lines = text.split(u'\n', Qt::SkipEmptyParts);
    DeletionIntent intent;
    bool havePhase = false, haveCompact = false, haveDoom = false, haveRemove = false;
    int removed = 0;
    std::vector<int> staged;
    QSet<int> stagedSet, finishedSet, targets;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const QStringList words = lines[i].split(u' ');
        const QString& verb = words.front();
        const QString where = QStringLiteral("line %1").arg(i + 1);
        if (i == 0) {
            if (verb != QLatin1String("phase") || words.size() != 2)
                return fail(where + QStringLiteral(" does not give the phase"));
            intent.phase = plainNumber(words[1], 3);
            if (intent.phase < 0)
                return fail(where + QStringLiteral(" gives a phase that does not exist"));
            havePhase = true;
        } else if (verb == QLatin1String("compact") && words.size() == 3 && !haveCompact) {
            intent.doomedIndex = plainNumber(words[1], kMaxCompanies);
            intent.companyCount = plainNumber(words[2], kMaxCompanies);
            if (intent.doomedIndex < 1 || intent.companyCount < intent.doomedIndex)
                return fail(where + QStringLiteral(" names a company that does not exist"));
            haveCompact = true;
        } else if (verb == QLatin1String("doom") && words.size() == 2 && !haveDoom) {
            intent.doomedFile = programFileNumber(words[1]);
            if (intent.doomedFile < 1)
                return fail(where + QStringLiteral(" does not name a program file"));
            haveDoom = true;
        } else if (verb == QLatin1String("remove") && words.size() == 2 && !haveRemove) {
            removed = programFileNumber(words[1]);
            haveRemove = true;
        } else if (verb == QLatin1String("stage") && words.size() == 2) {
            const int n = programFileNumber(words[1]);
            if (n < 1 || stagedSet.contains(n))
                return fail(where + QStringLiteral(" does not name a new program file"));
            staged.push_back(n);
            stagedSet.insert(n);
        } else if (verb == QLatin1String("finish") && words.size() == 3) {
            const int n = programFileNumber(words[1]);
            const int to = plainNumber(words[2], kMaxCompanies);
            if (!stagedSet.contains(n) || finishedSet.contains(n) || to < 1 || targets.contains(to))
                return fail(where + QStringLiteral(" does not fit the files set aside"));
            finishedSet.insert(n);
            targets.insert(to);
            intent.moves.push_back({n, to});
        } else {
            return fail(where + QStringLiteral(" is not a step of a deletion"));
        }
    }
    if (!havePhase || !haveCompact || !haveDoom || !haveRemove)
        return fail(QStringLiteral("steps are missing"));
    if (removed != intent.doomedFile)
        return fail(QStringLiteral("it removes another file than the one it set aside"));
    // The companies after the deleted one move down by one, each keeping its own file.
    const int later = intent.companyCount - intent.doomedIndex;
    if (static_cast<int>(staged.size()) != later || static_cast<int>(intent.moves.size()) != later)
        return fail(QStringLiteral("it does not move every later company"));
    for (int k = 0; k < later; ++k) {
        const Move& m = intent.moves[std::size_t(k)];
        if (m.from != staged[std::size_t(k)] || m.to != intent.doomedIndex + k ||
            m.from == intent.doomedFile)
            return fail(QStringLiteral("it does not move every later company"));
    }
    return intent;
}

} // namespace brevaro
