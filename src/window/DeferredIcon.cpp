#include "window/DeferredIcon.h"

#include <QIconEngine>
#include <QPainter>
#include <QPointer>
#include <QWidget>
#include <functional>

namespace brevaro {

namespace {

class DeferredIconEngine : public QIconEngine {
public:
    explicit DeferredIconEngine(std::function<QIcon()> make)
        : m_make(std::move(make)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
               QIcon::State state) override {
        icon().paint(painter, rect, Qt::AlignCenter, mode, state);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return icon().pixmap(size, 1.0, mode, state);
    }
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state,
                         qreal scale) override {
        // size is in device pixels here; the icon asks for its size in the widget's units.
        return icon().pixmap((QSizeF(size) / scale).toSize(), scale, mode, state);
    }
    QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return icon().actualSize(size, mode, state);
    }
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override {
        return icon().availableSizes(mode, state);
    }
    QIconEngine* clone() const override { return new DeferredIconEngine(m_make); }
    QString key() const override { return QStringLiteral("brevaro-deferred"); }
    // Known without reading the picture: the icons deferred are the program's own, or the
    // style's, and are there.
    bool isNull() override { return !m_make; }

private:
    const QIcon& icon() {
        if (!m_read) {
            m_icon = m_make();
            m_read = true;
        }
        return m_icon;
    }

    std::function<QIcon()> m_make;
    QIcon m_icon;
    bool m_read = false;
};

} // namespace

QIcon deferredIcon(const QString& path) {
    return QIcon(new DeferredIconEngine([path] { return QIcon(path); }));
}

QIcon DeferringStyle::standardIcon(StandardPixmap icon, const QStyleOption* option,
                                   const QWidget* widget) const {
    // Only the overflow buttons' pictures, which the style always has (a deferred icon cannot
    // say it is empty before it is read); and an option says how to draw this once (its
    // direction, its state): that icon is made now.
    const bool overflow =
        icon == SP_ToolBarHorizontalExtensionButton || icon == SP_ToolBarVerticalExtensionButton;
    if (!overflow || option)
        return QProxyStyle::standardIcon(icon, option, widget);
    return QIcon(new DeferredIconEngine([style = QPointer<QStyle>(baseStyle()), icon,
                                         widget = QPointer<QWidget>(const_cast<QWidget*>(widget))] {
        return style ? style->standardIcon(icon, nullptr, widget) : QIcon();
    }));
}

} // namespace brevaro
