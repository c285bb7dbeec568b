#include "window/AboutDialog.h"

#include "AppVersion.h"
#include "platform/Prompts.h"
#include "platform/WebAddresses.h"

#include <QDate>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace brevaro {

namespace {

QToolButton* logo(const char* name, const char* icon, const QString& tip, QSize size) {
    auto* b = new QToolButton;
    b->setObjectName(QLatin1String(name));
    b->setIcon(QIcon(QStringLiteral(":/icons/") + QLatin1String(icon)));
    b->setIconSize(size);
    b->setAutoRaise(true);
    b->setCursor(Qt::PointingHandCursor);
    b->setToolTip(tip);
    b->setAccessibleName(tip);
    return b;
}

QLabel* label(const char* name, const QString& text) {
    auto* l = new QLabel(text);
    l->setObjectName(QLatin1String(name));
    return l;
}

} // namespace

AboutDialog::AboutDialog(Prompts& prompts, QWidget* parent)
    : QDialog(parent) {
    setObjectName(QStringLiteral("frmAbout"));
    const QString title = QLatin1String(kAppTitle);
    setWindowTitle(QStringLiteral("About: ") + title);
    if (parent)
        setWindowIcon(parent->windowIcon());

    auto* version = label("lblVersion", QStringLiteral("Version ") + versionText());
    QFont big = version->font();
    big.setBold(true);
    big.setPointSizeF(big.pointSizeF() * 1.3);
    version->setFont(big);
    auto* info1 = label("lblInfo1", QStringLiteral("With ") + title +
                                        QStringLiteral(" you can create\nand manage PAD files for "
                                                       "your\nsoftware for easy submitting\nto "
                                                       "download directories."));
    auto* info2 = label("lblInfo2", QStringLiteral("It's Freeware, use it as much as you want\nand "
                                                   "you can give it to your friends also!"));
    auto* copyright = label("lblCopyright", copyrightLine() + u'\n' + makerServer());
    copyright->setTextInteractionFlags(Qt::TextSelectableByMouse);

    auto* homepage = new QPushButton(QStringLiteral("&Homepage"));
    homepage->setObjectName(QStringLiteral("cmdHomepage"));
    auto* exit = new QPushButton(QStringLiteral("E&xit"));
    exit->setObjectName(QStringLiteral("cmdExit"));
    exit->setDefault(true);
    auto* asp = logo("picASP", "logo-asp.svg",
                     QStringLiteral("Association of Shareware Professionals"), QSize(96, 40));
    auto* maker = logo("picQuorin", "logo-quorin.svg", QStringLiteral("Quorin"), QSize(120, 48));
    auto* picture = new QLabel;
    picture->setObjectName(QStringLiteral("picRight"));
    picture->setPixmap(QIcon(QStringLiteral(":/icons/brevaro.svg")).pixmap(QSize(96, 96)));
    picture->setAlignment(Qt::AlignTop | Qt::AlignHCenter);

    connect(homepage, &QPushButton::clicked, this,
            [&prompts] { prompts.openDocument(productSite()); });
    connect(exit, &QPushButton::clicked, this, &QDialog::accept);
    connect(asp, &QToolButton::clicked, this,
            [&prompts] { prompts.openDocument(organizationSite(0)); });
    connect(maker, &QToolButton::clicked, this,
            [&prompts] { prompts.openDocument(makerServer()); });

    auto* texts = new QVBoxLayout;
    texts->addWidget(label("lblTitle", title));
    texts->itemAt(0)->widget()->setFont(big);
    texts->addWidget(version);
    texts->addSpacing(8);
    texts->addWidget(info1);
    texts->addSpacing(8);
    texts->addWidget(info2);
    texts->addSpacing(8);
    texts->addWidget(copyright);
    texts->addStretch();
    auto* top = new QHBoxLayout;
    top->addLayout(texts, 1);
    top->addWidget(picture);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(asp);
    buttons->addWidget(maker);
    buttons->addStretch();
    buttons->addWidget(homepage);
    buttons->addWidget(exit);
    auto* column = new QVBoxLayout(this);
    column->addLayout(top);
    column->addLayout(buttons);
}

} // namespace brevaro
