#include "CliCommands.h"

#include "keywords/KeywordSuggester.h"
#include "platform/FileHelpers.h"
#include "platform/HttpTransfer.h"
#include "platform/StringHelpers.h"
#include "platform/TextFiles.h"
#include "submission/SiteCipher.h"
#include "submission/SiteList.h"

#include <QFile>
#include <QTemporaryDir>

namespace brevaro::cli {

namespace {

// URL or --file FILE, exactly one of them.
QString source(const CliArgs& args, bool* isFile) {
    *isFile = args.has(QStringLiteral("--file"));
    if (*isFile == !args.positional().isEmpty() || args.positional().size() > 1)
        throw CliError{1, QStringLiteral("give a web address or --file FILE")};
    return *isFile ? args.value(QStringLiteral("--file")) : args.positional().front();
}

// A file read in place of a download: a regular file no larger than a download may be.
QByteArray readSourceFile(const QString& path) {
    QByteArray bytes;
    QString error;
    if (!readRegularFile(path, HttpTransfer::kMaxBytes, &bytes, &error))
        throw CliError{2, error};
    return bytes;
}

void failUnlessFetched(const HttpTransfer& http, const QString& url) {
    if (!http.succeeded())
        throw CliError{2,
                       QStringLiteral("%1 could not be fetched: %2").arg(url, http.errorString())};
}

} // namespace

int keywordsCommand(CliContext& ctx, const QStringList& words) {
    const CliArgs args(words, {QStringLiteral("--file")}, {});
    bool isFile = false;
    const QString from = source(args, &isFile);
    HttpTransfer http;
    KeywordSuggester suggester(http);
    if (isFile) {
        QString error;
        if (!suggester.checkPageFile(from, &error))
            throw CliError{2, error};
    } else {
        suggester.url = from;
        suggester.checkHomepage();
        failUnlessFetched(http, from);
    }
    for (const KeywordEntry& e : suggester.entries())
        ctx.print(escapeControls(e.word) + u'\t' + e.countText() + u'\t' +
                  (e.ticked ? u'1' : u'0') + u'\n');
    ctx.print(QStringLiteral("keywords: ") + escapeControls(suggester.keywords) + u'\n');
    return 0;
}

int sitesCommand(CliContext& ctx, const QStringList& words) {
    const CliArgs args(words, {QStringLiteral("--file")}, {});
    bool isFile = false;
    const QString from = source(args, &isFile);
    HttpTransfer http;
    QTemporaryDir scratch;
    const QString copy = scratch.filePath(QStringLiteral("swd.dta"));
    SiteList list(copy, http);
    if (isFile) {
        // The list is read from a copy, so that the file read is the file checked.
        QString error;
        if (!writeFileAtomically(copy, readSourceFile(from), &error))
            throw CliError{2, error};
        list.LoadList();
    } else {
        list.Download(from);
        failUnlessFetched(http, from);
    }
    for (const auto& site : list.sites())
        ctx.print(escapeControls(site.number) + u'\t' + escapeControls(site.name) + u'\t' +
                  escapeControls(site.url) + u'\n');
    return 0;
}

int encipherSitesCommand(CliContext& ctx, const QStringList& words) {
    const CliArgs args(words, {}, {});
    if (!args.positional().isEmpty())
        throw CliError{1,
                       QStringLiteral("encipher-sites reads name|url lines from standard input")};
    const QString input = linesWithCrLf(QString::fromUtf8(ctx.in().readAll()));
    int n = 0;
    for (const QString& raw : input.split(QStringLiteral("\r\n"))) {
        ++n;
        const QString line = trimBlanks(raw);
        if (line.isEmpty())
            continue;
        const QStringList fields = splitFields(line, u"|");
        if (fields.size() < 2 || trimBlanks(fields[0]).isEmpty())
            throw CliError{2, QStringLiteral("line %1 is not name|url: %2").arg(n).arg(line)};
        ctx.print(encipherField(trimBlanks(fields[0]), siteListKey()) + u'|' +
                  encipherField(trimBlanks(fields[1]), siteListKey()) + QStringLiteral("\r\n"));
    }
    return 0;
}

} // namespace brevaro::cli
