#include "window/DeferredIcon.h"

#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

using namespace brevaro;
using namespace Qt::StringLiterals;

namespace {

QImage painted(const QIcon& icon, const QSize& size, QIcon::Mode mode) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    icon.paint(&painter, image.rect(), Qt::AlignCenter, mode);
    return image;
}

} // namespace

// A deferred icon draws what the icon read at once draws: at every size, in every mode, and on
// a screen of twice the density.
TEST(DeferredIcon, DrawsAsTheIconItStandsFor) {
    for (const QString& path : {u":/icons/new-company.svg"_s, u":/icons/brevaro.svg"_s}) {
        const QIcon now(path);
        const QIcon later = deferredIcon(path);
        ASSERT_FALSE(later.isNull());
        for (const QSize size : {QSize(16, 16), QSize(24, 24), QSize(64, 48)})
            for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Disabled, QIcon::Active}) {
                EXPECT_EQ(later.pixmap(size, mode).toImage(), now.pixmap(size, mode).toImage())
                    << qPrintable(path) << " " << size.width();
                EXPECT_EQ(later.pixmap(size, 2.0, mode).toImage(),
                          now.pixmap(size, 2.0, mode).toImage());
                EXPECT_EQ(painted(later, size, mode), painted(now, size, mode));
            }
        EXPECT_EQ(later.actualSize(QSize(32, 32)), now.actualSize(QSize(32, 32)));
    }
    // A picture that is not there draws nothing, as an icon of it would.
    EXPECT_TRUE(deferredIcon(u":/icons/none.svg"_s).pixmap(16, 16).isNull());
}

// The style's icons, deferred or not, draw as the style draws them; an icon the style does
// not have stays empty.
TEST(DeferredIcon, TheStyleIconsDrawAsTheStyleDrawsThem) {
    DeferringStyle style;
    for (const QStyle::StandardPixmap icon :
         {QStyle::SP_ToolBarHorizontalExtensionButton, QStyle::SP_ToolBarVerticalExtensionButton,
          QStyle::SP_MessageBoxWarning, QStyle::SP_DialogOkButton, QStyle::SP_ArrowRight})
        for (const int side : {16, 32})
            EXPECT_EQ(style.standardIcon(icon).pixmap(side, side).toImage(),
                      style.baseStyle()->standardIcon(icon).pixmap(side, side).toImage())
                << static_cast<int>(icon);
    EXPECT_EQ(style.standardIcon(QStyle::SP_CustomBase).isNull(),
              style.baseStyle()->standardIcon(QStyle::SP_CustomBase).isNull());
}
