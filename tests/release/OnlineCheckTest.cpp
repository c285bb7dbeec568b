#include "release/OnlineCheck.h"
#include "LocalHttpServer.h"
#include "TestSupport.h"

#include <QTemporaryDir>
#include <QTimer>
#include <gtest/gtest.h>

using namespace brevaro;
using namespace brevaro::test;
using O = OnlineResult::Outcome;

namespace {

const QByteArray kFile = QByteArray("release bytes ").repeated(1000);

LocalHttpServer::Response serving(const QByteArray& body) {
    LocalHttpServer::Response r;
    r.contentType = "application/octet-stream";
    r.body = body;
    return r;
}

class OnlineCheckTest : public ::testing::Test {
protected:
    void SetUp() override {
        local = dir.filePath(QStringLiteral("setup.exe"));
        writeBytes(local, kFile);
        QByteArray sameSize = kFile;
        sameSize[100] = 'X';
        server.route("/right", serving(kFile));
        server.route("/bigger", serving(kFile + "more"));
        server.route("/smaller", serving(kFile.left(10)));
        server.route("/same-size", serving(sameSize));
        LocalHttpServer::Response moved = serving({});
        moved.status = 302;
        moved.location = "/right";
        server.route("/moved", moved);
        LocalHttpServer::Response stall = serving({});
        stall.stall = true;
        server.route("/stall", stall);
        LocalHttpServer::Response huge = serving({});
        huge.hugeBytes = 50'000'000;
        server.route("/huge", huge);
        check.setIdleLimit(300);
    }
    OnlineTarget at(const char* path) { return {server.url(path), local}; }

    QTemporaryDir dir;
    QString local;
    LocalHttpServer server;
    OnlineCheck check;
};

TEST_F(OnlineCheckTest, ComparesEveryAddressWithItsFile) {
    const auto results = check.run({at("/right"), at("/bigger"), at("/smaller"), at("/same-size"),
                                    at("/missing"), at("/moved"), at("/stall")});
    ASSERT_EQ(results.size(), 7u);
    const std::vector<O> expected = {O::Matches,     O::DiffersSize, O::DiffersSize, O::DiffersHash,
                                     O::Unreachable, O::Matches,     O::Unreachable};
    for (std::size_t i = 0; i < results.size(); ++i) {
        EXPECT_EQ(results[i].outcome, expected[i])
            << results[i].url.toStdString() << ": " << results[i].detail.toStdString();
        EXPECT_FALSE(results[i].detail.isEmpty());
    }
    EXPECT_EQ(results[0].url, server.url("/right"));
    EXPECT_TRUE(results[4].detail.contains(u"404")) << results[4].detail.toStdString();
    EXPECT_TRUE(results[6].detail.contains(u"sent nothing")) << results[6].detail.toStdString();
    EXPECT_FALSE(allMatch(results));
    EXPECT_TRUE(allMatch({results[0], results[5]}));
}

TEST_F(OnlineCheckTest, TakesNoMoreThanTheFileItComparesWith) {
    const auto results = check.run({at("/huge")});
    EXPECT_EQ(results.front().outcome, O::DiffersSize);
    // The transfer stopped one byte past the local file, not at the end of 50 MB.
    EXPECT_LT(server.bytesSent(), 20'000'000);
}

TEST_F(OnlineCheckTest, CancelStopsTheTransferUnderWayAndSkipsTheRest) {
    int started = 0;
    QObject::connect(&check, &OnlineCheck::progress, [&](int index, int count, const QString&) {
        started = index + 1;
        EXPECT_EQ(count, 3);
        if (index == 1)
            QTimer::singleShot(50, &check, [this] { check.cancel(); });
    });
    check.setIdleLimit(60'000);
    const auto results = check.run({at("/right"), at("/stall"), at("/right")});
    EXPECT_EQ(started, 2);
    ASSERT_EQ(results.size(), 3u);
    EXPECT_EQ(results[0].outcome, O::Matches);
    EXPECT_EQ(results[1].outcome, O::Cancelled);
    EXPECT_EQ(results[2].outcome, O::Cancelled);
    EXPECT_EQ(server.requests("/right"), 1);
}

} // namespace
