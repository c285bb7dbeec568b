#include "window/SpellingView.h"

#include "pad/PadSpelling.h"
#include "session/EditingSession.h"
#include "window/ControlBindingView.h"
#include "window/SpellingHighlighter.h"
#include "window/SpellingLineEdit.h"

#include <QAction>
#include <QEvent>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTextBlock>
#include <QTextLayout>
#include <QTimer>

namespace brevaro {

namespace {

// How many suggestions the context menu offers.
constexpr int kMenuSuggestions = 6;

} // namespace

SpellingView::SpellingView(ControlBindingView& view, std::unique_ptr<SpellChecker> checker,
                           QObject* parent)
    : QObject(parent)
    , m_view(view)
    , m_checker(std::move(checker)) {
    for (int id : view.ids()) {
        const ControlRow& r = view.row(id);
        QWidget* w = view.widget(id);
        const auto language = spellingLanguage(r.side, r.field, r.entry);
        if (!language || !(qobject_cast<SpellingLineEdit*>(w) || qobject_cast<QPlainTextEdit*>(w)))
            continue;
        m_boxes.insert(w, {language->name, language->dictionary});
        w->installEventFilter(this);
        w->setContextMenuPolicy(Qt::CustomContextMenu);
        connect(w, &QWidget::customContextMenuRequested, this, [this, w](QPoint at) {
            QMenu* menu = contextMenu(w, at);
            QWidget* surface = w;
            if (auto* e = qobject_cast<QPlainTextEdit*>(w))
                surface = e->viewport();
            menu->exec(surface->mapToGlobal(at));
            delete menu;
        });
        if (auto* e = qobject_cast<SpellingLineEdit*>(w))
            connect(e, &QLineEdit::textChanged, this, [this, e] { recheck(e); });
    }
}

SpellingView::~SpellingView() = default;

bool SpellingView::eventFilter(QObject* watched, QEvent* event) {
    // A box is checked from the first time it is shown, once the window has painted.
    if (event->type() == QEvent::Show) {
        auto* w = static_cast<QWidget*>(watched);
        if (!m_boxes.value(w).started) {
            m_boxes[w].started = true;
            QTimer::singleShot(0, this, [this, box = QPointer<QWidget>(w)] {
                if (box)
                    start(box);
            });
        }
    }
    return QObject::eventFilter(watched, event);
}

void SpellingView::start(QWidget* box) {
    Box& b = m_boxes[box];
    if (b.dictionary.isEmpty()) {
        if (!m_told.contains(QString())) {
            m_told.insert(QString());
            say(QStringLiteral("Japanese and Chinese descriptions are not checked for spelling: "
                               "there is no dictionary for them."));
        }
        return;
    }
    if (!m_checker->hasDictionary(b.dictionary)) {
        if (!m_told.contains(b.dictionary)) {
            m_told.insert(b.dictionary);
            say(QStringLiteral("%1 texts are not checked for spelling: no %1 dictionary is "
                               "installed; %2.")
                    .arg(b.language, m_checker->howToInstall(b.dictionary)));
        }
        return;
    }
    b.active = true;
    if (auto* e = qobject_cast<QPlainTextEdit*>(box))
        b.highlighter = new SpellingHighlighter(e->document(), *m_checker, b.dictionary);
    else
        recheck(box);
}

void SpellingView::recheck(QWidget* box) {
    const Box& b = m_boxes[box];
    if (!b.active)
        return;
    if (b.highlighter)
        b.highlighter->rehighlight();
    else if (auto* e = qobject_cast<SpellingLineEdit*>(box))
        e->setMarks(misspeltWords(*m_checker, b.dictionary, e->text()));
}

void SpellingView::recheckAll() {
    for (auto it = m_boxes.cbegin(); it != m_boxes.cend(); ++it)
        recheck(it.key());
}

void SpellingView::say(const QString& text) {
    m_view.session().navigation().SimpleText(text);
}

SpellingView::Found SpellingView::wordAt(QWidget* box, QPoint at) const {
    const Box b = m_boxes.value(box);
    if (!b.active)
        return {};
    QString text;
    int offset = 0;
    int position = 0;
    if (auto* e = qobject_cast<QLineEdit*>(box)) {
        text = e->text();
        position = e->cursorPositionAt(at);
    } else if (auto* e = qobject_cast<QPlainTextEdit*>(box)) {
        const QTextCursor cursor = e->cursorForPosition(at);
        text = cursor.block().text();
        offset = cursor.block().position();
        position = cursor.positionInBlock();
    }
    for (const WordSpan& w : misspeltWords(*m_checker, b.dictionary, text))
        if (position >= w.start && position <= w.start + w.length)
            return {text.mid(w.start, w.length), offset + int(w.start)};
    return {};
}

QMenu* SpellingView::contextMenu(QWidget* box, QPoint at) {
    QMenu* menu = nullptr;
    if (auto* e = qobject_cast<QLineEdit*>(box))
        menu = e->createStandardContextMenu();
    else if (auto* e = qobject_cast<QPlainTextEdit*>(box))
        menu = e->createStandardContextMenu(at);
    else
        menu = new QMenu;
    const Found found = wordAt(box, at);
    if (found.word.isEmpty())
        return menu;
    QAction* first = menu->actions().value(0);
    const QString dictionary = m_boxes.value(box).dictionary;
    const QStringList proposals = m_checker->suggestions(dictionary, found.word, kMenuSuggestions);
    for (const QString& proposal : proposals) {
        auto* a = new QAction(proposal, menu);
        a->setObjectName(QStringLiteral("spellSuggestion"));
        QFont bold = a->font();
        bold.setBold(true);
        a->setFont(bold);
        connect(a, &QAction::triggered, this,
                [this, box, found, proposal] { replace(box, found, proposal); });
        menu->insertAction(first, a);
    }
    if (proposals.isEmpty()) {
        auto* none = new QAction(QStringLiteral("(No suggestions)"), menu);
        none->setEnabled(false);
        menu->insertAction(first, none);
    }
    menu->insertSeparator(first);
    auto* ignore = new QAction(QStringLiteral("Ignore \"%1\"").arg(found.word), menu);
    ignore->setObjectName(QStringLiteral("spellIgnore"));
    connect(ignore, &QAction::triggered, this, [this, word = found.word] {
        m_checker->ignore(word);
        recheckAll();
    });
    menu->insertAction(first, ignore);
    auto* add = new QAction(QStringLiteral("Add \"%1\" to Dictionary").arg(found.word), menu);
    add->setObjectName(QStringLiteral("spellAdd"));
    connect(add, &QAction::triggered, this, [this, word = found.word] {
        if (!m_checker->addToPersonalList(word))
            say(QStringLiteral("\"%1\" is accepted until Brevaro closes: the word list in the "
                               "data folder cannot be written.")
                    .arg(word));
        recheckAll();
    });
    menu->insertAction(first, add);
    if (first)
        menu->insertSeparator(first);
    return menu;
}

// The word is replaced as if typed over it: one step of the box's undo history.
void SpellingView::replace(QWidget* box, const Found& found, const QString& with) {
    if (auto* e = qobject_cast<QLineEdit*>(box)) {
        if (e->text().mid(found.start, found.word.size()) != found.word)
            return;
        e->setSelection(found.start, int(found.word.size()));
        e->insert(with);
    } else if (auto* e = qobject_cast<QPlainTextEdit*>(box)) {
        QTextCursor cursor(e->document());
        cursor.setPosition(found.start);
        cursor.setPosition(found.start + int(found.word.size()), QTextCursor::KeepAnchor);
        if (cursor.selectedText() != found.word)
            return;
        cursor.insertText(with);
        e->setTextCursor(cursor);
    }
}

QStringList SpellingView::markedWords(QWidget* box) const {
    QStringList words;
    if (auto* e = qobject_cast<SpellingLineEdit*>(box)) {
        for (const WordSpan& w : e->marks())
            words << e->text().mid(w.start, w.length);
    } else if (auto* e = qobject_cast<QPlainTextEdit*>(box)) {
        const QTextCharFormat misspelt = SpellingHighlighter::misspeltFormat();
        for (QTextBlock block = e->document()->begin(); block.isValid(); block = block.next())
            for (const QTextLayout::FormatRange& range : block.layout()->formats())
                if (range.format.underlineStyle() == misspelt.underlineStyle())
                    words << block.text().mid(range.start, range.length);
    }
    return words;
}

} // namespace brevaro
