#include "window/TransferProgressWidget.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>

namespace brevaro {

TransferProgressWidget::TransferProgressWidget(QWidget* parent)
    : QWidget(parent)
    , m_bar(new QProgressBar(this))
    , m_bytes(new QLabel(this)) {
    setObjectName(QStringLiteral("prgTransfer"));
    m_bar->setObjectName(QStringLiteral("prgTransferBar"));
    m_bytes->setObjectName(QStringLiteral("lblTransferBytes"));
    m_bar->setAccessibleName(QStringLiteral("Transfer in progress"));
    m_bytes->setAccessibleName(QStringLiteral("Bytes received"));
    m_bar->setTextVisible(false);
    m_bar->setMaximumWidth(m_bar->fontMetrics().horizontalAdvance(QLatin1Char('M')) * 8);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_bar);
    layout->addWidget(m_bytes);
    hide();
}

QString TransferProgressWidget::bytesText(qint64 bytes) {
    return bytes == 1 ? QStringLiteral("1 byte received")
                      : QStringLiteral("%1 bytes received").arg(bytes);
}

void TransferProgressWidget::start() {
    m_bar->setRange(0, 0); // busy: the total is not known
    setBytes(0);
    show();
}

void TransferProgressWidget::setBytes(qint64 bytes) {
    m_bytes->setText(bytesText(bytes));
}

void TransferProgressWidget::finish() {
    hide();
}

} // namespace brevaro
