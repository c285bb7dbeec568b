// The banner data file: share/data.txt loaded and rotated through.
#include "FuzzSupport.h"
#include "platform/HttpTransfer.h"
#include "session/BannerRotation.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
    using namespace brevaro;
    static SilentPrompts prompts;
    static HttpTransfer* http = [] {
        fuzz::scratch();
        return new HttpTransfer;
    }();
    AppHome home(fuzz::scratch().filePath(QStringLiteral("home")));
    home.createFolders();
    BannerRotation banners(home, prompts, *http);
    banners.LocalBannerData = fuzz::inputFile("home/share/data.txt", data, size);
    banners.LoadLocalBannerList();
    for (std::size_t i = 0; i < banners.banners().size() + 1 && i < 8; ++i)
        banners.Banner_Timer_Timer();
    BannerRotation::FixDataLineEnds(banners.LocalBannerData);
    return 0;
}
