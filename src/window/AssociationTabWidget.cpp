#include "window/AssociationTabWidget.h"

#include "controls/ControlTable.h"

#include "window/ControlBindingView.h"
#include "window/LinkLabelWidget.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

namespace brevaro {

AssociationTabWidget::AssociationTabWidget(ControlBindingView& view, int extension, QWidget* parent)
    : FormPageWidget(view, 5 + extension, parent) {
    static const char* const activators[] = {"chkASPactivate", "chkESCactivate", "chkMSNactivate",
                                             "chkTPAactivate"};
    static const char* const members[] = {"Frame15", "Frame16", "Frame17", "Frame18"};

    auto* column = new QVBoxLayout(this);
    if (auto* title = qobject_cast<QLabel*>(control(u"lblExtensionTitle", extension))) {
        QFont f = title->font();
        f.setBold(true);
        f.setPointSizeF(f.pointSizeF() * 1.25);
        title->setFont(f);
        title->setWordWrap(true);
        column->addWidget(title);
    }
    column->addWidget(control(QString::fromLatin1(activators[extension])));
    column->addWidget(frame(QLatin1String(members[extension])));
    // The organisation's frame on this tab, if the extension has one.
    int k = -1;
    for (const ControlRow& r : mainWindowControls())
        if (r.name == QLatin1String("frmOrganization") && r.placeIndex == 5 + extension)
            k = r.index;
    if (k >= 0) {
        QGroupBox* box = qobject_cast<QGroupBox*>(control(u"frmOrganization", k));
        auto* inside = new QHBoxLayout(box);
        auto* texts = new QVBoxLayout;
        auto* info = qobject_cast<QLabel*>(control(u"lblOrganizationInfo", k));
        info->setWordWrap(true);
        texts->addWidget(info);
        auto* link = qobject_cast<LinkLabelWidget*>(control(u"lblOrganization", k));
        link->setPointSize(12);
        texts->addWidget(link);
        inside->addLayout(texts, 1);
        if (k == 0) {
            auto* logo = qobject_cast<QToolButton*>(control(u"picASP", 0));
            logo->setIconSize(QSize(96, 40));
            inside->addWidget(logo, 0, Qt::AlignTop);
        }
        column->addWidget(box);
    }
    column->addStretch();
}

} // namespace brevaro
