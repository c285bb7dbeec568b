#include "platform/HunspellChecker.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStringDecoder>
#include <QStringEncoder>
#include <hunspell.hxx>
#include <utility>

namespace brevaro {

namespace {

// Remembered answers per dictionary before the memory is started afresh.
constexpr qsizetype kMaxRemembered = 50000;

// Hunspell's names of its 8-bit encodings as the converters know them.
QByteArray converterName(const std::string& encoding) {
    QByteArray name = QByteArray::fromStdString(encoding).trimmed();
    if (name.startsWith("ISO8859"))
        name.insert(3, '-');
    else if (name.startsWith("microsoft-cp"))
        name = "windows-" + name.mid(12);
    return name;
}

} // namespace

struct HunspellChecker::Dictionary {
    std::unique_ptr<Hunspell> speller;
    QStringEncoder encoder;
    QStringDecoder decoder;
    QHash<QString, bool> known;

    // The word in the dictionary's encoding; false when its alphabet cannot hold the word.
    bool encode(const QString& word, std::string& out) {
        encoder.resetState();
        const QByteArray bytes = encoder.encode(word);
        if (encoder.hasError())
            return false;
        out = bytes.toStdString();
        return true;
    }
    QString decode(const std::string& bytes) {
        decoder.resetState();
        return decoder.decode(QByteArrayView(bytes.data(), qsizetype(bytes.size())));
    }
    void add(const QString& word) {
        std::string bytes;
        if (encode(word, bytes))
            speller->add(bytes);
        known.clear();
    }
};

HunspellChecker::HunspellChecker(QStringList folders, QString personalList)
    : m_folders(std::move(folders))
    , m_personalList(std::move(personalList)) {}

HunspellChecker::~HunspellChecker() = default;

QStringList HunspellChecker::dictionaryFolders() {
    if (const QString chosen = qEnvironmentVariable("BREVARO_DICTIONARIES"); !chosen.isEmpty())
        return chosen.split(QDir::listSeparator(), Qt::SkipEmptyParts);
#if defined(Q_OS_WIN) || defined(Q_OS_MACOS)
    return {QCoreApplication::applicationDirPath() + QStringLiteral("/dictionaries")};
#else
    return {QStringLiteral("/usr/share/hunspell"), QStringLiteral("/usr/share/myspell/dicts")};
#endif
}

HunspellChecker::Dictionary* HunspellChecker::load(const QString& name) {
    const auto found = m_dictionaries.find(name);
    if (found != m_dictionaries.end())
        return found->second.get();
    std::unique_ptr<Dictionary>& slot = m_dictionaries[name];
    // The region asked for, else the language alone or another region of it (fr for fr_FR).
    const QString language = name.section(u'_', 0, 0);
    QString aff;
    for (const QString& folder : m_folders) {
        const QDir dir(folder);
        QStringList candidates{name + QStringLiteral(".aff"), language + QStringLiteral(".aff")};
        candidates += dir.entryList({language + QStringLiteral("_*.aff")}, QDir::Files, QDir::Name);
        for (const QString& file : candidates)
            if (QFileInfo::exists(dir.filePath(file)) &&
                QFileInfo::exists(dir.filePath(file.chopped(4) + QStringLiteral(".dic")))) {
                aff = dir.filePath(file);
                break;
            }
        if (!aff.isEmpty())
            break;
    }
    if (aff.isEmpty())
        return nullptr;
    const QString dic = aff.chopped(4) + QStringLiteral(".dic");
    auto d = std::make_unique<Dictionary>();
    d->speller = std::make_unique<Hunspell>(QFile::encodeName(aff).constData(),
                                            QFile::encodeName(dic).constData());
    const QByteArray encoding = converterName(d->speller->get_dict_encoding());
    d->encoder = QStringEncoder(encoding.constData());
    d->decoder = QStringDecoder(encoding.constData());
    if (!d->encoder.isValid() || !d->decoder.isValid()) {
        qWarning("spelling: %s uses the encoding %s, which cannot be read", qPrintable(aff),
                 encoding.constData());
        return nullptr;
    }
    readPersonalList();
    for (const QString& word : std::as_const(m_personal))
        d->add(word);
    slot = std::move(d);
    return slot.get();
}

void HunspellChecker::readPersonalList() {
    if (m_personalRead)
        return;
    m_personalRead = true;
    QFile file(m_personalList);
    if (m_personalList.isEmpty() || !file.open(QIODevice::ReadOnly))
        return;
    for (const QByteArray& line : file.readAll().split('\n'))
        if (const QString word = QString::fromUtf8(line).trimmed(); !word.isEmpty())
            m_personal.insert(word);
}

bool HunspellChecker::hasDictionary(const QString& dictionary) {
    return load(dictionary) != nullptr;
}

// Whether a word is written in the alphabet of the dictionary's language: a Russian name in an
// English text, or an English one in a Russian text, is not the dictionary's to judge.
static bool inAlphabetOf(const QString& dictionary, const QString& word) {
    static const QStringList cyrillic = {QStringLiteral("ru"), QStringLiteral("uk"),
                                         QStringLiteral("bg"), QStringLiteral("be")};
    const QChar::Script script =
        cyrillic.contains(dictionary.left(2)) ? QChar::Script_Cyrillic : QChar::Script_Latin;
    for (const QChar c : word)
        if (c.isLetter() && c.script() == script)
            return true;
    return false;
}

bool HunspellChecker::isCorrect(const QString& dictionary, const QString& word) {
    Dictionary* d = load(dictionary);
    if (!d || word.isEmpty() || m_ignored.contains(word) || m_personal.contains(word) ||
        !inAlphabetOf(dictionary, word))
        return true;
    if (const auto known = d->known.constFind(word); known != d->known.constEnd())
        return *known;
    std::string bytes;
    const bool correct = !d->encode(word, bytes) || d->speller->spell(bytes);
    if (d->known.size() >= kMaxRemembered)
        d->known.clear();
    d->known.insert(word, correct);
    return correct;
}

QStringList HunspellChecker::suggestions(const QString& dictionary, const QString& word, int max) {
    Dictionary* d = load(dictionary);
    std::string bytes;
    if (!d || !d->encode(word, bytes))
        return {};
    QStringList proposals;
    for (const std::string& s : d->speller->suggest(bytes)) {
        if (proposals.size() >= max)
            break;
        proposals << d->decode(s);
    }
    return proposals;
}

bool HunspellChecker::addToPersonalList(const QString& word) {
    readPersonalList();
    if (word.isEmpty() || m_personal.contains(word))
        return true;
    m_personal.insert(word);
    for (auto& [name, d] : m_dictionaries)
        if (d)
            d->add(word);
    QStringList words(m_personal.begin(), m_personal.end());
    words.sort();
    QSaveFile file(m_personalList);
    if (m_personalList.isEmpty() || !file.open(QIODevice::WriteOnly))
        return false;
    file.write((words.join(u'\n') + u'\n').toUtf8());
    return file.commit();
}

void HunspellChecker::ignore(const QString& word) {
    m_ignored.insert(word);
}

QString HunspellChecker::howToInstall(const QString& dictionary) const {
#if defined(Q_OS_WIN) || defined(Q_OS_MACOS)
    return QStringLiteral("put %1.aff and %1.dic in %2")
        .arg(dictionary, QDir::toNativeSeparators(m_folders.value(0)));
#else
    // Debian's packages: one per language for most, one per region for English and German.
    const QString language = dictionary.section(u'_', 0, 0);
    const QString package = language == QLatin1String("en") || language == QLatin1String("de")
                                ? dictionary.toLower().replace(u'_', u'-')
                                : language;
    return QStringLiteral("install the package hunspell-%1").arg(package);
#endif
}

} // namespace brevaro
