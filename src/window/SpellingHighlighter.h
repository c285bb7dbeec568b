#pragma once

#include <QSyntaxHighlighter>

namespace brevaro {

class SpellChecker;

// Underlines the misspelt words of a multi-line box, paragraph by paragraph as it changes.
// Formats only: the text and its undo history are untouched.
class SpellingHighlighter : public QSyntaxHighlighter {
    Q_OBJECT
public:
    SpellingHighlighter(QTextDocument* document, SpellChecker& checker, QString dictionary);

    // The format misspelt words get.
    static QTextCharFormat misspeltFormat();

protected:
    void highlightBlock(const QString& text) override;

private:
    SpellChecker& m_checker;
    QString m_dictionary;
};

} // namespace brevaro
