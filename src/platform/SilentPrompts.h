#pragma once

#include "platform/Prompts.h"

namespace brevaro {

// Answers every question the same way without showing anything, and keeps nothing: for
// tools that drive the window's code unattended (pictures, benchmarks, fuzzing).
class SilentPrompts : public Prompts {
public:
    explicit SilentPrompts(bool answerYes = false)
        : m_yes(answerYes) {}
    bool askYesNo(const QString&, const QString&, Icon, Default) override { return m_yes; }
    std::optional<QString> inputBox(const QString&, const QString&, const QString&) override {
        return std::nullopt;
    }
    std::optional<QString> openFile(const FileDialogRequest&) override { return std::nullopt; }
    std::optional<QString> saveFile(const FileDialogRequest&) override { return std::nullopt; }
    void message(const QString&, const QString&) override {}
    void beep() override {}
    QString clipboardText() override { return QString(); }
    void setClipboardText(const QString&) override {}
    void openDocument(const QString&) override {}
    void pumpEvents() override {}

private:
    bool m_yes;
};

} // namespace brevaro
