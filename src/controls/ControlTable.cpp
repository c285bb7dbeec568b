#include "controls/ControlTable.h"

#include "controls/ControlTableBuilder.h"

namespace brevaro {

namespace controltable {

namespace {

WidgetType defaultWidget(ControlKind kind) {
    switch (kind) {
    case K::TextBox:
        return W::LineEdit;
    case K::ComboBox:
        return W::EditableCombo;
    case K::ListBox:
        return W::MultiList;
    case K::CheckBox:
        return W::CheckBox;
    case K::OptionButton:
        return W::OptionButton;
    case K::Button:
        return W::PushButton;
    case K::Label:
        return W::Label;
    case K::TabStrip:
        return W::TabStrip;
    case K::MenuItem:
        return W::MenuItem;
    case K::StatusBar:
        return W::StatusBar;
    case K::Form:
        return W::Window;
    }
    return W::None;
}

bool showsValue(ControlKind kind) {
    return kind == K::TextBox || kind == K::ComboBox || kind == K::ListBox;
}

} // namespace

TableBuilder& TableBuilder::add(const char* name, K kind, int index) {
    add(QLatin1String(name), kind);
    row().index = index;
    return *this;
}

TableBuilder& TableBuilder::add(const QString& name, K kind) {
    // The window has some 350 controls: room for them at once, not by doubling.
    if (m_rows.empty()) {
        m_rows.reserve(512);
        m_markSet.reserve(512);
        m_placed.reserve(512);
    }
    ControlRow r;
    r.name = name;
    r.index = -1;
    r.kind = kind;
    r.widget = defaultWidget(kind);
    m_rows.push_back(std::move(r));
    m_markSet.push_back(false);
    m_placed.push_back(kUnplaced);
    return *this;
}

TableBuilder& TableBuilder::field(RecordSide side, int f, int entry, int limit) {
    row().side = side;
    row().field = f;
    row().entry = entry;
    const RecordLayout& layout = side == RecordSide::Company ? companyLayout() : programLayout();
    row().limit = limit == kFieldWidth ? layout.field(f).width : limit;
    if (row().limit > 0)
        row().hint = FocusHint::Counter;
    return *this;
}

TableBuilder& TableBuilder::caption(const char* text) {
    const QString t = QString::fromUtf8(text);
    if (showsValue(row().kind))
        row().label = t;
    else
        row().caption = t;
    if (row().kind == K::MenuItem && t == QLatin1String("-"))
        row().widget = W::MenuSeparator;
    return *this;
}

std::vector<ControlRow> TableBuilder::take() {
    for (std::size_t i = 0; i < m_rows.size(); ++i)
        if (m_rows[i].side != RecordSide::None && !m_markSet[i])
            qFatal("control %s does not say what an edit marks",
                   qPrintable(m_rows[i].objectName()));
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        ControlRow& r = m_rows[i];
        if (m_placed[i] == kUnplaced)
            qFatal("control %s has no place in the window", qPrintable(r.objectName()));
        if (m_placed[i] != kBesideItsControl)
            continue;
        const auto other = std::find_if(m_rows.begin(), m_rows.end(), [&](const ControlRow& o) {
            return o.name == r.beside && o.place == Place::MainTab;
        });
        if (other == m_rows.end())
            qFatal("control %s is beside no control of a tab", qPrintable(r.objectName()));
        r.place = Place::MainTab;
        r.placeIndex = other->placeIndex;
        r.frame = other->frame;
    }
    m_markSet.clear();
    m_placed.clear();
    return std::move(m_rows);
}

} // namespace controltable

namespace {

using namespace controltable;

std::vector<ControlRow> buildTable() {
    TableBuilder t;
    companyControls(t);
    programInfoControls(t);
    laterVersionControls(t);
    descriptionControls(t);
    webAndAssociationControls(t);
    commandControls(t);
    frameAndLabelControls(t);
    return t.take();
}

} // namespace

const std::vector<ControlRow>& mainWindowControls() {
    static const std::vector<ControlRow> table = buildTable();
    return table;
}

const QStringList& mainTabCaptions() {
    static const QStringList captions = {
        QStringLiteral("Company Info"), QStringLiteral("Program Info"),
        QStringLiteral("Descriptions"), QStringLiteral("Web Info"),
        QStringLiteral("Permissions"),  QStringLiteral("ASP Info"),
        QStringLiteral("ESC Info"),     QStringLiteral("MSN Info"),
        QStringLiteral("TPA Info")};
    return captions;
}

const QStringList& languageTabCaptions() {
    static const QStringList captions = {
        QStringLiteral("English"),        QStringLiteral("Spanish"),
        QStringLiteral("French"),         QStringLiteral("German"),
        QStringLiteral("Italian"),        QStringLiteral("Japanese"),
        QStringLiteral("Chinese Simple"), QStringLiteral("Chinese Tradional"),
        QStringLiteral("Russian")};
    return captions;
}

const QStringList& menuTitles() {
    static const QStringList titles = {QStringLiteral("File"), QStringLiteral("Tools"),
                                       QStringLiteral("Help")};
    return titles;
}

int controlOfField(RecordSide side, int field, int entry) {
    const auto& rows = mainWindowControls();
    for (std::size_t id = 0; id < rows.size(); ++id) {
        const ControlRow& r = rows[id];
        if (r.side == side && r.field == field && field >= 0 &&
            (r.entry == entry || r.kind == ControlKind::ListBox))
            return static_cast<int>(id);
    }
    return -1;
}

int controlOfExtra(RecordSide side, QStringView name) {
    const auto& rows = mainWindowControls();
    for (std::size_t id = 0; id < rows.size(); ++id)
        if (rows[id].side == side && rows[id].extra == name)
            return static_cast<int>(id);
    return -1;
}

bool isExpiryGroup(const ControlRow& row) {
    static const QStringList group = {
        QStringLiteral("txtExpireAfter"), QStringLiteral("optExpire"),
        QStringLiteral("cboExpireMonth"), QStringLiteral("cboExpireDay"),
        QStringLiteral("cboExpireYear"),  QStringLiteral("txtExpireInfo")};
    return group.contains(row.name);
}

} // namespace brevaro
