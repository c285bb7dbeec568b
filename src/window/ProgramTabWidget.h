#pragma once

#include "window/FormPageWidget.h"

#include <QList>

class QVBoxLayout;

namespace brevaro {

// "Program Info": the program frame, the distribution file, the expiry, the miscellaneous
// information and the later PAD versions' choices. One below the other in a narrow window; in a
// wide one the program frame and the later versions' frame stand beside the other three, so
// that the whole tab fits without scrolling.
class ProgramTabWidget : public FormPageWidget {
    Q_OBJECT
public:
    explicit ProgramTabWidget(ControlBindingView& view, QWidget* parent = nullptr);

    bool inTwoColumns() const { return m_twoColumns; }

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void chooseColumns(int width);
    void arrange(bool twoColumns);

    QVBoxLayout* m_left = nullptr;
    QVBoxLayout* m_right = nullptr;
    QList<QWidget*> m_frames;
    bool m_twoColumns = true;
    bool m_watchingView = false;
};

} // namespace brevaro
