#include "platform/TextFiles.h"

#include "platform/StringHelpers.h"
#include "platform/Win1252.h"

#include <QFile>
#include <QSaveFile>

namespace brevaro {

namespace {

FileDialogRequest textFileDialog(const QString& initialFolder) {
    return {QString(), QStringLiteral("txt"), initialFolder,
            QStringLiteral("Text File(s) (*.txt)|*.txt|All File(s) (*.*)|*.*")};
}

} // namespace

QString linesWithCrLf(QStringView all) {
    QString out;
    out.reserve(all.size() + all.size() / 16);
    qsizetype start = 0;
    const qsizetype n = all.size();
    while (start < n) {
        qsizetype end = start;
        while (end < n && all[end] != u'\r' && all[end] != u'\n')
            ++end;
        out += all.sliced(start, end - start);
        out += QStringLiteral("\r\n");
        if (end < n && all[end] == u'\r' && end + 1 < n && all[end + 1] == u'\n')
            ++end;
        start = end + 1;
    }
    return out;
}

QString readTextLines(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QString();
    return linesWithCrLf(fromWin1252(file.readAll()));
}

bool writeTextWithLineEnd(const QString& path, const QString& text) {
    QSaveFile file(path);
    const QByteArray bytes = toWin1252(QString(text + QStringLiteral("\r\n")));
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
}

QString ReadTextFileDialog(Prompts& prompts, const QString& initialFolder) {
    const auto chosen = prompts.openFile(textFileDialog(initialFolder));
    if (!chosen || chosen->isEmpty())
        return QString();
    return readTextLines(*chosen);
}

void WriteTextFileDialog(Prompts& prompts, const QString& initialFolder, const QString& text) {
    if (trimBlanks(text).isEmpty())
        return;
    const auto chosen = prompts.saveFile(textFileDialog(initialFolder));
    if (!chosen || chosen->isEmpty())
        return;
    if (!writeTextWithLineEnd(*chosen, text))
        prompts.message(QStringLiteral("Save"),
                        QStringLiteral("The file %1 could not be written.").arg(*chosen));
}

} // namespace brevaro
