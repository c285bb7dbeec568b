#pragma once

#include <QLabel>

namespace brevaro {

// A paragraph of plain text that wraps to the width it is given. A wrapping QLabel works out its
// sizes by laying its text out at several widths, again each time it is asked (a window's first
// layout asks seven times); this one lays it out once for each width it is asked about: at
// about sixty characters for the size it prefers, and at the widths it gets. The least size it
// needs takes no layout: its longest word or a short run of characters wide, its lines
// unwrapped high.
class ParagraphLabel : public QLabel {
    Q_OBJECT
public:
    explicit ParagraphLabel(const QString& text, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    int heightForWidth(int width) const override;

private:
    // The heights found hold for the text, font and margins they were found with.
    void forgetOutdated() const;
    int sideMargins() const;
    mutable QString m_measuredText;
    mutable QFont m_measuredFont;
    mutable QMargins m_measuredMargins;
    mutable QList<QSize> m_heights; // width, height
    mutable int m_longestWord = -1;
};

} // namespace brevaro
