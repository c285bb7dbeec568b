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

void ParagraphLabel::forgetOutdated() const {
    const QMargins margins = contentsMargins() + QMargins(margin(), indent(), margin(), margin());
    if (m_measuredText != text() || m_measuredFont != font() || m_measuredMargins != margins) {
        m_measuredText = text();
        m_measuredFont = font();
        m_measuredMargins = margins;
        m_heights.clear();
        m_hint = QSize();
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

QSize ParagraphLabel::sizeHint() const {
    forgetOutdated();
    const QMargins m = contentsMargins();
    const int width = fontMetrics().averageCharWidth() * kPreferredCharacters + m.left() +
                      m.right() + 2 * margin();
    if (m_hint.width() != width)
        m_hint = QSize(width, heightForWidth(width));
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
