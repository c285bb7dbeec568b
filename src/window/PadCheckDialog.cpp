#include "window/PadCheckDialog.h"

#include "controls/FieldLabels.h"
#include "pad/PadSpelling.h"
#include "session/EditingSession.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace brevaro {

namespace {

QIcon severityIcon(const QStyle* style, PadFinding::Severity severity) {
    switch (severity) {
    case PadFinding::Severity::Error:
        return style->standardIcon(QStyle::SP_MessageBoxCritical);
    case PadFinding::Severity::Warning:
        return style->standardIcon(QStyle::SP_MessageBoxWarning);
    case PadFinding::Severity::Note:
        break;
    }
    return style->standardIcon(QStyle::SP_MessageBoxInformation);
}

QString severityCaption(PadFinding::Severity severity) {
    switch (severity) {
    case PadFinding::Severity::Error:
        return QStringLiteral("Error");
    case PadFinding::Severity::Warning:
        return QStringLiteral("Warning");
    case PadFinding::Severity::Note:
        break;
    }
    return QStringLiteral("Note");
}

// A message that goes on from the field's name reads as a sentence with it.
QString sentence(const PadFinding& f) {
    if (!f.message.isEmpty() && f.message.front().isLower() && !f.label.isEmpty())
        return f.label + u' ' + f.message;
    return f.message;
}

} // namespace

PadCheckDialog::PadCheckDialog(EditingSession& session, SpellChecker* spelling, QWidget* parent)
    : QDialog(parent)
    , m_session(session)
    , m_spelling(spelling) {
    setObjectName(QStringLiteral("frmPadCheck"));
    setWindowTitle(QStringLiteral("Check PAD"));
    m_summary = new QLabel;
    m_summary->setObjectName(QStringLiteral("lblSummary"));
    m_summary->setWordWrap(true);
    m_list = new QTreeWidget;
    m_list->setObjectName(QStringLiteral("lstFindings"));
    m_list->setAccessibleName(QStringLiteral("Findings"));
    m_list->setRootIsDecorated(false);
    m_list->setAlternatingRowColors(true);
    m_list->setWordWrap(true);
    m_list->setHeaderLabels({QStringLiteral("Kind"), QStringLiteral("Field"),
                             QStringLiteral("Where"), QStringLiteral("What to do")});
    m_list->header()->setStretchLastSection(true);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    auto* again = buttons->addButton(QStringLiteral("Check &Again"), QDialogButtonBox::ActionRole);
    again->setObjectName(QStringLiteral("cmdCheckAgain"));
    connect(again, &QPushButton::clicked, this, &PadCheckDialog::refresh);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);
    // The whole of the selected finding, with the value it is about.
    m_detail = new QLabel;
    m_detail->setObjectName(QStringLiteral("lblDetail"));
    m_detail->setWordWrap(true);
    m_detail->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_detail->setMinimumHeight(m_detail->fontMetrics().lineSpacing() * 3);
    m_detail->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    connect(m_list, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        const int row = item ? m_list->indexOfTopLevelItem(item) : -1;
        if (row < 0 || row >= static_cast<int>(m_findings.size())) {
            m_detail->clear();
            return;
        }
        const PadFinding& f = m_findings[static_cast<std::size_t>(row)];
        QString text = sentence(f);
        if (!f.value.isEmpty())
            text += QStringLiteral("\nValue: ") + f.value;
        if (!f.element.isEmpty())
            text += QStringLiteral("\nPAD element: ") + f.element;
        m_detail->setText(text);
    });
    connect(m_list, &QTreeWidget::itemActivated, this,
            [this](QTreeWidgetItem* item) { goTo(m_list->indexOfTopLevelItem(item)); });
    auto* column = new QVBoxLayout(this);
    column->addWidget(m_summary);
    column->addWidget(m_list, 1);
    column->addWidget(m_detail);
    column->addWidget(buttons);
    resize(760, 420);
    refresh();
}

void PadCheckDialog::refresh() {
    m_findings = m_session.pad().checkScreen();
    if (m_spelling) {
        // The texts as the screen shows them, as the check itself reads them.
        CompanyRecord company = m_session.company();
        ProgramRecord program = m_session.program();
        m_session.transfer().screenInto(RecordSide::Company, company);
        m_session.transfer().screenInto(RecordSide::Program, program);
        const auto notes =
            withFieldLabels(spellingFindings(company, program, PadVersion::V1_15, *m_spelling));
        m_findings.insert(m_findings.end(), notes.begin(), notes.end());
    }
    m_list->clear();
    int errors = 0;
    int warnings = 0;
    for (const PadFinding& f : m_findings) {
        errors += f.severity == PadFinding::Severity::Error;
        warnings += f.severity == PadFinding::Severity::Warning;
        auto* item = new QTreeWidgetItem(
            m_list, {severityCaption(f.severity), f.label, f.place, sentence(f)});
        item->setIcon(0, severityIcon(style(), f.severity));
        item->setToolTip(3, sentence(f));
        if (f.side == RecordSide::None)
            item->setToolTip(1, QStringLiteral("The whole document"));
    }
    for (int c = 0; c < 3; ++c)
        m_list->resizeColumnToContents(c);
    if (m_list->topLevelItemCount() > 0)
        m_list->setCurrentItem(m_list->topLevelItem(0));
    if (m_findings.empty())
        m_summary->setText(QStringLiteral("Nothing to report: download sites will read this PAD "
                                          "file as it is."));
    else
        m_summary->setText(
            QStringLiteral("%1 error(s), %2 warning(s). Errors make download sites reject the "
                           "file; double-click a line to go to its field.")
                .arg(errors)
                .arg(warnings));
}

void PadCheckDialog::goTo(int row) {
    if (row < 0 || row >= static_cast<int>(m_findings.size()))
        return;
    if (m_session.pad().goToField(m_findings[static_cast<std::size_t>(row)]))
        parentWidget() ? parentWidget()->activateWindow() : void();
}

} // namespace brevaro
