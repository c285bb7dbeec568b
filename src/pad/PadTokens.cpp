#include "pad/PadTokens.h"

#include "platform/StringHelpers.h"
#include "records/ExtraFields.h"
#include "records/ValueLists.h"

#include <QRegularExpression>
#include <array>

namespace brevaro {

namespace {

using PF = ProgramField;

constexpr auto kOsMappings = std::to_array<OsMapping>({
    {"Win 3.1x", "WinOther", false},   {"Win95", "WinOther", false},
    {"Win98", "Win98", true},          {"WinME", "WinOther", false},
    {"WinNT 3.x", "WinOther", false},  {"WinNT 4.x", "WinOther", false},
    {"WinXP", "WinXP", true},          {"Windows2000", "Win2000", true},
    {"Windows CE", "WinMobile", true}, {"Unix", "Unix", true},
    {"Linux", "Linux", true},          {"MS-DOS", "MS-DOS", true},
    {"AS/400", "Other", false},        {"OS/2", "Other", false},
    {"OS/2 Warp", "Other", false},     {"OS/2 Warp 4", "Other", false},
    {"Mac 68k", "Mac Other", false},   {"Mac PPC", "Mac Other", false},
    {"Palm OS 1.0", "Palm", true},     {"Palm OS 2.0", "Palm", true},
    {"Palm OS 2.1", "Palm", true},     {"Palm OS 3.0", "Palm", true},
    {"Palm OS 3.1", "Palm", true},     {"Palm OS 3.2", "Palm", true},
    {"Open VMS", "OpenVMS", true},     {"Not Applicable", "Not Applicable", true},
});

// The main class a 1.15 specific category belongs to.
QString mainClassOf(const QString& specific) {
    static const std::pair<const char*, const char*> kMains[] = {
        {"Audio", "Audio & Multimedia"},
        {"Business", "Business"},
        {"Business/Finance", "Business"},
        {"Desktop Enhancements", "Desktop"},
        {"Developement Tools", "Development"},
        {"Development Tools", "Development"},
        {"Software Development", "Development"},
        {"Education", "Education"},
        {"Home/Education", "Education"},
        {"Games", "Games & Entertainment"},
        {"Graphics", "Graphic Apps"},
        {"Multimedia/Design", "Graphic Apps"},
        {"Home/Hobby", "Home & Hobby"},
        {"Internet", "Network & Internet"},
        {"Screen Savers", "Desktop"},
        {"Utilities", "System Utilities"},
        {"Web Authoring", "Web Development"}};
    for (const auto& [from, to] : kMains)
        if (specific.compare(QLatin1String(from), Qt::CaseInsensitive) == 0)
            return QLatin1String(to);
    return QString();
}

} // namespace

const QStringList& categoryClasses() {
    return publishedList(PublishedList::Categories);
}

const QStringList& laterLanguages() {
    return publishedList(PublishedList::Languages);
}

const QStringList& laterOperatingSystems(PadVersion version) {
    return publishedList(version == PadVersion::V4_0 ? PublishedList::Systems40
                                                     : PublishedList::Systems311);
}

std::span<const OsMapping> osMappings() {
    return kOsMappings;
}

QString systemOf115(const QString& laterToken) {
    QString found;
    for (const OsMapping& m : kOsMappings)
        if (m.exact && laterToken == QLatin1String(m.to))
            found = QLatin1String(m.from);
    return found;
}

QStringList laterOsTokens(const ProgramRecord& program, PadVersion version) {
    const QStringList& items = operatingSystemList();
    QStringList marked;
    for (int i = 0; i < items.size(); ++i) {
        if (program.number(PF::OSSupported, i) == 0)
            continue;
        for (const OsMapping& m : kOsMappings)
            if (trimBlanks(items[i]) == QLatin1String(m.from))
                marked << QLatin1String(m.to);
    }
    QStringList tokens;
    for (const QString& token : laterOperatingSystems(version))
        if (marked.contains(token))
            tokens << token;
    return tokens;
}

QStringList laterLanguageTokens(const ProgramRecord& program) {
    const QStringList& items = languageList();
    QStringList marked;
    for (int i = 0; i < items.size(); ++i)
        if (program.number(PF::LanguageSupported, i) != 0)
            marked << trimBlanks(items[i]);
    QStringList tokens;
    for (const QString& name : laterLanguages())
        if (marked.contains(name))
            tokens << name;
    return tokens;
}

QString proposedCategoryClass(const ProgramRecord& program) {
    const QString text = trimBlanks(program.text(PF::CategoryClass));
    const QStringList& classes = categoryClasses();
    if (classes.contains(text))
        return text;
    const QString main = mainClassOf(trimBlanks(program.text(PF::SpecificCategory)));
    QString anyMain;
    for (QString part : text.split(QRegularExpression(QStringLiteral("[,;]")))) {
        part = part.trimmed();
        if (part.isEmpty())
            continue;
        for (const QString& c : classes) {
            const QString sub = c.section(QStringLiteral("::"), 1);
            if (sub.compare(part, Qt::CaseInsensitive) != 0)
                continue;
            if (main.isEmpty() || c.startsWith(main + QStringLiteral("::")))
                return c;
            if (anyMain.isEmpty())
                anyMain = c;
        }
    }
    if (!anyMain.isEmpty())
        return anyMain;
    const QString other = main + QStringLiteral("::Other");
    return classes.contains(other) ? other : QString();
}

} // namespace brevaro
