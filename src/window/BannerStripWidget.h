#pragma once

#include <QWidget>

class QLabel;
class QMovie;

namespace brevaro {

class BannerRotation;
class ControlBindingView;

// The strip across the top: the next-banner button and the animated banner the rotation
// shows (hidden when there is no banner data), then the product's and the maker's logos.
class BannerStripWidget : public QWidget {
    Q_OBJECT
public:
    BannerStripWidget(ControlBindingView& view, BannerRotation& rotation,
                      QWidget* parent = nullptr);

    // The file of the banner on screen, empty when none is.
    QString shownImage() const { return m_shown; }

private:
    void showRotation();

    ControlBindingView& m_view;
    BannerRotation& m_rotation;
    QLabel* m_banner;
    QWidget* m_next;
    QMovie* m_movie = nullptr;
    QString m_shown;
};

} // namespace brevaro
