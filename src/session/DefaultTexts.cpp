#include "session/DefaultTexts.h"

#include <QStringList>

namespace brevaro {

namespace {
QString lines(const QStringList& list) {
    return list.join(QStringLiteral("\r\n")) + QStringLiteral("\r\n");
}
} // namespace

QString defaultDistributionText(const QString& program, const QString& type) {
    QStringList text{QStringLiteral("You may include ") + program +
                     QStringLiteral(" on any CD compilation.")};
    if (type != QLatin1String("FREEWARE")) {
        text << QStringLiteral("You may not sell the evalution copy.")
             << QStringLiteral("You must disclose that ") + program + QStringLiteral(" is ") +
                    type + QStringLiteral(" and the product is not free.");
    } else {
        text << QStringLiteral("You may not sell ") + program + QStringLiteral(", it is FREEWARE!");
    }
    return lines(text);
}

QString defaultLicenceText(const QString& program, const QString& company) {
    const QString& p = program;
    const QString& c = company;
    return lines({
        p + QStringLiteral(" SOFTWARE LICENSE:"),
        QString(),
        QStringLiteral("1) GRANT OF LICENSE:"),
        c + QStringLiteral(" grants you a single, non-exclusive license to use the ") + p +
            QStringLiteral(" provided you agree to abide by the terms of this Agreement. Only one "
                           "user is authorized to use the ") +
            p +
            QStringLiteral(" on one computer at a time (and not by more than one individual via a "
                           "network)."),
        QString(),
        QStringLiteral("2) OTHER RESTRICTIONS:"),
        QStringLiteral("You acknowledge that you do not become the owner of the ") + p +
            QStringLiteral(" (software, programs and/or documentation). You agree not to transfer, "
                           "rent,lease, sub-license, reverse engineer, modify, translate, or share "
                           "the ") +
            p + QStringLiteral(", diskettes, or manual with any other person or firm."),
        QString(),
        QStringLiteral("3) LIMITED WARRANTY:"),
        QStringLiteral("While we have attempted to ensure the reliability of the ") + p +
            QStringLiteral(", ") + c +
            QStringLiteral(" cannot assume any liability for damage that occurs because of usage "
                           "of this program, as its performance cannot be guaranteed under every "
                           "circumstance, hardware and software configuration, set of user data or "
                           "series of commands. ") +
            c +
            QStringLiteral(" warrants the diskette media and manual to be free from defects in "
                           "materials or manufacture for a period of 30 days from your receipt. "
                           "When you open this package or use the ") +
            p +
            QStringLiteral(" you indicate you accept this as the only warranty. You agree that "
                           "regardless of the form of any claim, ") +
            c +
            QStringLiteral("'s liability for any damages shall not exceed the price you paid for "
                           "the program. NO OTHER WARRANTIES. To the fullest extent the law "
                           "allows, all other warranties, express or implied, are disclaimed, "
                           "including but not limited to the implied warranties of "
                           "merchantability or fitness for a particular purpose, and all such "
                           "warranties are expressly and specifically disclaimed."),
        QString(),
        QStringLiteral("4) NO LIABILITY FOR INCIDENTAL OR CONSEQUENTIAL DAMAGES:"),
        QStringLiteral("In no event shall ") + c +
            QStringLiteral(" or its suppliers, if any, be responsible for any special, incidental "
                           "or consequential damages whatsoever (including, without limitation, "
                           "damages for lost profits, business interruption, loss of information "
                           "or any other monetary loss) arising out of the use or the inability "
                           "to use this product, even if ") +
            c +
            QStringLiteral(" has been advised of the possibility of such damage. Some states do "
                           "not allow the limitation or exclusion of liability for incidental or "
                           "consequential damages, so the above limitation or exclusion may not "
                           "apply to you."),
    });
}

} // namespace brevaro
