// A lock file of any bytes met by a writer.
#include "FuzzSupport.h"
#include "store/HomeLock.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
    using namespace brevaro;
    AppHome home(fuzz::scratch().filePath(QStringLiteral("home")));
    home.createFolders();
    fuzz::inputFile("home/brevaro.lock", data, size);
    HomeLock lock(home);
    QString message;
    lock.acquire(&message);
    return 0;
}
