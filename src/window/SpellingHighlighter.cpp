#include "window/SpellingHighlighter.h"

#include "platform/SpellingWords.h"

namespace brevaro {

SpellingHighlighter::SpellingHighlighter(QTextDocument* document, SpellChecker& checker,
                                         QString dictionary)
    : QSyntaxHighlighter(document)
    , m_checker(checker)
    , m_dictionary(std::move(dictionary)) {}

QTextCharFormat SpellingHighlighter::misspeltFormat() {
    QTextCharFormat format;
    format.setUnderlineStyle(QTextCharFormat::SpellCheckUnderline);
    format.setUnderlineColor(Qt::red);
    return format;
}

void SpellingHighlighter::highlightBlock(const QString& text) {
    static const QTextCharFormat format = misspeltFormat();
    for (const WordSpan& w : misspeltWords(m_checker, m_dictionary, text))
        setFormat(int(w.start), int(w.length), format);
}

} // namespace brevaro
