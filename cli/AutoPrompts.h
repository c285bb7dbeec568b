#pragma once

#include "platform/Prompts.h"

#include <QStringList>

namespace brevaro::cli {

// Answers the session's questions the way a user who wants the change would: Yes to every
// question, the prepared text in an input box, the prepared file in a file dialog. Messages
// are kept so that the command can report them.
class AutoPrompts : public Prompts {
public:
    QString nextInput;
    QString nextFile;
    QStringList messages;
    QString clipboard;

    bool askYesNo(const QString&, const QString&, Icon, Default) override { return true; }
    std::optional<QString> inputBox(const QString&, const QString&, const QString&) override {
        return nextInput;
    }
    std::optional<QString> openFile(const FileDialogRequest&) override { return fileAnswer(); }
    std::optional<QString> saveFile(const FileDialogRequest&) override { return fileAnswer(); }
    void message(const QString&, const QString& text) override { messages << text; }
    void beep() override {}
    QString clipboardText() override { return clipboard; }
    void setClipboardText(const QString& text) override { clipboard = text; }
    void openDocument(const QString&) override {}
    void pumpEvents() override {}

private:
    std::optional<QString> fileAnswer() {
        if (nextFile.isEmpty())
            return std::nullopt;
        return nextFile;
    }
};

} // namespace brevaro::cli
