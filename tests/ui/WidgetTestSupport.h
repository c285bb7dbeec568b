#pragma once

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QDir>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QStringList>
#include <QTest>
#include <QTreeWidget>
#include <QWidget>
#include <functional>
#include <gtest/gtest.h>

namespace brevaro::test {

// The child with this objectName; fails the test when there is none.
template <class T> T* child(const QObject& parent, const char* name) {
    T* found = parent.findChild<T*>(QString::fromLatin1(name));
    if (!found)
        ADD_FAILURE() << "no child named " << name;
    return found;
}

// Lets events run until the condition holds or the time is up.
inline bool waitFor(const std::function<bool()>& condition, int milliseconds = 5000) {
    return QTest::qWaitFor(condition, milliseconds);
}

// Shows the window and makes it the active one, so that shortcuts and focus work.
inline void showActive(QWidget& window) {
    window.show();
    window.activateWindow();
    if (!QTest::qWaitForWindowActive(&window))
        ADD_FAILURE() << "the window did not become active";
}

// The rows of a list as "text|text|...", with "[x] " or "[ ] " before a checkable row.
inline QStringList rowsOf(const QTreeWidget& list) {
    QStringList rows;
    for (int i = 0; i < list.topLevelItemCount(); ++i) {
        const QTreeWidgetItem* item = list.topLevelItem(i);
        QStringList cells;
        for (int c = 0; c < list.columnCount(); ++c)
            cells << item->text(c);
        QString row = cells.join(u'|');
        if (item->flags() & Qt::ItemIsUserCheckable)
            row.prepend(item->checkState(0) == Qt::Checked ? QStringLiteral("[x] ")
                                                           : QStringLiteral("[ ] "));
        rows << row;
    }
    return rows;
}

// A real click on a column header.
inline void clickHeader(QTreeWidget& list, int column) {
    QHeaderView* header = list.header();
    const QPoint at(header->sectionViewportPosition(column) + header->sectionSize(column) / 2,
                    header->height() / 2);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, at);
}

// A real double-click: press and release, then the double-click and its release.
inline void doubleClick(QWidget* widget, QPoint at) {
    QTest::mouseClick(widget, Qt::LeftButton, {}, at);
    QTest::mouseDClick(widget, Qt::LeftButton, {}, at);
    QTest::mouseRelease(widget, Qt::LeftButton, {}, at);
}

// The centre of a row's cell, in viewport coordinates.
inline QPoint cellCentre(const QTreeWidget& list, int row, int column) {
    return list.visualRect(list.model()->index(row, column)).center();
}

// Every visible label, button and box is as large as its text needs and inside its parent,
// and no two siblings placed by a layout overlap. With BREVARO_SHOT_DIR set, the window's
// picture is saved there as <state>.png for a look at it.
inline void expectNothingClippedOrOverlapping(QWidget& window, const QString& state) {
    QCoreApplication::processEvents();
    if (const QString dir = qEnvironmentVariable("BREVARO_SHOT_DIR"); !dir.isEmpty()) {
        QDir().mkpath(dir);
        EXPECT_TRUE(window.grab().save(dir + u'/' + state + QStringLiteral(".png")));
    }
    QList<QWidget*> shown;
    for (QWidget* w : window.findChildren<QWidget*>())
        if (w->isVisible() && !w->isWindow() && !w->objectName().startsWith(QLatin1String("qt_")))
            shown << w;
    for (QWidget* w : shown) {
        const std::string what = QString(state + u' ' + w->objectName()).toStdString();
        const bool edit = qobject_cast<QLineEdit*>(w);
        if (edit || qobject_cast<QLabel*>(w) || qobject_cast<QAbstractButton*>(w)) {
            EXPECT_GE(w->width(), w->minimumSizeHint().width()) << what;
            EXPECT_GE(w->height(), w->minimumSizeHint().height()) << what;
            // a box may scroll its text
            EXPECT_TRUE(edit || w->width() >= w->sizeHint().width()) << what;
        }
        EXPECT_TRUE(w->parentWidget()->rect().contains(w->geometry())) << what;
        for (QWidget* b : shown) {
            const bool laidOutSiblings =
                w < b && w->parentWidget() == b->parentWidget() && w->parentWidget()->layout();
            EXPECT_FALSE(laidOutSiblings && w->geometry().intersects(b->geometry()))
                << what << " overlaps " << b->objectName().toStdString();
        }
    }
}

// The same at the size the window opens with and shrunk as far as it goes.
inline void expectLayoutHoldsAtEverySize(QWidget& window, const QString& state) {
    expectNothingClippedOrOverlapping(window, state);
    const QSize opened = window.size();
    window.resize(1, 1);
    expectNothingClippedOrOverlapping(window, state + QStringLiteral("-smallest"));
    window.resize(opened);
}

// Every control a screen reader stops at has a name: buttons, boxes, lists and their headers,
// the status and menu bars, and the widget named `alsoNamed`.
inline void expectAccessibleNames(const QWidget& window, const char* alsoNamed) {
    for (QWidget* w : window.findChildren<QWidget*>()) {
        if (w->objectName().startsWith(QLatin1String("qt_")))
            continue; // Qt's own widgets
        if (qobject_cast<QAbstractButton*>(w) || qobject_cast<QLineEdit*>(w) ||
            qobject_cast<QAbstractItemView*>(w) || w->inherits("QStatusBar") ||
            w->inherits("QMenuBar") || w->objectName() == QLatin1String(alsoNamed)) {
            EXPECT_FALSE(w->accessibleName().isEmpty())
                << w->metaObject()->className() << " " << w->objectName().toStdString();
        }
    }
}

} // namespace brevaro::test
