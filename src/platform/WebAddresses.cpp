#include "platform/WebAddresses.h"

#include "platform/StringHelpers.h"

#include <QDate>

namespace brevaro {

namespace {

QString fromEnvironment(const char* name, const char* fallback) {
    QString value = qEnvironmentVariable(name);
    if (value.isEmpty())
        value = QLatin1String(fallback);
    while (value.endsWith(u'/'))
        value.chop(1);
    return value;
}

} // namespace

QString productSite() {
    return fromEnvironment("BREVARO_PRODUCT_SITE", "http://www.brevaro.example");
}
QString makerServer() {
    return fromEnvironment("BREVARO_SERVER", "http://www.quorin.example");
}
QString translateSite() {
    return fromEnvironment("BREVARO_TRANSLATE_SITE", "http://translate.brevaro.example");
}

QString organizationSite(int i) {
    static const char* sites[] = {"http://www.asp-shareware.org", "http://www.edu-soft.org",
                                  "http://www.trialware.org"};
    return i >= 0 && i < 3 ? QLatin1String(sites[i]) : QString();
}

QString copyrightLine() {
    return QStringLiteral("Copyright \u00a9 2002-%1 Quorin. All rights reserved.")
        .arg(QDate::currentDate().toString(QStringLiteral("yyyy")));
}

QString signUpAddress(const QString& firstName, const QString& lastName, const QString& email) {
    return productSite() + QStringLiteral("/register.php?FirstName=") + trimBlanks(firstName) +
           QStringLiteral("&LastName=") + trimBlanks(lastName) + QStringLiteral("&email=") +
           trimBlanks(email);
}

QString versionAddress(const QString& appVersionText) {
    return productSite() + QStringLiteral("/download.php?version=") + appVersionText;
}

QString translationAddress(const QString& text, bool withQuery) {
    return translateSite() + QStringLiteral("/tr") +
           (withQuery ? QStringLiteral("?urltext=") + trimBlanks(text) : QString());
}

} // namespace brevaro
