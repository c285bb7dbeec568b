#include "pad/PadFieldRules.h"

#include <QFile>

namespace brevaro {

namespace {

// The published patterns end in "\Z"; PCRE's own "\Z" already means "end, or before a final
// line break", but it is spelt out so that the sense does not hang on the newline convention.
QString portablePattern(QString pattern) {
    pattern.replace(QStringLiteral("\\Z"), QStringLiteral("\\n?\\z"));
    return pattern;
}

// The standard's short meanings rewritten as advice; the first matching row wins, and a
// meaning no row knows is quoted as it stands.
struct Rewrite {
    const char* meaning;
    const char* advice;
};
constexpr Rewrite kRewrites[] = {
    {"^Text string (\\d+)-(\\d+) alphabetic$",
     "should be \\1 to \\2 letters (blanks, ' and - allowed)"},
    {"^Text string 0-(\\d+) characters$", "should be at most \\1 characters, without < and tabs"},
    {"^Text string (\\d+)-(\\d+) characters$",
     "should be a text of \\1 to \\2 characters, without < and tabs"},
    {"^Email address", "should be an e-mail address (name@domain.tld)"},
    {"^Numeric with punctuations \\(allowed: (.*)\\) (\\d+)-(\\d+) characters$",
     "should be a phone number of \\2 to \\3 digits and the signs \\1, with an optional leading +"},
    {"^Alphanumeric with punctuations \\(allowed: (.*)\\) (\\d+)-(\\d+) characters$",
     "should be \\2 to \\3 letters, digits and \\1 only (no blanks)"},
    {"^2 digits (\\d+)-(\\d+)$", "should be two digits from \\1 to \\2"},
    {"^4 digits (\\d+)-(\\d+)$", "should be a year from \\1 to \\2 in four digits"},
    {"^Numeric 2 digits$", "should be two digits (or empty)"},
    {"^Numeric 4 digits \\((\\d+)-(\\d+)\\)$",
     "should be a year from \\1 to \\2 in four digits (or empty)"},
    {"^Numeric with \"\\.\" as decimal separator$",
     "should be a number with \".\" and two decimals, e.g. 29 or 29.95"},
    {"^Numerical (\\d+)-(\\d+) digits$", "should be a number of \\1 to \\2 digits"},
    {"^Y, y, N, or n$", "should be Y or N"},
    {"^(.*) identifiers?, must be selected from list",
     "should be one of the values of the published list"},
    {"^Three letter currency code", "should be a three-letter currency code of the published list"},
    {"^Operating system ids", "should name systems of the published list"},
    {"^Single line \\(no breaks, no HTML\\) text string 0-(\\d+) characters$",
     "should be one line of at most \\1 characters, without < and tabs"},
    {"^Multiple lines \\(no HTML\\) text string 0-(\\d+) characters$",
     "should be at most \\1 characters, without <"},
    {"^URL http:// \\+ 2-120 characters with extension gif, jpg, or png$",
     "should be an http:// address of an image ending in .gif, .jpg or .png"},
    {"^URL http:// \\+ 2-120 characters with extension xml$",
     "should be an http:// address ending in .xml (or .cgi, .php, .asp)"},
    {"^URL http:// \\+ 2-120 characters \\(https:// ok too\\)$",
     "should be an http:// or https:// address"},
    {"^URL http:// \\+ 2-120 characters$", "should be an http:// address (not https://)"},
    {"^URL ftp or http:// \\+ 2-120 characters",
     "should be an http:// or ftp:// address of the file, ending in .exe, .zip, .msi, .dmg, "
     "... (not a web page)"},
    {"^URL http or https:// \\+ 2-120 characters with extension gif, jpg, or png$",
     "should be an http:// or https:// address of an image ending in .gif, .jpg or .png"},
    {"^URL http or https:// \\+ 2-120 characters with extension xml$",
     "should be an http:// or https:// address ending in .xml"},
    {"^URL http or https:// \\+ \\d+-120 characters", "should be an http:// or https:// address"},
    {"^URL ftp or http or https:// \\+ 2-120 characters",
     "should be an http://, https:// or ftp:// address of the file, ending in .exe, .zip, .msi, "
     ".dmg, ... (not a web page)"},
    {"^http or https:// \\+ 0-(\\d+) characters", "should be an http:// or https:// address"},
    {"^0-(\\d+) letters/numbers/spaces$", "should be at most \\1 letters, digits and blanks"},
    {"^(\\d+)-(\\d+) letters/numbers/spaces$",
     "should be \\1 to \\2 characters of letters, digits and blanks"},
    {"^Decimal major and minor version", "should be a version like 1.15"},
    {"^$", "should be a text the published pattern takes"},
};

QString adviceFor(const QString& meaning) {
    // Each rewrite's pattern, and the same to the end of the text, compiled once for all rules.
    struct Compiled {
        QRegularExpression from;
        QRegularExpression whole;
        QString advice;
    };
    static const std::vector<Compiled> rewrites = [] {
        std::vector<Compiled> compiled;
        for (const Rewrite& r : kRewrites) {
            const QString pattern = QString::fromUtf8(r.meaning);
            compiled.push_back({QRegularExpression(pattern),
                                QRegularExpression(pattern + QStringLiteral(".*$")),
                                QString::fromUtf8(r.advice)});
        }
        return compiled;
    }();
    for (const Compiled& r : rewrites)
        if (r.from.match(meaning).hasMatch())
            return QString(meaning).replace(r.whole, r.advice);
    return QStringLiteral("should follow the published rule: ") + meaning;
}

} // namespace

bool PadFieldRule::accepts(const QString& value) const {
    return regex.match(value).hasMatch();
}

QString PadFieldRule::advice() const {
    return adviceFor(meaning);
}

// A table, parsed once.
std::vector<PadFieldRule> parsePadFieldRules(const QString& resource) {
    std::vector<PadFieldRule> rules;
    // The published table, built into the program as a resource.
    QFile file(resource);
    const bool opened = file.open(QIODevice::ReadOnly);
    Q_ASSERT_X(opened, "padFieldRules", "the rules resource is missing");
    const QStringList lines =
        QString::fromUtf8(opened ? file.readAll() : QByteArray()).split(u'\n');
    for (qsizetype i = 1; i < lines.size(); ++i) { // the first line names the columns
        QString line = lines[i];
        if (line.endsWith(u'\r'))
            line.chop(1);
        const QStringList cells = line.split(u'\t');
        if (cells.size() < 5)
            continue;
        PadFieldRule rule;
        rule.element = cells[0];
        rule.path = cells[1];
        rule.pattern = cells[2];
        rule.regex = QRegularExpression(portablePattern(rule.pattern));
        rule.meaning = cells[3];
        rule.required = cells[4] == QLatin1String("yes");
        Q_ASSERT_X(rule.regex.isValid(), "padFieldRules", qPrintable(rule.element));
        rules.push_back(std::move(rule));
    }
    return rules;
}

const std::vector<PadFieldRule>& padFieldRules(PadVersion version) {
    // Each table is read the first time it is asked for, not before.
    if (version == PadVersion::V4_0) {
        static const std::vector<PadFieldRule> v40 =
            parsePadFieldRules(QStringLiteral(":/pad/PadFieldRules40.tsv"));
        return v40;
    }
    static const std::vector<PadFieldRule> current =
        parsePadFieldRules(QStringLiteral(":/pad/PadFieldRules.tsv"));
    return current;
}

const PadFieldRule* padFieldRule(QStringView element, PadVersion version) {
    for (const auto& rule : padFieldRules(version))
        if (rule.element == element)
            return &rule;
    return nullptr;
}

} // namespace brevaro
