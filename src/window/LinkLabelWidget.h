#pragma once

#include <QLabel>

namespace brevaro {

// A label that opens a page when clicked and looks like a link while the mouse is over it:
// the palette's link colour and underlined, back to the text colour when the mouse leaves.
class LinkLabelWidget : public QLabel {
    Q_OBJECT
public:
    explicit LinkLabelWidget(const QString& text = {}, QWidget* parent = nullptr);

    // Shows text. A label that takes the focus keeps a rich-text document for its text, made
    // anew at each text, though a plain line draws the same without one: the text is set as
    // on a label that takes no focus, and the document is made only when the focus comes.
    void setText(const QString& text);
    // The point size of the label's font (the copyright line is small, the organisations'
    // addresses large).
    void setPointSize(int points);
    bool isHovered() const { return m_hovered; }

signals:
    void clicked();

protected:
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void setHovered(bool hovered);

    bool m_hovered = false;
};

} // namespace brevaro
