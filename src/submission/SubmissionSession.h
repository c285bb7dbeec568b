#pragma once

#include "records/CompanyRecord.h"
#include "records/ProgramRecord.h"
#include "submission/KnownFields.h"
#include "submission/SubmissionInfo.h"

#include <QObject>
#include <QString>
#include <array>
#include <vector>

namespace brevaro {

class Prompts;

// The submission browser without its widgets: the site, the caption, the product panel, the
// info list and its label, the copy commands and the plan of the known page inputs. The view
// shows this state and forwards clicks; the page itself belongs to the view.
class SubmissionSession : public QObject {
    Q_OBJECT
public:
    // The product panel's text boxes, in the order of their rows.
    enum Product { ProductName, ProductVersion, PadFileUrl, MainCategory, SubCategory };
    static constexpr int kProducts = 5;
    // The control names of the product boxes, and which box each copy button copies.
    static QString productControl(Product p);
    static Product copyButtonField(int index);

    // The label under the info list.
    struct InfoLabel {
        QString text = QStringLiteral("Doubleclick in list to copy to Clipboard");
        bool red = false;
        bool bold = false;
    };

    SubmissionSession(const CompanyRecord& company, const ProgramRecord& program, Prompts& prompts,
                      QObject* parent = nullptr);

    QString SiteName;
    QString SiteURL;
    QString txtURL;
    QString caption;
    QString status;
    InfoLabel lblInfo;
    bool controlsEnabled = true;

    const std::vector<InfoEntry>& lstInfo() const { return m_info; }
    const QString& product(Product p) const { return m_product[p]; }
    void setProduct(Product p, const QString& text) { m_product[p] = text; }

    // Loading the form: controls disabled, the info list filled, the default site when none is
    // set, the product panel from the records, the caption.
    void load();
    void SetCaption();
    void SimpleText(const QString& text);
    void DisableControls();
    void EnableControls();
    void FillInfoList();

    // A site chosen from the download-site list: name and address, trimmed, become the site,
    // the address box and the caption; the view then navigates to txtURL.
    void setSite(const QString& name, const QString& url);

    // The info list, by running number.
    void clickEntry(const QString& number);
    void doubleClickEntry(const QString& number);
    void CopyToClipboard(const QString& text);
    // A product copy button, 0 to 4: the box flashes and its text goes on the clipboard.
    void copyProduct(int index);

    // What FillKnownFields puts into the page, from the PAD file box and the typed log-in.
    std::vector<KnownInput> knownFields(const QString& user, const QString& password) const;

signals:
    void changed();
    // The copy flash of one product box, shown while the events are pumped.
    void flashStarted(SubmissionSession::Product box);
    void flashEnded(SubmissionSession::Product box);

private:
    const InfoEntry* entry(const QString& number) const;
    void showValue(const QString& value);

    const CompanyRecord& m_company;
    const ProgramRecord& m_program;
    Prompts& m_prompts;
    std::vector<InfoEntry> m_info;
    std::array<QString, kProducts> m_product;
};

} // namespace brevaro
