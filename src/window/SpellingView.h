#pragma once

#include "platform/SpellChecker.h"

#include <QHash>
#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QSet>
#include <memory>

class QMenu;
class QWidget;

namespace brevaro {

class ControlBindingView;
class SpellingHighlighter;

// Spelling in the window: the boxes of prose (descriptions, keywords, licence and permission
// texts, change information, system requirements) underline their misspelt words as the author
// types, and their context menu offers the suggestions, Ignore and Add to Dictionary. A box is
// first checked once it is on screen, so no dictionary is read at start-up; a language that
// cannot be checked is said once in the status bar.
class SpellingView : public QObject {
    Q_OBJECT
public:
    SpellingView(ControlBindingView& view, std::unique_ptr<SpellChecker> checker,
                 QObject* parent = nullptr);
    ~SpellingView() override;

    SpellChecker& checker() { return *m_checker; }
    // The box's context menu for a point (viewport coordinates for a multi-line box, as its
    // customContextMenuRequested gives them): the spelling entries of the misspelt word there
    // above the box's own entries. The caller owns it.
    QMenu* contextMenu(QWidget* box, QPoint at);
    // The words the box underlines now, in order.
    QStringList markedWords(QWidget* box) const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Box {
        QString language;
        QString dictionary;
        bool active = false;
        bool started = false;
        SpellingHighlighter* highlighter = nullptr;
    };
    // The misspelt word at a point: its text and where it stands in the box's text.
    struct Found {
        QString word;
        int start = -1;
    };
    void start(QWidget* box);
    void recheck(QWidget* box);
    void recheckAll();
    Found wordAt(QWidget* box, QPoint at) const;
    void replace(QWidget* box, const Found& found, const QString& with);
    void say(const QString& text);

    ControlBindingView& m_view;
    std::unique_ptr<SpellChecker> m_checker;
    QHash<QWidget*, Box> m_boxes;
    QSet<QString> m_told;
};

} // namespace brevaro
