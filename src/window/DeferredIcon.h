#pragma once

#include <QIcon>
#include <QProxyStyle>
#include <QString>

namespace brevaro {

// An icon from a picture file that is read the first time it is drawn, not when it is made.
// Reading a scalable picture means parsing it, which Qt does when the icon is made and again
// when it is drawn: the commands' pictures (most of them shown only in a menu) would cost the
// window's start a few milliseconds for nothing.
QIcon deferredIcon(const QString& path);

// The application's style, with the pictures of its overflow buttons deferred: a menu bar
// makes its overflow button, and reads its picture, when the bar is made, and the first
// picture read loads every picture format Qt has, which the window's start has no use for.
class DeferringStyle : public QProxyStyle {
public:
    using QProxyStyle::QProxyStyle;
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option = nullptr,
                       const QWidget* widget = nullptr) const override;
};

} // namespace brevaro
