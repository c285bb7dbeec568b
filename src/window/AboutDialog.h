#pragma once

#include <QDialog>

namespace brevaro {

class Prompts;

// The about box: version, what the program is for, the copyright line, the homepage button
// and the logos that open their sites.
class AboutDialog : public QDialog {
    Q_OBJECT
public:
    AboutDialog(Prompts& prompts, QWidget* parent = nullptr);
};

} // namespace brevaro
