#pragma once

#include "window/FormPageWidget.h"

#include <vector>

class QGridLayout;
class QTabWidget;

namespace brevaro {

// "Descriptions": the language tabs, each page built by one function with the language's
// check box and six boxes. The labels and buttons beside the boxes exist once and move to the
// page of the language shown, so they always line up with its boxes.
class DescriptionsTabWidget : public FormPageWidget {
    Q_OBJECT
public:
    explicit DescriptionsTabWidget(ControlBindingView& view, QWidget* parent = nullptr);

private:
    struct Row {
        QString box;
        QWidget* label = nullptr;
        QWidget* buttons = nullptr;
    };
    void buildPage(int language);
    void showSharedOn(int language);

    QTabWidget* m_languages = nullptr;
    std::vector<Row> m_rows;
    std::vector<QGridLayout*> m_pages;
};

} // namespace brevaro
