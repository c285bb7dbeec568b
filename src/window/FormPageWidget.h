#pragma once

#include <QWidget>

class QGroupBox;
class QLayout;

namespace brevaro {

class ControlBindingView;

// A page of the main tab control. Its frames are filled from the control table: each control
// of a frame on a row of its own, with its label, and the controls the table places beside it
// on the same row; frames inside a frame side by side. The page classes only arrange their
// top-level frames.
class FormPageWidget : public QWidget {
    Q_OBJECT
public:
    FormPageWidget(ControlBindingView& view, int tab, QWidget* parent = nullptr);

    int tab() const { return m_tab; }

protected:
    ControlBindingView& view() { return m_view; }
    // The frame called name, filled with its controls.
    QGroupBox* frame(const QString& name);
    // The widget of a control.
    QWidget* control(QStringView name, int index = -1);
    // A list shows rows entries and scrolls; a short one (fewer than 5) does not grow either.
    void showListRows(QStringView name, int rows);
    // Lays out the controls of frame (empty: the page itself) that sit directly in it, in
    // table order, on the form rows of layout.
    void fillRows(const QString& frameName, QLayout* layout);

private:
    QWidget* rowWidget(int id, const QString& frameName);

    ControlBindingView& m_view;
    int m_tab;
};

} // namespace brevaro
