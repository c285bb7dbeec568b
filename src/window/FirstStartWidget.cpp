#include "window/FirstStartWidget.h"

#include "window/ControlBindingView.h"
#include "window/ParagraphLabel.h"

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace brevaro {

namespace {

// A button that runs a command's action, enabled with it.
QPushButton* commandButton(ControlBindingView& view, ControlAction action, const QString& text,
                           const char* name) {
    auto* button = new QPushButton(text);
    button->setObjectName(QLatin1String(name));
    if (QAction* command = view.command(action)) {
        QObject::connect(button, &QPushButton::clicked, command, &QAction::trigger);
        QObject::connect(command, &QAction::changed, button,
                         [button, command] { button->setEnabled(command->isEnabled()); });
        button->setEnabled(command->isEnabled());
    }
    return button;
}

} // namespace

FirstStartWidget::FirstStartWidget(ControlBindingView& view, QWidget* parent)
    : QWidget(parent) {
    setObjectName(QStringLiteral("frmFirstStart"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(24, 24, 24, 24);
    auto* title = new QLabel(QStringLiteral("Welcome to Brevaro"));
    title->setObjectName(QStringLiteral("lblFirstStartTitle"));
    // Larger, in the regular weight: a bold face would be the only one in the window, and
    // loading it (its file and its fallback fonts) delays the first picture by a millisecond
    // or two.
    QFont big = title->font();
    big.setPointSizeF(big.pointSizeF() * 1.4);
    title->setFont(big);
    auto* text = new ParagraphLabel(
        QStringLiteral("Brevaro keeps your company and your programs and writes their PAD "
                       "files.\n\nStart with your company: press New Company and enter its "
                       "name (or your own name if you publish as a private author).\n\nIf you "
                       "already have a PAD file, import it instead: its company and its program "
                       "are created for you."));
    text->setObjectName(QStringLiteral("lblFirstStart"));
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(commandButton(view, ControlAction::NewCompany,
                                     QStringLiteral("Create your &company"), "cmdFirstCompany"));
    buttons->addWidget(commandButton(view, ControlAction::ImportPAD,
                                     QStringLiteral("&Import a PAD file"), "cmdFirstImport"));
    buttons->addStretch();
    column->addWidget(title);
    column->addSpacing(8);
    column->addWidget(text);
    column->addSpacing(16);
    column->addLayout(buttons);
    column->addStretch();
}

} // namespace brevaro
