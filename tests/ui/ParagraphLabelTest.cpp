#include "window/ParagraphLabel.h"

#include <QVBoxLayout>
#include <gtest/gtest.h>

using namespace brevaro;
using namespace Qt::StringLiterals;

namespace {

const QString kText = u"Brevaro keeps your company and your programs and writes their PAD files, "
                      u"and this paragraph runs on for long enough to wrap at any width a "
                      u"window gives it.\n\nA second paragraph."_s;

} // namespace

// The sizes a paragraph asks for: the height it needs at the width it prefers, found again when
// its text or its font changes, and a least size that holds a line of each of its paragraphs.
TEST(ParagraphLabel, AsksForTheHeightItsTextNeeds) {
    ParagraphLabel label(kText);
    const QSize hint = label.sizeHint();
    EXPECT_GT(hint.width(), 40 * label.fontMetrics().averageCharWidth());
    EXPECT_EQ(hint.height(), label.heightForWidth(hint.width()));
    EXPECT_GT(hint.height(), 3 * label.fontMetrics().lineSpacing()); // it wrapped

    label.setText(u"Short."_s);
    EXPECT_EQ(label.sizeHint().height(), label.heightForWidth(label.sizeHint().width()));
    EXPECT_LT(label.sizeHint().height(), hint.height());

    // Wider gaps between words: the same characters, more lines.
    label.setText(kText);
    EXPECT_EQ(label.sizeHint(), hint);
    QFont spaced = label.font();
    spaced.setWordSpacing(4 * label.fontMetrics().averageCharWidth());
    label.setFont(spaced);
    EXPECT_EQ(label.sizeHint().height(), label.heightForWidth(label.sizeHint().width()));
    EXPECT_GT(label.sizeHint().height(), hint.height());

    QFont bigger = label.font();
    bigger.setPointSizeF(bigger.pointSizeF() * 2);
    label.setFont(bigger);
    EXPECT_GT(label.sizeHint().height(), hint.height());
    EXPECT_EQ(label.sizeHint().height(), label.heightForWidth(label.sizeHint().width()));

    // Wider margins: less room for the text at the same width.
    const int before = label.heightForWidth(300);
    label.setMargin(40);
    EXPECT_GT(label.heightForWidth(300), before);
    EXPECT_EQ(label.heightForWidth(300), label.QLabel::heightForWidth(300));
    label.setMargin(0);

    const QSize least = label.minimumSizeHint();
    EXPECT_LT(least.width(), label.sizeHint().width());
    EXPECT_GE(least.height(), 3 * label.fontMetrics().lineSpacing());
}

// In a layout narrower than it prefers, the paragraph takes the height its wrapped lines need,
// so nothing below it is covered, and it is never narrower than its longest word.
TEST(ParagraphLabel, WrapsToTheWidthALayoutGivesIt) {
    const QString address = u"https://downloads.example/a-very-long-path/with-more/setup.exe"_s;
    QWidget page;
    auto* column = new QVBoxLayout(&page);
    auto* label = new ParagraphLabel(kText + u" Download it from "_s + address);
    auto* below = new QWidget;
    below->setFixedHeight(20);
    column->addWidget(label);
    column->addWidget(below);
    column->addStretch();
    page.resize(120, 900);
    page.show();
    column->activate();
    EXPECT_GE(label->width(), label->fontMetrics().horizontalAdvance(address));
    EXPECT_GE(label->height(), label->heightForWidth(label->width()));
    EXPECT_GE(below->y(), label->geometry().bottom());
}
