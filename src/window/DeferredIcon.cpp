#include "window/DeferredIcon.h"

#include <QIconEngine>
#include <QPainter>

namespace brevaro {

namespace {

class DeferredIconEngine : public QIconEngine {
public:
    explicit DeferredIconEngine(QString path)
        : m_path(std::move(path)) {}

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
    QIconEngine* clone() const override { return new DeferredIconEngine(m_path); }
    QString key() const override { return QStringLiteral("brevaro-deferred"); }
    // Known without reading the picture: the path is one of the program's own resources.
    bool isNull() override { return m_path.isEmpty(); }

private:
    const QIcon& icon() {
        if (!m_read) {
            m_icon = QIcon(m_path);
            m_read = true;
        }
        return m_icon;
    }

    QString m_path;
    QIcon m_icon;
    bool m_read = false;
};

} // namespace

QIcon deferredIcon(const QString& path) {
    return QIcon(new DeferredIconEngine(path));
}

} // namespace brevaro
