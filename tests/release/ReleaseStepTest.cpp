#include "release/ReleaseStep.h"
#include "ReleaseRecords.h"
#include "TestSupport.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace brevaro;
using namespace brevaro::test;

namespace {

class ReleaseStep : public ::testing::Test {
protected:
    QTemporaryDir dir;
    ReleaseInput input(std::vector<DistributionFile> files, std::optional<QString> changes = {}) {
        return {QStringLiteral("2.5.0"), std::move(files), QDate(2026, 11, 24), std::move(changes)};
    }
    QString changed(const ReleasePlan& plan, const char* field) {
        for (const ReleaseChange& c : plan.changes)
            if (c.field == QLatin1String(field))
                return c.after;
        return QStringLiteral("(unchanged)");
    }
};

TEST_F(ReleaseStep, ComputesEveryFieldThatChanges) {
    // "abc" has a published SHA-256; the second file is 131072 bytes, 0.125 MB.
    const auto primary = distributionFile(dir.path(), QStringLiteral("harbour-setup.exe"), "abc");
    const auto secondary =
        distributionFile(dir.path(), QStringLiteral("harbour.zip"), QByteArray(131072, 'z'));
    const ReleasePlan plan =
        planRelease(releaseProgram(), input({primary, secondary}, QStringLiteral("Tabs.")));
    const ProgramRecord& p = plan.program;
    EXPECT_EQ(p.text(PF::ProgramVersion), u"2.5.0");
    EXPECT_EQ(p.text(PF::ReleaseMonth), u"11");
    EXPECT_EQ(p.text(PF::ReleaseDay), u"24");
    EXPECT_EQ(p.text(PF::ReleaseYear), u"2026");
    EXPECT_EQ(p.text(PF::FilenameVersioned), u"harbou25.exe");
    EXPECT_EQ(p.text(PF::FilenameGeneric), u"harbou.exe");
    EXPECT_EQ(p.text(PF::FilenameLong), u"harbour-setup.exe");
    EXPECT_EQ(p.text(PF::FileSizeBytes), u"3");
    EXPECT_EQ(p.text(PF::FileSizeK), u"0");
    EXPECT_EQ(p.laterValue(QStringLiteral("Download_SHA256_1")),
              u"ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
    EXPECT_EQ(p.laterValue(QStringLiteral("Download_SHA256_2")), secondary.sha256);
    EXPECT_EQ(p.text(PF::PrimaryDownloadURL),
              u"https://dl.northwind.example/2.5.0/harbour-setup.exe");
    EXPECT_EQ(p.text(PF::SecondaryDownloadURL), u"https://dl.northwind.example/2.5.0/harbour.zip");
    EXPECT_EQ(p.text(PF::ChangeInfo), u"Tabs.");
    // The history starts with the release the program showed before.
    EXPECT_EQ(p.laterValue(QStringLiteral("Release_History")),
              u"2.5.0 2026-11-24\n2.4.1 2026-11-02");
    // The change list names each field with its texts before and after.
    EXPECT_EQ(changed(plan, "ProgramVersion"), u"2.5.0");
    EXPECT_EQ(changed(plan, "ReleaseMonth"), u"(unchanged)");
    EXPECT_EQ(changed(plan, "AdditionalDownloadURL1"), u"(unchanged)");
    const auto version = std::find_if(plan.changes.begin(), plan.changes.end(),
                                      [](const auto& c) { return c.field == u"ProgramVersion"; });
    EXPECT_EQ(version->before, u"2.4.1");
}

TEST_F(ReleaseStep, ProposesTheNextVersion) {
    EXPECT_EQ(proposedVersion(QStringLiteral("2.4.1")), u"2.4.2");
    EXPECT_EQ(proposedVersion(QStringLiteral("2.9")), u"2.10");
    EXPECT_EQ(proposedVersion(QStringLiteral("7")), u"8");
    EXPECT_EQ(proposedVersion(QString()), u"1.0");
    EXPECT_EQ(proposedVersion(QStringLiteral("2.4 beta")), u"2.4 beta");
}

TEST_F(ReleaseStep, SizesRoundAsFileInfoShowsThem) {
    // Half away from zero: 0.125 MB shows as 0.13, 1.5 KB as 2.
    FileInfoValues v = fileInfoValues(QStringLiteral("a.zip"), 131072, QStringLiteral("1.0"));
    EXPECT_EQ(v.megabytes, u"0.13");
    EXPECT_EQ(v.kilobytes, u"128");
    v = fileInfoValues(QStringLiteral("a.zip"), 1536, QStringLiteral("1.0"));
    EXPECT_EQ(v.kilobytes, u"2");
    EXPECT_EQ(v.versioned, u"a10.zip");
}

TEST_F(ReleaseStep, HashAgreesWithQtsOwnAtEveryBlockBoundary) {
    for (const int size : {0, 1, 1048575, 1048576, 1048577, 3 * 1048576 + 7}) {
        QByteArray bytes(size, Qt::Uninitialized);
        for (int i = 0; i < size; ++i)
            bytes[i] = static_cast<char>((static_cast<unsigned>(i) * 7919u) >> 3);
        const DistributionFile d = distributionFile(dir.path(), QStringLiteral("f.bin"), bytes);
        EXPECT_EQ(d.size, size);
        EXPECT_EQ(d.sha256, sha256Hex(bytes)) << size;
    }
}

TEST_F(ReleaseStep, RunningItAgainChangesNothing) {
    const auto file = distributionFile(dir.path(), QStringLiteral("h.exe"), "one");
    const ReleasePlan first = planRelease(releaseProgram(), input({file}, QStringLiteral("x")));
    ASSERT_FALSE(first.changes.empty());
    const ReleasePlan second = planRelease(first.program, input({file}, QStringLiteral("x")));
    EXPECT_TRUE(second.changes.empty());
    EXPECT_EQ(second.program, first.program);
    // Releasing a version again replaces its history line rather than adding one.
    const ReleasePlan redated = planRelease(
        first.program, {QStringLiteral("2.5.0"), {file}, QDate(2026, 12, 1), std::nullopt});
    EXPECT_EQ(redated.program.laterValue(QStringLiteral("Release_History")),
              u"2.5.0 2026-12-01\n2.4.1 2026-11-02");
}

TEST_F(ReleaseStep, LeavesWhatItCannotKnowAndSaysSo) {
    ProgramRecord program = releaseProgram();
    program.setLaterValue(QStringLiteral("Download_URL_Pattern"), QString());
    program.setLaterValue(QStringLiteral("Download_SHA256_2"), QStringLiteral("old"));
    const auto file = distributionFile(dir.path(), QStringLiteral("h.exe"), "one");
    const ReleasePlan plan = planRelease(program, input({file}));
    EXPECT_EQ(plan.program.text(PF::PrimaryDownloadURL), program.text(PF::PrimaryDownloadURL));
    EXPECT_EQ(plan.program.text(PF::ChangeInfo), program.text(PF::ChangeInfo));
    // A hash of a file this release does not have would name the wrong file.
    EXPECT_EQ(plan.program.laterValue(QStringLiteral("Download_SHA256_2")), QString());
    ASSERT_EQ(plan.notes.size(), 2);
    EXPECT_TRUE(plan.notes[0].contains(u"no download address pattern"));
    EXPECT_TRUE(plan.notes[1].contains(u"change information is left"));
}

TEST_F(ReleaseStep, RefusesInputThatCannotBeReleased) {
    const auto file = distributionFile(dir.path(), QStringLiteral("h.exe"), "one");
    ReleaseInput in = input({file});
    EXPECT_TRUE(releaseInputProblem(in).isEmpty());
    for (const char* bad : {"", "2.5 beta", "12345678901"}) {
        in.version = QLatin1String(bad);
        EXPECT_FALSE(releaseInputProblem(in).isEmpty()) << bad;
    }
    in = input({});
    EXPECT_TRUE(releaseInputProblem(in).contains(u"at least one"));
    in = input({file, file, file, file, file});
    EXPECT_TRUE(releaseInputProblem(in).contains(u"at most 4"));
    in = input({file});
    in.date = QDate();
    EXPECT_FALSE(releaseInputProblem(in).isEmpty());
    DistributionFile none;
    QString error;
    EXPECT_FALSE(readDistributionFile(dir.filePath(QStringLiteral("missing")), &none, &error));
    EXPECT_FALSE(readDistributionFile(dir.path(), &none, &error));
    EXPECT_TRUE(error.contains(u"not a regular file"));
}

} // namespace
