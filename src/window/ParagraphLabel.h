#pragma once

#include <QLabel>

namespace brevaro {

// A paragraph of plain text that wraps to the width it is given. A wrapping QLabel works out its
// sizes by laying its text out at several widths, each time it is asked; this one lays it out
// once, at about sixty characters, for the size it prefers, and none for the least size it
// needs (a short run of characters, its lines unwrapped in height). The height at the width it
// gets is QLabel's own.
class ParagraphLabel : public QLabel {
    Q_OBJECT
public:
    explicit ParagraphLabel(const QString& text, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

private:
    mutable QSize m_hint;
    mutable QString m_hintText;
    mutable QFont m_hintFont;
};

} // namespace brevaro
