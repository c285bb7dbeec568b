#pragma once

#include "platform/SpellingWords.h"

#include <QLineEdit>
#include <vector>

namespace brevaro {

// A line edit that underlines words with a red wave, as a rich text box draws misspelt words.
// It stays a QLineEdit in every other way (limit, signals, undo, Enter).
class SpellingLineEdit : public QLineEdit {
    Q_OBJECT
public:
    using QLineEdit::QLineEdit;

    // The words to underline, as spans of text().
    void setMarks(std::vector<WordSpan> marks);
    const std::vector<WordSpan>& marks() const { return m_marks; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::vector<WordSpan> m_marks;
};

} // namespace brevaro
