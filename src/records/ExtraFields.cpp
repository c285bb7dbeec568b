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

using G = ExtraGroup;

constexpr auto kFields = std::to_array<ExtraField>({
    {"GooglePlusPage", C, K::Address, kPageLength, "Google+", "GooglePlusPage", G::CompanyPages,
     "Address of the company's Google+ page"},
    {"LinkedinPage", C, K::Address, kPageLength, "LinkedIn", "LinkedinPage", G::CompanyPages,
     "Address of the company's LinkedIn page"},
    {"TwitterCompanyPage", C, K::Address, kPageLength, "Twitter", "TwitterCompanyPage",
     G::CompanyPages, "Address of the company's Twitter page"},
    {"FacebookCompanyPage", C, K::Address, kPageLength, "Facebook", "FacebookCompanyPage",
     G::CompanyPages, "Address of the company's Facebook page"},
    {"CompanyStorePage", C, K::Address, kPageLength, "Store", "CompanyStorePage", G::CompanyPages,
     "Address of the company's own store"},

    {"PAD_Version", P, K::Choice, 4, "PAD version", nullptr, G::Publishing,
     "The PAD version Create PAD writes and Check PAD checks for this program"},
    {"Program_Category_Class", P, K::Choice, 100, "Category sub-class", "Program_Category_Class",
     G::Publishing,
     "The class of PAD 3.11 and 4.0; none chosen: proposed from the categories above"},
    {"Program_OS_Support", P, K::TokenList, 1000, "Systems (PAD 4.0)", "Program_OS_Support",
     G::Publishing,
     "The systems as PAD 3.11 and 4.0 name them; none checked: taken from Supported OS"},
    {"Program_Language", P, K::TokenList, 2000, "Languages (PAD 4.0)", "Program_Language",
     G::Publishing,
     "The languages as PAD 3.11 and 4.0 name them; none checked: taken from Languages"},
    {"Windows_Versions", P, K::TokenList, 40, "Windows versions", nullptr, G::ProgramPages,
     "The Windows versions the program runs on, which the PAD lists do not name"},
    {"Linux_Packages", P, K::TokenList, 60, "Linux packages", nullptr, G::ProgramPages,
     "The kinds of Linux package the program is published as"},
    {"Application_Identifier", P, K::Text, 128, "Application ID", nullptr, G::ProgramPages,
     "The identifier stores and package managers know the program by (like "
     "com.example.Notes)"},
    {"SPDX_License", P, K::Text, 100, "SPDX licence", nullptr, G::ProgramPages,
     "The licence as an SPDX identifier (like MIT or GPL-3.0-or-later)"},
    {"FacebookProductPage", P, K::Address, kPageLength, "Facebook", "FacebookProductPage",
     G::ProgramPages, "Address of the program's Facebook page"},
    {"GooglePlusProductPage", P, K::Address, kPageLength, "Google+", "GooglePlusProductPage",
     G::ProgramPages, "Address of the program's Google+ page"},
    {"Video_Link_1_URL", P, K::Address, kPageLength, "Video 1", "Video_Link_1_URL", G::ProgramPages,
     "Address of a video of the program"},
    {"Video_Link_2_URL", P, K::Address, kPageLength, "Video 2", "Video_Link_2_URL", G::ProgramPages,
     "Address of another video of the program"},

    {"Press_Release_Keywords", P, K::Text, 250, "Keywords", "Keywords", G::PressRelease,
     "Keywords of the press release, separated by commas"},
    {"Headline", P, K::Text, 100, "Headline", "Headline", G::PressRelease,
     "The press release's headline, 20 to 100 characters"},
    {"Summary", P, K::Text, 250, "Summary", "Summary", G::PressRelease,
     "The press release in a sentence or two, 20 to 250 characters"},
    {"Press_Release", P, K::LongText, 3000, "Press release", "Press_Release", G::PressRelease,
     "The press release itself"},
    {"Press_Release_Plain", P, K::LongText, 3000, "Plain text", "Press_Release_Plain",
     G::PressRelease, "The press release as plain text"},
    {"Related_URL", P, K::Address, 108, "Related address", "Related_URL", G::PressRelease,
     "Address of a page the press release refers to"},
    {"NewsFeed_Feed_URL", P, K::Address, 108, "Feed address", "NewsFeed_Feed_URL", G::NewsFeed,
     "Address of the program's news feed"},
    {"NewsFeed_Type", P, K::Choice, 10, "Feed type", "NewsFeed_Type", G::NewsFeed,
     "The format of the news feed"},
    {"NewsFeed_Title", P, K::Text, 60, "Feed title", "NewsFeed_Title", G::NewsFeed,
     "The title of the news feed"},
    {"NewsFeed_Keywords", P, K::Text, 250, "Feed keywords", "NewsFeed_Keywords", G::NewsFeed,
     "Keywords of the news feed, separated by commas"},
    {"NewsFeed_Description_70", P, K::Text, 70, "Description (70)", "NewsFeed_Description_70",
     G::NewsFeed, "The news feed in at most 70 characters"},
    {"NewsFeed_Description_250", P, K::Text, 250, "Description (250)", "NewsFeed_Description_250",
     G::NewsFeed, "The news feed in at most 250 characters"},

    // What a release needs: where its files are published ({version} and {file} are replaced),
    // the SHA-256 of the file of each download address (primary, secondary, additional 1 and
    // 2), the releases so far (one "VERSION DATE" line each, newest first) and the package
    // manager's identifier, installer type and the architecture of each download.
    {"Download_URL_Pattern", P, K::Text, 200, "Download pattern", nullptr, G::ProgramPages,
     "Where a release's files are published: {version} and {file} are replaced (like "
     "https://example.com/{version}/{file})"},
    {"Download_SHA256_1", P, K::Text, 64, "SHA-256 of the primary download", nullptr, G::Release},
    {"Download_SHA256_2", P, K::Text, 64, "SHA-256 of the secondary download", nullptr, G::Release},
    {"Download_SHA256_3", P, K::Text, 64, "SHA-256 of additional download 1", nullptr, G::Release},
    {"Download_SHA256_4", P, K::Text, 64, "SHA-256 of additional download 2", nullptr, G::Release},
    {"Release_History", P, K::LongText, 4000, "Release history", nullptr, G::Release},
    {"Package_Identifier", P, K::Text, 128, "Package ID", nullptr, G::ProgramPages,
     "The package manager's identifier of the program (like Northwind.HarbourNotes)"},
    {"Installer_Type", P, K::Choice, 10, "Installer type", nullptr, G::ProgramPages,
     "The kind of installer the package manager runs"},
    {"Installer_Architectures", P, K::TokenList, 40, "Architectures", nullptr, G::ProgramPages,
     "The processor architecture of each download, in the order of the download addresses"},
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
    if (name == QLatin1String("PAD_Version"))
        return {QStringLiteral("1.15"), QStringLiteral("3.11"), QStringLiteral("4.0")};
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
