#include "window/WidgetPrompts.h"

#include "AppVersion.h"

#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QUrl>

namespace brevaro {

namespace {

// A question that only Yes or No answers: Escape and the title bar's close do nothing, so a
// user backing out of a save prompt never discards work by accident.
class AnswerRequired : public QObject {
public:
    explicit AnswerRequired(QMessageBox& box)
        : QObject(&box)
        , m_box(box) {}
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::KeyPress &&
            static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape)
            return true;
        if (event->type() == QEvent::Close && !m_box.clickedButton()) {
            event->ignore();
            return true;
        }
        return false;
    }

private:
    QMessageBox& m_box;
};

} // namespace

bool WidgetPrompts::askYesNo(const QString& title, const QString& text, Icon icon, Default answer) {
    QMessageBox box(m_parent);
    box.setWindowTitle(title);
    box.setText(text);
    switch (icon) {
    case Icon::Question:
        box.setIcon(QMessageBox::Question);
        break;
    case Icon::Stop:
        box.setIcon(QMessageBox::Critical);
        break;
    case Icon::Information:
        box.setIcon(QMessageBox::Information);
        break;
    case Icon::None:
        break;
    }
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    box.setDefaultButton(answer == Default::No ? QMessageBox::No : QMessageBox::Yes);
    box.installEventFilter(new AnswerRequired(box));
    return box.exec() == QMessageBox::Yes;
}

std::optional<QString> WidgetPrompts::inputBox(const QString& prompt, const QString& title,
                                               const QString& defaultText) {
    QInputDialog box(m_parent);
    box.setWindowTitle(title);
    box.setLabelText(prompt);
    box.setTextValue(defaultText);
    box.resize(std::max(box.sizeHint().width(), 420), box.sizeHint().height());
    if (box.exec() != QDialog::Accepted)
        return std::nullopt;
    return box.textValue();
}

QStringList WidgetPrompts::nameFilters(const QString& filter) {
    const QStringList parts = filter.split(u'|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QString patterns = parts[i + 1];
        patterns.replace(u';', u' ');
        // "*.*" means every file, also one without a dot in its name.
        patterns.replace(QStringLiteral("*.*"), QStringLiteral("*"));
        QString name = parts[i];
        if (const qsizetype open = name.lastIndexOf(u'('); open > 0 && name.endsWith(u')'))
            name = name.left(open).trimmed();
        filters << name + QStringLiteral(" (") + patterns + u')';
    }
    return filters;
}

QUrl WidgetPrompts::documentUrl(const QString& target) {
    const QString t = target.trimmed();
    if (t.isEmpty())
        return QUrl();
    if (QDir::isAbsolutePath(t) || QFileInfo::exists(t))
        return QUrl::fromLocalFile(QFileInfo(t).absoluteFilePath());
    return QUrl::fromUserInput(t);
}

std::optional<QString> WidgetPrompts::fileDialog(const FileDialogRequest& request, bool save) {
    QFileDialog dialog(m_parent);
    dialog.setAcceptMode(save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialog.setNameFilters(nameFilters(request.filter));
    if (!request.defaultExtension.isEmpty())
        dialog.setDefaultSuffix(request.defaultExtension);
    if (!request.initialFolder.isEmpty())
        dialog.setDirectory(request.initialFolder);
    if (!request.fileName.isEmpty())
        dialog.selectFile(request.fileName);
    // A save asks before it replaces a file (the dialog's own question).
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return QDir::toNativeSeparators(dialog.selectedFiles().constFirst());
}

std::optional<QString> WidgetPrompts::openFile(const FileDialogRequest& dialog) {
    return fileDialog(dialog, false);
}

std::optional<QString> WidgetPrompts::saveFile(const FileDialogRequest& dialog) {
    return fileDialog(dialog, true);
}

void WidgetPrompts::message(const QString& title, const QString& text) {
    QMessageBox::information(m_parent, title, text);
}

void WidgetPrompts::beep() {
    QApplication::beep();
}

QString WidgetPrompts::clipboardText() {
    return QApplication::clipboard()->text();
}

void WidgetPrompts::setClipboardText(const QString& text) {
    QApplication::clipboard()->setText(text);
}

void WidgetPrompts::openDocument(const QString& target) {
    const QUrl url = documentUrl(target);
    if (!url.isValid() || url.isEmpty() || QDesktopServices::openUrl(url))
        return;
    // No program is set up to open it: say so, and offer what to copy.
    const QString shown =
        url.isLocalFile() ? QDir::toNativeSeparators(url.toLocalFile()) : url.toString();
    QMessageBox box(m_parent);
    box.setObjectName(QStringLiteral("msgCannotOpen"));
    box.setWindowTitle(QLatin1String(kAppTitle));
    box.setIcon(QMessageBox::Information);
    box.setText((url.isLocalFile() ? QStringLiteral("No program on this computer is set up to "
                                                    "open this file:")
                                   : QStringLiteral("No web browser is set up on this computer "
                                                    "to open this address:")) +
                QStringLiteral("\n\n") + shown);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse);
    QPushButton* copy = box.addButton(QStringLiteral("&Copy"), QMessageBox::ActionRole);
    box.addButton(QMessageBox::Close);
    box.exec();
    if (box.clickedButton() == copy)
        QApplication::clipboard()->setText(shown);
}

void WidgetPrompts::pumpEvents() {
    QApplication::processEvents(QEventLoop::AllEvents, 50);
}

} // namespace brevaro
