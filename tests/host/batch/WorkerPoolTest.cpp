#include "batch/WorkerPool.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdint>
#include <map>
#include <new>
#include <stdexcept>

namespace host {
namespace {

using testing::SizeIs;

constexpr std::size_t HANGING = 5;
constexpr std::size_t DYING = 7;
constexpr std::size_t THROWING = 9;
constexpr std::size_t GREEDY = 11;
constexpr std::size_t MEBIBYTES = 1024 * 1024;

// A sanitizer ends the process itself where there is no memory.
#if defined(__SANITIZE_ADDRESS__)
constexpr bool HAS_SANITIZER = true;
#elif defined(__has_feature)
constexpr bool HAS_SANITIZER = __has_feature(address_sanitizer);
#else
constexpr bool HAS_SANITIZER = false;
#endif

/// Answers with the number and the process, but for the jobs above.
class Numbers final : public Work
{
public:
    explicit Numbers(std::size_t nAnswerBytes) : m_nAnswerBytes(nAnswerBytes) {}

    std::string Do(std::size_t nJob) override
    {
        if (nJob == HANGING)
            for (;;)
                pause();
        if (nJob == DYING)
            std::raise(SIGKILL);
        if (nJob == THROWING)
            throw std::runtime_error("no answer");
        if (nJob == GREEDY)
            return WithoutMemory();
        return std::to_string(nJob) + ":" + std::to_string(getpid()) +
               std::string(m_nAnswerBytes, 'x');
    }

private:
    /// Swallows that there is no memory, as parts of the library do.
    static std::string WithoutMemory()
    {
        try {
            return std::string(256 * MEBIBYTES, 'x').substr(0, 1);
        } catch (const std::bad_alloc&) {
            return "none";
        }
    }

    std::size_t m_nAnswerBytes;
};

class WorkerPoolTest : public testing::Test
{
protected:
    void Run(std::size_t nWorkers,
             std::size_t nFirst,
             std::size_t nEnd,
             double dTimeout = 0,
             std::size_t nAnswerBytes = 0,
             std::uint64_t nMemory = 0)
    {
        std::size_t nNext = nFirst;
        const WorkerPool::Client client = {
            [=] { return std::make_unique<Numbers>(nAnswerBytes); },
            [&]() -> std::optional<std::size_t> {
                return nNext < nEnd ? std::optional(nNext++) : std::nullopt;
            },
            [&](JobResult result) {
                const std::size_t nJob = result.nJob;
                EXPECT_TRUE(mapResult.emplace(nJob, std::move(result)).second) << nJob;
                if (onDone)
                    onDone(nJob);
            },
            [] {},
        };
        const Interrupt interrupt;
        WorkerPool({nWorkers, dTimeout, nMemory}, client, interrupt).Run();
    }

    std::map<std::size_t, JobResult> mapResult;
    std::function<void(std::size_t)> onDone;
};

TEST_F(WorkerPoolTest, EachJobIsAnsweredOnce)
{
    Run(3, 100, 300);
    ASSERT_THAT(mapResult, SizeIs(200));
    for (const auto& [nJob, result] : mapResult) {
        EXPECT_EQ(result.eEnd, JobEnd::Answered);
        EXPECT_EQ(result.strAnswer.substr(0, 4), std::to_string(nJob) + ":");
    }
}

TEST_F(WorkerPoolTest, OneProcessDoesManyJobs)
{
    Run(1, 100, 120);
    for (const auto& [nJob, result] : mapResult)
        EXPECT_EQ(result.strAnswer.substr(4), mapResult.at(100).strAnswer.substr(4)) << nJob;
}

TEST_F(WorkerPoolTest, AnswerMayBeLargerThanAnyBuffer)
{
    Run(2, 100, 104, 0, 3'000'000);
    ASSERT_THAT(mapResult, SizeIs(4));
    EXPECT_GT(mapResult.at(103).strAnswer.size(), 3'000'000U);
}

TEST_F(WorkerPoolTest, NoJobsNeedNoProcess)
{
    Run(4, 3, 3);
    EXPECT_THAT(mapResult, SizeIs(0));
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1);
}

TEST_F(WorkerPoolTest, ProcessThatDiesTakesItsJobAlone)
{
    Run(2, 6, 20);
    ASSERT_THAT(mapResult, SizeIs(14));
    EXPECT_EQ(mapResult.at(DYING).eEnd, JobEnd::Died);
    EXPECT_EQ(WTERMSIG(mapResult.at(DYING).nWaitStatus), SIGKILL);
    EXPECT_EQ(mapResult.at(THROWING).eEnd, JobEnd::Died);
    EXPECT_EQ(WEXITSTATUS(mapResult.at(THROWING).nWaitStatus), 70);
    for (const auto& [nJob, result] : mapResult) {
        const bool bAnswered = nJob != DYING && nJob != THROWING;
        EXPECT_EQ(result.eEnd == JobEnd::Answered, bAnswered) << nJob;
    }
}

TEST_F(WorkerPoolTest, JobThatHangsIsGivenUp)
{
    Run(1, HANGING, HANGING + 2, 0.3);
    ASSERT_THAT(mapResult, SizeIs(2));
    EXPECT_EQ(mapResult.at(HANGING).eEnd, JobEnd::TimedOut);
    EXPECT_GE(mapResult.at(HANGING).dSeconds, 0.3);
    EXPECT_EQ(mapResult.at(HANGING + 1).eEnd, JobEnd::Answered);
}

TEST_F(WorkerPoolTest, InterruptLetsJobsAtWorkEndAndGivesOutNoMore)
{
    onDone = [](std::size_t nJob) {
        if (nJob == 104)
            raise(SIGTERM);
    };
    Run(1, 100, 200);
    EXPECT_THAT(mapResult, SizeIs(5));
}

TEST_F(WorkerPoolTest, SecondInterruptCancelsJobsAtWork)
{
    const pid_t nParent = getpid();
    const pid_t nSender = fork();
    if (nSender == 0) {
        for (int n = 0; n < 3; ++n) {
            usleep(300'000);
            kill(nParent, SIGTERM);
        }
        _exit(0);
    }
    Run(1, HANGING, HANGING + 3);
    kill(nSender, SIGKILL);
    waitpid(nSender, nullptr, 0);
    ASSERT_THAT(mapResult, SizeIs(1));
    EXPECT_EQ(mapResult.at(HANGING).eEnd, JobEnd::Cancelled);
}

TEST_F(WorkerPoolTest, JobThatNeedsTooMuchMemoryIsToldAndTheOthersAreDone)
{
    if (HAS_SANITIZER)
        GTEST_SKIP() << "sanitizers count memory by themselves";
    Run(1, 10, 14, 0, 0, 32 * MEBIBYTES);
    EXPECT_THAT(mapResult, SizeIs(4));
    for (const auto& [nJob, result] : mapResult) {
        EXPECT_EQ(result.eEnd, JobEnd::Answered) << nJob;
        EXPECT_EQ(result.bOutOfMemory, nJob == GREEDY) << nJob;
    }
    EXPECT_EQ(mapResult.at(GREEDY).strAnswer, "none");
    // Two processes: the one without memory ends behind its job.
    const auto process = [this](std::size_t nJob) {
        const std::string& strAnswer = mapResult.at(nJob).strAnswer;
        return strAnswer.substr(strAnswer.find(':'));
    };
    EXPECT_NE(process(10), process(12));
    EXPECT_EQ(process(12), process(13));
}

TEST_F(WorkerPoolTest, WithoutALimitAJobTakesWhatItNeeds)
{
    Run(1, GREEDY, GREEDY + 1);
    EXPECT_EQ(mapResult.at(GREEDY).strAnswer, "x");
    EXPECT_FALSE(mapResult.at(GREEDY).bOutOfMemory);
}

}  // namespace
}  // namespace host
