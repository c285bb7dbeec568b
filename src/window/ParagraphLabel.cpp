#include "window/ParagraphLabel.h"

#include <QRegularExpression>
#include <algorithm>

namespace brevaro {

namespace {

constexpr int kPreferredCharacters = 60;
constexpr int kLeastCharacters = 16;

} // namespace

ParagraphLabel::ParagraphLabel(const QString& text, QWidget* parent)
    : QLabel(text, parent) {
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
}

void ParagraphLabel::forgetOutdated() const {
    const QMargins margins = contentsMargins() + QMargins(margin(), indent(), margin(), margin());
    if (m_measuredText != text() || m_measuredFont != font() || m_measuredMargins != margins) {
        m_measuredText = text();
        m_measuredFont = font();
        m_measuredMargins = margins;
        m_heights.clear();
        m_longestWord = -1;
    }
}

int ParagraphLabel::heightForWidth(int width) const {
    forgetOutdated();
    for (const QSize& known : std::as_const(m_heights))
        if (known.width() == width)
            return known.height();
    const int height = QLabel::heightForWidth(width);
    // A few widths are enough: the preferred one and those the layouts try.
    if (m_heights.size() >= 4)
        m_heights.removeFirst();
    m_heights.append(QSize(width, height));
    return height;
}

int ParagraphLabel::sideMargins() const {
    const QMargins m = contentsMargins();
    return m.left() + m.right() + 2 * margin();
}

QSize ParagraphLabel::sizeHint() const {
    const int width = fontMetrics().averageCharWidth() * kPreferredCharacters + sideMargins();
    return {width, heightForWidth(width)};
}

QSize ParagraphLabel::minimumSizeHint() const {
    forgetOutdated();
    const QFontMetrics fm = fontMetrics();
    if (m_longestWord < 0) {
        // No line can be narrower than its longest word (an address, say).
        m_longestWord = 0;
        for (const QString& word :
             text().split(QRegularExpression(QStringLiteral("\\s+")), Qt::SkipEmptyParts))
            m_longestWord = std::max(m_longestWord, fm.horizontalAdvance(word));
    }
    const QMargins m = contentsMargins();
    const int lines = int(text().count(u'\n')) + 1;
    return {std::max(fm.averageCharWidth() * kLeastCharacters, m_longestWord) + sideMargins(),
            fm.lineSpacing() * lines + m.top() + m.bottom() + 2 * margin()};
}

} // namespace brevaro
