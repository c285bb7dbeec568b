#include "records/ExtraFields.h"

#include <QFile>
#include <array>

namespace brevaro {

namespace {

using K = ExtraKind;
constexpr auto C = RecordSide::Company;
constexpr auto P = RecordSide::Program;

// A page address of 4.0: http or https and 4 to 120 characters after it.
constexpr int kPageLength = 128;

constexpr auto kFields = std::to_array<ExtraField>({
    {"GooglePlusPage", C, K::Address, kPageLength, "Google+ page", "GooglePlusPage"},
    {"LinkedinPage", C, K::Address, kPageLength, "LinkedIn page", "LinkedinPage"},
    {"TwitterCompanyPage", C, K::Address, kPageLength, "Twitter page", "TwitterCompanyPage"},
    {"FacebookCompanyPage", C, K::Address, kPageLength, "Facebook page", "FacebookCompanyPage"},
    {"CompanyStorePage", C, K::Address, kPageLength, "Store page", "CompanyStorePage"},

    {"Program_Category_Class", P, K::Choice, 100, "Category class", "Program_Category_Class"},
    {"Program_OS_Support", P, K::TokenList, 1000, "Systems (PAD 4.0)", "Program_OS_Support"},
    {"Program_Language", P, K::TokenList, 2000, "Languages (PAD 4.0)", "Program_Language"},
    {"Windows_Versions", P, K::TokenList, 40, "Windows versions"},
    {"Linux_Packages", P, K::TokenList, 60, "Linux packages"},
    {"FacebookProductPage", P, K::Address, kPageLength, "Facebook page", "FacebookProductPage"},
    {"GooglePlusProductPage", P, K::Address, kPageLength, "Google+ page", "GooglePlusProductPage"},
    {"Video_Link_1_URL", P, K::Address, kPageLength, "Video 1", "Video_Link_1_URL"},
    {"Video_Link_2_URL", P, K::Address, kPageLength, "Video 2", "Video_Link_2_URL"},
    {"Application_Identifier", P, K::Text, 128, "Application identifier"},
    {"SPDX_License", P, K::Text, 100, "SPDX licence"},

    {"Press_Release_Keywords", P, K::Text, 250, "Keywords", "Keywords"},
    {"Headline", P, K::Text, 100, "Headline", "Headline"},
    {"Summary", P, K::Text, 250, "Summary", "Summary"},
    {"Press_Release", P, K::LongText, 3000, "Press release", "Press_Release"},
    {"Press_Release_Plain", P, K::LongText, 3000, "Plain text", "Press_Release_Plain"},
    {"Related_URL", P, K::Address, 108, "Related address", "Related_URL"},
    {"NewsFeed_Feed_URL", P, K::Address, 108, "Feed address", "NewsFeed_Feed_URL"},
    {"NewsFeed_Type", P, K::Choice, 10, "Feed type", "NewsFeed_Type"},
    {"NewsFeed_Title", P, K::Text, 60, "Feed title", "NewsFeed_Title"},
    {"NewsFeed_Keywords", P, K::Text, 250, "Feed keywords", "NewsFeed_Keywords"},
    {"NewsFeed_Description_70", P, K::Text, 70, "Feed description (70)", "NewsFeed_Description_70"},
    {"NewsFeed_Description_250", P, K::Text, 250, "Feed description (250)",
     "NewsFeed_Description_250"},

    // What a release needs: where its files are published ({version} and {file} are replaced),
    // the SHA-256 of the file of each download address (primary, secondary, additional 1 and
    // 2), the releases so far (one "VERSION DATE" line each, newest first) and the package
    // manager's identifier, installer type and the architecture of each download.
    {"Download_URL_Pattern", P, K::Text, 200, "Download address pattern"},
    {"Download_SHA256_1", P, K::Text, 64, "SHA-256 of the primary download"},
    {"Download_SHA256_2", P, K::Text, 64, "SHA-256 of the secondary download"},
    {"Download_SHA256_3", P, K::Text, 64, "SHA-256 of additional download 1"},
    {"Download_SHA256_4", P, K::Text, 64, "SHA-256 of additional download 2"},
    {"Release_History", P, K::LongText, 4000, "Release history"},
    {"Package_Identifier", P, K::Text, 128, "Package manager identifier"},
    {"Installer_Type", P, K::Choice, 10, "Installer type"},
    {"Installer_Architectures", P, K::TokenList, 40, "Installer architectures"},
});

QStringList readList(const QString& name) {
    QFile file(QStringLiteral(":/pad/lists/") + name);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("the built-in list %s is missing", qPrintable(name));
    QStringList items;
    for (const QByteArray& line : file.readAll().split('\n'))
        if (!line.trimmed().isEmpty())
            items << QString::fromUtf8(line.trimmed());
    return items;
}

} // namespace

const QStringList& publishedList(PublishedList list) {
    static const std::array<QStringList, 4> lists = {
        readList(QStringLiteral("categories.txt")), readList(QStringLiteral("languages.txt")),
        readList(QStringLiteral("os-3.11.txt")), readList(QStringLiteral("os-4.0.txt"))};
    return lists[static_cast<std::size_t>(list)];
}

std::span<const ExtraField> extraFields() {
    return kFields;
}

const ExtraField* extraField(QStringView name) {
    for (const ExtraField& f : kFields)
        if (name == QLatin1String(f.name))
            return &f;
    return nullptr;
}

QStringList extraFieldChoices(const ExtraField& field) {
    const QLatin1String name(field.name);
    if (name == QLatin1String("Program_Category_Class"))
        return publishedList(PublishedList::Categories);
    if (name == QLatin1String("Program_OS_Support"))
        return publishedList(PublishedList::Systems40);
    if (name == QLatin1String("Program_Language"))
        return publishedList(PublishedList::Languages);
    if (name == QLatin1String("Windows_Versions"))
        return {QStringLiteral("Windows 10"), QStringLiteral("Windows 11")};
    if (name == QLatin1String("Linux_Packages"))
        return {QStringLiteral("deb"),     QStringLiteral("rpm"),  QStringLiteral("AppImage"),
                QStringLiteral("Flatpak"), QStringLiteral("Snap"), QStringLiteral("tar.gz")};
    if (name == QLatin1String("Installer_Type"))
        return {QStringLiteral("exe"),     QStringLiteral("msi"),  QStringLiteral("msix"),
                QStringLiteral("appx"),    QStringLiteral("inno"), QStringLiteral("nullsoft"),
                QStringLiteral("wix"),     QStringLiteral("burn"), QStringLiteral("zip"),
                QStringLiteral("portable")};
    if (name == QLatin1String("Installer_Architectures"))
        return {QStringLiteral("x86"), QStringLiteral("x64"), QStringLiteral("arm"),
                QStringLiteral("arm64"), QStringLiteral("neutral")};
    if (name == QLatin1String("NewsFeed_Type"))
        return {QStringLiteral("RSS 0.90"), QStringLiteral("RSS 0.91"), QStringLiteral("RSS 0.92"),
                QStringLiteral("RSS 0.93"), QStringLiteral("RSS 0.94"), QStringLiteral("RSS 1.0"),
                QStringLiteral("RSS 2.0"),  QStringLiteral("Atom 0.3"), QStringLiteral("Atom 1.0")};
    return {};
}

} // namespace brevaro
