#pragma once

#include <QList>
#include <QWidget>

class QLabel;
class QMovie;

namespace brevaro {

class BannerRotation;
class ControlBindingView;

// The strip across the top: the next-banner button and the animated banner the rotation
// shows (hidden when there is no banner data), then the product's and the maker's logos. The
// strip never widens the window: what does not fit its width is left out, the maker's logo
// first, then the product's, then the banner.
class BannerStripWidget : public QWidget {
    Q_OBJECT
public:
    BannerStripWidget(ControlBindingView& view, BannerRotation& rotation,
                      QWidget* parent = nullptr);

    // The file of the banner on screen, empty when none is.
    QString shownImage() const { return m_shown; }

    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void showRotation();
    // Shows the parts that fit the strip's width, in order of importance.
    void fitToWidth();

    ControlBindingView& m_view;
    BannerRotation& m_rotation;
    QLabel* m_banner;
    QWidget* m_next;
    QList<QWidget*> m_logos;
    QMovie* m_movie = nullptr;
    QString m_shown;
};

} // namespace brevaro
