#include "pad/WebInfo.h"

#include "pad/PadText.h"
#include "platform/StringHelpers.h"
#include "records/ValueLists.h"

namespace brevaro {

namespace {

using CF = CompanyField;
using PF = ProgramField;

class Html {
public:
    Html& operator<<(const QString& line) {
        m_text += line + QStringLiteral("\r\n");
        return *this;
    }
    Html& operator<<(const char* line) { return *this << QString::fromUtf8(line); }
    const QString& text() const { return m_text; }

private:
    QString m_text;
};

QString q(const QString& s) {
    return u'"' + s + u'"';
}
QString link(const QString& href, const QString& text) {
    return QStringLiteral("<a href=") + q(href) + u'>' + text + QStringLiteral("</a>");
}

} // namespace

QString CreateWebInfo(const CompanyRecord& c, const ProgramRecord& p, const QString& aspSite) {
    Html h;
    h << createdByComment() << availableAtComment() << "";
    h << "<TABLE border=1  bgcolor=\"#e0e0e0\">"
      << " <TR>"
      << "  <TD>"
      << "   <TABLE border=0 bgcolor=\"#ffffe1\">"
      << "    <TR valign=top>"
      << "     <TD rowspan=2 valign=top align=left>"
      << "      <CENTER>";
    if (const QString icon = p.text(PF::ApplicationIconURL); !icon.isEmpty())
        h << QStringLiteral("       <img src=") + q(icon) + u'>';
    h << "      </CENTER>"
      << "      <P>"
      << "     </TD>"
      << ""
      << "     <TD>"
      << "      <TABLE border=0  width=\"100%\" bgcolor=\"#FFFFF0\">"
      << "       <TR>"
      << "        <TD colspan=2 valign=top>";
    if (const QString info = p.text(PF::ApplicationInfoURL); !info.isEmpty())
        h << QStringLiteral("         ") + link(info, p.text(PF::ProgramName));
    if (const QString version = p.text(PF::ProgramVersion); !version.isEmpty())
        h << QStringLiteral("          - Ver: ") + version;
    h << "<BR>";
    h << QStringLiteral("         Written by: ") +
             link(c.text(CF::CompanyWebSiteURL), c.text(CF::CompanyName)) + QStringLiteral("<BR>");
    h << QStringLiteral("         ") + c.text(CF::Address1) + QStringLiteral("<BR>") +
             c.text(CF::CityTown) + QStringLiteral(", ") + c.text(CF::StateProvince) + u' ' +
             c.text(CF::ZipPostalCode) + QStringLiteral("<BR>") + c.text(CF::Country);
    h << "        </TD>"
      << "        <TD width=\"33%\">"
      << "         <CENTER>";
    if (const QString shot = p.text(PF::ApplicationScreenshotURL); !shot.isEmpty())
        h << QStringLiteral("          ") + link(shot, QStringLiteral("Screen Shot")) +
                 QStringLiteral("<BR>");
    if (p.number(PF::ASPMember) == 1) {
        h << QStringLiteral("          ") +
                 link(trimBlanks(aspSite), QStringLiteral("ASP&nbsp;Member"));
        if (const QString number = p.text(PF::ASPMemberNumber); !number.isEmpty())
            h << QStringLiteral("          : ") + number;
    }
    h << "          <BR>"
      << "         </CENTER>"
      << "        </TD>"
      << "       </TR>"
      << "";

    h << "       <TR>"
      << "        <TD width=\"33%\">"
      << "         <FONT SIZE=2>";
    h << QStringLiteral("          Release Date: ") + p.text(PF::ReleaseMonth) + u'/' +
             p.text(PF::ReleaseDay) + u'/' + p.text(PF::ReleaseYear) + QStringLiteral("<BR>");
    h << QStringLiteral("          Release Status: <B>") + p.text(PF::ReleaseStatus) +
             QStringLiteral("</B>");
    h << "         </FONT>"
      << "        </TD>"
      << ""
      << "        <TD width=\"33%\">"
      << "         <FONT SIZE=2>";
    h << QStringLiteral("          File Size: ") + p.text(PF::FileSizeK) +
             QStringLiteral("KB&nbsp;&nbsp;-&nbsp;&nbsp;") + p.text(PF::FileSizeMB) +
             QStringLiteral("MB");
    h << "         </FONT>"
      << "        </TD>"
      << ""
      << "        <TD width=\"33%\">"
      << "         <FONT SIZE=2>";
    h << QStringLiteral("          Type: ") + p.text(PF::ProgramType) + QStringLiteral("<BR>");
    h << QStringLiteral("          Cost: USD ") + p.text(PF::CostDollars);
    h << "         </FONT>"
      << "        </TD>"
      << "       </TR>"
      << "      </TABLE>"
      << "";

    h << "      <B>Keywords:</B>"
      << "      <font size=2>";
    h << QStringLiteral("       ") + p.text(PF::Keywords, 0);
    h << "      </font>"
      << "      <p>"
      << "      <B>Description:</B><BR>"
      << "      <font size=2>";
    h << QStringLiteral("       ") + p.text(PF::CharDesc450, 0);
    h << "       <P>"
      << "      </font>"
      << ""
      << "      <hr width=75%>"
      << "";

    h << "      <TABLE BORDER=0 width=100%>"
      << "       <TR>"
      << "        <td colspan=2>"
      << "         <B>Contact Info:</B>"
      << "        </td>"
      << "       </TR>"
      << ""
      << "       <TR valign=top>"
      << "        <TD>"
      << "         <FONT size=2>";
    auto mail = [](const QString& address) {
        return link(QStringLiteral("mailto:") + address, address);
    };
    h << QStringLiteral("          General Phone: ") + c.text(CF::GeneralPhone) +
             QStringLiteral("<BR>");
    h << QStringLiteral("          General Email: ") + mail(c.text(CF::GeneralEmail));
    h << "          <P>";
    h << QStringLiteral("          Support Phone: ") + c.text(CF::SupportPhone) +
             QStringLiteral("<BR>");
    h << QStringLiteral("          Support Email: ") + mail(c.text(CF::SupportEmail));
    h << "         </FONT>"
      << "        </TD>"
      << ""
      << "        <TD>"
      << "         <FONT size=2>";
    h << QStringLiteral("          Sales Phone: ") + c.text(CF::SalesPhone) +
             QStringLiteral("<BR>");
    h << QStringLiteral("          Sales Email: ") + mail(c.text(CF::SalesEmail));
    h << "          <P>";
    if (const QString order = p.text(PF::ApplicationOrderURL); !order.isEmpty())
        h << QStringLiteral("          Order Online: ") + link(order, order);
    h << "         </FONT>"
      << "        </TR>"
      << "       </TABLE>"
      << ""
      << "       <hr width=75%>"
      << "";

    h << "       <TABLE BORDER=0>"
      << "        <TR>"
      << "         <TD>"
      << "          <B>Download URLs:</B>"
      << "         </TD>"
      << "        </TR>"
      << "        <TR>"
      << "         <TD>"
      << "          <FONT size=2>";
    for (PF f : {PF::PrimaryDownloadURL, PF::SecondaryDownloadURL, PF::AdditionalDownloadURL1,
                 PF::AdditionalDownloadURL2})
        if (const QString url = p.text(f); !url.isEmpty())
            h << QStringLiteral("           ") + link(url, url) + QStringLiteral("<BR>");
    h << "          </FONT>"
      << "         </TD>"
      << "        </TR>"
      << "       </TABLE>"
      << ""
      << "      </TD>"
      << "     </TR>"
      << "    </TABLE>"
      << "";

    h << QStringLiteral("    <B>Supported Operating Systems: </B>") +
             joinedFlagTexts(p, PF::OSSupported, operatingSystemList()) + QStringLiteral("<BR>");
    h << QStringLiteral("    <B>System Requirements: </B>") + p.text(PF::SystemRequirements) +
             QStringLiteral("<br>");
    h << QStringLiteral("    <B>Install Support: </B>") + p.text(PF::InstallSupport);
    h << "   </TD>"
      << "  </TR>"
      << " </TABLE>"
      << " <hr>"
      << "";
    return h.text();
}

} // namespace brevaro
