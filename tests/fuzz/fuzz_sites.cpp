// The download-site list: enciphered name|url lines read from the list file.
#include "FuzzSupport.h"
#include "platform/HttpTransfer.h"
#include "submission/SiteList.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
    using namespace brevaro;
    static HttpTransfer* http = [] {
        fuzz::scratch();
        return new HttpTransfer;
    }();
    SiteList list(fuzz::inputFile("swd.dta", data, size), *http);
    list.LoadList();
    for (int column = 0; column < 3; ++column)
        list.sortByColumn(column);
    return list.sites().empty() && size > std::size_t(1) << 30;
}
