#include "controls/ControlTableBuilder.h"

#include <QHash>

namespace brevaro::controltable {

namespace {

// Where a control (every member of an array alike) sits; "beside" names the control whose
// row it shares.
struct Placement {
    const char* name;
    Place place;
    int placeIndex;
    const char* frame;
    const char* beside;
};

constexpr Place Tab = Place::MainTab;
constexpr Place Page = Place::LanguagePage;

constexpr Placement kPlacements[] = {
    {"frmStart", Place::Window, 0, "", ""},
    {"SSTab1", Place::Window, 0, "", ""},
    {"StatusBar1", Place::Window, 0, "", ""},
    {"frmCopyright", Place::Window, 0, "", ""},
    {"lblCopyright", Place::Window, 0, "frmCopyright", ""},
    {"cmdButton", Place::ButtonBar, 0, "", ""},
    {"picASP", Place::ButtonBar, 0, "", ""},
    {"picClickNextBanner", Place::BannerStrip, 0, "", ""},
    {"AniGifEx1", Place::BannerStrip, 0, "", ""},
    {"picBrevaro", Place::BannerStrip, 0, "", ""},
    {"picQuorin", Place::BannerStrip, 0, "", ""},
    {"mnuFile", Place::Menu, 0, "", ""},
    {"mnuPAD", Place::Menu, 0, "", ""},
    {"mnuToolsBar", Place::Menu, 1, "", ""},
    {"mnuTools", Place::Menu, 1, "", ""},
    {"mnuHelpBar", Place::Menu, 2, "", ""},
    {"mnuHelp", Place::Menu, 2, "", ""},
    {"Command1", Place::Hidden, 0, "", ""},
    {"lblCompanyID", Place::Hidden, 0, "", ""},
    {"lblProgramID", Place::Hidden, 0, "", ""},
    {"lblProgramDBname", Place::Hidden, 0, "", ""},

    {"Frame1", Tab, 0, "", ""},
    {"cboCompanyName", Tab, 0, "Frame1", ""},
    {"lblCompanyRecord", Tab, 0, "Frame1", "cboCompanyName"},
    {"txtAddress1", Tab, 0, "Frame1", ""},
    {"txtAddress2", Tab, 0, "Frame1", ""},
    {"txtCity", Tab, 0, "Frame1", ""},
    {"txtState", Tab, 0, "Frame1", ""},
    {"txtZip", Tab, 0, "Frame1", ""},
    {"cboCountry", Tab, 0, "Frame1", ""},
    {"txtURL", Tab, 0, "Frame1", ""},
    {"cmdOpenURL", Tab, 0, "Frame1", "txtURL"},
    {"Frame2", Tab, 0, "", ""},
    {"txtAuthorFname", Tab, 0, "Frame2", ""},
    {"txtAuthorLname", Tab, 0, "Frame2", ""},
    {"txtAuthorEmail", Tab, 0, "Frame2", ""},
    {"Frame3", Tab, 0, "", ""},
    {"txtContactFname", Tab, 0, "Frame3", ""},
    {"txtContactLname", Tab, 0, "Frame3", ""},
    {"txtContactEmail", Tab, 0, "Frame3", ""},
    {"cmdSetContactAsAuthor", Tab, 0, "Frame3", ""},
    {"Frame4", Tab, 0, "", ""},
    {"Frame5", Tab, 0, "Frame4", ""},
    {"txtSupportEmailSales", Tab, 0, "Frame5", ""},
    {"txtSupportEmailSupport", Tab, 0, "Frame5", ""},
    {"txtSupportEmailGeneral", Tab, 0, "Frame5", ""},
    {"Frame6", Tab, 0, "Frame4", ""},
    {"txtPhoneSales", Tab, 0, "Frame6", ""},
    {"txtPhoneSupport", Tab, 0, "Frame6", ""},
    {"txtPhoneGeneral", Tab, 0, "Frame6", ""},
    {"txtPhoneFax", Tab, 0, "Frame6", ""},

    {"Frame7", Tab, 1, "", ""},
    {"cboProgramName", Tab, 1, "Frame7", ""},
    {"lblProgramRecord", Tab, 1, "Frame7", "cboProgramName"},
    {"txtProgramVersion", Tab, 1, "Frame7", ""},
    {"lblReleaseDate", Tab, 1, "Frame7", "cboReleaseMonth"},
    {"cboReleaseMonth", Tab, 1, "Frame7", ""},
    {"cboReleaseDay", Tab, 1, "Frame7", "cboReleaseMonth"},
    {"cboReleaseYear", Tab, 1, "Frame7", "cboReleaseMonth"},
    {"cboType", Tab, 1, "Frame7", ""},
    {"cboStatus", Tab, 1, "Frame7", ""},
    {"txtCostUS", Tab, 1, "Frame7", ""},
    {"cboCostOtherCurrency", Tab, 1, "Frame7", ""},
    {"txtCostOtherAmount", Tab, 1, "Frame7", "cboCostOtherCurrency"},
    {"cboInstallSupport", Tab, 1, "Frame7", ""},
    {"lstSupportedOS", Tab, 1, "Frame7", ""},
    {"lstLanguages", Tab, 1, "Frame7", ""},
    {"Frame8", Tab, 1, "", ""},
    {"txtVersionedFilename", Tab, 1, "Frame8", ""},
    {"txtPreviousFilename", Tab, 1, "Frame8", ""},
    {"txtGenericFilename", Tab, 1, "Frame8", ""},
    {"txtLongFilename", Tab, 1, "Frame8", ""},
    {"cmdOpenFileInfo", Tab, 1, "Frame8", "txtLongFilename"},
    {"txtSizeByte", Tab, 1, "Frame8", ""},
    {"txtSizeKB", Tab, 1, "Frame8", ""},
    {"txtSizeMB", Tab, 1, "Frame8", ""},
    {"Frame9", Tab, 1, "", ""},
    {"chkHasExpiredInfo", Tab, 1, "Frame9", ""},
    {"txtExpireAfter", Tab, 1, "Frame9", ""},
    {"optExpire", Tab, 1, "Frame9", "txtExpireAfter"},
    {"cboExpireMonth", Tab, 1, "Frame9", ""},
    {"cboExpireDay", Tab, 1, "Frame9", "cboExpireMonth"},
    {"cboExpireYear", Tab, 1, "Frame9", "cboExpireMonth"},
    {"txtExpireInfo", Tab, 1, "Frame9", ""},
    {"Frame10", Tab, 1, "", ""},
    {"txtRecentChanges", Tab, 1, "Frame10", ""},
    {"cboSpecificCategory", Tab, 1, "Frame10", ""},
    {"cboPossibleCategories", Tab, 1, "Frame10", ""},
    {"txtSystemRequirements", Tab, 1, "Frame10", ""},
    {"lblIncludes", Tab, 1, "Frame10", "chkIncludeDirectX"},
    {"chkIncludeDirectX", Tab, 1, "Frame10", ""},
    {"chkIncludeVBruntime", Tab, 1, "Frame10", "chkIncludeDirectX"},
    {"chkIncludeJava", Tab, 1, "Frame10", "chkIncludeDirectX"},

    {"frmDescr1", Tab, 2, "", ""},
    {"SSTab2", Tab, 2, "frmDescr1", ""},
    {"lbl45char", Tab, 2, "frmDescr1", "txt45char"},
    {"lbl80char", Tab, 2, "frmDescr1", "txt80char"},
    {"lbl250char", Tab, 2, "frmDescr1", "txt250char"},
    {"lbl450char", Tab, 2, "frmDescr1", "txt450char"},
    {"lbl2000char", Tab, 2, "frmDescr1", "txt2000char"},
    {"lblKeywords", Tab, 2, "frmDescr1", "txtKeywords"},
    {"picKeywordsGenerator", Tab, 2, "frmDescr1", "txtKeywords"},
    {"cmdCopyDesc", Tab, 2, "frmDescr1", ""},
    {"frmDescriptions", Page, 0, "", ""},
    {"chkActivateLanguage", Page, 0, "frmDescriptions", ""},
    {"txtKeywords", Page, 0, "frmDescriptions", ""},
    {"txt45char", Page, 0, "frmDescriptions", ""},
    {"txt80char", Page, 0, "frmDescriptions", ""},
    {"txt250char", Page, 0, "frmDescriptions", ""},
    {"txt450char", Page, 0, "frmDescriptions", ""},
    {"txt2000char", Page, 0, "frmDescriptions", ""},

    {"Frame11", Tab, 3, "", ""},
    {"txtApplicationHomeURL", Tab, 3, "Frame11", ""},
    {"txtApplicationOrderURL", Tab, 3, "Frame11", ""},
    {"txtScreenshotURL", Tab, 3, "Frame11", ""},
    {"txtProgramIconURL", Tab, 3, "Frame11", ""},
    {"txtPadXMLfileURL", Tab, 3, "Frame11", ""},
    {"Frame12", Tab, 3, "", ""},
    {"txtPrimaryDownloadURL", Tab, 3, "Frame12", ""},
    {"txtSecondDownloadURL", Tab, 3, "Frame12", ""},
    {"txtThirdDownloadURL", Tab, 3, "Frame12", ""},
    {"txtFourthDownloadURL", Tab, 3, "Frame12", ""},

    {"Frame13", Tab, 4, "", ""},
    {"txtDistributionAgreements", Tab, 4, "Frame13", ""},
    {"Frame14", Tab, 4, "", ""},
    {"txtEULA", Tab, 4, "Frame14", ""},

    {"chkASPactivate", Tab, 5, "", ""},
    {"Frame15", Tab, 5, "", ""},
    {"chkASP", Tab, 5, "Frame15", ""},
    {"txtASP_MemberNo", Tab, 5, "Frame15", "chkASP"},
    {"chkESCactivate", Tab, 6, "", ""},
    {"Frame16", Tab, 6, "", ""},
    {"chkESC", Tab, 6, "Frame16", ""},
    {"chkMSNactivate", Tab, 7, "", ""},
    {"Frame17", Tab, 7, "", ""},
    {"lblMSNNote", Tab, 7, "Frame17", "chkMSN"},
    {"chkMSN", Tab, 7, "Frame17", ""},
    {"chkTPAactivate", Tab, 8, "", ""},
    {"Frame18", Tab, 8, "", ""},
    {"chkTPA", Tab, 8, "Frame18", ""},
    {"txtTPA_MemberNo", Tab, 8, "Frame18", "chkTPA"},
    {"lblTPANote", Tab, 8, "Frame18", "cboTPA_LicenseType"},
    {"cboTPA_LicenseType", Tab, 8, "Frame18", ""},
};

// Controls placed by array member: the buttons beside the URL, description and licence boxes,
// the extension titles and the organisation frames.
void placeMembers(ControlRow& r) {
    auto at = [&](int tab, const char* frame, const QString& beside) {
        r.place = Place::MainTab;
        r.placeIndex = tab;
        r.frame = QLatin1String(frame);
        r.beside = beside;
    };
    if (r.name == QLatin1String("cmdBrowseGeneralURL") ||
        (r.name == QLatin1String("cmdCopyWebInfo2ClipBoard") && r.index < 9))
        return at(3, r.index < 5 ? "Frame11" : "Frame12", r.target);
    if (r.name == QLatin1String("cmdCopyWebInfo2ClipBoard") && r.index < 15)
        return at(2, "frmDescr1", r.target);
    if (r.name == QLatin1String("cmdBabel") && r.index < 6)
        return at(2, "frmDescr1", r.target);
    const bool licence = r.target == QLatin1String("txtEULA");
    if (r.name == QLatin1String("cmdCopyWebInfo2ClipBoard") ||
        r.name == QLatin1String("cmdBabel") || r.name == QLatin1String("cmdDefaultPermissions") ||
        r.name == QLatin1String("cmdPermission"))
        return at(4, r.index == 7 || licence ? "Frame14" : "Frame13",
                  r.index == 7 || licence ? QStringLiteral("txtEULA")
                                          : QStringLiteral("txtDistributionAgreements"));
    if (r.name == QLatin1String("lblExtensionTitle"))
        return at(5 + r.index, "", QString());
    const int organizationTab[] = {5, 6, 8};
    const QString organization = QStringLiteral("frmOrganization_%1").arg(r.index);
    if (r.name == QLatin1String("picASP")) {
        at(5, "", QString());
        r.frame = QStringLiteral("frmOrganization_0");
        return;
    }
    if (r.name == QLatin1String("frmOrganization"))
        return at(organizationTab[r.index], "", QString());
    if (r.name == QLatin1String("lblOrganizationInfo") ||
        r.name == QLatin1String("lblOrganization")) {
        at(organizationTab[r.index], "", QString());
        r.frame = organization;
        return;
    }
    qFatal("control %s has no place in the window", qPrintable(r.objectName()));
}

} // namespace

void placeControls(std::vector<ControlRow>& rows) {
    QHash<QString, const Placement*> byName;
    for (const Placement& p : kPlacements)
        byName.insert(QLatin1String(p.name), &p);
    for (ControlRow& r : rows) {
        const Placement* p = byName.value(r.name);
        if (!p || (r.name == QLatin1String("picASP") && r.index == 0)) {
            placeMembers(r);
            continue;
        }
        r.place = p->place;
        r.placeIndex = p->place == Place::LanguagePage ? std::max(0, r.index) : p->placeIndex;
        r.frame = QLatin1String(p->frame);
        if (r.frame == QLatin1String("frmDescriptions"))
            r.frame += u'_' + QString::number(r.index);
        r.beside = QLatin1String(p->beside);
    }
}

} // namespace brevaro::controltable
