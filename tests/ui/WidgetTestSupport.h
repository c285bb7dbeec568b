#pragma once

#include <QAbstractItemView>
#include <QHeaderView>
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

} // namespace brevaro::test
