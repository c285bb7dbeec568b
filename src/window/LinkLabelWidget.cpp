#include "window/LinkLabelWidget.h"

#include <QKeyEvent>
#include <QMouseEvent>

namespace brevaro {

LinkLabelWidget::LinkLabelWidget(const QString& text, QWidget* parent)
    : QLabel(text, parent) {
    setCursor(Qt::PointingHandCursor);
    // Reachable from the keyboard: Tab to it, Space or Enter opens it.
    setFocusPolicy(Qt::StrongFocus);
    setHovered(false);
}

void LinkLabelWidget::setText(const QString& text) {
    const Qt::FocusPolicy policy = focusPolicy();
    setFocusPolicy(Qt::NoFocus);
    QLabel::setText(text);
    setFocusPolicy(policy);
}

void LinkLabelWidget::setPointSize(int points) {
    QFont f = font();
    f.setPointSize(points);
    setFont(f);
}

void LinkLabelWidget::setHovered(bool hovered) {
    m_hovered = hovered;
    QFont f = font();
    f.setUnderline(hovered);
    setFont(f);
    QPalette p = palette();
    // The palette's link colour under the mouse, otherwise its text colour: both come from
    // the desktop, so the label reads well in light and dark palettes.
    const QPalette& desktop = parentWidget() ? parentWidget()->palette() : QPalette();
    p.setColor(QPalette::WindowText,
               desktop.color(hovered ? QPalette::Link : QPalette::ButtonText));
    setPalette(p);
}

void LinkLabelWidget::enterEvent(QEnterEvent* event) {
    setHovered(true);
    QLabel::enterEvent(event);
}

void LinkLabelWidget::leaveEvent(QEvent* event) {
    setHovered(false);
    QLabel::leaveEvent(event);
}

void LinkLabelWidget::focusInEvent(QFocusEvent* event) {
    // The keyboard's focus looks like the mouse over it.
    setHovered(true);
    QLabel::focusInEvent(event);
}

void LinkLabelWidget::focusOutEvent(QFocusEvent* event) {
    setHovered(false);
    QLabel::focusOutEvent(event);
}

void LinkLabelWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        emit clicked();
    QLabel::mouseReleaseEvent(event);
}

void LinkLabelWidget::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Space || event->key() == Qt::Key_Return ||
        event->key() == Qt::Key_Enter) {
        emit clicked();
        return;
    }
    QLabel::keyPressEvent(event);
}

} // namespace brevaro
