#pragma once

#include <QWidget>

class QLabel;
class QProgressBar;

namespace brevaro {

// The progress of a running transfer, for a window's status bar: a busy bar (the size of a
// page is rarely known in advance) and the bytes received so far. Hidden while idle.
class TransferProgressWidget : public QWidget {
    Q_OBJECT
public:
    explicit TransferProgressWidget(QWidget* parent = nullptr);

    void start();
    void setBytes(qint64 bytes);
    void finish();

    static QString bytesText(qint64 bytes);

private:
    QProgressBar* m_bar;
    QLabel* m_bytes;
};

} // namespace brevaro
