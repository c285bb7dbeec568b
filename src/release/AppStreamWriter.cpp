#include "release/AppStreamWriter.h"

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace brevaro {

namespace {

const QString kOutput = QStringLiteral("AppStream metainfo");

// The elements of a component in the order the file holds them.
enum class Kind { Text, Fixed, Paragraphs, Launchable, Urls, Screenshot, Keywords, Releases };

struct Element {
    const char* name;
    Kind kind;
    QString ProductFacts::*value;
    const char* source;
    FieldLimits limits;
};

// A component identifier: reverse-DNS, letters, digits, "_", "-" and ".".
constexpr const char* kIdPattern = "[A-Za-z][A-Za-z0-9_-]*(\\.[A-Za-z0-9_-]+)+";

const std::vector<Element>& elements() {
    static const std::vector<Element> rows = {
        {"id",
         Kind::Text,
         &ProductFacts::identifier,
         "Application ID",
         {1, 255, kIdPattern, "a reverse-DNS identifier such as com.example.Notes", true}},
        {"metadata_license", Kind::Fixed, nullptr, "", {}},
        {"project_license", Kind::Text, &ProductFacts::licence, "SPDX licence", {}},
        {"name",
         Kind::Text,
         &ProductFacts::name,
         "the program name",
         {1, 0, nullptr, nullptr, true}},
        {"summary",
         Kind::Text,
         &ProductFacts::summary,
         "the 45-character description",
         {1, 100, nullptr, nullptr, true}},
        {"description",
         Kind::Paragraphs,
         &ProductFacts::description,
         "the descriptions",
         {1, 0, nullptr, nullptr, true}},
        {"developer_name", Kind::Text, &ProductFacts::publisher, "the company name", {}},
        {"launchable", Kind::Launchable, nullptr, "", {}},
        {"url", Kind::Urls, nullptr, "", {}},
        {"screenshots",
         Kind::Screenshot,
         &ProductFacts::screenshotUrl,
         "the screenshot address",
         {}},
        {"keywords", Kind::Keywords, nullptr, "", {}},
        {"releases", Kind::Releases, nullptr, "", {}},
    };
    return rows;
}

// The addresses a component names, by their AppStream type.
std::vector<std::pair<QString, QString>> urls(const ProductFacts& f) {
    std::vector<std::pair<QString, QString>> out;
    if (!f.homepage.isEmpty())
        out.emplace_back(QStringLiteral("homepage"), f.homepage);
    if (!f.publisherUrl.isEmpty() && f.publisherUrl != f.homepage)
        out.emplace_back(QStringLiteral("contact"), f.publisherUrl);
    return out;
}

bool isWebAddress(const QString& url) {
    return url.startsWith(QLatin1String("https://")) || url.startsWith(QLatin1String("http://"));
}

} // namespace

QString appStreamFileName(const ProductFacts& facts) {
    return (facts.identifier.isEmpty() ? QStringLiteral("component") : facts.identifier) +
           QStringLiteral(".metainfo.xml");
}

QByteArray appStreamMetainfo(const ProductFacts& f, const std::vector<ReleaseEntry>& releases) {
    QByteArray bytes;
    QXmlStreamWriter x(&bytes);
    x.setAutoFormatting(true);
    x.setAutoFormattingIndent(2);
    x.writeStartDocument();
    x.writeStartElement(QStringLiteral("component"));
    x.writeAttribute(QStringLiteral("type"), QStringLiteral("desktop-application"));
    for (const Element& e : elements()) {
        const QString name = QLatin1String(e.name);
        switch (e.kind) {
        case Kind::Text:
            if (!(f.*e.value).isEmpty() || e.limits.required)
                x.writeTextElement(name, f.*e.value);
            break;
        case Kind::Fixed:
            // The metainfo itself, as a directory copies it: free of conditions.
            x.writeTextElement(name, QStringLiteral("CC0-1.0"));
            break;
        case Kind::Paragraphs:
            x.writeStartElement(name);
            for (const QString& p : paragraphs(f.*e.value))
                x.writeTextElement(QStringLiteral("p"), p);
            x.writeEndElement();
            break;
        case Kind::Launchable:
            // The desktop entry a package installs is named after the component.
            x.writeStartElement(name);
            x.writeAttribute(QStringLiteral("type"), QStringLiteral("desktop-id"));
            x.writeCharacters(f.identifier + QStringLiteral(".desktop"));
            x.writeEndElement();
            break;
        case Kind::Urls:
            for (const auto& [type, url] : urls(f)) {
                x.writeStartElement(name);
                x.writeAttribute(QStringLiteral("type"), type);
                x.writeCharacters(url);
                x.writeEndElement();
            }
            break;
        case Kind::Screenshot:
            if ((f.*e.value).isEmpty())
                break;
            x.writeStartElement(name);
            x.writeStartElement(QStringLiteral("screenshot"));
            x.writeAttribute(QStringLiteral("type"), QStringLiteral("default"));
            x.writeTextElement(QStringLiteral("image"), f.*e.value);
            x.writeEndElement();
            x.writeEndElement();
            break;
        case Kind::Keywords:
            if (f.keywords.isEmpty())
                break;
            x.writeStartElement(name);
            for (const QString& k : f.keywords)
                x.writeTextElement(QStringLiteral("keyword"), k);
            x.writeEndElement();
            break;
        case Kind::Releases:
            if (releases.empty())
                break;
            x.writeStartElement(name);
            for (const ReleaseEntry& r : releases) {
                x.writeStartElement(QStringLiteral("release"));
                x.writeAttribute(QStringLiteral("version"), r.version);
                x.writeAttribute(QStringLiteral("date"), r.date.toString(Qt::ISODate));
                // Change notes are kept for the current release only.
                if (r.version == f.version && !f.changes.isEmpty()) {
                    x.writeStartElement(QStringLiteral("description"));
                    x.writeTextElement(QStringLiteral("p"), f.changes);
                    x.writeEndElement();
                }
                x.writeEndElement();
            }
            x.writeEndElement();
            break;
        }
    }
    x.writeEndElement();
    x.writeEndDocument();
    return bytes;
}

std::vector<OutputFinding> checkAppStream(const ProductFacts& f, const QByteArray& written) {
    OutputCheck check(kOutput);
    for (const Element& e : elements())
        if (e.value)
            check.field(QLatin1String(e.name), (f.*e.value).trimmed(), e.limits,
                        QLatin1String(e.source));
    if (f.summary.endsWith(u'.'))
        check.warning(QStringLiteral("summary"),
                      QStringLiteral("ends with a dot, which software centres do not show: "
                                     "leave it out of the 45-character description"));
    if (!f.description.isEmpty() && paragraphs(f.description).isEmpty())
        check.error(QStringLiteral("description"), QStringLiteral("holds no text"));
    for (const auto& [type, url] : urls(f)) {
        if (!isWebAddress(url))
            check.error(
                QStringLiteral("url"),
                QStringLiteral("the %1 address \"%2\" is not a web address").arg(type, url));
        else if (!url.startsWith(QLatin1String("https://")))
            check.warning(QStringLiteral("url"),
                          QStringLiteral("the %1 address \"%2\" is not https").arg(type, url));
    }
    if (!f.screenshotUrl.isEmpty() && !isWebAddress(f.screenshotUrl))
        check.error(QStringLiteral("screenshots"),
                    QStringLiteral("\"%1\" is not a web address").arg(f.screenshotUrl));
    if (f.version.isEmpty())
        check.warning(QStringLiteral("releases"),
                      QStringLiteral("the program has no version, so no release is listed"));
    QXmlStreamReader reader(written);
    while (!reader.atEnd())
        reader.readNext();
    if (reader.hasError())
        check.error(
            QString(),
            QStringLiteral("the file is not well-formed XML: %1").arg(reader.errorString()));
    return check.take();
}

} // namespace brevaro
