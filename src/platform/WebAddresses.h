#pragma once

#include <QString>

namespace brevaro {

// The remote sites, from the environment where the user may redirect them.
QString productSite();           // $BREVARO_PRODUCT_SITE
QString makerServer();           // $BREVARO_SERVER: banner data, site list, submission page
QString translateSite();         // $BREVARO_TRANSLATE_SITE
QString organizationSite(int i); // 0 ASP, 1 ESC, 2 TPA

// "Copyright (c) 2002-<this year> ..." as the main window and the about box show it.
QString copyrightLine();

// The sign-up page with the author's names and e-mail address, trimmed, not encoded.
QString signUpAddress(const QString& firstName, const QString& lastName, const QString& email);
// The download page with the running version.
QString versionAddress(const QString& appVersionText);
// The translation page, with the text appended to its query when withQuery is set.
QString translationAddress(const QString& text, bool withQuery);

} // namespace brevaro
