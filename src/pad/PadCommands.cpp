#include "pad/PadCommands.h"

#include "mainwindow/EditingSession.h"
#include "pad/CreatePad.h"
#include "pad/PadImporter.h"
#include "pad/VerificationReport.h"
#include "records/Win1252.h"

#include <QSaveFile>
#include <QUrl>

namespace brevaro {

void VerifyPAD(EditingSession& s) {
    const QString path = s.store().home().verificationPage();
    const QByteArray page =
        toWin1252(verificationPage(s.company(), s.program(), s.text(u"lblOrganization", 0)));
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(page) != page.size() || !file.commit()) {
        s.prompts().message(QStringLiteral("Verify PAD"),
                            QStringLiteral("The verification page %1 could not be written: %2")
                                .arg(path, file.errorString()));
        return;
    }
    s.prompts().openDocument(QUrl::fromLocalFile(path).toString());
}

void installPadCommands(EditingSession& s) {
    s.setCommandHandler(SessionCommand::VerifyPAD, [&s] { VerifyPAD(s); });
    s.setCommandHandler(SessionCommand::CreatePAD, [&s] { CreatePADFile(s); });
    s.setCommandHandler(SessionCommand::ImportPAD, [&s] { ImportPAD(s); });
}

} // namespace brevaro
