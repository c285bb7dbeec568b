#include "window/SpellingLineEdit.h"

#include <QPainter>
#include <QPainterPath>
#include <QTextLayout>

namespace brevaro {

void SpellingLineEdit::setMarks(std::vector<WordSpan> marks) {
    if (marks == m_marks)
        return;
    m_marks = std::move(marks);
    update();
}

void SpellingLineEdit::paintEvent(QPaintEvent* event) {
    QLineEdit::paintEvent(event);
    if (m_marks.empty() || echoMode() != Normal)
        return;
    // Where a character stands: the box lays its text out as one QTextLayout line and scrolls
    // it; the caret, whose place it reports, gives the scroll. Qt reports the caret 5 pixels
    // left of where it draws it.
    QTextLayout layout(text(), font());
    layout.beginLayout();
    QTextLine line = layout.createLine();
    layout.endLayout();
    if (!line.isValid())
        return;
    const QRect caret = cursorRect();
    const qreal origin = caret.left() + 5 - line.cursorToX(cursorPosition());
    const qreal baseline = caret.top() + fontMetrics().ascent() + 3;
    const QRect inside = rect().adjusted(2, 0, -2, 0);
    QPainter painter(this);
    painter.setClipRect(inside);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(Qt::red), 1));
    for (const WordSpan& w : m_marks) {
        const qreal from = origin + line.cursorToX(int(w.start));
        const qreal to = origin + line.cursorToX(int(w.start + w.length));
        if (to < inside.left() || from > inside.right())
            continue;
        QPainterPath wave(QPointF(from, baseline));
        bool up = true;
        for (qreal x = from + 2; x <= to + 1; x += 2, up = !up)
            wave.lineTo(x, baseline + (up ? -1.5 : 0));
        painter.drawPath(wave);
    }
}

} // namespace brevaro
