// The deletion intent and the save intent: parsed, and what parses is checked against a home
// and run there.
#include "FuzzSupport.h"
#include "store/RecordStore.h"

#include <QDir>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
    using namespace brevaro;
    QString why;
    const auto intent = DeletionIntent::parse(fuzz::bytesOf(data, size), &why);
    if (intent) {
        // What is read back is what would be written.
        const auto again = DeletionIntent::parse(intent->toBytes(), &why);
        if (!again || again->toBytes() != intent->toBytes())
            __builtin_trap();
    }
    if (const auto save = SaveIntent::parse(fuzz::bytesOf(data, size), &why)) {
        for (const QString& name : save->written + save->removed)
            if (!SaveIntent::isRecordFileName(name))
                __builtin_trap();
    }
    // A home of three companies, the first two with a program each.
    AppHome home(fuzz::scratch().filePath(QStringLiteral("home")));
    QDir(home.root()).removeRecursively();
    home.createFolders();
    RecordStore store(home);
    for (int c = 1; c <= 3; ++c) {
        CompanyRecord company;
        company.setNumber(CompanyField::CompanyID, c);
        store.writeCompany(c, company);
        if (c < 3)
            store.writeProgram(c, 1, ProgramRecord());
    }
    fuzz::inputFile("home/data/deletion.intent", data, size);
    store.completeInterruptedDeletion();
    QFile::remove(home.deletionIntentFile());
    fuzz::inputFile("home/data/save.intent", data, size);
    store.completeInterruptedDeletion();
    // Nothing is ever written outside the home.
    if (QDir(fuzz::scratch().path()).entryList(QDir::Files).size() > 1)
        __builtin_trap();
    return 0;
}
