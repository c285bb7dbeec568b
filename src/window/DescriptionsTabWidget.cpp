#include "window/DescriptionsTabWidget.h"

#include "session/EditingSession.h"
#include "window/ControlBindingView.h"
#include "window/TabRowsWidget.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QVBoxLayout>

namespace brevaro {

namespace {

const char* const kBoxes[] = {"txtKeywords", "txt45char",  "txt80char",
                              "txt250char",  "txt450char", "txt2000char"};
// Lines a multi-line box shows; the last one takes the remaining height.
const int kLines[] = {0, 0, 0, 3, 4, 6};

} // namespace

DescriptionsTabWidget::DescriptionsTabWidget(ControlBindingView& view, QWidget* parent)
    : FormPageWidget(view, 2, parent) {
    // The labels and buttons of each box row, from the table: what sits beside the box, and
    // the description copy buttons that fill it.
    for (const char* box : kBoxes) {
        Row row{QLatin1String(box)};
        auto* buttons = new QWidget;
        auto* h = new QHBoxLayout(buttons);
        h->setContentsMargins(0, 0, 0, 0);
        for (int id : view.ids()) {
            const ControlRow& r = view.row(id);
            if (r.place != Place::MainTab || r.placeIndex != 2 || !view.widget(id))
                continue;
            const bool beside = r.beside == row.box;
            const bool fills = r.action == ControlAction::CopyDescription && r.target == row.box;
            if (beside && r.widget == WidgetType::Label)
                row.label = view.widget(id);
            else if (beside || fills)
                h->addWidget(view.widget(id));
        }
        h->addStretch();
        row.buttons = buttons;
        m_rows.push_back(row);
    }
    auto* outer = new QVBoxLayout(this);
    QGroupBox* box = qobject_cast<QGroupBox*>(control(u"frmDescr1"));
    outer->addWidget(box);
    auto* inside = new QVBoxLayout(box);
    m_languages = qobject_cast<QTabWidget*>(control(u"SSTab2"));
    inside->setSpacing(0);
    inside->addWidget(new TabRowsWidget(*m_languages));
    inside->addWidget(m_languages);
    for (int language = 0; language < 9; ++language)
        buildPage(language);
    showSharedOn(0);
    connect(m_languages, &QTabWidget::currentChanged, this, &DescriptionsTabWidget::showSharedOn);
}

void DescriptionsTabWidget::buildPage(int language) {
    auto* page = qobject_cast<QGroupBox*>(control(u"frmDescriptions", language));
    page->setFlat(true);
    auto* grid = new QGridLayout(page);
    grid->addWidget(control(u"chkActivateLanguage", language), 0, 1);
    for (int i = 0; i < 6; ++i) {
        QWidget* w = control(QString::fromLatin1(kBoxes[i]), language);
        if (auto* edit = qobject_cast<QPlainTextEdit*>(w); edit && kLines[i] < 6)
            edit->setFixedHeight(edit->fontMetrics().lineSpacing() * kLines[i] + 12);
        grid->addWidget(w, i + 1, 1);
    }
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(6, 1);
    m_languages->addTab(page, languageTabCaptions().value(language));
    m_pages.push_back(grid);
}

void DescriptionsTabWidget::showSharedOn(int language) {
    if (language < 0 || language >= static_cast<int>(m_pages.size()))
        return;
    QGridLayout* grid = m_pages[static_cast<std::size_t>(language)];
    for (int i = 0; i < 6; ++i) {
        const Row& row = m_rows[static_cast<std::size_t>(i)];
        const Qt::Alignment top = i >= 3 ? Qt::AlignTop : Qt::Alignment();
        if (row.label)
            grid->addWidget(row.label, i + 1, 0, top);
        grid->addWidget(row.buttons, i + 1, 2, top);
        row.buttons->show();
        if (row.label)
            row.label->show();
    }
}

} // namespace brevaro
