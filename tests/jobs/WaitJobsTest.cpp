#include "jobs/WaitJobs.h"
#include "jobs/JobsFixture.h"
#include "jobs/JobTime.h"

namespace {
QString MessageOf(qint16 code, qint16 mode = 0, NamesShown names = NamesShown::None) {
    return FaceOfWaitJob(code, mode, names).message;
}
} // namespace

TEST(WaitJobFaces, MessagesAtStart) {
    EXPECT_EQ(MessageOf(1), "Reading Variables, Please Standby ...");
    EXPECT_EQ(MessageOf(2, 0, NamesShown::NicNames), "Refreshing NicNames, Please Standby ...");
    EXPECT_EQ(MessageOf(2, 0, NamesShown::Descriptions),
              "Refreshing Descriptions, Please Standby ...");
    EXPECT_EQ(MessageOf(2), "Please Standby ...");
    EXPECT_EQ(MessageOf(3), "Printing Status Table, Please Standby ...");
    EXPECT_EQ(MessageOf(4, 1), "Downloading Target Board Data, Please Standby ...");
    EXPECT_EQ(MessageOf(4, 2), "Uploading Target Board Data, Please Standby ...");
    EXPECT_EQ(MessageOf(4, 3), "Downloading Datafile, Please Standby ...");
    EXPECT_EQ(MessageOf(4, 0), "Please Standby ...");
    EXPECT_EQ(MessageOf(5), "Printing Trend Data, Please Standby ...");
    EXPECT_EQ(MessageOf(6), "Uploading PLS Configuration, Please Standby ...");
    EXPECT_EQ(MessageOf(7), "Downloading PLS Configuration, Please Standby ...");
    EXPECT_EQ(MessageOf(8), "Clearing PLS Channel Setpoints, Please Standby ...");
}

TEST(WaitJobFaces, Jobs3And5And6And7And8CannotBeCancelled) {
    const bool expected[] = {true, true, true, false, true, false, false, false, false, true};
    for (qint16 code = 0; code <= 9; ++code)
        EXPECT_EQ(FaceOfWaitJob(code, 1, NamesShown::None).cancelEnabled, expected[code]) << code;
}

TEST(WaitJobFaces, PrintingHidesTheBarAndLowersTheMessage) {
    for (qint16 code = 0; code <= 9; ++code) {
        const WaitJobFace face = FaceOfWaitJob(code, 1, NamesShown::None);
        const bool printing = code == 3 || code == 5;
        EXPECT_EQ(face.barShown, !printing) << code;
        EXPECT_EQ(face.messageLowered, printing) << code;
    }
}

TEST(WaitJobFaces, SecondLineIsForMovingAWholePLS) {
    for (qint16 code = 0; code <= 9; ++code)
        EXPECT_EQ(FaceOfWaitJob(code, 1, NamesShown::None).secondLineShown, code == 6 || code == 7)
            << code;
}

TEST(WaitJobFaces, Job2WithoutAKindOfNamesStopsBeforeItIsCentred) {
    for (qint16 code = 0; code <= 9; ++code)
        EXPECT_EQ(FaceOfWaitJob(code, 1, NamesShown::None).centred, code != 2) << code;
    EXPECT_TRUE(FaceOfWaitJob(2, 0, NamesShown::NicNames).centred);
}

TEST(WaitJobRegistry, RunsTheRoutineOfItsCodeAndNothingForOthers) {
    WaitJobs jobs;
    RecordingProgress progress;
    jobs.Register(WaitJob::TransferData,
                  [](JobProgress& p) { p.ShowMessage(QStringLiteral("4")); });
    for (qint16 code = -1; code <= 9; ++code)
        jobs.Run(code, progress);
    EXPECT_EQ(progress.messages, QStringList{QStringLiteral("4")});
}

TEST(WaitJobRegistry, AsksForTheKindOfNamesWhenTheJobStarts) {
    WaitJobs jobs;
    EXPECT_EQ(jobs.Face(WaitJob::ReadNames).message, "Please Standby ...");
    jobs.RegisterNamesShown([] { return NamesShown::Descriptions; });
    EXPECT_EQ(jobs.Face(WaitJob::ReadNames).message, "Refreshing Descriptions, Please Standby ...");
}

TEST(JobTimes, EstimateComesFromThePaceSoFar) {
    const JobTime time = TimeOfJob(100, 110, 32, 132, 1032); // 100 of 1000 steps in 10 s
    EXPECT_EQ(time.passed, "0:10");
    EXPECT_EQ(time.remains, "1:30");
    EXPECT_EQ(JobTimeText(time), "Time passed 0:10, about 1:30 left");
}

TEST(JobTimes, ARangeHighInMemoryCountsFromItsOwnStart) {
    EXPECT_EQ(TimeOfJob(0, 10, 8000, 8010, 8020).remains, "0:10");
}

TEST(JobTimes, NothingIsGuessedBeforeASecondOrAStep) {
    EXPECT_EQ(JobTimeText(TimeOfJob(0, 0.9, 0, 50, 100)), "Time passed 0:00");
    EXPECT_EQ(JobTimeText(TimeOfJob(0, 20, 0, 0, 100)), "Time passed 0:20");
}

TEST(JobTimes, HoursHaveAPlaceOfTheirOwnAndOddClocksDoNoHarm) {
    EXPECT_EQ(TimeOfJob(0, 3723, 0, 1, 2).passed, "1:02:03");
    EXPECT_EQ(TimeOfJob(10, 5, 0, 1, 2).passed, "0:00");
    EXPECT_EQ(TimeOfJob(0, 1e12, 0, 1, 2000000).remains, "99:00:00");
    EXPECT_EQ(TimeOfJob(0, 5, 0, 9, 3).remains, "");
}
