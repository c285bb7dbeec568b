#include "window/StartUpWarmUp.h"

#include <QAccessible>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QGuiApplication>
#include <system_error>

namespace brevaro {

StartUpWarmUp::StartUpWarmUp() {
    try {
        m_fonts = std::thread([] {
            // The list of fonts and the fonts that stand in for the window's own are kept for
            // every thread; the font itself is loaded again by the window's thread.
            QFontDatabase::families();
            QFontMetrics(QGuiApplication::font()).height();
        });
    } catch (const std::system_error&) {
        // No thread to spare: the first text reads the fonts.
    }
    QAccessible::isActive();
}

StartUpWarmUp::~StartUpWarmUp() {
    wait();
}

void StartUpWarmUp::wait() {
    if (m_fonts.joinable())
        m_fonts.join();
}

} // namespace brevaro
