#include "window/TabRowsWidget.h"

#include <QCoreApplication>
#include <QResizeEvent>
#include <QSignalBlocker>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>
#include <algorithm>

namespace brevaro {

TabRowsWidget::TabRowsWidget(QTabWidget& tabs, QWidget* parent)
    : QWidget(parent)
    , m_tabs(tabs)
    , m_column(new QVBoxLayout(this)) {
    m_column->setContentsMargins(0, 0, 0, 0);
    m_column->setSpacing(0);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    tabs.installEventFilter(this);
    connect(&tabs, &QTabWidget::currentChanged, this, &TabRowsWidget::showCurrent);
}

QList<QTabBar*> TabRowsWidget::rows() const {
    return m_rows;
}

bool TabRowsWidget::eventFilter(QObject* watched, QEvent* event) {
    const bool resized =
        event->type() == QEvent::Resize && rowsNeeded() != std::max<qsizetype>(1, m_rows.size());
    // A new font or style measures every tab again.
    const bool remeasure =
        event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange;
    if (watched == &m_tabs && (resized || remeasure))
        arrange();
    return QWidget::eventFilter(watched, event);
}

int TabRowsWidget::rowsNeeded() const {
    const QTabBar* bar = m_tabs.tabBar();
    const int count = bar->count();
    int total = 0;
    for (int i = 0; i < count; ++i)
        total += bar->tabRect(i).width();
    const int width = std::max(1, m_tabs.width());
    // Rows of equal numbers of tabs, as few as fit.
    for (int rows = 1; rows < count; ++rows) {
        const int perRow = (count + rows - 1) / rows;
        bool fits = true;
        for (int first = 0; first < count && fits; first += perRow) {
            int row = 0;
            for (int i = first; i < std::min(count, first + perRow); ++i)
                row += bar->tabRect(i).width();
            fits = row <= width;
        }
        if (fits)
            return rows;
    }
    return total > 0 ? count : 1;
}

void TabRowsWidget::arrange() {
    const bool hadFocus = std::any_of(m_rows.begin(), m_rows.end(),
                                      [](const QTabBar* row) { return row->hasFocus(); });
    qDeleteAll(m_rows);
    m_rows.clear();
    m_firstOfRow.clear();
    const int rows = rowsNeeded();
    m_tabs.tabBar()->setVisible(rows == 1);
    if (rows > 1) {
        const int count = m_tabs.count();
        const int perRow = (count + rows - 1) / rows;
        for (int first = 0; first < count; first += perRow) {
            auto* row = new QTabBar(this);
            row->setObjectName(m_tabs.objectName() +
                               QStringLiteral("Row%1").arg(m_rows.size() + 1));
            row->setExpanding(true);
            row->setDrawBase(false);
            for (int i = first; i < std::min(count, first + perRow); ++i)
                row->addTab(m_tabs.tabText(i));
            // A last tab that is never shown: the row's choice while the shown tab is on
            // another row, so that no tab of this row looks chosen. A screen reader names a
            // row by its chosen tab, so this one carries the row's name.
            const int none = row->addTab(QString());
            row->setTabVisible(none, false);
            row->setAccessibleTabName(
                none, tr("Tabs %1 to %2")
                          .arg(m_tabs.tabText(first), m_tabs.tabText(row->count() - 2 + first)));
            connect(row, &QTabBar::currentChanged, this, [this, first, row](int i) {
                if (i < row->count() - 1)
                    m_tabs.setCurrentIndex(first + i);
            });
            m_rows << row;
            m_firstOfRow << first;
        }
        showCurrent();
        // The rows take the place of the tab widget's own bar in the keyboard order.
        QWidget* previous = m_tabs.tabBar();
        for (QTabBar* row : m_rows) {
            QWidget::setTabOrder(previous, row);
            previous = row;
        }
    }
    // Focus that was on a row goes to the row of the shown tab, the one nearest the page.
    if (hadFocus)
        (m_rows.isEmpty() ? m_tabs.tabBar() : m_column->itemAt(m_column->count() - 1)->widget())
            ->setFocus();
    // QTabWidget places its bar and pages again only when resized.
    QResizeEvent again(m_tabs.size(), m_tabs.size());
    m_tabs.removeEventFilter(this);
    QCoreApplication::sendEvent(&m_tabs, &again);
    m_tabs.installEventFilter(this);
}

void TabRowsWidget::showCurrent() {
    const int current = m_tabs.currentIndex();
    QTabBar* holder = nullptr;
    for (int r = 0; r < m_rows.size(); ++r) {
        QTabBar* row = m_rows[r];
        const int first = m_firstOfRow[r];
        const bool holds = current >= first && current < first + row->count() - 1;
        const QSignalBlocker quiet(row);
        row->setCurrentIndex(holds ? current - first : row->count() - 1);
        if (holds)
            holder = row;
        m_column->removeWidget(row);
    }
    for (QTabBar* row : m_rows)
        if (row != holder)
            m_column->addWidget(row);
    if (holder)
        m_column->addWidget(holder);
    for (QTabBar* row : m_rows)
        row->show();
}

} // namespace brevaro
