#include "controls/Mnemonics.h"

namespace brevaro {

QString withMnemonic(const QString& caption, QString& used) {
    auto take = [&](qsizetype i) {
        used += caption[i].toLower();
        QString out = caption;
        out.insert(i, u'&');
        return out;
    };
    for (qsizetype i = 0; i < caption.size(); ++i)
        if (caption[i].isLetter() && (i == 0 || caption[i - 1] == u' ') &&
            !used.contains(caption[i].toLower()))
            return take(i);
    for (qsizetype i = 0; i < caption.size(); ++i)
        if (caption[i].isLetterOrNumber() && !used.contains(caption[i].toLower()))
            return take(i);
    return caption;
}

} // namespace brevaro
