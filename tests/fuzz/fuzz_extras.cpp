// The companion of the record files: parsed leniently, written back unchanged, and read by the
// store beside records it may not fit, never giving a record another's values.
#include "FuzzSupport.h"
#include "store/RecordStore.h"

#include <QDir>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
    using namespace brevaro;
    QStringList problems;
    ExtrasFile read = ExtrasFile::parse(fuzz::bytesOf(data, size), &problems);
    QStringList none;
    const ExtrasFile again = ExtrasFile::parse(read.toBytes(), &none);
    if (!none.isEmpty() || again.toBytes() != read.toBytes())
        __builtin_trap();
    // Matching keeps each entry at most once and only where the names agree.
    const QStringList names = {QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("A")};
    read.matchRecords(names);
    for (const ExtrasEntry& e : read.entries)
        if (e.number < 1 || e.number > names.size() || names[e.number - 1] != e.name)
            __builtin_trap();

    // A home of two companies named A and B, the companion of the company file fuzzed.
    AppHome home(fuzz::scratch().filePath(QStringLiteral("home")));
    QDir(home.root()).removeRecursively();
    home.createFolders();
    RecordStore store(home);
    for (int c = 1; c <= 2; ++c) {
        CompanyRecord company;
        company.setNumber(CompanyField::CompanyID, c);
        company.setText(CompanyField::CompanyName, c == 1 ? u"A" : u"B");
        store.writeCompany(c, company);
    }
    fuzz::inputFile("home/data/company.extra.json", data, size);
    CompanyRecord company;
    if (store.readCompany(1, company) && company.hasExtras()) {
        // Whatever was attached was the entry of A, and a save keeps it.
        store.writeCompany(1, company);
        CompanyRecord back;
        if (!store.readCompany(1, back) || !(back == company))
            __builtin_trap();
    }
    store.damage();
    return 0;
}
