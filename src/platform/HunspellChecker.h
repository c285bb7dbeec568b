#pragma once

#include "platform/SpellChecker.h"

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>
#include <map>
#include <memory>

namespace brevaro {

// The spell checker over Hunspell and the dictionaries of the system's hunspell packages.
// Each dictionary is read from <folder>/<name>.aff and .dic (or another region of the same
// language) the first time it is asked for; its words are converted to the dictionary's own
// encoding (UTF-8 or an ISO 8859 one). Answers are remembered per word, so that checking a text
// again as the author types costs a look-up per word.
class HunspellChecker : public SpellChecker {
public:
    // folders: where the dictionaries are looked for, in order. personalList: the file of the
    // author's own words (UTF-8, one a line), read on first use.
    HunspellChecker(QStringList folders, QString personalList);
    ~HunspellChecker() override;

    // $BREVARO_DICTIONARIES (folders separated as in PATH), else the system's folders.
    static QStringList dictionaryFolders();

    bool hasDictionary(const QString& dictionary) override;
    bool isCorrect(const QString& dictionary, const QString& word) override;
    QStringList suggestions(const QString& dictionary, const QString& word, int max) override;
    bool addToPersonalList(const QString& word) override;
    void ignore(const QString& word) override;
    QString howToInstall(const QString& dictionary) const override;

private:
    struct Dictionary;
    Dictionary* load(const QString& name);
    void readPersonalList();

    QStringList m_folders;
    QString m_personalList;
    bool m_personalRead = false;
    QSet<QString> m_personal;
    QSet<QString> m_ignored;
    // nullptr: looked for and not found.
    std::map<QString, std::unique_ptr<Dictionary>> m_dictionaries;
};

} // namespace brevaro
