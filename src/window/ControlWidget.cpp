#include "window/ControlWidget.h"

#include "pad/PadSpelling.h"
#include "window/LinkLabelWidget.h"
#include "window/SpellingLineEdit.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStatusBar>
#include <QStringListModel>
#include <QTabWidget>
#include <QToolButton>

namespace brevaro {

namespace {

// What a picture or a frame without a caption is called for a screen reader.
QString unlabelledName(const ControlRow& row) {
    static const QHash<QString, QString> names = {
        {QStringLiteral("picBrevaro"), QStringLiteral("Brevaro homepage")},
        {QStringLiteral("picQuorin"), QStringLiteral("Quorin homepage")},
        {QStringLiteral("picClickNextBanner"), QStringLiteral("Next banner")},
        {QStringLiteral("AniGifEx1"), QStringLiteral("Banner")},
        {QStringLiteral("Frame9"), QStringLiteral("Expiry")},
        {QStringLiteral("frmDescr1"), QStringLiteral("Descriptions")},
        {QStringLiteral("frmCopyright"), QStringLiteral("Copyright")},
        {QStringLiteral("frmDescriptions"), QStringLiteral("Description")},
        {QStringLiteral("frmOrganization"), QStringLiteral("Organization")},
        {QStringLiteral("lblCompanyID"), QStringLiteral("Company ID")},
        {QStringLiteral("lblProgramID"), QStringLiteral("Program ID")},
        {QStringLiteral("lblProgramDBname"), QStringLiteral("Program file")},
    };
    if (row.name == QLatin1String("picASP"))
        return row.index == 0 ? QStringLiteral("Association of Shareware Professionals")
                              : QStringLiteral("About PAD files");
    return names.value(row.name);
}

} // namespace

QString controlAccessibleName(const ControlRow& row) {
    QString name = !row.label.isEmpty() ? row.label : row.caption;
    if (name.isEmpty() || name == QLatin1String("-"))
        name = row.toolTip;
    if (name.isEmpty())
        name = unlabelledName(row);
    name.remove(u':');
    name = name.trimmed();
    if (row.place == Place::LanguagePage)
        name += QStringLiteral(" (") + languageTabCaptions().value(row.index) + u')';
    // The many buttons that act on a box (copy, browse, translate) say which box.
    if (row.kind == ControlKind::Button && row.caption.isEmpty() && !row.target.isEmpty()) {
        for (const ControlRow& box : mainWindowControls())
            if (box.name == row.target && box.index <= 0) {
                QString field = !box.label.isEmpty() ? box.label : row.target;
                field.remove(u':');
                name += QStringLiteral(": ") + field.trimmed();
                break;
            }
    }
    return name;
}

QWidget* createControlWidget(const ControlRow& r, const ControlState& s) {
    switch (r.widget) {
    case WidgetType::LineEdit: {
        // A box of prose can underline its misspelt words.
        auto* e = spellingLanguage(r.side, r.field, r.entry) ? new SpellingLineEdit : new QLineEdit;
        if (s.maxLength > 0)
            e->setMaxLength(s.maxLength);
        return e;
    }
    case WidgetType::MultiLineEdit: {
        auto* e = new QPlainTextEdit;
        e->setTabChangesFocus(true);
        return e;
    }
    case WidgetType::EditableCombo:
    case WidgetType::ListCombo: {
        auto* c = new QComboBox;
        // Plain strings, filled in one step: ten thousand company names as ten thousand
        // standard items take a good part of the start.
        c->setModel(new QStringListModel(c));
        c->setEditable(r.widget == WidgetType::EditableCombo);
        c->setInsertPolicy(QComboBox::NoInsert);
        c->setMaxVisibleItems(20);
        c->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        c->setMinimumContentsLength(4);
        if (c->lineEdit() && s.maxLength > 0)
            c->lineEdit()->setMaxLength(s.maxLength);
        // Typing is taken as typed, without completion from the list.
        if (c->isEditable())
            c->setCompleter(nullptr);
        // The wheel changes an entry only once the box has been chosen.
        c->setFocusPolicy(Qt::StrongFocus);
        return c;
    }
    case WidgetType::MultiList: {
        auto* l = new QListWidget;
        l->setSelectionMode(QAbstractItemView::MultiSelection);
        return l;
    }
    case WidgetType::CheckBox:
        return new QCheckBox(r.caption);
    case WidgetType::OptionButton: {
        auto* b = new QRadioButton(r.caption);
        // The model clears the other options of the array.
        b->setAutoExclusive(false);
        return b;
    }
    case WidgetType::PushButton:
        return new QPushButton(r.caption);
    case WidgetType::PictureButton: {
        auto* b = new QToolButton;
        b->setAutoRaise(true);
        return b;
    }
    case WidgetType::Label: {
        auto* l = new QLabel(r.caption);
        l->setWordWrap(r.caption.size() > 60);
        return l;
    }
    case WidgetType::LinkLabel:
        return new LinkLabelWidget(r.caption);
    case WidgetType::BannerImage: {
        auto* l = new QLabel;
        l->setCursor(Qt::PointingHandCursor);
        return l;
    }
    case WidgetType::Frame:
        return new QGroupBox(r.caption);
    case WidgetType::TabStrip:
        return new QTabWidget;
    case WidgetType::StatusBar: {
        // The text sits in a label of the bar, so a menu's passing tip does not erase it.
        auto* bar = new QStatusBar;
        auto* text = new QLabel;
        text->setObjectName(QStringLiteral("StatusText"));
        bar->addWidget(text, 1);
        return bar;
    }
    case WidgetType::MenuTitle:
        return new QMenu(r.caption);
    case WidgetType::None:
    case WidgetType::Window:
    case WidgetType::MenuItem:
    case WidgetType::MenuSeparator:
        break;
    }
    return nullptr;
}

} // namespace brevaro
