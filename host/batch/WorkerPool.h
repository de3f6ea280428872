// Jobs done by processes, as the library serves one request at a time in a process, and so that
// one job's end by a fault is not the others'.
#pragma once

#include <sys/types.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "batch/Interrupt.h"

namespace host {

/// What a worker process does with its jobs. Made, used and never destroyed in that process.
class Work
{
public:
    virtual ~Work() = default;
    /// \return What the parent is told; any bytes.
    virtual std::string Do(std::size_t nJob) = 0;
};

enum class JobEnd
{
    Answered,
    Died,       ///< the process ended before it answered
    TimedOut,   ///< the process was killed as the job took too long
    Cancelled,  ///< the process was killed as the whole work was broken off
};

struct JobResult
{
    std::size_t nJob = 0;
    JobEnd eEnd = JobEnd::Answered;
    std::string strAnswer;  ///< empty unless answered
    int nWaitStatus = 0;    ///< of waitpid, unless answered
    /// The process asked for more memory than it may have. Then an answer counts for nothing, as
    /// nobody knows what it lacks.
    bool bOutOfMemory = false;
    double dSeconds = 0;
};

/// Steady time in seconds.
double SteadyNow();

class WorkerPool
{
public:
    struct Settings
    {
        std::size_t nWorkers = 1;
        double dTimeout = 0;  ///< most seconds for a job; 0 for no limit
        /// Most bytes that a process takes beside what it begins with; 0 for no limit.
        std::uint64_t nMemory = 0;
    };
    struct Client
    {
        /// Called in each new process. The process has the memory that the parent had then.
        std::function<std::unique_ptr<Work>()> makeWork;
        /// The next job, or nothing if no more are to be given out.
        std::function<std::optional<std::size_t>()> next;
        std::function<void(JobResult)> done;
        /// Called at least every TICK_SECONDS.
        std::function<void()> tick;
    };
    static constexpr double TICK_SECONDS = 0.2;

    /// No thread may run beside the caller's. All that is given has to live as long as the object.
    /// Throws std::system_error if the system gives nothing.
    WorkerPool(const Settings& settings, const Client& client, const Interrupt& interrupt);
    /// Ends the processes.
    ~WorkerPool();
    WorkerPool(const WorkerPool&) = delete;
    WorkerPool& operator=(const WorkerPool&) = delete;

    /// Does jobs until there are no more, or until the interrupt: then those that are at work may
    /// go on for GRACE_SECONDS, or until a second interrupt, and are cancelled after that.
    /// Throws std::system_error if not even one process can be started.
    void Run();
    static constexpr double GRACE_SECONDS = 5;

private:
    struct Worker
    {
        pid_t nProcess = 0;
        int nSocket = -1;
        bool bBusy = false;
        std::size_t nJob = 0;
        double dStart = 0;
        std::string strReceived;
    };

    void HandOut();
    bool Start(Worker& worker);
    [[noreturn]] void ServeInChild(const Worker& worker, int nSocket, pid_t nParent);
    volatile bool* OutOfMemory(const Worker& worker) const;
    bool Send(const Worker& worker, std::size_t nJob) const;
    void Wait();
    void Receive(Worker& worker);
    void Settle(Worker& worker, JobEnd eEnd, std::string strAnswer = {});
    void KillLate();
    int End(Worker& worker, bool bKill);
    bool AnyBusy() const;

    Settings m_settings;
    Client m_client;
    const Interrupt& m_interrupt;
    std::vector<Worker> m_vecWorker;
    void* m_pShared = nullptr;  ///< memory that the processes see, too: a flag for each worker
    std::optional<std::size_t> m_jobWaiting;  ///< taken from the client, not yet given out
    bool m_bNoMore = false;
    std::optional<double> m_interrupted;  ///< when
};

}  // namespace host
