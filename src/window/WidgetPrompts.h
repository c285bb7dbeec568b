#pragma once

#include "platform/Prompts.h"

#include <QPointer>
#include <QWidget>

namespace brevaro {

// The desktop's answers to Prompts: message and input boxes, file dialogs, the beep, the
// clipboard and the desktop's opening of documents and web addresses.
class WidgetPrompts : public Prompts {
public:
    // The window the boxes belong to (set once it exists).
    void setParentWindow(QWidget* window) { m_parent = window; }

    bool askYesNo(const QString& title, const QString& text, Icon icon, Default answer) override;
    std::optional<QString> inputBox(const QString& prompt, const QString& title,
                                    const QString& defaultText) override;
    std::optional<QString> openFile(const FileDialogRequest& dialog) override;
    std::optional<QString> saveFile(const FileDialogRequest& dialog) override;
    void message(const QString& title, const QString& text) override;
    void beep() override;
    QString clipboardText() override;
    void setClipboardText(const QString& text) override;
    void openDocument(const QString& target) override;
    void pumpEvents() override;

    // "Name|*.ext|Name|*.ext" as a file dialog's name filters.
    static QStringList nameFilters(const QString& filter);
    // What a document or address text opens: local paths as file addresses.
    static QUrl documentUrl(const QString& target);

private:
    std::optional<QString> fileDialog(const FileDialogRequest& dialog, bool save);

    QPointer<QWidget> m_parent;
};

} // namespace brevaro
