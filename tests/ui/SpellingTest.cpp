#include "CleanRecords.h"
#include "ScriptedPrompts.h"
#include "TestSupport.h"
#include "WidgetTestSupport.h"
#include "pad/PadSpelling.h"
#include "session/EditingSession.h"
#include "store/RecordStore.h"
#include "window/ControlBindingView.h"
#include "window/MainWindow.h"
#include "window/PadCheckDialog.h"
#include "window/SpellingView.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QStatusBar>
#include <QTabWidget>
#include <QTest>
#include <QTextCursor>
#include <memory>

using namespace brevaro;
using namespace brevaro::test;
using namespace Qt::StringLiterals;

namespace {

// The window on a home with the clean company and program, whose long English description
// ends in a made-up word, on the Descriptions tab.
class SpellingTest : public ::testing::Test {
protected:
    TempHome home;
    ScriptedPrompts prompts;
    std::unique_ptr<RecordStore> store;
    std::unique_ptr<EditingSession> session;
    std::unique_ptr<MainWindow> window;

    void SetUp() override {
        store = std::make_unique<RecordStore>(home.home());
        store->writeCompany(1, cleanCompany());
        ProgramRecord program = cleanProgram();
        program.setText(ProgramField::CharDesc2000, u"Search them as you type, qwzx."_s);
        store->writeProgram(1, 1, program);
        session = std::make_unique<EditingSession>(*store, prompts);
        window = std::make_unique<MainWindow>(*session);
        session->Start();
        showActive(*window);
        box(u"SSTab1"_s)->setProperty("currentIndex", 2);
    }
    QWidget* box(const QString& name, int index = -1) { return window->view().widget(name, index); }
    SpellingView& spelling() { return window->spelling(); }
    QString status() { return window->statusBar()->findChild<QLabel*>(u"StatusText"_s)->text(); }
    // The context menu over the middle of the n-th marked word of a box.
    std::unique_ptr<QMenu> menuOver(QWidget* w, const QString& word) {
        QPoint at;
        if (auto* e = qobject_cast<QLineEdit*>(w)) {
            e->setCursorPosition(int(e->text().indexOf(word) + word.size() / 2));
            at = e->inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
        } else if (auto* e = qobject_cast<QPlainTextEdit*>(w)) {
            QTextCursor c(e->document());
            c.setPosition(int(e->toPlainText().indexOf(word) + word.size() / 2));
            at = e->cursorRect(c).center();
        }
        return std::unique_ptr<QMenu>(spelling().contextMenu(w, at));
    }
    static QAction* entry(QMenu& menu, const QString& text) {
        for (QAction* a : menu.actions())
            if (a->text() == text)
                return a;
        ADD_FAILURE() << "no menu entry " << text.toStdString();
        return nullptr;
    }
};

} // namespace

// In a multi-line description a misspelt word is underlined as it is typed; choosing a
// suggestion replaces it in the box and the record, and Ctrl+Z brings it back.
TEST_F(SpellingTest, MultiLineBoxUnderlinesAndTakesASuggestion) {
    auto* description = qobject_cast<QPlainTextEdit*>(box(u"txt250char"_s, 0));
    ASSERT_TRUE(description);
    ASSERT_TRUE(waitFor([&] { return description->isVisible(); }));
    description->setFocus();
    description->moveCursor(QTextCursor::End);
    QTest::keyClicks(description, u" Evry note"_s);
    ASSERT_TRUE(waitFor([&] {
        return spelling().markedWords(description) == QStringList{u"Evry"_s};
    })) << spelling().markedWords(description).join(u' ').toStdString();

    auto menu = menuOver(description, u"Evry"_s);
    ASSERT_TRUE(menu->actions().first()->objectName() == u"spellSuggestion"_s);
    entry(*menu, u"Every"_s)->trigger();
    const QString fixed =
        u"Tidy Notes keeps your notes tidy, searchable and backed up. Every note"_s;
    EXPECT_EQ(description->toPlainText(), fixed);
    EXPECT_EQ(session->screen().at(u"txt250char", 0).text, fixed);
    EXPECT_TRUE(spelling().markedWords(description).isEmpty());
    EXPECT_TRUE(session->state().ProgramDirty);

    QTest::keySequence(description, QKeySequence::Undo);
    EXPECT_TRUE(description->toPlainText().endsWith(u". Evry note"_s));
    EXPECT_EQ(session->screen().at(u"txt250char", 0).text, description->toPlainText());
    EXPECT_EQ(spelling().markedWords(description), QStringList{u"Evry"_s});
}

// A single-line box stays a line edit with its limit; it underlines too, and a suggestion is
// one step of its undo history.
TEST_F(SpellingTest, LineEditUnderlinesAndTakesASuggestion) {
    auto* line = qobject_cast<QLineEdit*>(box(u"txt45char"_s, 0));
    ASSERT_TRUE(line);
    EXPECT_EQ(line->maxLength(), session->screen().at(u"txt45char", 0).maxLength);
    line->setFocus();
    line->end(false);
    QTest::keyClicks(line, u" recieve"_s);
    ASSERT_TRUE(waitFor([&] { return spelling().markedWords(line) == QStringList{u"recieve"_s}; }));
    auto menu = menuOver(line, u"recieve"_s);
    entry(*menu, u"receive"_s)->trigger();
    EXPECT_EQ(line->text(), u"Keeps your notes tidy receive"_s);
    EXPECT_EQ(session->screen().at(u"txt45char", 0).text, line->text());
    EXPECT_TRUE(spelling().markedWords(line).isEmpty());
    QTest::keySequence(line, QKeySequence::Undo);
    EXPECT_EQ(line->text(), u"Keeps your notes tidy recieve"_s);
    EXPECT_EQ(session->screen().at(u"txt45char", 0).text, line->text());

    // Over a correct word the menu is the box's own.
    auto plain = menuOver(line, u"notes"_s);
    for (QAction* a : plain->actions())
        EXPECT_FALSE(a->objectName().startsWith(u"spell"_s)) << a->text().toStdString();
}

// Showing a record underlines its words without changing it. Ignore clears a word for this
// run; Add to Dictionary clears it in every box and keeps it in the home's word list.
TEST_F(SpellingTest, IgnoreAndAddToDictionary) {
    auto* keywords = qobject_cast<QLineEdit*>(box(u"txtKeywords"_s, 0));
    auto* description = qobject_cast<QPlainTextEdit*>(box(u"txt2000char"_s, 0));
    ASSERT_TRUE(waitFor([&] {
        return spelling().markedWords(keywords) == QStringList{u"outliner"_s} &&
               spelling().markedWords(description) == QStringList{u"qwzx"_s};
    })) << spelling().markedWords(description).join(u' ').toStdString();
    EXPECT_FALSE(session->state().ProgramDirty);
    EXPECT_EQ(session->screen().at(u"txt2000char", 0).text, u"Search them as you type, qwzx."_s);

    description->setFocus();
    description->moveCursor(QTextCursor::End);
    QTest::keyClicks(description, u" An outliner."_s);
    ASSERT_TRUE(waitFor([&] {
        return spelling().markedWords(description) == QStringList({u"qwzx"_s, u"outliner"_s});
    })) << spelling().markedWords(description).join(u' ').toStdString();
    entry(*menuOver(description, u"qwzx"_s), u"Ignore \"qwzx\""_s)->trigger();
    EXPECT_EQ(spelling().markedWords(description), QStringList{u"outliner"_s});
    entry(*menuOver(keywords, u"outliner"_s), u"Add \"outliner\" to Dictionary"_s)->trigger();
    EXPECT_TRUE(spelling().markedWords(keywords).isEmpty());
    EXPECT_TRUE(spelling().markedWords(description).isEmpty());
    EXPECT_EQ(readBytes(personalWordListFile(home.home())), QByteArray("outliner\n"));
}

// The Japanese and Chinese pages are not checked, and the status bar says so once.
TEST_F(SpellingTest, LanguagesWithoutADictionaryAreSaidOnce) {
    auto* languages = qobject_cast<QTabWidget*>(box(u"SSTab2"_s));
    languages->setCurrentIndex(5);
    ASSERT_TRUE(waitFor([&] { return status().contains(u"not checked for spelling"_s); }))
        << status().toStdString();
    EXPECT_TRUE(status().startsWith(u"Japanese and Chinese descriptions"_s));
    session->navigation().SimpleText(u"Descriptions"_s);
    languages->setCurrentIndex(6);
    QTest::qWait(50);
    EXPECT_EQ(status(), u"Descriptions"_s);
    auto* japanese = qobject_cast<QLineEdit*>(box(u"txt45char"_s, 5));
    japanese->setFocus();
    QTest::keyClicks(japanese, u" qwzx"_s);
    EXPECT_TRUE(spelling().markedWords(japanese).isEmpty());
}

// Check PAD lists the misspelt words of the screen's texts as notes, one per word.
TEST_F(SpellingTest, CheckPadNotesEachMisspeltWord) {
    auto* line = qobject_cast<QLineEdit*>(box(u"txt80char"_s, 0));
    line->setFocus();
    line->end(false);
    QTest::keyClicks(line, u" qwzx vrry"_s);
    window->findChild<QAction*>(u"mnuTools_4"_s)->trigger();
    auto* check = window->findChild<PadCheckDialog*>();
    ASSERT_TRUE(check);
    QStringList words;
    for (const PadFinding& f : check->findings())
        if (f.message.contains(u"is not in the English dictionary"_s)) {
            EXPECT_EQ(f.severity, PadFinding::Severity::Note);
            words << f.value;
        }
    EXPECT_EQ(words, QStringList({u"outliner"_s, u"qwzx"_s, u"vrry"_s, u"qwzx"_s}));
}
