#include "keywords/KeywordList.h"
#include "LocalHttpServer.h"
#include "SessionFixture.h"
#include "keywords/KeywordSuggester.h"
#include "platform/HttpTransfer.h"

#include <gtest/gtest.h>

using namespace brevaro;
using namespace brevaro::test;

namespace {

QString listed(const KeywordList& list) {
    QStringList out;
    for (const auto& e : list.entries())
        out << e.word + u'=' + e.countText() + (e.ticked ? QStringLiteral("*") : QString());
    return out.join(u' ');
}

QString counted(const QString& page) {
    KeywordList list;
    list.SplitWords(page);
    return listed(list);
}

} // namespace

TEST(KeywordList, CleaningRules) {
    EXPECT_EQ(KeywordList::CleanWord(u"Software."), QStringLiteral("Software"));
    EXPECT_EQ(KeywordList::CleanWord(u"don't"), QStringLiteral("dont"));
    EXPECT_EQ(KeywordList::CleanWord(u"(free)"), QStringLiteral("free"));
    EXPECT_EQ(KeywordList::CleanWord(u"\u00a9tools!"), QStringLiteral("tools"));
    for (auto rejected : {u"win32", u"e-mail", u"<b>", u"href=x", u"50%", u"&nbsp;", u"a@b", u"{x}",
                          u"The", u"THE", u"the", u"your", u"...", u"\"\""})
        EXPECT_EQ(KeywordList::CleanWord(QStringView(rejected)), QString())
            << QString::fromUtf16(rejected).toStdString();
}

TEST(KeywordList, SplittingAndCounting) {
    EXPECT_EQ(counted(QStringLiteral("Software. software ")), QStringLiteral("Software=002"));
    // Prefix matching works one way: the new word may be a prefix of a listed one.
    EXPECT_EQ(counted(QStringLiteral("software soft ")), QStringLiteral("software=002"));
    EXPECT_EQ(counted(QStringLiteral("soft software ")), QStringLiteral("soft=001 software=001"));
    // Only blanks separate; the last word after the final blank is never counted.
    EXPECT_EQ(counted(QStringLiteral("first\r\nsecond tail")), QStringLiteral("firstsecond=001"));
    EXPECT_EQ(counted(QStringLiteral("nowhitespace")), QString());
    EXPECT_EQ(counted(QStringLiteral("a\tb  c ")), QStringLiteral("ab=001 c=001"));
    // Ties keep the order of first appearance; higher counts come first.
    EXPECT_EQ(counted(QStringLiteral("zeta alpha beta alpha beta alpha ")),
              QStringLiteral("alpha=003 beta=002 zeta=001"));
    // The prefix match takes the highest count among the words it begins.
    EXPECT_EQ(counted(QStringLiteral("program programs programs pro ")),
              QStringLiteral("programs=003 program=001"));
}

TEST(KeywordList, CountsPastNineHundredNinetyNine) {
    KeywordList list;
    QString page;
    for (int i = 0; i < 1000; ++i)
        page += QStringLiteral("widget ");
    list.SplitWords(page);
    EXPECT_EQ(list.entries().front().countText(), QStringLiteral("1000"));
    KeywordEntry e{QStringLiteral("x"), 42, false, 0};
    EXPECT_EQ(e.countText(), QStringLiteral("042"));
}

TEST(KeywordList, TickingAndRebuilding) {
    KeywordList list;
    list.SplitWords(QStringLiteral("once twice twice thrice thrice thrice four four four four "));
    list.CheckFrequentWords();
    EXPECT_EQ(listed(list), QStringLiteral("four=004* thrice=003* twice=002 once=001"));
    EXPECT_EQ(list.RebuildKeywords(QStringLiteral("old")), QStringLiteral("four, thrice"));
    list.setTicked(2, true);
    EXPECT_EQ(list.RebuildKeywords(QString()), QStringLiteral("four, thrice, twice"));

    // A word that does not fit is skipped and a later, shorter one still taken.
    KeywordList longWords;
    QString page;
    const QString w120(120, u'w');
    for (int i = 0; i < 3; ++i)
        page += w120 + u' ' + QString(129, u'x') + QStringLiteral(" longish short ");
    longWords.SplitWords(page);
    longWords.CheckFrequentWords();
    const QString built = longWords.RebuildKeywords(QString());
    EXPECT_EQ(built, w120 + QStringLiteral(", short"));
    EXPECT_LE(built.size(), 128);

    // Nothing fits: the box keeps its text.
    KeywordList none;
    none.SplitWords(QString(QString(200, u'y') + u' ').repeated(3));
    none.CheckFrequentWords();
    EXPECT_EQ(none.RebuildKeywords(QStringLiteral("kept")), QStringLiteral("kept"));
}

TEST(KeywordList, ColumnSorting) {
    KeywordList list;
    list.SplitWords(QStringLiteral("beta alpha beta Gamma "));
    list.sortByColumn(0);
    EXPECT_EQ(listed(list), QStringLiteral("alpha=001 beta=002 Gamma=001"));
    list.sortByColumn(1);
    EXPECT_EQ(listed(list), QStringLiteral("beta=002 alpha=001 Gamma=001"));
}

TEST_F(SessionTest, KeywordSuggesterFetchesAndFillsTheSelectedLanguage) {
    LocalHttpServer server;
    server.route("/home", {200,
                           "text/html; charset=utf-8",
                           "<html> Editor editor EDITOR fast fast fast notes notes </html>",
                           {},
                           false,
                           0});
    addCompany(QStringLiteral("Acme"));
    addProgram(QStringLiteral("Widget"));
    type(u"txtApplicationHomeURL", server.url("/home"));
    button(4);
    screen().setListIndex(id(u"SSTab2"), 2);
    HttpTransfer http;
    KeywordSuggester suggester(text(u"cboProgramName"), text(u"txtApplicationHomeURL"), http);
    auto ok = [&] {
        if (const auto keywords = suggester.accept())
            session->assistance().applyKeywords(*keywords);
    };
    EXPECT_EQ(suggester.caption, QStringLiteral("Suggesting Keywords for: Widget"));
    suggester.checkHomepage();
    EXPECT_EQ(listed(suggester.list()), QStringLiteral("Editor=003* fast=003* notes=002"));
    EXPECT_EQ(suggester.keywords, QStringLiteral("Editor, fast"));
    EXPECT_EQ(suggester.status, QStringLiteral("Disconnected, Done ..."));
    ok();
    EXPECT_EQ(text(u"txtKeywords", 2), QStringLiteral("Editor, fast"));
    EXPECT_EQ(text(u"txtKeywords", 0), QString());
    EXPECT_TRUE(session->state().ProgramDirty);

    // A dead address leaves the list empty and the text as it was.
    suggester.url = QStringLiteral("http://127.0.0.1:1/");
    suggester.checkHomepage();
    EXPECT_EQ(suggester.list().size(), 0);
    EXPECT_EQ(suggester.keywords, QStringLiteral("Editor, fast"));
    suggester.keywords = QStringLiteral("   ");
    ok();
    EXPECT_EQ(text(u"txtKeywords", 2), QStringLiteral("Editor, fast"));
}

namespace {

// Counts words the slow way: a scan of the list in its order for the first entry the word
// begins with, case ignored.
QStringList plainCounts(const QStringList& words) {
    struct Plain {
        QString word;
        int count;
    };
    std::vector<Plain> plain;
    for (const QString& w : words) {
        std::vector<int> order(plain.size());
        for (std::size_t i = 0; i < order.size(); ++i)
            order[i] = static_cast<int>(i);
        std::stable_sort(order.begin(), order.end(), [&](int a, int b) {
            return plain[std::size_t(a)].count > plain[std::size_t(b)].count;
        });
        const auto hit = std::find_if(order.begin(), order.end(), [&](int i) {
            return plain[std::size_t(i)].word.startsWith(w, Qt::CaseInsensitive);
        });
        if (hit != order.end())
            ++plain[std::size_t(*hit)].count;
        else
            plain.push_back({w, 1});
    }
    std::stable_sort(plain.begin(), plain.end(),
                     [](const Plain& a, const Plain& b) { return a.count > b.count; });
    QStringList out;
    for (const auto& p : plain)
        out << p.word + u'=' + QString::number(p.count);
    return out;
}

QStringList treeCounts(const QStringList& words) {
    KeywordList list;
    list.SplitWords(QString(words.join(u' ') + u' '));
    QStringList out;
    for (const auto& e : list.entries())
        out << e.word + u'=' + QString::number(e.count);
    return out;
}

} // namespace

// The prefix tree must give exactly what a scan of the list in its order gives: for words
// that share long stems, and for many short words over a few letters, whose shared prefixes
// keep splitting the tree's edges.
TEST(KeywordList, AgreesWithAPlainScanOfTheList) {
    const QStringList stems = {QStringLiteral("pro"),
                               QStringLiteral("Prog"),
                               QStringLiteral("program"),
                               QStringLiteral("programs"),
                               QStringLiteral("PROGRAMMER"),
                               QStringLiteral("p"),
                               QStringLiteral("edit"),
                               QStringLiteral("Editor"),
                               QStringLiteral("editing"),
                               QString(60, u'z'),
                               QString(60, u'z') + QStringLiteral("y"),
                               QString(55, u'z')};
    QStringList fromStems;
    QStringList shortWords;
    const QString letters = QStringLiteral("xyXY\u00e9");
    quint32 seed = 7;
    auto next = [&seed] {
        seed = seed * 1103515245u + 12345u;
        return seed >> 16;
    };
    for (int i = 0; i < 3000; ++i)
        fromStems << stems[int(next() % stems.size())];
    for (int i = 0; i < 3000; ++i) {
        QString w;
        for (quint32 n = 3 + next() % 6; n > 0; --n)
            w += letters[int(next() % letters.size())];
        shortWords << w;
    }
    EXPECT_EQ(treeCounts(fromStems), plainCounts(fromStems));
    EXPECT_EQ(treeCounts(shortWords), plainCounts(shortWords));
}
