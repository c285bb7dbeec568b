#pragma once

#include "keywords/KeywordEntry.h"

#include <QObject>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace brevaro {

class HttpTransfer;
class KeywordList;

// The keyword suggester without its window: fetches the home page, counts its words, ticks
// the frequent ones and builds the keywords text that OK copies into the main window.
class KeywordSuggester : public QObject {
    Q_OBJECT
public:
    explicit KeywordSuggester(HttpTransfer& http, QObject* parent = nullptr);
    // For a program: the caption names it and the address box holds its home page.
    KeywordSuggester(const QString& programName, const QString& homePage, HttpTransfer& http,
                     QObject* parent = nullptr);
    ~KeywordSuggester() override;

    QString caption;
    QString url;
    QString keywords;
    QString status;
    // Bytes received by the running or last fetch, for a progress display.
    qint64 bytesReceived = 0;
    static QString instructions();

    // The counted words in list order; ticking one; sorting by a column header (0 the word,
    // 1 the count).
    std::vector<KeywordEntry> entries() const;
    int entryCount() const;
    void setTicked(int index, bool ticked);
    void sortByColumn(int column);
    // The list itself, for the keyword code and its tests.
    KeywordList& list() { return *m_list; }
    const QString& receiveBuffer() const { return m_buffer; }

    // Check Homepage: fetch url, count, tick, rebuild.
    void checkHomepage();
    // The same over a page already at hand.
    void checkPage(const QString& page);
    // The same over a page file (decoded as a fetched page without a charset header), read
    // by the rules for a download; false with a one-line reason in *error. The receive
    // buffer, which holds fetched pages, is left empty.
    bool checkPageFile(const QString& path, QString* error);
    void rebuild();
    // Runs now and then while counting, so a window stays responsive.
    std::function<void()> pump;
    // OK: the text for the keywords box, or nothing when it is blank.
    std::optional<QString> accept() const;
    // Cancel: stops a running fetch; what it received is then not counted.
    void cancel();

signals:
    void changed();

private:
    void simpleText(const QString& text);
    void count();
    void count(QStringView text);

    HttpTransfer& m_http;
    std::unique_ptr<KeywordList> m_list;
    QString m_buffer;
    bool m_cancelled = false;
};

} // namespace brevaro
