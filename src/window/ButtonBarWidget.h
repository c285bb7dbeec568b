#pragma once

#include <QWidget>

namespace brevaro {

class ControlBindingView;

// The bar of the ten command buttons down the left side, each with its picture and a
// mnemonic, and the association logo below them.
class ButtonBarWidget : public QWidget {
    Q_OBJECT
public:
    ButtonBarWidget(ControlBindingView& view, QString& usedMnemonics, QWidget* parent = nullptr);
};

} // namespace brevaro
