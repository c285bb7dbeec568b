#include "window/MainWindow.h"
#include "ScriptedPrompts.h"
#include "TestSupport.h"
#include "session/BannerRotation.h"
#include "session/EditingSession.h"
#include "window/BannerStripWidget.h"
#include "window/ControlBindingView.h"
#include "window/LinkLabelWidget.h"
#include "window/ProgramTabWidget.h"

#include <QAbstractButton>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QTextCursor>
#include <QToolButton>
#include <QTreeWidget>

using namespace brevaro;
using namespace brevaro::test;

namespace {

class MainWindowTest : public ::testing::Test {
protected:
    TempHome home;
    RecordStore store{home.home()};
    ScriptedPrompts prompts;
    std::unique_ptr<EditingSession> session;
    std::unique_ptr<MainWindow> window;

    void SetUp() override { open(); }

    void open() {
        window.reset();
        session = std::make_unique<EditingSession>(store, prompts);
        window = std::make_unique<MainWindow>(*session);
        session->Start();
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
        // The tabs after the first are built right after the window shows.
        ASSERT_TRUE(QTest::qWaitFor([this] { return window->pagesComplete(); }, 5000));
    }

    template <typename T = QWidget> T* find(const QString& objectName) {
        const auto all = window->findChildren<T*>(objectName);
        EXPECT_EQ(all.size(), 1) << objectName.toStdString();
        return all.value(0);
    }
    QTabWidget* tabs() { return find<QTabWidget>(QStringLiteral("SSTab1")); }
    QString status() {
        return window->statusBar()->findChild<QLabel*>(QStringLiteral("StatusText"))->text();
    }
    // The button of the button bar that runs a command.
    QPushButton* button(ControlAction action) {
        for (const ControlRow& r : mainWindowControls())
            if (r.action == action && r.place == Place::ButtonBar)
                return find<QPushButton>(r.objectName());
        ADD_FAILURE() << "no button runs the command";
        return nullptr;
    }
    void clickButton(ControlAction action) { QTest::mouseClick(button(action), Qt::LeftButton); }
    void typeInto(const QString& name, const QString& text) {
        QWidget* w = find(name);
        w->setFocus();
        QTest::keyClicks(w, text);
    }
    // A saved company made with the buttons and, when named, a new program for it.
    void newRecords(const QString& company, const QString& program = {}) {
        prompts.inputs.push_back(company);
        clickButton(ControlAction::NewCompany);
        clickButton(ControlAction::SaveCompany);
        if (program.isEmpty())
            return;
        chooseTab(1);
        prompts.inputs.push_back(program);
        clickButton(ControlAction::NewProgram);
    }
    // The shown tab of a visible tab bar that reads caption, if any.
    std::pair<QTabBar*, int> shownTab(const QString& caption) {
        for (QTabBar* bar : window->findChildren<QTabBar*>())
            for (int t = 0; bar->isVisible() && t < bar->count(); ++t)
                if (bar->isTabVisible(t) && bar->tabText(t) == caption)
                    return {bar, t};
        return {nullptr, -1};
    }
    // Picks the tab the way a user does: a click on its tab, on whichever row it stands.
    void chooseTab(int i) {
        auto [bar, t] = shownTab(tabs()->tabText(i));
        ASSERT_TRUE(bar) << i;
        QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(t).center());
        QApplication::processEvents();
    }
};

// The widget class a row asks for.
bool hasClass(const ControlRow& r, QObject* o) {
    static const std::pair<WidgetType, const char*> kClasses[] = {
        {WidgetType::LineEdit, "QLineEdit"},
        {WidgetType::MultiLineEdit, "QPlainTextEdit"},
        {WidgetType::EditableCombo, "QComboBox"},
        {WidgetType::ListCombo, "QComboBox"},
        {WidgetType::MultiList, "QListWidget"},
        {WidgetType::CheckBox, "QCheckBox"},
        {WidgetType::OptionButton, "QRadioButton"},
        {WidgetType::PushButton, "QPushButton"},
        {WidgetType::PictureButton, "QToolButton"},
        {WidgetType::Label, "QLabel"},
        {WidgetType::LinkLabel, "brevaro::LinkLabelWidget"},
        {WidgetType::BannerImage, "QLabel"},
        {WidgetType::Frame, "QGroupBox"},
        {WidgetType::TabStrip, "QTabWidget"},
        {WidgetType::StatusBar, "QStatusBar"},
        {WidgetType::MenuTitle, "QMenu"},
        {WidgetType::MenuItem, "QAction"},
        {WidgetType::MenuSeparator, "QAction"}};
    const auto* combo = qobject_cast<QComboBox*>(o);
    const auto* list = qobject_cast<QListWidget*>(o);
    for (const auto& [type, name] : kClasses)
        if (type == r.widget)
            return o->inherits(name) &&
                   (!combo || combo->isEditable() == (type == WidgetType::EditableCombo)) &&
                   (!list || list->selectionMode() == QAbstractItemView::MultiSelection) &&
                   (type == WidgetType::LinkLabel || !qobject_cast<LinkLabelWidget*>(o));
    return false;
}

QString withoutMnemonic(QString text) {
    return text.remove(u'&');
}

} // namespace

// Every control of the table is one widget of its class, where the table puts it, with the
// model's limit, tooltip and caption and a name for screen readers.
TEST_F(MainWindowTest, EveryControlIsOneWidgetWhereTheTableSays) {
    const ScreenModel& screen = session->screen();
    auto* languages = find<QTabWidget>(QStringLiteral("SSTab2"));
    for (const ControlRow& r : mainWindowControls()) {
        if (r.widget == WidgetType::None || r.widget == WidgetType::Window)
            continue;
        SCOPED_TRACE(r.objectName().toStdString());
        const auto all = window->findChildren<QObject*>(r.objectName());
        ASSERT_EQ(all.size(), 1);
        QObject* o = all.front();
        EXPECT_TRUE(hasClass(r, o));
        const ControlState& s = screen.at(r.name, r.index);
        if (auto* a = qobject_cast<QAction*>(o)) {
            if (!a->isSeparator()) {
                EXPECT_EQ(withoutMnemonic(a->text()), r.caption);
            }
            continue;
        }
        auto* w = static_cast<QWidget*>(o);
        EXPECT_TRUE(r.place != Place::MainTab || tabs()->widget(r.placeIndex)->isAncestorOf(w));
        EXPECT_TRUE(r.place != Place::LanguagePage || languages->widget(r.index)->isAncestorOf(w));
        EXPECT_TRUE(r.frame.isEmpty() || find(r.frame)->isAncestorOf(w)) << r.frame.toStdString();
        EXPECT_TRUE(r.place != Place::Hidden || w->isHidden());
        EXPECT_TRUE(s.toolTip.isEmpty() || w->toolTip() == s.toolTip);
        EXPECT_TRUE(r.side == RecordSide::None || !w->accessibleName().isEmpty());
        auto* combo = qobject_cast<QComboBox*>(w);
        if (auto* e = combo ? combo->lineEdit() : qobject_cast<QLineEdit*>(w);
            e && s.maxLength > 0) {
            EXPECT_EQ(e->maxLength(), s.maxLength);
        }
        if (auto* b = qobject_cast<QAbstractButton*>(w); b && !r.caption.isEmpty()) {
            EXPECT_EQ(withoutMnemonic(b->text()), r.caption);
        }
    }
    for (int i = 0; i < tabs()->count(); ++i)
        EXPECT_EQ(tabs()->tabText(i), mainTabCaptions()[i]);
    for (int i = 0; i < languages->count(); ++i)
        EXPECT_EQ(languages->tabText(i), languageTabCaptions()[i]);
}

// A command is one action: its File menu entry. Enabling the command enables its button and
// its second menu entry with it, and both run it.
TEST_F(MainWindowTest, EachCommandIsOneActionForButtonAndMenus) {
    QAction* submit = window->view().command(ControlAction::Submit);
    ASSERT_TRUE(submit);
    EXPECT_EQ(submit->objectName(), QStringLiteral("mnuPAD_11"));
    auto* toolsEntry = window->findChild<QAction*>(QStringLiteral("mnuTools_2"));
    for (const bool enabled : {false, true}) {
        session->setCommandEnabled(ControlAction::Submit, enabled);
        EXPECT_EQ(submit->isEnabled(), enabled);
        EXPECT_EQ(toolsEntry->isEnabled(), enabled);
        EXPECT_EQ(button(ControlAction::Submit)->isEnabled(), enabled);
    }
    int runs = 0;
    QObject::connect(submit, &QAction::triggered, [&runs] { ++runs; });
    session->setCommandHandler(ControlAction::Submit, [] {});
    clickButton(ControlAction::Submit);
    toolsEntry->trigger();
    EXPECT_EQ(runs, 2);
}

// The whole path of a first PAD file, through real widgets: the file written is the one the
// command-line tool writes for the same records.
TEST_F(MainWindowTest, AFirstProductFromNewCompanyToCreatePad) {
    EXPECT_EQ(find<QLabel>(QStringLiteral("lblCompanyRecord"))->text(), QStringLiteral("0 of 0"));
    EXPECT_FALSE(find(QStringLiteral("txtAddress1"))->isEnabled());
    prompts.inputs.push_back(QStringLiteral("Northwind Tools"));
    clickButton(ControlAction::NewCompany);
    typeInto(QStringLiteral("txtAddress1"), QStringLiteral("12 Harbour Road"));
    EXPECT_TRUE(window->windowTitle().contains(QStringLiteral("(MODIFIED)")));
    EXPECT_FALSE(find(QStringLiteral("cboCompanyName"))->isEnabled());
    chooseTab(1);
    EXPECT_EQ(tabs()->currentIndex(), 0);
    EXPECT_EQ(status(), QStringLiteral("Please SAVE your Company Data before you try to add "
                                       "products!"));
    clickButton(ControlAction::SaveCompany);
    EXPECT_FALSE(window->windowTitle().contains(QStringLiteral("(MODIFIED)")));
    EXPECT_TRUE(find(QStringLiteral("cboCompanyName"))->isEnabled());

    chooseTab(1);
    ASSERT_EQ(tabs()->currentIndex(), 1);
    prompts.inputs.push_back(QStringLiteral("Harbour Notes"));
    clickButton(ControlAction::NewProgram);
    typeInto(QStringLiteral("txtProgramVersion"), QStringLiteral("2.4"));
    auto* systems = find<QListWidget>(QStringLiteral("lstSupportedOS"));
    for (int item : {0, 2}) {
        systems->scrollToItem(systems->item(item));
        QTest::mouseClick(systems->viewport(), Qt::LeftButton, {},
                          systems->visualItemRect(systems->item(item)).center());
    }
    EXPECT_EQ(session->screen().at(u"lstSupportedOS").selected.mid(0, 3),
              (QList<bool>{true, false, true}));
    chooseTab(2);
    typeInto(QStringLiteral("txt45char_0"), QStringLiteral("Notes that sail"));
    EXPECT_TRUE(status().contains(QStringLiteral("15"))) << status().toStdString();
    clickButton(ControlAction::SaveProgram);
    EXPECT_FALSE(window->windowTitle().contains(QStringLiteral("(MODIFIED)")));

    const QString padFile = home.file(QStringLiteral("notes.xml"));
    prompts.files.push_back(padFile);
    clickButton(ControlAction::CreatePAD);
    QProcess cli;
    cli.start(QStringLiteral(BREVARO_CLI),
              {QStringLiteral("--home"), home.path(), QStringLiteral("pad"), QStringLiteral("-c"),
               QStringLiteral("1"), QStringLiteral("-p"), QStringLiteral("1")});
    ASSERT_TRUE(cli.waitForFinished(30000));
    const QByteArray written = readBytes(padFile);
    EXPECT_EQ(written, cli.readAllStandardOutput());
    EXPECT_TRUE(written.contains("<Program_Name>Harbour Notes</Program_Name>"));
}

// Loading never marks; closing with both records modified asks twice, company first; a save
// that fails leaves the window open and modified.
TEST_F(MainWindowTest, ClosingAsksForEachModifiedRecordAndAFailedSaveKeepsTheWindow) {
    newRecords(QStringLiteral("Acme"), QStringLiteral("Rocket"));
    clickButton(ControlAction::SaveProgram);
    open();
    EXPECT_FALSE(window->windowTitle().contains(QStringLiteral("(MODIFIED)")));

    typeInto(QStringLiteral("txtCity"), QStringLiteral("Springfield"));
    chooseTab(1);
    typeInto(QStringLiteral("txtProgramVersion"), QStringLiteral("1.1"));
    prompts.asked.clear();
    prompts.yesNo = {false, false};
    EXPECT_TRUE(window->close());
    ASSERT_EQ(prompts.asked.size(), 2);
    EXPECT_TRUE(prompts.asked[0].startsWith(QStringLiteral("Acme")));
    EXPECT_TRUE(prompts.asked[1].startsWith(QStringLiteral("Rocket")));

    open();
    typeInto(QStringLiteral("txtCity"), QStringLiteral("Shelbyville"));
    const QString companyFile = home.file(QStringLiteral("data/company.dta"));
    ASSERT_TRUE(QFile::remove(companyFile));
    ASSERT_TRUE(QDir().mkpath(companyFile));
    prompts.yesNo = {true};
    EXPECT_FALSE(window->close());
    EXPECT_TRUE(window->isVisible());
    EXPECT_TRUE(window->windowTitle().contains(QStringLiteral("(MODIFIED)")));
    EXPECT_FALSE(find(QStringLiteral("cboCompanyName"))->isEnabled());
    EXPECT_EQ(prompts.messages.size(), 1); // the failure is reported
    ASSERT_TRUE(QDir(companyFile).removeRecursively());
}

// Three banners from a local share folder: the next button steps through them, the strip
// showing each one's tooltip and position; a click opens the banner's address.
TEST_F(MainWindowTest, TheBannerStripRotatesTheLocalBanners) {
    const QString share = home.file(QStringLiteral("share/"));
    QByteArray data;
    for (int i = 1; i <= 3; ++i) {
        writeBytes(share + QStringLiteral("b%1.gif").arg(i), "GIF89a");
        data +=
            QStringLiteral("RUN|Banner %1|b%1.gif|http://ads.example/%1|||%1\r\n").arg(i).toUtf8();
    }
    writeBytes(share + QStringLiteral("data.txt"), data);
    BannerRotation& rotation = window->banners();
    const int width = window->width();
    rotation.LoadLocalBannerList();
    QApplication::processEvents();
    EXPECT_EQ(window->width(), width); // a banner that arrives does not widen the window
    auto* banner = find<QLabel>(QStringLiteral("AniGifEx1"));
    auto* next = find<QToolButton>(QStringLiteral("picClickNextBanner"));
    QSet<QString> tips;
    for (int i = 0; i < 3; ++i) {
        QTest::mouseClick(next, Qt::LeftButton);
        EXPECT_EQ(banner->toolTip(), rotation.toolTip);
        EXPECT_EQ(next->toolTip(), rotation.nextButtonToolTip);
        tips << banner->toolTip();
    }
    EXPECT_EQ(tips.size(), 3); // each click moved on
    EXPECT_TRUE(banner->isVisible());
    EXPECT_FALSE(window->bannerStrip().shownImage().isEmpty());
    prompts.opened.clear();
    QTest::mouseClick(banner, Qt::LeftButton);
    EXPECT_EQ(prompts.opened, QStringList{rotation.clickAddress});
    EXPECT_TRUE(rotation.clickAddress.startsWith(QStringLiteral("http://ads.example/")));
}

// From the narrowest window to a wide screen, every tab can be seen and clicked without scroll
// arrows, and no two controls of a tab cover each other; on a 1280 by 800 screen Program Info
// needs no scrolling.
TEST_F(MainWindowTest, EveryTabIsVisibleAndNothingOverlapsAtAnySize) {
    newRecords(QStringLiteral("Acme"), QStringLiteral("Rocket"));
    for (const QSize size : {window->minimumSizeHint(), QSize(733, 543), QSize(1280, 800)}) {
        window->resize(size);
        QApplication::processEvents();
        SCOPED_TRACE(size.width());
        for (int i = 0; i < tabs()->count(); ++i) {
            chooseTab(i);
            ASSERT_EQ(tabs()->currentIndex(), i);
            for (int t = 0; t < tabs()->count(); ++t) {
                auto [bar, shown] = shownTab(tabs()->tabText(t));
                ASSERT_TRUE(bar) << t;
                EXPECT_TRUE(bar->rect().contains(bar->tabRect(shown))) << t;
                for (auto* arrow : bar->findChildren<QToolButton*>())
                    EXPECT_FALSE(arrow->isVisible());
            }
            QList<QWidget*> shown;
            for (int id : window->view().ids())
                if (QWidget* w = window->view().widget(id);
                    w && w->isVisible() && tabs()->currentWidget()->isAncestorOf(w))
                    shown << w;
            for (QWidget* a : shown)
                for (QWidget* b : shown)
                    if (a != b && a->parentWidget() == b->parentWidget()) {
                        EXPECT_FALSE(a->geometry().intersects(b->geometry()))
                            << a->objectName().toStdString() << " covers "
                            << b->objectName().toStdString();
                    }
        }
    }
    chooseTab(1);
    auto* programPage =
        tabs()->widget(1)->findChild<QScrollArea*>(QString(), Qt::FindDirectChildrenOnly);
    ASSERT_TRUE(programPage);
    EXPECT_EQ(programPage->verticalScrollBar()->maximum(), 0);
    auto* program = qobject_cast<ProgramTabWidget*>(programPage->widget());
    EXPECT_TRUE(program->inTwoColumns());
    // Narrower again: one column, and the rows of tabs come back, before the fields in the
    // keyboard order.
    window->resize(733, 543);
    QApplication::processEvents();
    EXPECT_FALSE(program->inTwoColumns());
    auto [row, shown] = shownTab(tabs()->tabText(1));
    ASSERT_TRUE(row);
    EXPECT_NE(row, tabs()->tabBar());
    int rowAt = -1, fieldAt = -1, step = 0;
    for (QWidget* w = window->nextInFocusChain(); w != window.get() && step < 2000;
         w = w->nextInFocusChain(), ++step) {
        if (w == row)
            rowAt = step;
        if (w == find(QStringLiteral("cboProgramName")) && fieldAt < 0)
            fieldAt = step;
    }
    EXPECT_GE(rowAt, 0);
    EXPECT_LT(rowAt, fieldAt);
}

TEST_F(MainWindowTest, HelpMenuAndLinksOpenTheirPages) {
    newRecords(QStringLiteral("Acme"));
    auto* signUp = window->findChild<QAction*>(QStringLiteral("mnuHelp_7"));
    ASSERT_TRUE(signUp);
    signUp->trigger();
    auto* organization = find<LinkLabelWidget>(QStringLiteral("lblOrganization_1"));
    chooseTab(6);
    QTest::mouseClick(organization, Qt::LeftButton);
    ASSERT_EQ(prompts.opened.size(), 2);
    EXPECT_TRUE(prompts.opened[0].contains(QStringLiteral("/register.php?FirstName=")));
    EXPECT_EQ(prompts.opened[1], organization->text());
    QTest::mouseMove(organization);
    EXPECT_TRUE(organization->isHovered());
    // The links keep taking the focus (Tab reaches them) once their texts are set.
    auto* copyright = find<LinkLabelWidget>(QStringLiteral("lblCopyright"));
    EXPECT_TRUE(copyright->text().startsWith(QStringLiteral("Copyright")));
    for (LinkLabelWidget* link : {organization, copyright})
        EXPECT_EQ(link->focusPolicy(), Qt::StrongFocus) << link->objectName().toStdString();
}

// Tools, Check PAD lists what the screen holds now; activating a finding takes the user to
// its field.
TEST_F(MainWindowTest, CheckPadLeadsFromAFindingToItsField) {
    newRecords(QStringLiteral("Smith"));
    typeInto(QStringLiteral("txtCity"), QStringLiteral("Fish <i>Chips</i>"));
    chooseTab(3);
    window->findChild<QAction*>(QStringLiteral("mnuTools_4"))->trigger();
    auto* check = window->findChild<QDialog*>(QStringLiteral("frmPadCheck"));
    ASSERT_TRUE(check);
    EXPECT_TRUE(check->isVisible());
    auto* list = check->findChild<QTreeWidget*>(QStringLiteral("lstFindings"));
    ASSERT_TRUE(list);
    QTreeWidgetItem* city = nullptr;
    for (int i = 0; i < list->topLevelItemCount(); ++i)
        if (list->topLevelItem(i)->text(1) == QStringLiteral("City / Town"))
            city = list->topLevelItem(i);
    ASSERT_TRUE(city);
    EXPECT_EQ(city->text(0), QStringLiteral("Warning"));
    emit list->itemActivated(city, 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return tabs()->currentIndex() == 0; }, 2000));
    EXPECT_TRUE(QTest::qWaitFor([&] { return find(QStringLiteral("txtCity"))->hasFocus(); }, 2000));
}

// Widget and model agree whatever the user does: typing into a drop-down that also takes
// text, choosing every item at once, refusing to clear a status, pasting into a full box,
// copying twice in a row, opening a menu over the status text.
TEST_F(MainWindowTest, WidgetsAndModelStayInStep) {
    newRecords(QStringLiteral("Acme"), QStringLiteral("Rocket"));

    auto* type = find<QComboBox>(QStringLiteral("cboType"));
    type->setFocus();
    type->setCurrentIndex(0);
    emit type->activated(0);
    type->lineEdit()->end(false);
    QTest::keyClicks(type->lineEdit(), QStringLiteral("xy"));
    EXPECT_EQ(type->lineEdit()->text(), session->screen().at(u"cboType").text);
    EXPECT_TRUE(type->lineEdit()->text().endsWith(QStringLiteral("xy")));
    EXPECT_EQ(type->lineEdit()->cursorPosition(), type->lineEdit()->text().size());

    auto* languages = find<QListWidget>(QStringLiteral("lstLanguages"));
    languages->setFocus();
    languages->selectAll();
    EXPECT_EQ(session->screen().at(u"lstLanguages").selected.count(true), languages->count());

    auto* releaseStatus = find<QComboBox>(QStringLiteral("cboStatus"));
    releaseStatus->setCurrentIndex(1);
    emit releaseStatus->activated(1);
    const QString kept = releaseStatus->currentText();
    releaseStatus->lineEdit()->clear();
    emit releaseStatus->lineEdit()->textEdited(QString());
    EXPECT_EQ(releaseStatus->currentText(), kept);
    EXPECT_EQ(session->screen().at(u"cboStatus").text, kept);

    chooseTab(4);
    auto* eula = find<QPlainTextEdit>(QStringLiteral("txtEULA"));
    const int limit = session->screen().at(u"txtEULA").maxLength;
    ASSERT_GT(limit, 10);
    eula->setFocus();
    eula->setPlainText(QString(limit - 3, u'a') + QStringLiteral("END"));
    QTextCursor cursor = eula->textCursor();
    cursor.setPosition(10);
    eula->setTextCursor(cursor);
    QTest::keyClicks(eula, QStringLiteral("pasted"));
    EXPECT_EQ(session->screen().at(u"txtEULA").text.size(), limit);
    EXPECT_TRUE(session->screen().at(u"txtEULA").text.endsWith(QStringLiteral("END")));
    EXPECT_EQ(eula->toPlainText(), session->screen().at(u"txtEULA").text);

    auto* copy = find<QPushButton>(QStringLiteral("cmdCopyWebInfo2ClipBoard_16"));
    const QColor base = eula->palette().color(QPalette::Base);
    QTest::mouseClick(copy, Qt::LeftButton);
    QTest::mouseClick(copy, Qt::LeftButton);
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return eula->palette().color(QPalette::Base) == base; }, 2000));
    QTest::qWait(400);
    EXPECT_EQ(eula->palette().color(QPalette::Base), base);

    const QString before = status();
    ASSERT_FALSE(before.isEmpty());
    window->statusBar()->showMessage(QString()); // what a menu's passing tip does
    EXPECT_EQ(status(), before);
}

// An empty home shows what to do first, and its button starts the company; the tabs follow.
TEST_F(MainWindowTest, AFirstStartGuidesToTheFirstCompany) {
    auto* firstStart = find<QWidget>(QStringLiteral("frmFirstStart"));
    EXPECT_TRUE(firstStart->isVisible());
    EXPECT_FALSE(tabs()->isVisible());
    EXPECT_FALSE(button(ControlAction::NewProgram)->isEnabled());
    prompts.inputs.push_back(QStringLiteral("Northwind Tools"));
    QTest::mouseClick(find<QPushButton>(QStringLiteral("cmdFirstCompany")), Qt::LeftButton);
    EXPECT_FALSE(firstStart->isVisible());
    EXPECT_TRUE(tabs()->isVisible());
    EXPECT_EQ(find<QComboBox>(QStringLiteral("cboCompanyName"))->currentText(),
              QStringLiteral("Northwind Tools"));
}

// A home with a company opens on its tabs, built and laid out, each page in a scroll area of its
// own; deleting the last company brings the first start back, with the focus moved from the
// field that had it to the first start's first button.
TEST_F(MainWindowTest, TheTabsOrTheFirstStartShowAsCompaniesComeAndGo) {
    newRecords(QStringLiteral("Acme"));
    open();
    auto* firstStart = find<QWidget>(QStringLiteral("frmFirstStart"));
    EXPECT_FALSE(firstStart->isVisible());
    EXPECT_TRUE(tabs()->isVisible());
    QWidget* city = find(QStringLiteral("txtCity"));
    EXPECT_TRUE(city->isVisible());
    for (int i = 0; i < tabs()->count(); ++i)
        EXPECT_EQ(tabs()->widget(i)->findChildren<QScrollArea*>(Qt::FindDirectChildrenOnly).size(),
                  1)
            << i;
    city->setFocus();
    ASSERT_EQ(QApplication::focusWidget(), city);
    prompts.yesNo.push_back(true);
    button(ControlAction::DeleteCompany)->click();
    EXPECT_TRUE(firstStart->isVisible());
    EXPECT_FALSE(tabs()->isVisible());
    EXPECT_EQ(QApplication::focusWidget(), find(QStringLiteral("cmdFirstCompany")));
}

// A tab chosen before the window first shows is the tab it shows, and every tab is built once.
TEST_F(MainWindowTest, ATabChosenBeforeTheWindowShowsIsTheOneShown) {
    newRecords(QStringLiteral("Acme"), QStringLiteral("Widget"));
    clickButton(ControlAction::SaveProgram);
    window.reset();
    session = std::make_unique<EditingSession>(store, prompts);
    window = std::make_unique<MainWindow>(*session);
    session->Start();
    tabs()->setCurrentIndex(2);
    window->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    ASSERT_TRUE(QTest::qWaitFor([this] { return window->pagesComplete(); }, 5000));
    EXPECT_EQ(tabs()->currentIndex(), 2);
    EXPECT_TRUE(tabs()->widget(2)->findChild<QScrollArea*>()->isVisible());
    EXPECT_TRUE(find(QStringLiteral("txt45char_0"))->isVisible());
    for (int i = 0; i < tabs()->count(); ++i)
        EXPECT_EQ(tabs()->widget(i)->findChildren<QScrollArea*>(Qt::FindDirectChildrenOnly).size(),
                  1)
            << i;
}

// The keyboard: Ctrl+S saves the record the shown tab holds, a command's new text in a box is
// undone by Ctrl+Z there, and a button that stands alone in a frame is reached by Tab.
TEST_F(MainWindowTest, KeysSaveUndoAndReachEveryButton) {
    newRecords(QStringLiteral("Acme"), QStringLiteral("Widget"));
    typeInto(QStringLiteral("txtProgramVersion"), QStringLiteral("2.0"));
    QTest::keySequence(window.get(), QKeySequence::Save);
    EXPECT_FALSE(session->state().ProgramDirty);
    EXPECT_EQ(store.programNames(1), QStringList{QStringLiteral("Widget")});
    chooseTab(0);
    typeInto(QStringLiteral("txtCity"), QStringLiteral("Springfield"));
    QTest::keySequence(window.get(), QKeySequence::Save);
    EXPECT_FALSE(session->state().CompanyDirty);

    typeInto(QStringLiteral("txtAuthorFname"), QStringLiteral("Ada"));
    typeInto(QStringLiteral("txtContactFname"), QStringLiteral("Bob"));
    auto* contact = find<QLineEdit>(QStringLiteral("txtContactFname"));
    QTest::mouseClick(find<QPushButton>(QStringLiteral("cmdSetContactAsAuthor")), Qt::LeftButton);
    EXPECT_EQ(contact->text(), QStringLiteral("Ada")); // Same As Author copies as typed text
    contact->setFocus();
    QWidget* w = contact;
    bool reached = false;
    for (int i = 0; i < 6 && !reached; ++i) {
        w = w->nextInFocusChain();
        reached = w->objectName() == u"cmdSetContactAsAuthor";
    }
    EXPECT_TRUE(reached) << "Same As Author is not reached by Tab from the contact";

    chooseTab(4);
    auto* licence = find<QPlainTextEdit>(QStringLiteral("txtEULA"));
    licence->setFocus();
    QTest::keyClicks(licence, QStringLiteral("My own terms"));
    prompts.yesNo = {true}; // the text typed is replaced
    QTest::mouseClick(find<QPushButton>(QStringLiteral("cmdDefaultPermissions_1")), Qt::LeftButton);
    EXPECT_NE(licence->toPlainText(), QStringLiteral("My own terms"));
    licence->setFocus();
    QTest::keySequence(licence, QKeySequence::Undo);
    EXPECT_EQ(licence->toPlainText(), QStringLiteral("My own terms"));
    EXPECT_EQ(session->screen().at(u"txtEULA").text, QStringLiteral("My own terms"));
}

// The later versions' fields as an author meets them: shown from the records, nothing marked
// by showing any tab, the category class chosen in two steps, everything kept by a save, and
// Create PAD and Check PAD working in the version chosen for the program.
TEST_F(MainWindowTest, LaterVersionFieldsAreEditedSavedAndPublished) {
    window.reset();
    session.reset();
    CompanyRecord company;
    company.setNumber(CompanyField::CompanyID, 1);
    company.setText(CompanyField::CompanyName, QStringLiteral("Northwind"));
    company.setLaterValue(QStringLiteral("LinkedinPage"), QStringLiteral("https://in.example/nw"));
    ASSERT_TRUE(store.writeCompany(1, company));
    ProgramRecord program;
    program.setNumber(ProgramField::CompanyID, 1);
    program.setText(ProgramField::ProgramName, QStringLiteral("Harbour Notes"));
    program.setText(ProgramField::ChangeInfo, QStringLiteral("Быстрее поиск"));
    program.setLaterValue(QStringLiteral("PAD_Version"), QStringLiteral("4.0"));
    program.setLaterValue(QStringLiteral("Program_Category_Class"),
                          QStringLiteral("Business::PIMS & Calendars"));
    program.setLaterValue(QStringLiteral("Program_OS_Support"), QStringLiteral("Linux,WinOther"));
    program.setLaterValue(QStringLiteral("Headline"), QStringLiteral("Notes that follow you"));
    program.setNumber(ProgramField::DescriptionActive, 1, 0);
    program.setText(ProgramField::Keywords, QStringLiteral("notes,outliner,journal"), 0);
    program.setText(ProgramField::CharDesc250,
                    QStringLiteral("Harbour Notes keeps notes, journals and lists in one outline."),
                    0);
    ASSERT_TRUE(store.writeProgram(1, 1, program));
    open();

    EXPECT_EQ(find<QLineEdit>(QStringLiteral("txtLinkedinPage"))->text(),
              QStringLiteral("https://in.example/nw"));
    EXPECT_EQ(find<QLineEdit>(QStringLiteral("txtRecentChanges"))->text(),
              QStringLiteral("Быстрее поиск"));
    EXPECT_EQ(find<QComboBox>(QStringLiteral("cboCategoryMain"))->currentText(),
              QStringLiteral("Business"));
    auto* classes = find<QComboBox>(QStringLiteral("cboProgramCategoryClass"));
    EXPECT_EQ(classes->currentText(), QStringLiteral("PIMS & Calendars"));
    auto* systems = find<QListWidget>(QStringLiteral("lstProgramOSSupport"));
    QStringList checked;
    for (QListWidgetItem* item : systems->selectedItems())
        checked << item->text();
    checked.sort();
    EXPECT_EQ(checked, (QStringList{QStringLiteral("Linux"), QStringLiteral("WinOther")}));
    for (int t = 0; t < tabs()->count(); ++t) {
        chooseTab(t);
        EXPECT_FALSE(window->windowTitle().contains(QStringLiteral("(MODIFIED)"))) << t;
    }
    for (int t = 0; t < tabs()->count(); ++t) {
        tabs()->setCurrentIndex(t);
        QApplication::processEvents();
        EXPECT_FALSE(window->windowTitle().contains(QStringLiteral("(MODIFIED)"))) << t;
    }

    // Another main class offers its own classes; the choice and a typed page are saved, and
    // what was not touched stays.
    chooseTab(1);
    auto* mains = find<QComboBox>(QStringLiteral("cboCategoryMain"));
    mains->setCurrentIndex(mains->findText(QStringLiteral("Games & Entertainment")));
    emit mains->activated(mains->currentIndex());
    ASSERT_GE(classes->findText(QStringLiteral("Puzzle & Word Games")), 0);
    EXPECT_LT(classes->findText(QStringLiteral("PIMS & Calendars")), 0);
    classes->setCurrentIndex(classes->findText(QStringLiteral("Puzzle & Word Games")));
    emit classes->activated(classes->currentIndex());
    chooseTab(3);
    typeInto(QStringLiteral("txtVideoLink1URL"), QStringLiteral("ftp://video.example/tour"));
    EXPECT_TRUE(window->windowTitle().contains(QStringLiteral("(MODIFIED)")));
    QTest::keyClick(window.get(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_FALSE(window->windowTitle().contains(QStringLiteral("(MODIFIED)")));
    ProgramRecord saved;
    ASSERT_TRUE(store.readProgram(1, 1, saved));
    EXPECT_EQ(saved.laterValue(QStringLiteral("Program_Category_Class")),
              QStringLiteral("Games & Entertainment::Puzzle & Word Games"));
    EXPECT_EQ(saved.laterValue(QStringLiteral("Headline")),
              QStringLiteral("Notes that follow you"));
    EXPECT_EQ(saved.laterValue(QStringLiteral("Video_Link_1_URL")),
              QStringLiteral("ftp://video.example/tour"));
    EXPECT_EQ(saved.wholeText(int(ProgramField::ChangeInfo)), QStringLiteral("Быстрее поиск"));

    // Check PAD checks the 4.0 file: the video address breaks its pattern, and the finding
    // leads to its box.
    window->findChild<QAction*>(QStringLiteral("mnuTools_4"))->trigger();
    auto* check = window->findChild<QDialog*>(QStringLiteral("frmPadCheck"));
    ASSERT_TRUE(check);
    auto* list = check->findChild<QTreeWidget*>(QStringLiteral("lstFindings"));
    QTreeWidgetItem* video = nullptr;
    for (int i = 0; i < list->topLevelItemCount(); ++i)
        if (list->topLevelItem(i)->text(1) == QStringLiteral("Video 1"))
            video = list->topLevelItem(i);
    ASSERT_TRUE(video);
    emit list->itemActivated(video, 0);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return find(QStringLiteral("txtVideoLink1URL"))->hasFocus(); }, 2000));
    check->close();

    // Create PAD writes the 4.0 file, in UTF-8, as the command line does.
    const QString padFile = home.file(QStringLiteral("notes.xml"));
    prompts.files.push_back(padFile);
    clickButton(ControlAction::CreatePAD);
    QProcess cli;
    cli.start(QStringLiteral(BREVARO_CLI),
              {QStringLiteral("--home"), home.path(), QStringLiteral("pad"), QStringLiteral("-c"),
               QStringLiteral("1"), QStringLiteral("-p"), QStringLiteral("1"),
               QStringLiteral("--format"), QStringLiteral("4.0")});
    ASSERT_TRUE(cli.waitForFinished(30000));
    const QByteArray written = readBytes(padFile);
    EXPECT_EQ(written, cli.readAllStandardOutput());
    EXPECT_TRUE(written.contains("<MASTER_PAD_VERSION>4.0</MASTER_PAD_VERSION>"));
    EXPECT_TRUE(written.contains("Быстрее поиск"));
}
