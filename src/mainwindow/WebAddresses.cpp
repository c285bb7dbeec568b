#include "mainwindow/WebAddresses.h"

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

QString signUpAddress(const CompanyRecord& company) {
    return productSite() + QStringLiteral("/register.php?FirstName=") +
           company.text(CompanyField::AuthorFirstName) + QStringLiteral("&LastName=") +
           company.text(CompanyField::AuthorLastName) + QStringLiteral("&email=") +
           company.text(CompanyField::AuthorEmail);
}

QString versionAddress(const QString& appVersionText) {
    return productSite() + QStringLiteral("/download.php?version=") + appVersionText;
}

QString translationAddress(const QString& text, bool withQuery) {
    return translateSite() + QStringLiteral("/tr") +
           (withQuery ? QStringLiteral("?urltext=") + trimBlanks(text) : QString());
}

const QStringList& browseTargets() {
    static const QStringList targets = {
        QStringLiteral("txtApplicationHomeURL"), QStringLiteral("txtApplicationOrderURL"),
        QStringLiteral("txtScreenshotURL"),      QStringLiteral("txtProgramIconURL"),
        QStringLiteral("txtPadXMLfileURL"),      QStringLiteral("txtPrimaryDownloadURL"),
        QStringLiteral("txtSecondDownloadURL"),  QStringLiteral("txtThirdDownloadURL"),
        QStringLiteral("txtFourthDownloadURL")};
    return targets;
}

void openLink(Prompts& prompts, const QString& control, int index, const CompanyRecord& company,
              const QString& appVersionText) {
    const QString asp = organizationSite(0);
    QString target;
    if (control == QLatin1String("mnuHelp")) {
        switch (index) {
        case 2:
            target = asp + QStringLiteral("/pad/");
            break;
        case 4:
            target = makerServer();
            break;
        case 5:
            target = makerServer() + QStringLiteral("/members.php");
            break;
        case 7:
            target = signUpAddress(company);
            break;
        case 8:
            target = productSite() + QStringLiteral("/advertise.php");
            break;
        case 9:
            target = productSite();
            break;
        case 10:
            target = versionAddress(appVersionText);
            break;
        case 12:
            target = productSite() + QStringLiteral("/contact.php");
            break;
        default:
            break;
        }
    } else if (control == QLatin1String("picBrevaro") || control == QLatin1String("picQuorin")) {
        target = productSite();
    } else if (control == QLatin1String("picASP")) {
        target = index == 1 ? asp + QStringLiteral("/pad/") : asp;
    } else if (control == QLatin1String("lblCopyright")) {
        target = makerServer();
    } else if (control == QLatin1String("lblOrganization")) {
        target = organizationSite(index);
    }
    if (!target.isEmpty())
        prompts.openDocument(target);
}

} // namespace brevaro
