#include "batch/WorkerPool.h"

#include <poll.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cmath>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <system_error>
#include <utility>

#include "batch/MemoryLimit.h"

namespace host {
namespace {

constexpr std::size_t RECEIVED_AT_ONCE = 65536;
constexpr int STATUS_OF_BROKEN_WORKER = 70;

using Length = std::uint64_t;

bool SendAll(int nSocket, const void* pBytes, std::size_t nBytes)
{
    const char* pRest = static_cast<const char*>(pBytes);
    while (nBytes > 0) {
        const ssize_t nSent = send(nSocket, pRest, nBytes, MSG_NOSIGNAL);
        if (nSent < 0 && errno != EINTR)
            return false;
        if (nSent > 0) {
            pRest += nSent;
            nBytes -= static_cast<std::size_t>(nSent);
        }
    }
    return true;
}

bool ReceiveJob(int nSocket, std::uint64_t& nJob)
{
    ssize_t nReceived = -1;
    do
        nReceived = recv(nSocket, &nJob, sizeof nJob, MSG_WAITALL);
    while (nReceived < 0 && errno == EINTR);
    return nReceived == static_cast<ssize_t>(sizeof nJob);
}

/// The answer once it is here as a whole, or nothing.
std::optional<std::string> TakeAnswer(std::string& strReceived)
{
    Length nLength = 0;
    if (strReceived.size() < sizeof nLength)
        return std::nullopt;
    std::memcpy(&nLength, strReceived.data(), sizeof nLength);
    if (strReceived.size() - sizeof nLength < nLength)
        return std::nullopt;
    std::string strAnswer = strReceived.substr(sizeof nLength);
    strReceived.clear();
    return strAnswer;
}

}  // namespace

double SteadyNow()
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

WorkerPool::WorkerPool(const Settings& settings, const Client& client, const Interrupt& interrupt)
    : m_settings(settings),
      m_client(client),
      m_interrupt(interrupt),
      m_vecWorker(std::max<std::size_t>(settings.nWorkers, 1)),
      m_pShared(mmap(
          nullptr, m_vecWorker.size(), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0))
{
    if (m_pShared == MAP_FAILED)
        throw std::system_error(errno, std::generic_category(), "no memory for the workers");
}

WorkerPool::~WorkerPool()
{
    for (Worker& worker : m_vecWorker)
        if (worker.nProcess > 0)
            End(worker, /*bKill=*/worker.bBusy);
    munmap(m_pShared, m_vecWorker.size());
}

volatile bool* WorkerPool::OutOfMemory(const Worker& worker) const
{
    return static_cast<volatile bool*>(m_pShared) + (&worker - m_vecWorker.data());
}

void WorkerPool::Run()
{
    for (;;) {
        if (m_interrupt.Count() == 0)
            HandOut();
        else if (!m_interrupted)
            m_interrupted = SteadyNow();
        if (!AnyBusy())
            return;
        Wait();
        KillLate();
        m_client.tick();
    }
}

void WorkerPool::HandOut()
{
    for (Worker& worker : m_vecWorker) {
        if (worker.bBusy)
            continue;
        if (!m_jobWaiting && !m_bNoMore) {
            m_jobWaiting = m_client.next();
            m_bNoMore = !m_jobWaiting;
        }
        if (!m_jobWaiting)
            return;
        // An idle process may have been ended from outside.
        if (worker.nProcess > 0 && !Send(worker, *m_jobWaiting))
            End(worker, /*bKill=*/true);
        if (worker.nProcess == 0) {
            if (!Start(worker)) {
                if (!AnyBusy())
                    throw std::system_error(errno, std::generic_category(),
                                            "no process could be started");
                return;
            }
            Send(worker, *m_jobWaiting);  // if this fails the process has died over the job
        }
        worker.bBusy = true;
        worker.nJob = *m_jobWaiting;
        worker.dStart = SteadyNow();
        m_jobWaiting.reset();
    }
}

bool WorkerPool::Start(Worker& worker)
{
    std::array<int, 2> socket{};
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, socket.data()) != 0)
        return false;
    const pid_t nParent = getpid();
    const pid_t nProcess = fork();
    if (nProcess == 0) {
        close(socket[0]);
        ServeInChild(worker, socket[1], nParent);
    }
    const int nError = errno;
    close(socket[1]);
    if (nProcess < 0) {
        close(socket[0]);
        errno = nError;
        return false;
    }
    worker = {};
    worker.nProcess = nProcess;
    worker.nSocket = socket[0];
    return true;
}

void WorkerPool::ServeInChild(const Worker& worker, int nSocket, pid_t nParent)
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() != nParent)
        _exit(EXIT_SUCCESS);
    Interrupt::IgnoreInChild();
    // The parent's ends of the others' sockets: they would not see it go.
    for (const Worker& other : m_vecWorker)
        if (other.nSocket >= 0)
            close(other.nSocket);
    LimitMemory(m_settings.nMemory, OutOfMemory(worker));
    try {
        const std::unique_ptr<Work> pWork = m_client.makeWork();
        std::uint64_t nJob = 0;
        while (ReceiveJob(nSocket, nJob)) {
            const std::string strAnswer = pWork->Do(nJob);
            const Length nLength = strAnswer.size();
            if (!SendAll(nSocket, &nLength, sizeof nLength) ||
                !SendAll(nSocket, strAnswer.data(), strAnswer.size()))
                break;
        }
        _exit(EXIT_SUCCESS);  // what the parent has still to write isn't this process's
    } catch (...) {
        _exit(STATUS_OF_BROKEN_WORKER);
    }
}

bool WorkerPool::Send(const Worker& worker, std::size_t nJob) const
{
    const std::uint64_t nSent = nJob;
    return SendAll(worker.nSocket, &nSent, sizeof nSent);
}

void WorkerPool::Wait()
{
    std::vector<pollfd> vecPoll;
    std::vector<Worker*> vecPolled;
    for (Worker& worker : m_vecWorker) {
        if (!worker.bBusy)
            continue;
        vecPoll.push_back({worker.nSocket, POLLIN, 0});
        vecPolled.push_back(&worker);
    }
    const timespec time = {0, static_cast<long>(TICK_SECONDS * 1e9)};
    // A signal ends the wait, too.
    if (ppoll(vecPoll.data(), vecPoll.size(), &time, m_interrupt.WaitMask()) <= 0)
        return;
    for (std::size_t n = 0; n < vecPoll.size(); ++n)
        if (vecPoll[n].revents != 0)
            Receive(*vecPolled[n]);
}

void WorkerPool::Receive(Worker& worker)
{
    std::array<char, RECEIVED_AT_ONCE> bytes;
    const ssize_t nReceived = recv(worker.nSocket, bytes.data(), bytes.size(), MSG_DONTWAIT);
    if (nReceived < 0 && (errno == EINTR || errno == EAGAIN))
        return;
    if (nReceived <= 0)
        return Settle(worker, JobEnd::Died);
    worker.strReceived.append(bytes.data(), static_cast<std::size_t>(nReceived));
    if (auto strAnswer = TakeAnswer(worker.strReceived))
        Settle(worker, JobEnd::Answered, std::move(*strAnswer));
}

void WorkerPool::Settle(Worker& worker, JobEnd eEnd, std::string strAnswer)
{
    JobResult result;
    result.nJob = worker.nJob;
    result.eEnd = eEnd;
    result.strAnswer = std::move(strAnswer);
    result.dSeconds = SteadyNow() - worker.dStart;
    result.bOutOfMemory = *OutOfMemory(worker);
    *OutOfMemory(worker) = false;
    worker.bBusy = false;
    // What a process without memory has left undone may cost the next job, too.
    if (eEnd != JobEnd::Answered || result.bOutOfMemory)
        result.nWaitStatus = End(worker, /*bKill=*/eEnd != JobEnd::Died);
    m_client.done(std::move(result));
}

void WorkerPool::KillLate()
{
    const double dNow = SteadyNow();
    if (m_interrupt.Count() > 0 && !m_interrupted)
        m_interrupted = dNow;
    const bool bCancel =
        m_interrupted && (m_interrupt.Count() > 1 || dNow - *m_interrupted > GRACE_SECONDS);
    for (Worker& worker : m_vecWorker) {
        if (!worker.bBusy)
            continue;
        if (m_settings.dTimeout > 0 && dNow - worker.dStart > m_settings.dTimeout)
            Settle(worker, JobEnd::TimedOut);
        else if (bCancel)
            Settle(worker, JobEnd::Cancelled);
    }
}

/// Lets go of the process. \return Its status as waitpid tells it.
int WorkerPool::End(Worker& worker, bool bKill)
{
    if (bKill)
        kill(worker.nProcess, SIGKILL);
    close(worker.nSocket);
    int nStatus = 0;
    while (waitpid(worker.nProcess, &nStatus, 0) < 0 && errno == EINTR) {
    }
    worker = {};
    return nStatus;
}

bool WorkerPool::AnyBusy() const
{
    return std::ranges::any_of(m_vecWorker, &Worker::bBusy);
}

}  // namespace host
