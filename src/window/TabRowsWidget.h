#pragma once

#include <QList>
#include <QWidget>

class QTabBar;
class QTabWidget;
class QVBoxLayout;

namespace brevaro {

// The tabs of a tab widget on as many rows as its width needs. When the tabs fit on one row the
// tab widget's own bar shows them; when they do not, they stand on rows of their own above it,
// the row that holds the shown tab nearest the page, as multi-row tab controls do. Every tab
// stays visible at any width the window allows, without scroll arrows.
class TabRowsWidget : public QWidget {
    Q_OBJECT
public:
    explicit TabRowsWidget(QTabWidget& tabs, QWidget* parent = nullptr);

    // The rows shown, top to bottom; none while the tab widget's own bar holds every tab.
    QList<QTabBar*> rows() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // The number of rows the tabs need at the tab widget's width.
    int rowsNeeded() const;
    void arrange();
    void showCurrent();

    QTabWidget& m_tabs;
    QVBoxLayout* m_column;
    QList<QTabBar*> m_rows;
    QList<int> m_firstOfRow;
};

} // namespace brevaro
