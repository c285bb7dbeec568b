#pragma once

#include <QIcon>
#include <QString>

namespace brevaro {

// An icon from a picture file that is read the first time it is drawn, not when it is made.
// Reading a scalable picture means parsing it, which Qt does when the icon is made and again
// when it is drawn: the commands' pictures (most of them shown only in a menu) would cost the
// window's start a few milliseconds for nothing.
QIcon deferredIcon(const QString& path);

} // namespace brevaro
