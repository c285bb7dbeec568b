#include "keywords/KeywordList.h"
#include "LocalHttpServer.h"
#include "SessionFixture.h"
#include "keywords/KeywordSuggester.h"
#include "platform/HttpTransfer.h"

#include <gtest/gtest.h>

using namespace brevaro;
using namespace Qt::StringLiterals;
using namespace brevaro::test;

namespace {

QString listed(const KeywordList& list) {
    QStringList out;
    for (const auto& e : list.entries())
        out << e.word + u'=' + e.countText() + (e.ticked ? u"*"_s : QString());
    return out.join(u' ');
}

QString counted(const QString& page) {
    KeywordList list;
    list.SplitWords(page);
    return listed(list);
}

} // namespace

TEST(KeywordList, CleaningRules) {
    EXPECT_EQ(KeywordList::CleanWord(u"Software."), u"Software"_s);
    EXPECT_EQ(KeywordList::CleanWord(u"don't"), u"dont"_s);
    EXPECT_EQ(KeywordList::CleanWord(u"(free)"), u"free"_s);
    EXPECT_EQ(KeywordList::CleanWord(u"\u00a9tools!"), u"tools"_s);
    for (auto rejected : {u"win32", u"e-mail", u"<b>", u"href=x", u"50%", u"&nbsp;", u"a@b", u"{x}",
                          u"The", u"THE", u"the", u"your", u"...", u"\"\""})
        EXPECT_EQ(KeywordList::CleanWord(QStringView(rejected)), QString())
            << QString::fromUtf16(rejected).toStdString();
}

// What a word is (prefix matching, ties and case are held against a plain scan below), counts
// past 999, and sorting by either column.
TEST(KeywordList, WordsCountsAndSorting) {
    const std::pair<QString, QString> pages[] = {
        {u"Software. software "_s, u"Software=002"_s},
        {u"first\r\nsecond tail"_s, u"firstsecond=001"_s}, // the last word is never counted
        {u"nowhitespace"_s, QString()},
        {u"a\tb  c "_s, u"ab=001 c=001"_s},
        {u"widget "_s.repeated(2000) + u"gadget gadget "_s, u"widget=2000 gadget=002"_s}};
    for (const auto& [page, expected] : pages)
        EXPECT_EQ(counted(page), expected) << page.left(40).toStdString();

    KeywordList list;
    list.SplitWords(u"beta alpha beta Gamma "_s);
    list.sortByColumn(0);
    EXPECT_EQ(listed(list), u"alpha=001 beta=002 Gamma=001"_s);
    list.sortByColumn(1);
    EXPECT_EQ(listed(list), u"beta=002 alpha=001 Gamma=001"_s);
}

TEST(KeywordList, TickingAndRebuilding) {
    KeywordList list;
    list.SplitWords(u"once twice twice thrice thrice thrice four four four four "_s);
    list.CheckFrequentWords();
    EXPECT_EQ(listed(list), u"four=004* thrice=003* twice=002 once=001"_s);
    EXPECT_EQ(list.RebuildKeywords(u"old"_s), u"four, thrice"_s);
    list.setTicked(2, true);
    EXPECT_EQ(list.RebuildKeywords(QString()), u"four, thrice, twice"_s);

    // A word that does not fit is skipped and a later, shorter one still taken.
    KeywordList longWords;
    QString page;
    const QString w120(120, u'w');
    for (int i = 0; i < 3; ++i)
        page += w120 + u' ' + QString(129, u'x') + u" longish short "_s;
    longWords.SplitWords(page);
    longWords.CheckFrequentWords();
    const QString built = longWords.RebuildKeywords(QString());
    EXPECT_EQ(built, w120 + u", short"_s);
    EXPECT_LE(built.size(), 128);

    // Nothing fits: the box keeps its text.
    KeywordList none;
    none.SplitWords(QString(QString(200, u'y') + u' ').repeated(3));
    none.CheckFrequentWords();
    EXPECT_EQ(none.RebuildKeywords(u"kept"_s), u"kept"_s);
}

TEST_F(SessionTest, KeywordSuggesterFetchesAndFillsTheSelectedLanguage) {
    LocalHttpServer server;
    const QByteArray page = "<html> Editor editor EDITOR fast fast fast notes notes </html>";
    server.route("/home", {200, "text/html; charset=utf-8", page, {}});
    addCompany(u"Acme"_s);
    addProgram(u"Widget"_s);
    type(u"txtApplicationHomeURL", server.url("/home"));
    command(ControlAction::SaveProgram);
    screen().setListIndex(id(u"SSTab2"), 2);
    HttpTransfer http;
    KeywordSuggester suggester(text(u"cboProgramName"), text(u"txtApplicationHomeURL"), http);
    auto ok = [&] {
        if (const auto keywords = suggester.accept())
            session->assistance().applyKeywords(*keywords);
    };
    EXPECT_EQ(suggester.caption, u"Suggesting Keywords for: Widget"_s);
    suggester.checkHomepage();
    EXPECT_EQ(listed(suggester.list()), u"Editor=003* fast=003* notes=002"_s);
    EXPECT_EQ(suggester.keywords, u"Editor, fast"_s);
    EXPECT_EQ(suggester.status, u"Disconnected, Done ..."_s);
    ok();
    EXPECT_EQ(text(u"txtKeywords", 2), u"Editor, fast"_s);
    EXPECT_EQ(text(u"txtKeywords", 0), QString());
    EXPECT_TRUE(session->state().ProgramDirty);

    // A dead address leaves the list empty and the text as it was.
    suggester.url = u"http://127.0.0.1:1/"_s;
    suggester.checkHomepage();
    EXPECT_EQ(suggester.list().size(), 0);
    // The status says what failed, after the transfer's own words; a missing page too.
    EXPECT_TRUE(suggester.status.startsWith(
        u"Disconnected, Done ... The home page could not be fetched: "_s))
        << suggester.status.toStdString();
    suggester.url = server.url("/missing");
    suggester.checkHomepage();
    EXPECT_TRUE(suggester.status.contains(u"could not be fetched"_s));
    EXPECT_EQ(suggester.keywords, u"Editor, fast"_s);
    suggester.keywords = u"   "_s;
    ok();
    EXPECT_EQ(text(u"txtKeywords", 2), u"Editor, fast"_s);
}

namespace {

// Counts words the slow way, as the rules say: a scan of the list in its order (first
// appearance while counting) for the first entry the word begins with, case ignored; then the
// list sorted by count, highest first, ties in order of first appearance.
struct Plain {
    QString word;
    int count;
    int first;
};

void plainCount(std::vector<Plain>& list, const QStringList& words) {
    for (const QString& w : words) {
        const auto hit = std::find_if(list.begin(), list.end(), [&](const Plain& p) {
            return p.word.startsWith(w, Qt::CaseInsensitive);
        });
        if (hit != list.end())
            ++hit->count;
        else
            list.push_back({w, 1, static_cast<int>(list.size())});
    }
    std::stable_sort(list.begin(), list.end(), [](const Plain& a, const Plain& b) {
        return a.count > b.count || (a.count == b.count && a.first < b.first);
    });
}

QStringList plainCounts(const QStringList& first, const QStringList& second) {
    std::vector<Plain> list;
    plainCount(list, first);
    plainCount(list, second);
    QStringList out;
    for (const auto& p : list)
        out << p.word + u'=' + QString::number(p.count);
    return out;
}

QStringList listCounts(const KeywordList& list) {
    QStringList out;
    for (const auto& e : list.entries())
        out << e.word + u'=' + QString::number(e.count);
    return out;
}

QStringList splitCounts(const QStringList& first, const QStringList& second) {
    KeywordList list;
    list.SplitWords(QString(first.join(u' ') + u' '));
    list.SplitWords(QString(second.join(u' ') + u' '));
    return listCounts(list);
}

quint32 nextRandom(quint32& seed) {
    seed = seed * 1103515245u + 12345u;
    return seed >> 16;
}

} // namespace

// The one-pass count must give exactly what the scan gives: for words that share long stems
// (beyond the twelve characters the sort looks at first), for many short words over a few
// letters, and for a second text counted into a list that is already sorted.
TEST(KeywordList, AgreesWithAPlainScanOfTheList) {
    const QString z60(60, u'z');
    const QStringList stems =
        u"pro Prog program programs PROGRAMMER p edit Editor editing abcdefghijklmn abcdefghijkl "
        u"ABCDEFGHIJKLMNOP abcdefghijklmxq abcdefghijklmyqq"_s.split(u' ')
        << z60 << z60 + u'y' << QString(55, u'z');
    quint32 seed = 7;
    QStringList fromStems;
    QStringList moreStems;
    QStringList shortWords;
    QStringList moreShortWords;
    for (int i = 0; i < 3000; ++i)
        fromStems << stems[int(nextRandom(seed) % stems.size())];
    for (int i = 0; i < 500; ++i)
        moreStems << stems[int(nextRandom(seed) % stems.size())];
    const QString letters = u"xyuXY\u00e9\u00c9\u03a9\u0174"_s;
    for (QStringList* words : {&shortWords, &moreShortWords})
        for (int i = 0; i < 3000; ++i) {
            QString w;
            for (quint32 n = 1 + nextRandom(seed) % 14; n > 0; --n)
                w += letters[int(nextRandom(seed) % letters.size())];
            *words << w;
        }
    EXPECT_EQ(splitCounts(fromStems, {}), plainCounts(fromStems, {}));
    EXPECT_EQ(splitCounts(fromStems, moreStems), plainCounts(fromStems, moreStems));
    EXPECT_EQ(splitCounts(shortWords, {}), plainCounts(shortWords, {}));
    EXPECT_EQ(splitCounts(shortWords, moreShortWords), plainCounts(shortWords, moreShortWords));
}

// SplitWords over a text counts as CountWord over each of its pieces, cleaning included, and
// then sorts: with punctuation, stop words, rejected words, a piece longer than the batches
// SplitWords works in, and runs of blanks. Counting the text in parts gives the same.
TEST(KeywordList, SplittingCountsAsCountWordDoes) {
    const QStringList parts =
        u"Soft.|software|SOFT|the|(free)|free!|win32|\u00a9Tools|tools\r\n|\u00c9t\u00e9|"
        u"\u00e9T\u00c9||don't|a\tb"_s.split(u'|');
    quint32 seed = 11;
    QString text;
    for (int i = 0; i < 5000; ++i) {
        text += parts[int(nextRandom(seed) % parts.size())] + u' ';
        if (i == 2500)
            text += QString(9000, u'q') + u" "_s + QString(9001, u'Q') + u' ';
    }
    KeywordList split;
    split.SplitWords(text);
    KeywordList oneByOne;
    for (const QString& piece : text.split(u' ').mid(0, text.count(u' ')))
        oneByOne.CountWord(piece);
    oneByOne.sortByColumn(1);
    EXPECT_EQ(listCounts(split), listCounts(oneByOne));
    EXPECT_GT(split.size(), 8);

    // The same text in parts of 1 to 200 characters, cut anywhere, pieces included.
    KeywordList inParts;
    KeywordCounting counting(inParts, std::size_t(text.size()));
    for (qsizetype at = 0; at < text.size();) {
        const qsizetype n = std::min<qsizetype>(1 + nextRandom(seed) % 200, text.size() - at);
        counting.add(QStringView(text).sliced(at, n));
        at += n;
    }
    counting.finish();
    EXPECT_EQ(listCounts(inParts), listCounts(split));
}
