#pragma once

#include <QString>
#include <optional>

namespace brevaro {

// The settings of an open or save file dialog.
struct FileDialogRequest {
    QString fileName;
    QString defaultExtension;
    QString initialFolder;
    QString filter; // "Text File(s) (*.txt)|*.txt|All File(s) (*.*)|*.*"
};

// Everything that asks the user or touches the desktop. The window answers with real
// dialogs, tests with a script, the command-line tool without asking.
class Prompts {
public:
    enum class Icon { None, Question, Stop, Information };
    // The answer Enter gives: Yes, or No where a Yes would lose data (a deletion).
    enum class Default { Yes, No };

    virtual ~Prompts() = default;
    // Yes/No message box; true for Yes.
    virtual bool askYesNo(const QString& title, const QString& text, Icon icon,
                          Default answer = Default::Yes) = 0;
    // Input box; nothing when cancelled.
    virtual std::optional<QString> inputBox(const QString& prompt, const QString& title,
                                            const QString& defaultText) = 0;
    // File dialogs; nothing when cancelled.
    virtual std::optional<QString> openFile(const FileDialogRequest& dialog) = 0;
    virtual std::optional<QString> saveFile(const FileDialogRequest& dialog) = 0;
    virtual void message(const QString& title, const QString& text) = 0;
    virtual void beep() = 0;
    virtual QString clipboardText() = 0;
    virtual void setClipboardText(const QString& text) = 0;
    // Opens a web address or a file with the desktop's associated program.
    virtual void openDocument(const QString& target) = 0;
    // Lets pending window events run for a moment.
    virtual void pumpEvents() = 0;
};

} // namespace brevaro
