#include "window/ButtonBarWidget.h"

#include "controls/Mnemonics.h"
#include "window/ControlBindingView.h"

#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace brevaro {

ButtonBarWidget::ButtonBarWidget(ControlBindingView& view, QString& usedMnemonics, QWidget* parent)
    : QWidget(parent) {
    setObjectName(QStringLiteral("picLeft"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(4, 4, 4, 4);
    for (int id : view.ids()) {
        const ControlRow& r = view.row(id);
        if (r.place != Place::ButtonBar || !view.widget(id))
            continue;
        QWidget* w = view.widget(id);
        if (auto* b = qobject_cast<QPushButton*>(w)) {
            b->setText(withMnemonic(r.caption, usedMnemonics));
            b->setIconSize(QSize(20, 20));
            column->addWidget(b);
            // Company, program and PAD commands, New Release and Exit form five groups.
            if (r.index == 2 || r.index == 5 || r.index == 8 ||
                r.action == ControlAction::NewRelease)
                column->addSpacing(10);
        } else if (auto* t = qobject_cast<QToolButton*>(w)) {
            t->setIconSize(QSize(96, 40));
            column->addStretch();
            column->addWidget(t, 0, Qt::AlignHCenter);
        }
    }
    column->addStretch();
}

} // namespace brevaro
