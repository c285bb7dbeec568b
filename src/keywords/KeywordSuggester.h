#pragma once

#include "keywords/KeywordList.h"

#include <QObject>

namespace brevaro {

class EditingSession;
class HttpTransfer;

// The keyword suggester without its window: fetches the home page, counts its words, ticks
// the frequent ones and builds the keywords text that OK copies into the main window.
class KeywordSuggester : public QObject {
    Q_OBJECT
public:
    // Takes the program name and home page from the main window's session.
    KeywordSuggester(EditingSession& session, HttpTransfer& http, QObject* parent = nullptr);
    // Without a main window (the command line).
    explicit KeywordSuggester(HttpTransfer& http, QObject* parent = nullptr);

    QString caption;
    QString url;
    QString keywords;
    QString status;
    static QString instructions();

    KeywordList& list() { return m_list; }
    const QString& receiveBuffer() const { return m_buffer; }

    // Check Homepage: fetch url, count, tick, rebuild.
    void checkHomepage();
    // The same over a page already at hand.
    void checkPage(const QString& page);
    void rebuild();
    // OK: the selected language's keywords box gets the text, unless it is blank.
    void accept();
    // Cancel: stops a running fetch.
    void cancel();

signals:
    void changed();

private:
    void simpleText(const QString& text);
    void count();

    EditingSession* m_session = nullptr;
    HttpTransfer& m_http;
    KeywordList m_list;
    QString m_buffer;
};

} // namespace brevaro
