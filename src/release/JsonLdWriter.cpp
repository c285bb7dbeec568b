#include "release/JsonLdWriter.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <functional>

namespace brevaro {

namespace {

const QString kOutput = QStringLiteral("JSON-LD");

QJsonValue text(const QString& value) {
    return value.isEmpty() ? QJsonValue() : QJsonValue(value);
}

QJsonObject offer(const QString& price, const QString& currency) {
    return {{QStringLiteral("@type"), QStringLiteral("Offer")},
            {QStringLiteral("price"), price},
            {QStringLiteral("priceCurrency"), currency}};
}

// A price as schema.org takes it: digits and one "." ("$19.95" and "19,95" are not).
bool isPrice(const QString& price) {
    static const QRegularExpression re(QStringLiteral("\\A[0-9]+(\\.[0-9]+)?\\z"));
    return re.match(price).hasMatch();
}

QJsonValue offers(const ProductFacts& f) {
    QJsonArray out;
    if (!f.price.isEmpty())
        out << offer(f.price, QStringLiteral("USD"));
    if (!f.otherPrice.isEmpty() && !f.otherCurrency.isEmpty())
        out << offer(f.otherPrice, f.otherCurrency);
    if (out.isEmpty())
        return {};
    return out.size() == 1 ? out.first() : QJsonValue(out);
}

// The properties in the order of schema.org's page; an empty value is left out.
struct Property {
    const char* key;
    std::function<QJsonValue(const ProductFacts&)> value;
};

const std::vector<Property>& properties() {
    static const std::vector<Property> rows = {
        {"@context",
         [](const ProductFacts&) {
             return QStringLiteral("https://schema.org");
         }},
        {"@type",
         [](const ProductFacts&) {
             return QStringLiteral("SoftwareApplication");
         }},
        {"name",
         [](const ProductFacts& f) {
             return text(f.name);
         }},
        {"softwareVersion",
         [](const ProductFacts& f) {
             return text(f.version);
         }},
        {"operatingSystem",
         [](const ProductFacts& f) {
             return text(f.systems.join(QStringLiteral(", ")));
         }},
        {"applicationCategory",
         [](const ProductFacts& f) {
             return text(f.category.section(QStringLiteral("::"), 0, 0));
         }},
        {"applicationSubCategory",
         [](const ProductFacts& f) {
             return text(f.category.section(QStringLiteral("::"), 1));
         }},
        {"offers", offers},
        {"downloadUrl",
         [](const ProductFacts& f) {
             return text(f.downloads.value(0));
         }},
        {"screenshot",
         [](const ProductFacts& f) {
             return text(f.screenshotUrl);
         }},
        {"datePublished",
         [](const ProductFacts& f) {
             return text(f.releaseDate.toString(Qt::ISODate));
         }},
        {"description",
         [](const ProductFacts& f) {
             return text(f.description);
         }},
        {"url",
         [](const ProductFacts& f) {
             return text(f.homepage);
         }},
        {"license",
         [](const ProductFacts& f) {
             return text(f.licence);
         }},
        {"keywords",
         [](const ProductFacts& f) {
             return text(f.keywords.join(QStringLiteral(", ")));
         }},
        {"publisher",
         [](const ProductFacts& f) -> QJsonValue {
             if (f.publisher.isEmpty())
                 return {};
             QJsonObject o{{QStringLiteral("@type"), QStringLiteral("Organization")},
                           {QStringLiteral("name"), f.publisher}};
             if (!f.publisherUrl.isEmpty())
                 o.insert(QStringLiteral("url"), f.publisherUrl);
             return o;
         }},
    };
    return rows;
}

} // namespace

QByteArray jsonLd(const ProductFacts& facts) {
    // Written by hand rather than through QJsonObject, which sorts its keys.
    QByteArray out = "{\n";
    bool first = true;
    for (const Property& p : properties()) {
        const QJsonValue v = p.value(facts);
        if (v.isNull() || v.isUndefined())
            continue;
        QByteArray value = QJsonDocument(QJsonArray{v}).toJson(QJsonDocument::Indented);
        // The value inside a one-element array: its lines, indented by the array already.
        value = value.mid(value.indexOf('\n') + 1);
        value.chop(value.size() - value.lastIndexOf(']'));
        value = value.trimmed();
        out += (first ? "" : ",\n") + QByteArray("    \"") + p.key + "\": " + value;
        first = false;
    }
    return out + "\n}\n";
}

std::vector<OutputFinding> checkJsonLd(const ProductFacts& f, const QByteArray& written) {
    OutputCheck check(kOutput);
    check.field(QStringLiteral("name"), f.name, {1, 0, nullptr, nullptr, true},
                QStringLiteral("the program name"));
    if (f.price.isEmpty() && f.otherPrice.isEmpty())
        check.warning(QStringLiteral("offers"),
                      QStringLiteral("there is no price: search engines show software with its "
                                     "offer only (write 0 for a free program)"));
    for (const auto& [price, source] : {std::pair{f.price, QStringLiteral("the price in dollars")},
                                        std::pair{f.otherPrice, QStringLiteral("the other price")}})
        if (!price.isEmpty() && !isPrice(price))
            check.error(QStringLiteral("price"),
                        QStringLiteral("\"%1\" from %2 is not a plain number such as 19.95")
                            .arg(price, source));
    if (!f.otherPrice.isEmpty() &&
        !QRegularExpression(QStringLiteral("\\A[A-Z]{3}\\z")).match(f.otherCurrency).hasMatch())
        check.error(QStringLiteral("priceCurrency"),
                    QStringLiteral("\"%1\" is not a three-letter currency code such as EUR")
                        .arg(f.otherCurrency));
    if (f.systems.isEmpty())
        check.warning(QStringLiteral("operatingSystem"),
                      QStringLiteral("no operating system is chosen"));
    if (f.category.isEmpty())
        check.warning(QStringLiteral("applicationCategory"),
                      QStringLiteral("no category is chosen"));
    QJsonParseError error;
    const QJsonDocument doc = QJsonDocument::fromJson(written, &error);
    if (error.error != QJsonParseError::NoError || !doc.isObject())
        check.error(QString(),
                    QStringLiteral("the file is not a JSON object: %1").arg(error.errorString()));
    return check.take();
}

} // namespace brevaro
