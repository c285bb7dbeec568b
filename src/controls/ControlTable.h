#pragma once

#include "controls/ScreenModel.h"
#include "records/RecordField.h"

#include <QString>
#include <vector>

namespace brevaro {

enum MarkOn : unsigned { kMarkNever = 0, kMarkOnChange = 1, kMarkOnClick = 2 };
enum class FocusHint { None, Counter, ItemOf, Text };

// The widget a view builds for a control.
enum class WidgetType {
    None, // held by the model only
    Window,
    Frame,
    LineEdit,
    MultiLineEdit,
    EditableCombo,
    ListCombo,
    MultiList,
    CheckBox,
    OptionButton,
    PushButton,
    PictureButton,
    Label,
    LinkLabel,
    BannerImage,
    TabStrip,
    MenuTitle,
    MenuItem,
    MenuSeparator,
    StatusBar,
};

// Where a control sits: the window itself, a page of the main tabs (placeIndex: the tab), a
// language page (the row's index), a menu (placeIndex: File 0, Tools 1, Help 2), the button
// bar, the banner strip, the status bar, or out of sight.
enum class Place { Window, MainTab, LanguagePage, Menu, ButtonBar, BannerStrip, Hidden };

// What a click on a control does.
enum class ControlAction {
    None,
    SelectCompany,
    SelectProgram,
    SelectTab,
    NewCompany,
    SaveCompany,
    DeleteCompany,
    NewProgram,
    SaveProgram,
    DeleteProgram,
    VerifyPAD,
    CreatePAD,
    Submit,
    Exit,
    ImportPAD,
    About,
    Keywords,
    DownloadBanners,
    OpenTranslator, // the translation page without a query
    OpenLink,       // arg: a LinkTarget
    OpenFieldUrl,   // target: the box whose address is opened
    SameAsAuthor,
    CopyField,       // target: the box copied; arg 1: the box of the selected language
    CopyDescription, // source into target, both of the selected language
    TranslateField,  // target (arg 1: of the selected language), or the fixed text source
    FileInfo,
    ExpiryCheck,
    ExpiryOption,
    DefaultText, // target: the box filled
    LoadText,    // target: the box filled from a text file
    SaveText,    // target: the box saved to a text file
    NextBanner,
    ClickBanner,
    CheckPAD,     // the findings of the PAD check, each leading to its field
    CategoryMain, // the classes of the chosen main class fill the category class box
    NewRelease,   // a release of the shown program: version, files, every format written
};

// The web pages that links open.
enum class LinkTarget {
    AspRoot,
    AspPad,
    EscRoot,
    TpaRoot,
    MakerRoot,
    MakerMembers,
    SignUp,
    Advertise,
    ProductRoot,
    Download,
    Contact,
};

// One control of the main window: what it is and where it sits, what it shows, which record
// field it holds, its limit, which record an edit marks modified and on which event, what a
// click does, its tooltip and its focus hint. The transfer, the limits, the tooltips, the
// dispatch of clicks and the building of every widget are loops over this table.
struct ControlRow {
    QString name;
    int index = -1;
    ControlKind kind = ControlKind::Label;
    WidgetType widget = WidgetType::None;
    Place place = Place::Window;
    int placeIndex = 0;
    QString frame;   // the frame the control sits in, empty for none
    QString beside;  // the control whose row this one shares, empty for a row of its own
    QString label;   // the text shown beside the field
    QString caption; // the control's own text: button, check box, option, menu item, label
    RecordSide side = RecordSide::None;
    int field = -1; // index into the record layout of side
    int entry = 0;  // entry of an array field
    QString extra;  // or the extra field of side it holds (ExtraFields.h)
    int limit = 0;
    RecordSide marks = RecordSide::None;
    unsigned markOn = kMarkNever;
    FocusHint hint = FocusHint::None;
    QString hintText;
    QString toolTip;
    bool keepsItem = false; // clearing the text keeps the selected item (a status always shows)
    ControlAction action = ControlAction::None;
    int arg = 0;
    QString target;
    QString source;

    QString objectName() const { return index < 0 ? name : name + u'_' + QString::number(index); }
};

// The controls of the main window. Company and program controls come first, each in the
// order in which every record operation visits them.
const std::vector<ControlRow>& mainWindowControls();

// The tab captions of the main tab control and of the description languages.
const QStringList& mainTabCaptions();
const QStringList& languageTabCaptions();
// The captions of the menu bar: File, Tools, Help.
const QStringList& menuTitles();

// The id (row) of the control that shows entry of a record field: for a list box, the list
// itself; -1 when no control shows the field.
int controlOfField(RecordSide side, int field, int entry = 0);
// The id of the control that shows an extra field; -1 when none does.
int controlOfExtra(RecordSide side, QStringView name);

// The controls of the expiry group, enabled only while the product expires.
bool isExpiryGroup(const ControlRow& row);

} // namespace brevaro
