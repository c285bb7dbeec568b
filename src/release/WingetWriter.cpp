#include "release/WingetWriter.h"

#include "release/ReleaseStep.h"

#include <functional>

namespace brevaro {

namespace {

const QString kOutput = QStringLiteral("package manifest");
constexpr const char* kManifestVersion = "1.6.0";
constexpr const char* kLocale = "en-US";

// The published patterns of the manifest schema.
constexpr const char* kIdentifierPattern =
    "[^.\\s\\\\/:*?\"<>|\\x01-\\x1f]{1,32}(\\.[^.\\s\\\\/:*?\"<>|\\x01-\\x1f]{1,32}){1,7}";
constexpr const char* kVersionPattern = "[^\\\\/:*?\"<>|\\x01-\\x1f]+";
constexpr const char* kUrlPattern = "[Hh][Tt][Tt][Pp][Ss]?://.+";
constexpr const char* kShaPattern = "[A-Fa-f0-9]{64}";

struct Context {
    const ProductFacts& facts;
    const WingetPackage& package;
};

// One top-level field of a manifest file: its key, limits, value and the record field it is
// taken from.
struct ManifestField {
    const char* key;
    FieldLimits limits;
    std::function<QString(const Context&)> value;
    const char* source;
};

enum class ManifestFile { Version, Locale, Installer };

struct FileTable {
    ManifestFile file;
    const char* type; // ManifestType
    std::vector<ManifestField> fields;
};

QString fixed(const char* text) {
    return QLatin1String(text);
}

const std::vector<FileTable>& tables() {
    static const FieldLimits id{1, 128, kIdentifierPattern,
                                "of the form Publisher.Package (2 to 8 parts, no blanks)", true};
    static const FieldLimits version{1, 128, kVersionPattern,
                                     "a version without \\ / : * ? \" < > |", true};
    static const FieldLimits url{0, 2000, kUrlPattern, "an http or https address", false};
    static const ManifestField packageId{"PackageIdentifier", id,
                                         [](const Context& c) { return c.package.identifier; },
                                         "Package manager identifier"};
    static const ManifestField packageVersion{"PackageVersion", version,
                                              [](const Context& c) { return c.facts.version; },
                                              "the program version"};
    static const std::vector<FileTable> rows = {
        {ManifestFile::Version,
         "version",
         {packageId,
          packageVersion,
          {"DefaultLocale", {1, 20}, [](const Context&) { return fixed(kLocale); }, ""}}},
        {ManifestFile::Locale,
         "defaultLocale",
         {packageId,
          packageVersion,
          {"PackageLocale", {1, 20}, [](const Context&) { return fixed(kLocale); }, ""},
          {"Publisher",
           {2, 256, nullptr, nullptr, true},
           [](const Context& c) { return c.facts.publisher; },
           "the company name"},
          {"PublisherUrl", url, [](const Context& c) { return c.facts.publisherUrl; },
           "the company's web site"},
          {"Author",
           {2, 256},
           [](const Context& c) { return c.facts.author; },
           "the author's name"},
          {"PackageName",
           {2, 256, nullptr, nullptr, true},
           [](const Context& c) { return c.facts.name; },
           "the program name"},
          {"PackageUrl", url, [](const Context& c) { return c.facts.homepage; },
           "the program's page"},
          {"License",
           {3, 512, nullptr, nullptr, true},
           [](const Context& c) {
               return c.facts.licence.isEmpty() ? c.facts.programType : c.facts.licence;
           },
           "SPDX licence (or the program type)"},
          {"ShortDescription",
           {3, 256, nullptr, nullptr, true},
           [](const Context& c) { return c.facts.shortDescription; },
           "the 80-character description"},
          {"Description",
           {3, 10000},
           [](const Context& c) { return c.facts.description; },
           "the descriptions"},
          {"ReleaseNotes",
           {1, 10000},
           [](const Context& c) { return c.facts.changes; },
           "the change information"}}},
        {ManifestFile::Installer,
         "installer",
         {packageId,
          packageVersion,
          {"InstallerType",
           {1, 20, nullptr, nullptr, true},
           [](const Context& c) { return c.package.installerType; },
           "Installer type"},
          {"ReleaseDate",
           {10, 10},
           [](const Context& c) { return c.facts.releaseDate.toString(Qt::ISODate); },
           "the release date"}}},
    };
    return rows;
}

// Tags: lower case, blanks as hyphens, as the package manager's community writes them.
QStringList tags(const ProductFacts& f) {
    QStringList out;
    for (const QString& k : f.keywords) {
        const QString tag = k.toLower().simplified().replace(u' ', u'-');
        if (!tag.isEmpty() && !out.contains(tag))
            out << tag;
    }
    return out;
}

QString fileName(const WingetPackage& p, ManifestFile file) {
    const QString base = p.identifier.isEmpty() ? QStringLiteral("package") : p.identifier;
    switch (file) {
    case ManifestFile::Version:
        return base + QStringLiteral(".yaml");
    case ManifestFile::Locale:
        return base + QStringLiteral(".locale.") + fixed(kLocale) + QStringLiteral(".yaml");
    case ManifestFile::Installer:
        break;
    }
    return base + QStringLiteral(".installer.yaml");
}

// A name part of an identifier: letters and digits only.
QString identifierPart(const QString& text) {
    QString out;
    for (QChar ch : text)
        if (ch.isLetterOrNumber())
            out += ch;
    return out.left(32);
}

} // namespace

QString yamlQuoted(const QString& text) {
    QString out = QStringLiteral("\"");
    for (QChar ch : text) {
        switch (ch.unicode()) {
        case u'"':
            out += QStringLiteral("\\\"");
            break;
        case u'\\':
            out += QStringLiteral("\\\\");
            break;
        case u'\n':
            out += QStringLiteral("\\n");
            break;
        case u'\r':
            out += QStringLiteral("\\r");
            break;
        case u'\t':
            out += QStringLiteral("\\t");
            break;
        default:
            if (ch.unicode() < 0x20 || ch.unicode() == 0x7F)
                out += QStringLiteral("\\x%1").arg(ch.unicode(), 2, 16, QLatin1Char('0'));
            else
                out += ch;
        }
    }
    return out + u'"';
}

WingetPackage wingetPackage(const ProductFacts& facts, const ProgramRecord& program) {
    WingetPackage p;
    p.identifier = program.laterValue(QStringLiteral("Package_Identifier")).trimmed();
    if (p.identifier.isEmpty() && !identifierPart(facts.publisher).isEmpty() &&
        !identifierPart(facts.name).isEmpty())
        p.identifier = identifierPart(facts.publisher) + u'.' + identifierPart(facts.name);
    p.installerType = program.laterValue(QStringLiteral("Installer_Type")).trimmed();
    if (p.installerType.isEmpty())
        p.installerType = QStringLiteral("exe");
    const QStringList architectures = program.laterValue(QStringLiteral("Installer_Architectures"))
                                          .split(u',', Qt::SkipEmptyParts);
    for (int slot = 0; slot < kReleaseFiles; ++slot) {
        const QString sha = program.laterValue(downloadHashField(slot));
        const QString url = program.wholeText(downloadAddressField(slot));
        if (sha.isEmpty() || url.isEmpty())
            continue;
        const QString architecture = architectures
                                         .value(static_cast<int>(p.installers.size()),
                                                architectures.value(0, QStringLiteral("x64")))
                                         .trimmed();
        p.installers.push_back({architecture, url, sha.toUpper()});
    }
    return p;
}

std::vector<WingetFile> wingetManifests(const ProductFacts& facts, const WingetPackage& package) {
    const Context c{facts, package};
    std::vector<WingetFile> files;
    for (const FileTable& table : tables()) {
        QString text = QStringLiteral("# Written by Brevaro\n");
        for (const ManifestField& f : table.fields)
            if (const QString v = f.value(c); !v.isEmpty())
                text += QLatin1String(f.key) + QStringLiteral(": ") + yamlQuoted(v) + u'\n';
        if (table.file == ManifestFile::Locale && !tags(facts).isEmpty()) {
            text += QStringLiteral("Tags:\n");
            for (const QString& t : tags(facts))
                text += QStringLiteral("- ") + yamlQuoted(t) + u'\n';
        }
        if (table.file == ManifestFile::Installer) {
            text += QStringLiteral("Installers:\n");
            for (const WingetInstaller& i : package.installers)
                text += QStringLiteral("- Architecture: ") + yamlQuoted(i.architecture) +
                        QStringLiteral("\n  InstallerUrl: ") + yamlQuoted(i.url) +
                        QStringLiteral("\n  InstallerSha256: ") + yamlQuoted(i.sha256) + u'\n';
        }
        text += QStringLiteral("ManifestType: ") + QLatin1String(table.type) +
                QStringLiteral("\nManifestVersion: ") + fixed(kManifestVersion) + u'\n';
        files.push_back({fileName(package, table.file), text.toUtf8()});
    }
    return files;
}

std::vector<OutputFinding> checkWinget(const ProductFacts& facts, const WingetPackage& package) {
    OutputCheck check(kOutput);
    const Context c{facts, package};
    QStringList checked; // the identifier and version are in every file: checked once
    for (const FileTable& table : tables())
        for (const ManifestField& f : table.fields)
            if (!checked.contains(QLatin1String(f.key))) {
                checked << QLatin1String(f.key);
                check.field(QLatin1String(f.key), f.value(c), f.limits, QLatin1String(f.source));
            }
    check.list(QStringLiteral("Tags"), tags(facts), 16, {1, 40}, QStringLiteral("the keywords"));
    if (package.installers.empty())
        check.error(QStringLiteral("Installers"),
                    QStringLiteral("there is no download address with a SHA-256: release the "
                                   "program with its distribution file"));
    static const QStringList known = {QStringLiteral("x86"), QStringLiteral("x64"),
                                      QStringLiteral("arm"), QStringLiteral("arm64"),
                                      QStringLiteral("neutral")};
    for (const WingetInstaller& i : package.installers) {
        check.field(QStringLiteral("InstallerUrl"), i.url,
                    {1, 2048, kUrlPattern, "an http or https address", true},
                    QStringLiteral("the download address"));
        check.field(QStringLiteral("InstallerSha256"), i.sha256,
                    {64, 64, kShaPattern, "64 hexadecimal digits", true},
                    QStringLiteral("the SHA-256"));
        if (!known.contains(i.architecture))
            check.error(QStringLiteral("Architecture"),
                        QStringLiteral("\"%1\" is not one of x86, x64, arm, arm64 and neutral")
                            .arg(i.architecture));
    }
    if (package.installerType == QLatin1String("exe"))
        check.warning(QStringLiteral("InstallerType"),
                      QStringLiteral("an exe installer needs its silent install switches, which "
                                     "Brevaro does not know: add InstallerSwitches before "
                                     "submitting, or choose the installer type"));
    if (package.installerType == QLatin1String("zip"))
        check.warning(QStringLiteral("InstallerType"),
                      QStringLiteral("a zip installer needs the installer inside it named "
                                     "(NestedInstallerType and NestedInstallerFiles): add them "
                                     "before submitting"));
    return check.take();
}

} // namespace brevaro
