#include "window/BannerStripWidget.h"

#include "session/BannerRotation.h"
#include "window/ControlBindingView.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMovie>
#include <QToolButton>

namespace brevaro {

BannerStripWidget::BannerStripWidget(ControlBindingView& view, BannerRotation& rotation,
                                     QWidget* parent)
    : QWidget(parent)
    , m_view(view)
    , m_rotation(rotation) {
    setObjectName(QStringLiteral("picTop"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(4, 2, 4, 2);
    m_next = view.widget(u"picClickNextBanner");
    m_banner = qobject_cast<QLabel*>(view.widget(u"AniGifEx1"));
    // A banner is 468 by 60 pixels; the strip keeps that height whether one shows or not.
    m_banner->setFixedSize(468, 60);
    m_banner->setScaledContents(true);
    qobject_cast<QToolButton*>(m_next)->setIconSize(QSize(24, 48));
    row->addWidget(m_next);
    row->addWidget(m_banner);
    row->addStretch();
    for (auto name : {u"picBrevaro", u"picQuorin"}) {
        auto* logo = qobject_cast<QToolButton*>(view.widget(name));
        logo->setIconSize(QSize(120, 48));
        logo->setCursor(Qt::PointingHandCursor);
        row->addWidget(logo);
        m_logos << logo;
    }
    setMinimumHeight(64);
    connect(&rotation, &BannerRotation::changed, this, &BannerStripWidget::showRotation);
    showRotation();
}

void BannerStripWidget::showRotation() {
    const bool visible = m_rotation.imageVisible && !m_rotation.imagePath.isEmpty();
    m_next->setToolTip(m_rotation.nextButtonToolTip);
    m_banner->setToolTip(m_rotation.toolTip);
    fitToWidth();
    if (!visible || m_rotation.imagePath == m_shown)
        return;
    m_shown = m_rotation.imagePath;
    if (m_movie)
        m_movie->deleteLater();
    m_movie = new QMovie(m_shown, QByteArray(), this);
    m_banner->setMovie(m_movie);
    m_movie->start();
}

QSize BannerStripWidget::minimumSizeHint() const {
    return {0, minimumHeight()};
}

void BannerStripWidget::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    fitToWidth();
}

void BannerStripWidget::fitToWidth() {
    const QMargins margins = layout()->contentsMargins();
    const int spacing = layout()->spacing();
    int room = width() - margins.left() - margins.right();
    auto fits = [&room, spacing](int wanted) {
        if (wanted > room)
            return false;
        room -= wanted + spacing;
        return true;
    };
    const bool banner = m_rotation.imageVisible && !m_rotation.imagePath.isEmpty();
    const int next = m_rotation.nextButtonVisible ? m_next->sizeHint().width() + spacing : 0;
    const int wanted = next + (banner ? m_banner->width() : 0);
    const bool bannerFits = wanted == 0 || fits(wanted);
    m_next->setVisible(m_rotation.nextButtonVisible && bannerFits);
    m_banner->setVisible(banner && bannerFits);
    for (QWidget* logo : m_logos)
        logo->setVisible(fits(logo->sizeHint().width()));
}

} // namespace brevaro
