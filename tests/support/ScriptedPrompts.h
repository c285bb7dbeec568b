#pragma once

#include "platform/Prompts.h"

#include <QStringList>
#include <deque>
#include <gtest/gtest.h>

namespace brevaro::test {

// Answers the session's questions from a script and records everything it asked or did.
// A question without a scripted answer fails the test and is answered No / cancelled.
class ScriptedPrompts : public Prompts {
public:
    std::deque<bool> yesNo;
    std::deque<std::optional<QString>> inputs;
    std::deque<std::optional<QString>> files;
    QStringList asked; // "title|text" of every yes/no question, in order
    QStringList messages;
    QList<Default> defaults; // the default answer of every yes/no question, in order
    QStringList opened;      // documents and addresses
    QList<FileDialogRequest> dialogs;
    QString clipboard;
    int beeps = 0;
    int pumps = 0;
    std::function<void()> onPump;

    bool askYesNo(const QString& title, const QString& text, Icon, Default preset) override {
        asked << title + u'|' + text;
        defaults << preset;
        if (yesNo.empty()) {
            ADD_FAILURE() << "unexpected question: " << text.toStdString();
            return false;
        }
        const bool answer = yesNo.front();
        yesNo.pop_front();
        return answer;
    }
    std::optional<QString> inputBox(const QString& prompt, const QString& title,
                                    const QString&) override {
        asked << title + u'|' + prompt;
        return next(inputs, prompt);
    }
    std::optional<QString> openFile(const FileDialogRequest& dialog) override {
        dialogs << dialog;
        return next(files, QStringLiteral("open dialog"));
    }
    std::optional<QString> saveFile(const FileDialogRequest& dialog) override {
        dialogs << dialog;
        return next(files, QStringLiteral("save dialog"));
    }
    void message(const QString& title, const QString& text) override {
        messages << title + u'|' + text;
    }
    void beep() override { ++beeps; }
    QString clipboardText() override { return clipboard; }
    void setClipboardText(const QString& text) override { clipboard = text; }
    void openDocument(const QString& target) override { opened << target; }
    void pumpEvents() override {
        ++pumps;
        if (onPump)
            onPump();
    }

private:
    static std::optional<QString> next(std::deque<std::optional<QString>>& queue,
                                       const QString& what) {
        if (queue.empty()) {
            ADD_FAILURE() << "unexpected " << what.toStdString();
            return std::nullopt;
        }
        std::optional<QString> answer;
        answer.swap(queue.front());
        queue.pop_front();
        return answer;
    }
};

} // namespace brevaro::test
