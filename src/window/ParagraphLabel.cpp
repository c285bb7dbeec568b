#include "window/ParagraphLabel.h"

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

QSize ParagraphLabel::sizeHint() const {
    const QMargins m = contentsMargins();
    const int width = fontMetrics().averageCharWidth() * kPreferredCharacters + m.left() +
                      m.right() + 2 * margin();
    if (m_hint.width() != width || m_hintText != text() || m_hintFont != font()) {
        m_hint = QSize(width, heightForWidth(width));
        m_hintText = text();
        m_hintFont = font();
    }
    return m_hint;
}

QSize ParagraphLabel::minimumSizeHint() const {
    const QMargins m = contentsMargins();
    const QFontMetrics fm = fontMetrics();
    const int lines = int(text().count(u'\n')) + 1;
    return {fm.averageCharWidth() * kLeastCharacters + m.left() + m.right() + 2 * margin(),
            fm.lineSpacing() * lines + m.top() + m.bottom() + 2 * margin()};
}

} // namespace brevaro
