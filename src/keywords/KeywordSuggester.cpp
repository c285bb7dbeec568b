#include "keywords/KeywordSuggester.h"

#include "keywords/KeywordList.h"

#include "platform/FileHelpers.h"
#include "platform/HttpTransfer.h"
#include "platform/StringHelpers.h"

namespace brevaro {

KeywordSuggester::KeywordSuggester(HttpTransfer& http, QObject* parent)
    : QObject(parent)
    , m_http(http)
    , m_list(std::make_unique<KeywordList>()) {
    connect(&m_http, &HttpTransfer::connected, this,
            [this] { simpleText(QStringLiteral("Connected, Wait ...")); });
    connect(&m_http, &HttpTransfer::transferStarted, this,
            [this] { simpleText(QStringLiteral("Transfer Started ...")); });
    connect(&m_http, &HttpTransfer::dataReceived, this,
            [this](int, qint64 bytes, const QString& chunk) {
                bytesReceived += bytes;
                m_buffer += chunk;
                simpleText(chunk.left(200));
            });
    connect(&m_http, &HttpTransfer::transferEnded, this,
            [this] { simpleText(QStringLiteral("Transfer Ended ...")); });
    connect(&m_http, &HttpTransfer::disconnected, this,
            [this] { simpleText(QStringLiteral("Disconnected, Done ...")); });
}

KeywordSuggester::KeywordSuggester(const QString& programName, const QString& homePage,
                                   HttpTransfer& http, QObject* parent)
    : KeywordSuggester(http, parent) {
    caption = QStringLiteral("Suggesting Keywords for: ") + programName;
    url = homePage;
}

KeywordSuggester::~KeywordSuggester() = default;

std::vector<KeywordEntry> KeywordSuggester::entries() const {
    return m_list->entries();
}

int KeywordSuggester::entryCount() const {
    return m_list->size();
}

void KeywordSuggester::setTicked(int index, bool ticked) {
    m_list->setTicked(index, ticked);
}

void KeywordSuggester::sortByColumn(int column) {
    m_list->sortByColumn(column);
}

QString KeywordSuggester::instructions() {
    return QStringLiteral(
        "1. Check Homepage\r\n\r\n2. Most common words are\r\n     suggested for keywords.\r\n\r\n"
        "3. You select in the list the\r\n     words you want to use\r\n\r\n"
        "4. Click Re-Build Keywords\r\n\r\n5. Click OK to copy to\r\n     product page\r\n");
}

void KeywordSuggester::simpleText(const QString& text) {
    status = text;
    emit changed();
}

void KeywordSuggester::checkHomepage() {
    m_list->clear();
    m_buffer.clear();
    m_cancelled = false;
    bytesReceived = 0;
    m_http.reset();
    m_http.setUrl(url);
    m_http.fetch();
    if (m_cancelled)
        return;
    count();
    // A failed fetch says what failed after the transfer's own texts.
    if (!m_http.errorString().isEmpty())
        simpleText(status + QStringLiteral(" The home page could not be fetched: ") +
                   m_http.errorString());
}

void KeywordSuggester::checkPage(const QString& page) {
    m_list->clear();
    m_buffer = page;
    count();
}

bool KeywordSuggester::checkPageFile(const QString& path, QString* error) {
    ByteBlock bytes;
    if (!readRegularFile(path, HttpTransfer::kMaxBytes, &bytes, error))
        return false;
    m_list->clear();
    m_buffer.clear();
    KeywordCounting counting(*m_list, bytes.size());
    decodePageInParts(QByteArrayView(bytes.data(), qsizetype(bytes.size())), QString(),
                      [&](QStringView part) { counting.add(part, pump); });
    counting.finish();
    if (pump)
        pump();
    m_list->CheckFrequentWords();
    rebuild();
    return true;
}

void KeywordSuggester::count() {
    count(m_buffer);
}

void KeywordSuggester::count(QStringView text) {
    m_list->SplitWords(text, pump);
    m_list->CheckFrequentWords();
    rebuild();
}

void KeywordSuggester::rebuild() {
    keywords = m_list->RebuildKeywords(keywords);
    emit changed();
}

std::optional<QString> KeywordSuggester::accept() const {
    if (trimBlanks(keywords).isEmpty())
        return std::nullopt;
    return keywords;
}

void KeywordSuggester::cancel() {
    m_cancelled = true;
    m_http.stop();
}

} // namespace brevaro
