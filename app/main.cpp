#include "AppVersion.h"

#include <QApplication>
#include <QLabel>

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    QLabel label(QStringLiteral("Brevaro: the main window is being built."));
    label.setWindowTitle(QLatin1String(brevaro::kAppTitle));
    label.setMinimumSize(480, 120);
    label.setAlignment(Qt::AlignCenter);
    label.show();
    return app.exec();
}
