// The record reader: a company file and a program file of any bytes, read record by record,
// by slices and whole, and turned into JSON as show does.
#include "FuzzSupport.h"
#include "records/RecordJson.h"
#include "store/RecordStore.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
    using namespace brevaro;
    AppHome home(fuzz::scratch().filePath(QStringLiteral("home")));
    home.createFolders();
    fuzz::inputFile("home/data/company.dta", data, size);
    fuzz::inputFile("home/data/1.dta", data, size);
    RecordStore store(home);
    store.damage();
    const QStringList names = store.companyNames();
    store.programNames(1);
    for (int n = 1; n <= store.companyCount() && n <= 4; ++n) {
        CompanyRecord company;
        if (store.readCompany(n, company))
            recordToJson(company);
    }
    for (int n = 1; n <= store.programCount(1) && n <= 4; ++n) {
        ProgramRecord program;
        if (store.readProgram(1, n, program))
            recordToJson(program);
    }
    store.companyFile().readAll();
    return names.size() < 0;
}
